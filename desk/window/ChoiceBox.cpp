#include "desk/window/ChoiceBox.h"

#include <algorithm>

namespace Desk {

namespace {

constexpr int TextColumn = 0;
constexpr int UsesColumn = 1;
constexpr int IsChoice = Qt::UserRole;  // false for a group's title

bool OfProject(Source source) { return source == Source::Project || source == Source::Given; }
bool OfGuess(Source source) { return source == Source::Guess; }
bool OfTable(Source source) { return source == Source::Table; }

// A mark for the ranker's focus that follows the colours. The other rows have one that does not show, so
// that all texts stand in one line.
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

ChoiceBox::ChoiceBox(QWidget* parent)
    : QWidget(parent), m_owner(new QLabel), m_present(new QLabel), m_typed(new QLineEdit),
      m_rows(new QTreeWidget), m_table(new QCheckBox), m_panel(new QPushButton)
{
    m_noMark = FocusMark(Qt::transparent);
    m_typed->setObjectName("typed");
    m_rows->setObjectName("choices");
    m_table->setObjectName("table");
    m_panel->setObjectName("panel");
    QFont large = m_owner->font();
    large.setBold(true);
    m_owner->setFont(large);
    m_present->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_typed->setClearButtonEnabled(true);
    m_rows->setColumnCount(2);
    m_rows->setHeaderHidden(true);
    m_rows->setRootIsDecorated(false);
    m_rows->setIndentation(10);
    m_rows->setItemsExpandable(false);
    m_rows->setUniformRowHeights(true);
    m_rows->header()->setStretchLastSection(false);
    m_rows->header()->setSectionResizeMode(TextColumn, QHeaderView::Stretch);
    m_rows->header()->setSectionResizeMode(UsesColumn, QHeaderView::ResizeToContents);
    m_rows->setFocusPolicy(Qt::NoFocus);  // the keyboard stays in the line above

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_table);
    buttons->addStretch();
    buttons->addWidget(m_panel);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->addWidget(m_owner);
    column->addWidget(m_present);
    column->addWidget(m_typed);
    column->addWidget(m_rows, 1);
    column->addLayout(buttons);

    m_typed->installEventFilter(this);
    connect(m_typed, &QLineEdit::textEdited, this, &ChoiceBox::Narrow);
    connect(m_typed, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty()) {
            Narrow();
        }
    });
    connect(m_rows, &QTreeWidget::itemClicked, this, &ChoiceBox::Take);
    connect(m_table, &QCheckBox::toggled, this, &ChoiceBox::TableToggled);
    connect(m_panel, &QPushButton::clicked, this, &ChoiceBox::PanelAsked);
    Retranslate();
    Clear();
}

void ChoiceBox::SetChoices(const QString& owner, const QString& field, const QString& present,
                           const Ranking& ranking, bool areNames)
{
    m_isEmpty = false;
    m_areNames = areNames;
    setEnabled(true);
    m_owner->setText(owner + QStringLiteral("   ") + field);
    m_presentText = present;
    m_ranking = ranking;
    m_present->setText(present.isEmpty() ? tr("nothing stands here yet") : present);
    m_typed->setText(QString());  // not to be taken back within the line
    m_rows->clear();
    m_first = nullptr;
    FillGroup(areNames ? tr("Free names of the project's kinds") : tr("In the project"), ranking,
              OfProject);
    FillGroup(tr("Guesses"), ranking, OfGuess);
    FillGroup(tr("From the table"), ranking, OfTable);
    m_rows->expandAll();
    if (areNames && !present.isEmpty()) {
        m_first = nullptr;
    } else if (m_first == nullptr && m_rows->topLevelItemCount() > 0) {
        m_first = m_rows->topLevelItem(0)->child(0);
    }
    m_rows->setCurrentItem(m_first);
    if (m_first != nullptr) {
        m_rows->scrollToItem(m_first, QAbstractItemView::PositionAtCenter);
    }
}

void ChoiceBox::Clear()
{
    m_isEmpty = true;
    setEnabled(false);
    m_owner->setText(tr("Click an annotation in the drawing"));
    m_present->clear();
    m_typed->setText(QString());
    m_rows->clear();
    m_first = nullptr;
}

void ChoiceBox::StartTyping(const QString& first)
{
    m_typed->setFocus(Qt::ShortcutFocusReason);
    if (!first.isEmpty()) {
        m_typed->setText(m_typed->text() + first);
        Narrow();
    }
}

