#include "desk/window/FieldNames.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "desk/reading/Bars.h"
#include "desk/window/Languages.h"

namespace Desk {

namespace {

QString Phrased(const char* text) { return QCoreApplication::translate("Desk", text); }

// Within a sentence: "bottom bars".
QString InSentence(QString name)
{
    return IsChinese() || name.isEmpty() ? name : name.at(0).toLower() + name.mid(1);
}

}  // namespace

QString FieldName(Field field)
{
    const FieldRow& row = RowOf(field);
    return QString::fromUtf8(IsChinese() ? row.chinese : row.english);
}

QString FieldName(const Project& project, const FieldRef& ref)
{
    if (ref.inPlace < 0) {
        return FieldName(ref.field);
    }
    const InPlace& text = project.beams.at(ref.index).inPlace.at(static_cast<std::size_t>(ref.inPlace));
    const RoleRow& row = RowOf(text.role);
    return QString::fromUtf8(IsChinese() ? row.chinese : row.english).arg(text.number);
}

QString OwnerName(const Project& project, const FieldRef& ref)
{
    const QString name = QString::fromStdString(TextAt(project, {ref.isWall, ref.index, Field::Name}));
    const QString number = name.isEmpty() ? QString::number(ref.index + 1) : name;
    if (ref.isWall) {
        return QCoreApplication::translate("Desk", "Wall %1").arg(number);
    }
    return name.isEmpty() ? QCoreApplication::translate("Desk", "Beam %1").arg(number) : name;
}

QString ChangeName(const Project& project, const std::map<FieldRef, std::string>& texts)
{
    const auto& [first, text] = *texts.begin();
    const QString now = QString::fromStdString(text);
    if (texts.size() == 1) {
        const QString was = QString::fromStdString(TextAt(project, first));
        const QString what =
            QStringLiteral("%1 %2").arg(OwnerName(project, first), InSentence(FieldName(project, first)));
        return was.isEmpty()   ? Phrased(QT_TRANSLATE_NOOP("Desk", "%1 %2 added")).arg(what, now)
               : now.isEmpty() ? Phrased(QT_TRANSLATE_NOOP("Desk", "%1 %2 removed")).arg(what, was)
                               : Phrased(QT_TRANSLATE_NOOP("Desk", "%1 %2 to %3")).arg(what, was, now);
    }
    std::set<std::pair<bool, std::size_t>> owners;
    std::set<Field> fields;
    std::set<std::string> news;
    for (const auto& [ref, each] : texts) {
        owners.emplace(ref.isWall, ref.index);
        fields.insert(ref.field);
        news.insert(each);
    }
    const QString count = QString::number(texts.size());
    if (owners.size() == 1) {
        return Phrased(QT_TRANSLATE_NOOP("Desk", "%1 texts of %2")).arg(count, OwnerName(project, first));
    }
    const auto walls = static_cast<std::size_t>(
        std::count_if(owners.begin(), owners.end(), [](const auto& owner) { return owner.first; }));
    const QString of = Phrased(walls == 0               ? QT_TRANSLATE_NOOP("Desk", "%1 beams")
                               : walls == owners.size() ? QT_TRANSLATE_NOOP("Desk", "%1 walls")
                                                        : QT_TRANSLATE_NOOP("Desk", "%1 beams and walls"))
                           .arg(owners.size());
    if (fields.size() > 1) {
        return Phrased(QT_TRANSLATE_NOOP("Desk", "%1 texts of %2")).arg(count, of);
    }
    const QString what =
        Phrased(QT_TRANSLATE_NOOP("Desk", "%1 of %2")).arg(InSentence(FieldName(first.field)), of);
    return news.size() > 1 ? what
           : now.isEmpty() ? Phrased(QT_TRANSLATE_NOOP("Desk", "%1 removed")).arg(what)
                           : Phrased(QT_TRANSLATE_NOOP("Desk", "%1 to %2")).arg(what, now);
}

QString OwnerTip(const Project& project, const FieldRef& ref)
{
    QString tip = QStringLiteral("<b>%1</b>").arg(OwnerName(project, ref).toHtmlEscaped());
    for (const FieldRef& each : RefsOf(project, ref)) {
        const std::string& text = TextAt(project, each);
        if (text.empty() || each.field == Field::Name) {
            continue;
        }
        QString line = QStringLiteral("%1: %2").arg(FieldName(project, each), QString::fromStdString(text));
        const auto bars = RowOf(each.field).ranker == Ranker::Bars ? ReadBars(text) : std::nullopt;
        if (bars && bars->Area() > 0.0) {
            line += QStringLiteral("  (%1 mm²)").arg(std::lround(bars->Area()));
        }
        line = line.toHtmlEscaped();
        tip += QStringLiteral("<br>") + (each == ref ? QStringLiteral("<b>%1</b>").arg(line) : line);
    }
    return tip;
}

}  // namespace Desk
