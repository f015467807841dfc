#include "desk/window/Group.h"

#include <algorithm>
#include <string_view>

#include <QtGui>

#include "desk/window/Steps.h"

namespace Desk {

namespace {

const QString Format = QStringLiteral("application/x-beamdesk-texts");

bool IsSameOwner(const FieldRef& one, const FieldRef& other)
{
    return one.isWall == other.isWall && one.index == other.index;
}

std::string_view LettersOf(std::string_view name)
{
    return name.substr(0, name.find_first_of("0123456789"));
}

bool AreLike(const Beam& one, const Beam& other)
{
    return one.section == other.section && LettersOf(one.name) == LettersOf(other.name);
}

}  // namespace

bool TakeSameTexts(const FieldRef& one, const FieldRef& other)
{
    const auto isPlainBars = [](const FieldRef& ref) {
        return RowOf(ref.field).panel == PanelKind::Bars && *RowOf(ref.field).heads == '\0';
    };
    return one.isWall == other.isWall &&
           (one.field == other.field || (isPlainBars(one) && isPlainBars(other)));
}

std::optional<FieldRef> PartOf(const Project& project, const FieldRef& inWork, const FieldRef& pointedAt)
{
    if (TakeSameTexts(inWork, pointedAt)) {
        return pointedAt;
    }
    const FieldRef alike = inWork.isWall == pointedAt.isWall
                               ? Alike(project, {pointedAt.isWall, pointedAt.index, Field::Name}, inWork)
                               : pointedAt;
    return TakeSameTexts(inWork, alike) ? std::optional(alike) : std::nullopt;
}

std::vector<FieldRef> WithSameText(const Project& project, const FieldRef& ref)
{
    const std::string& text = TextAt(project, ref);
    std::vector<FieldRef> found;
    const std::size_t count = ref.isWall ? project.walls.size() : project.beams.size();
    for (std::size_t i = 0; i < count; ++i) {
        for (const FieldRef& each : RefsOf(project, {ref.isWall, i, Field::Name})) {
            if (each.field == ref.field && TextAt(project, each) == text) {
                found.push_back(each);
            }
        }
    }
    return found;
}

std::vector<FieldRef> OfLikeOwners(const Project& project, const FieldRef& ref)
{
    std::vector<FieldRef> found;
    const std::size_t count = ref.isWall ? project.walls.size() : project.beams.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (ref.isWall ? project.walls[i].thickness == project.walls[ref.index].thickness
                       : AreLike(project.beams[i], project.beams[ref.index])) {
            found.push_back(i == ref.index ? ref : Alike(project, {ref.isWall, i, Field::Name}, ref));
        }
    }
    return found;
}

std::set<FieldRef> WentOn(const Project& project, const std::set<FieldRef>& others, const FieldRef& from,
                          const FieldRef& to)
{
    std::set<FieldRef> gone;
    for (const FieldRef& each : others) {
        if (IsSameOwner(from, to) && Exists(project, each)) {
            gone.insert(from == to ? each : Alike(project, {each.isWall, each.index, Field::Name}, to));
        }
    }
    if (from != to) {
        std::erase_if(gone, [&to](const FieldRef& each) { return IsSameOwner(each, to); });
    }
    return gone;
}

Copied CopyOf(const Project& project, const FieldRef& ref)
{
    return {ref.isWall, {{ref.field, QString::fromStdString(TextAt(project, ref))}}};
}

Copied CopyOfOwner(const Project& project, const FieldRef& owner)
{
    Copied copied{owner.isWall, {}};
    for (const Field field : FieldsOf(owner)) {
        if (field != Field::Name) {
            const std::string& text = TextAt(project, {owner.isWall, owner.index, field});
            copied.texts.emplace_back(field, QString::fromStdString(text));
        }
    }
    return copied;
}

NewTexts TextsAt(const FieldRef& pointedAt, const Copied& copied)
{
    NewTexts texts;
    for (const auto& [field, text] : copied.texts) {
        const FieldRef own{copied.isWall, pointedAt.index, field};
        if (copied.texts.size() == 1 && TakeSameTexts(own, pointedAt)) {
            texts.emplace_back(pointedAt, text);
        } else if (copied.isWall == pointedAt.isWall) {
            texts.emplace_back(own, text);
        }
    }
    return texts;
}

QMimeData* ToClipboard(const Copied& copied)
{
    QStringList lines;
    QJsonArray texts;
    for (const auto& [field, text] : copied.texts) {
        texts.push_back(QJsonArray{RowOf(field).key, text});
        if (!text.isEmpty()) {
            lines << text;
        }
    }
    auto* const data = new QMimeData;
    data->setText(lines.join(QLatin1Char('\n')));
    data->setData(Format, QJsonDocument(QJsonObject{{"wall", copied.isWall}, {"texts", texts}}).toJson());
    return data;
}

std::optional<Copied> FromClipboard(const QMimeData& data, const FieldRef& to)
{
    if (data.hasFormat(Format)) {
        const QJsonObject all = QJsonDocument::fromJson(data.data(Format)).object();
        Copied copied{all["wall"].toBool(), {}};
        const std::span<const Field> fields = copied.isWall ? WallFields() : BeamFields();
        for (const QJsonValue& each : all["texts"].toArray()) {
            const auto field = std::find_if(fields.begin(), fields.end(), [&each](Field one) {
                return each[0].toString() == QLatin1String(RowOf(one).key);
            });
            if (field != fields.end()) {
                copied.texts.emplace_back(*field, each[1].toString());
            }
        }
        return copied;
    }
    const QString line = data.text().trimmed();
    if (line.isEmpty() || line.contains(QLatin1Char('\n'))) {
        return std::nullopt;
    }
    return Copied{to.isWall, {{to.field, line}}};
}

}  // namespace Desk
