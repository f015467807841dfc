#include "desk/window/CompareDialog.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>

#include "desk/project/Data.h"
#include "desk/window/FieldNames.h"
#include "desk/window/Languages.h"

namespace Desk {

namespace {

QString Wording(const char* text) { return QCoreApplication::translate("Desk", text); }

using Index = std::size_t;

// Of each of mine its like in theirs.
template <class Owner>
std::map<Index, Index> Pairs(const std::vector<Owner>& mine, const std::vector<Owner>& theirs)
{
    using Key = std::tuple<std::string, double, double, double, double>;
    const auto keyOf = [](const Owner& owner, bool byName, bool byPlace) {
        const PlanPoint none;
        const PlanPoint& start = byPlace ? owner.start : none;
        const PlanPoint& end = byPlace ? owner.end : none;
        return Key(byName ? owner.name : std::string(), start.x, start.y, end.x, end.y);
    };
    std::map<Index, Index> pairs;
    std::set<Index> taken;
    for (const auto& [byName, byPlace] : {std::pair(true, true), {false, true}, {true, false}}) {
        std::multimap<Key, Index> open;
        for (Index i = 0; i < theirs.size(); ++i) {
            if (!taken.contains(i)) {
                open.emplace(keyOf(theirs[i], byName, byPlace), i);
            }
        }
        for (Index i = 0; i < mine.size(); ++i) {
            const auto like = pairs.contains(i) ? open.end() : open.find(keyOf(mine[i], byName, byPlace));
            if (like != open.end()) {
                pairs.emplace(i, like->second);
                taken.insert(like->second);
                open.erase(like);
            }
        }
    }
    return pairs;
}

// The annotations of an owner by what a person calls them, in their order; of several in place with one
// name each counts.
std::vector<std::pair<QString, QString>> Named(const Project& project, const FieldRef& owner)
{
    std::vector<std::pair<QString, QString>> all;
    for (const FieldRef& ref : RefsOf(project, owner)) {
        all.emplace_back(FieldName(project, ref), QString::fromStdString(TextAt(project, ref)));
    }
    const auto add = [&all](const auto& each) {
        for (const DatumRow& row : DataOf(each)) {
            all.emplace_back(QString::fromUtf8(IsChinese() ? row.chinese : row.english),
                             QString::fromStdString(DatumText(each, row.datum)));
        }
    };
    if (owner.isWall) {
        add(project.walls[owner.index]);
    } else {
        add(project.beams[owner.index]);
    }
    return all;
}

void Compare(const Project& mine, const FieldRef& ref, const Project& theirs, const FieldRef& other,
             std::vector<Difference>& to)
{
    std::vector<std::pair<QString, QString>> there = Named(theirs, other);
    for (const auto& [name, text] : Named(mine, ref)) {
        const auto like = std::find_if(there.begin(), there.end(),
                                       [&name = name](const auto& each) { return each.first == name; });
        const QString theirText = like != there.end() ? like->second : QString();
        if (text != theirText) {
            to.push_back({OwnerName(mine, ref), name, text, theirText});
        }
        if (like != there.end()) {
            there.erase(like);
        }
    }
    for (const auto& [name, text] : there) {
        if (!text.isEmpty()) {
            to.push_back({OwnerName(mine, ref), name, {}, text});
        }
    }
}

template <class Owner>
void CompareAll(const Project& mine, const std::vector<Owner>& mineOf, const Project& theirs,
                const std::vector<Owner>& theirsOf, bool isWall, std::vector<Difference>& to)
{
    const std::map<Index, Index> pairs = Pairs(mineOf, theirsOf);
    const QString isThere = Wording(QT_TRANSLATE_NOOP("Desk", "is there"));
    const QString isMissing = Wording(QT_TRANSLATE_NOOP("Desk", "is missing"));
    std::set<Index> paired;
    for (Index i = 0; i < mineOf.size(); ++i) {
        const FieldRef ref{isWall, i, Field::Name};
        if (const auto pair = pairs.find(i); pair != pairs.end()) {
            Compare(mine, ref, theirs, {isWall, pair->second, Field::Name}, to);
            paired.insert(pair->second);
        } else {
            to.push_back({OwnerName(mine, ref), {}, isThere, isMissing});
        }
    }
    for (Index i = 0; i < theirsOf.size(); ++i) {
        if (!paired.contains(i)) {
            to.push_back({OwnerName(theirs, {isWall, i, Field::Name}), {}, isMissing, isThere});
        }
    }
}

}  // namespace

std::vector<Difference> DifferencesOf(const Project& mine, const Project& theirs)
{
    std::vector<Difference> differences;
    CompareAll(mine, mine.beams, theirs, theirs.beams, false, differences);
    CompareAll(mine, mine.walls, theirs, theirs.walls, true, differences);
    return differences;
}

void ShowDifferences(QWidget& over, const QString& file, const std::vector<Difference>& differences)
{
    QDialog dialog(&over);
    dialog.setObjectName("compare");
    dialog.setWindowTitle(Wording(QT_TRANSLATE_NOOP("Desk", "Compare with %1")).arg(file));
    auto* const rows = new QTreeWidget;
    rows->setObjectName("differences");
    rows->setRootIsDecorated(false);
    rows->setUniformRowHeights(true);
    rows->setHeaderLabels({Wording(QT_TRANSLATE_NOOP("Desk", "Beam or wall")),
                           Wording(QT_TRANSLATE_NOOP("Desk", "Annotation")),
                           Wording(QT_TRANSLATE_NOOP("Desk", "Here")),
                           Wording(QT_TRANSLATE_NOOP("Desk", "In the file"))});
    QList<QTreeWidgetItem*> items;
    for (const Difference& each : differences) {
        items << new QTreeWidgetItem(QStringList{each.owner, each.field, each.mine, each.theirs});
    }
    rows->addTopLevelItems(items);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setText(Wording(QT_TRANSLATE_NOOP("Desk", "Close")));
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* const column = new QVBoxLayout(&dialog);
    column->addWidget(
        new QLabel(differences.empty()
                       ? Wording(QT_TRANSLATE_NOOP("Desk", "All annotations and data are the same."))
                       : Wording(QT_TRANSLATE_NOOP("Desk", "%1 differences")).arg(differences.size())));
    column->addWidget(rows);
    column->addWidget(buttons);
    dialog.resize(720, 480);
    for (int i = 0; i < rows->columnCount(); ++i) {
        rows->resizeColumnToContents(i);
    }
    dialog.exec();
}

}  // namespace Desk
