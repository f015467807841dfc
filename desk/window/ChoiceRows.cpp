#include "desk/window/ChoiceRows.h"

namespace Desk {

namespace {

constexpr int TextColumn = 0;
constexpr int UsesColumn = 1;
constexpr int IsChoice = Qt::UserRole;  // false for a group's title

bool OfProject(Source source) { return source == Source::Project || source == Source::Given; }
bool OfGuess(Source source) { return source == Source::Guess; }
bool OfTable(Source source) { return source == Source::Table; }

// A mark for the ranker's focus that follows the colours. The other rows have a transparent one, so that
// all texts are aligned.
QIcon FocusMark(const QColor& color)
{
    constexpr int Size = 32;
    QPixmap mark(Size, Size);
    mark.fill(Qt::transparent);
    QPainter painter(&mark);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF({{8, 4}, {26, 16}, {8, 28}}));
    return QIcon(mark);
}

QTreeWidgetItem* NextChoice(QTreeWidgetItem* from, bool below, QTreeWidget& rows)
{
    QTreeWidgetItem* row = from;
    do {
        row = below ? rows.itemBelow(row) : rows.itemAbove(row);
    } while (row != nullptr && !row->data(TextColumn, IsChoice).toBool());
    return row;
}

}  // namespace

ChoiceRows::ChoiceRows(QWidget* parent) : QTreeWidget(parent), m_noMark(FocusMark(Qt::transparent))
{
    setObjectName("choices");
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(10);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(TextColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(UsesColumn, QHeaderView::ResizeToContents);
    setFocusPolicy(Qt::NoFocus);  // the keyboard stays in the line above
    connect(this, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* row) {
        if (row->data(TextColumn, IsChoice).toBool()) {
            emit Taken(row->text(TextColumn));
        }
    });
}

void ChoiceRows::Fill(const Ranking& ranking, const QString& present, bool areNames)
{
    Empty();
    m_present = present;
    m_areNames = areNames;
    AddGroup(areNames ? tr("Free names of the project's kinds") : tr("In the project"), ranking, OfProject);
    AddGroup(tr("Guesses"), ranking, OfGuess);
    AddGroup(tr("From the table"), ranking, OfTable);
    expandAll();
    if (areNames && !present.isEmpty()) {
        m_first = nullptr;
    } else if (m_first == nullptr && topLevelItemCount() > 0) {
        m_first = topLevelItem(0)->child(0);
    }
    Mark(m_first, QAbstractItemView::PositionAtCenter);
}

void ChoiceRows::Empty()
{
    clear();
    m_first = nullptr;
}

void ChoiceRows::Mark(QTreeWidgetItem* row, QAbstractItemView::ScrollHint hint)
{
    setCurrentItem(row);
    if (row != nullptr) {
        scrollToItem(row, hint);
    }
}

QString ChoiceRows::Marked() const
{
    const QTreeWidgetItem* const row = currentItem();
    const bool isMarked = row != nullptr && !row->isHidden() && row->data(TextColumn, IsChoice).toBool();
    return isMarked ? row->text(TextColumn) : QString();
}

void ChoiceRows::AddGroup(const QString& title, const Ranking& ranking, bool (*belongs)(Source))
{
    QTreeWidgetItem* group = nullptr;
    for (std::size_t i = 0; i < ranking.candidates.size(); ++i) {
        const Candidate& candidate = ranking.candidates[i];
        if (!belongs(candidate.source)) {
            continue;
        }
        if (group == nullptr) {
            group = new QTreeWidgetItem(this, {title});
            group->setFlags(Qt::ItemIsEnabled);
            group->setForeground(TextColumn, palette().brush(QPalette::PlaceholderText));
            group->setFirstColumnSpanned(true);
        }
        AddRow(group, candidate, static_cast<int>(i) == ranking.focus);
    }
}

void ChoiceRows::AddRow(QTreeWidgetItem* group, const Candidate& candidate, bool focus)
{
    const QString text = QString::fromStdString(candidate.text);
    QString uses = candidate.uses > 0 ? tr("%1 x").arg(candidate.uses) : QString();
    if (m_areNames && candidate.uses > 0 && !candidate.writings.empty()) {
        uses += QLatin1Char(' ') + QString::fromStdString(candidate.writings.front().text);
    }
    auto* const row = new QTreeWidgetItem(group, {text, uses});
    row->setData(TextColumn, IsChoice, true);
    row->setTextAlignment(UsesColumn, Qt::AlignRight | Qt::AlignVCenter);
    row->setForeground(UsesColumn, palette().brush(QPalette::PlaceholderText));
    const bool present = text == m_present;
    if (present) {
        QFont bold = font();
        bold.setBold(true);
        row->setFont(TextColumn, bold);
    }
    row->setIcon(TextColumn, focus ? FocusMark(palette().color(QPalette::Highlight)) : m_noMark);
    if (focus) {
        row->setToolTip(TextColumn, m_areNames ? tr("The first free name")
                                               : tr("The last text that the project supports"));
    }
    if (present || (focus && m_first == nullptr)) {
        m_first = row;
    }
}

void ChoiceRows::Narrow(const QString& typed)
{
    QTreeWidgetItem* same = nullptr;
    QTreeWidgetItem* begins = nullptr;
    QTreeWidgetItem* holds = nullptr;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* const group = topLevelItem(i);
        int shown = 0;
        for (int at = 0; at < group->childCount(); ++at) {
            QTreeWidgetItem* const row = group->child(at);
            const QString text = row->text(TextColumn);
            const bool match = text.contains(typed, Qt::CaseInsensitive);
            row->setHidden(!match);
            shown += match ? 1 : 0;
            if (text.compare(typed, Qt::CaseInsensitive) == 0) {
                same = row;
            }
            if (match && holds == nullptr) {
                holds = row;
            }
            if (match && begins == nullptr && text.startsWith(typed, Qt::CaseInsensitive)) {
                begins = row;
            }
        }
        group->setHidden(shown == 0);
    }
    QTreeWidgetItem* const to = typed.isEmpty()     ? m_first
                                : same != nullptr   ? same
                                : begins != nullptr ? begins
                                                    : holds;
    Mark(to);
}

bool ChoiceRows::MoveMark(int key)
{
    QTreeWidgetItem* row = currentItem();
    if (row == nullptr) {
        QTreeWidgetItem* const top = topLevelItem(0);
        row = top != nullptr ? NextChoice(top, true, *this) : nullptr;
        Mark(row);
        return row != nullptr;
    }
    constexpr int Page = 10;  // rows
    const bool below = key == Qt::Key_Down || key == Qt::Key_PageDown;
    for (int left = key == Qt::Key_Up || key == Qt::Key_Down ? 1 : Page; left > 0; --left) {
        if (QTreeWidgetItem* const next = NextChoice(row, below, *this)) {
            row = next;
        }
    }
    Mark(row);
    return true;
}

}  // namespace Desk