void ChoiceBox::FillGroup(const QString& title, const Ranking& ranking, bool (*belongs)(Source))
{
    QTreeWidgetItem* group = nullptr;
    for (std::size_t i = 0; i < ranking.candidates.size(); ++i) {
        const Candidate& candidate = ranking.candidates[i];
        if (!belongs(candidate.source)) {
            continue;
        }
        if (group == nullptr) {
            group = new QTreeWidgetItem(m_rows, {title});
            group->setFlags(Qt::ItemIsEnabled);
            group->setForeground(TextColumn, palette().brush(QPalette::PlaceholderText));
            group->setFirstColumnSpanned(true);
        }
        AddRow(group, candidate, static_cast<int>(i) == ranking.focus);
    }
}

void ChoiceBox::AddRow(QTreeWidgetItem* group, const Candidate& candidate, bool focus)
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
    const bool present = text == m_presentText;
    if (present) {
        QFont bold = m_rows->font();
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

// Shows the rows that hold what was typed. The one that is it comes to hand first, then one that begins
// with it.
void ChoiceBox::Narrow()
{
    const QString typed = m_typed->text().trimmed();
    QTreeWidgetItem* same = nullptr;
    QTreeWidgetItem* begins = nullptr;
    QTreeWidgetItem* holds = nullptr;
    for (int i = 0; i < m_rows->topLevelItemCount(); ++i) {
        QTreeWidgetItem* const group = m_rows->topLevelItem(i);
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
    m_rows->setCurrentItem(to);
    if (to != nullptr) {
        m_rows->scrollToItem(to);
    }
}

void ChoiceBox::Take(QTreeWidgetItem* row)
{
    if (row != nullptr && row->data(TextColumn, IsChoice).toBool()) {
        emit Taken(row->text(TextColumn));
    }
}

// The marked row; what was typed itself when no row holds it.
void ChoiceBox::TakeTyped()
{
    QTreeWidgetItem* const row = m_rows->currentItem();
    const QString typed = m_typed->text().trimmed();
    if (row != nullptr && !row->isHidden()) {
        Take(row);
    } else if (!typed.isEmpty()) {
        emit Taken(typed);
    }
}

bool ChoiceBox::MoveRow(int key)
{
    QTreeWidgetItem* row = m_rows->currentItem();
    if (row == nullptr) {
        QTreeWidgetItem* const top = m_rows->topLevelItem(0);
        row = top != nullptr ? NextChoice(top, true, *m_rows) : nullptr;
        m_rows->setCurrentItem(row);
        return row != nullptr;
    }
    constexpr int Page = 10;  // rows
    const bool below = key == Qt::Key_Down || key == Qt::Key_PageDown;
    for (int left = key == Qt::Key_Up || key == Qt::Key_Down ? 1 : Page; left > 0; --left) {
        if (QTreeWidgetItem* const next = NextChoice(row, below, *m_rows)) {
            row = next;
        }
    }
    m_rows->setCurrentItem(row);
    m_rows->scrollToItem(row);
    return true;
}

// Keys that an empty line has no use for are the window's.
bool ChoiceBox::IsForWindow(const QKeyEvent& key) const
{
    const bool stepsByBeam =
        key.modifiers() == Qt::ControlModifier && (key.key() == Qt::Key_Left || key.key() == Qt::Key_Right);
    return m_typed->text().isEmpty() &&
           (stepsByBeam || key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo));
}

bool ChoiceBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && IsForWindow(*static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true;
    }
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: return MoveRow(key.key());
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (key.modifiers().testFlag(Qt::ControlModifier)) {  // as typed, whatever the rows hold
            if (!m_typed->text().trimmed().isEmpty()) {
                emit Taken(m_typed->text());
            }
        } else {
            TakeTyped();
        }
        return true;
    case Qt::Key_Escape:
        if (m_typed->text().isEmpty()) {
            emit Left();
        } else {
            m_typed->clear();
        }
        return true;
    default: return QWidget::eventFilter(watched, event);
    }
}

void ChoiceBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
    QWidget::changeEvent(event);
}

void ChoiceBox::Retranslate()
{
    m_typed->setPlaceholderText(tr("Type to narrow, Enter takes"));
    m_typed->setToolTip(tr("Enter takes the marked text, Ctrl+Enter the text as typed"));
    m_table->setText(tr("&Table rows"));
    m_table->setToolTip(tr("Rows of the reference table for the beam's width and required steel"));
    m_panel->setText(tr("Compose... (F4)"));
    m_panel->setToolTip(tr("Opens the panel that composes the text by mouse"));
    if (m_isEmpty) {
        m_owner->setText(tr("Click an annotation in the drawing"));
    }
}

}  // namespace Desk
