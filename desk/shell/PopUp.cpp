#include "desk/shell/PopUp.h"

#include <algorithm>
#include <iterator>

#include "desk/shell/Panel.h"
#include "desk/shell/QtDisplay.h"
#include "platform/windows/CWnd.h"
#include "platform/windows/Events.h"

namespace Desk {

namespace {

constexpr int FontHeight = 12;     // of a 9-point font
constexpr int ScrollBarWidth = 6;  // pixels of the window layer

bool IsDimmed(HWND list, int row)
{
    const auto* const box = dynamic_cast<const CListBox*>(CWnd::FromHandle(list));
    return box != nullptr && !CanChoose(*box, row);
}

// Rows of one height, filled whole when selected.
class RowDelegate : public QStyledItemDelegate {
public:
    RowDelegate(HWND list, QObject* parent) : QStyledItemDelegate(parent), m_list(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        const QPalette::ColorGroup group =
            option.state.testFlag(QStyle::State_Enabled) && !IsDimmed(m_list, index.row())
                ? QPalette::Active
                : QPalette::Disabled;
        if (selected) {
            painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
        }
        painter->setFont(option.font);
        painter->setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(option.rect.adjusted(2, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                          index.data().toString());
    }
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                                 const QModelIndex& index) const override
    {
        return index.data(Qt::SizeHintRole).toSize();
    }

private:
    HWND m_list;
};

}  // namespace

ListWidget::ListWidget(HWND list, QWidget* parent) : QListView(parent), m_list(list)
{
    setModel(new QStandardItemModel(this));
    setItemDelegate(new RowDelegate(list, this));
    setFrameShape(QFrame::NoFrame);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    m_isMultiColumn = FindWindowRecord(list)->IsMultiColumn();
    setFlow(m_isMultiColumn ? QListView::LeftToRight : QListView::TopToBottom);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* const slim = new QScrollBar(m_isMultiColumn ? Qt::Horizontal : Qt::Vertical, this);
    slim->setObjectName("scroll");
    slim->setFocusPolicy(Qt::NoFocus);
    slim->hide();
    connect(slim, &QScrollBar::valueChanged, this, [this](int top) {
        if (!m_isMirroring) {
            SendMessage(m_list, LB_SETTOPINDEX, static_cast<WPARAM>(top));
        }
    });
}

QScrollBar& ListWidget::Bar() const
{
    return *findChild<QScrollBar*>("scroll", Qt::FindDirectChildrenOnly);
}

void ListWidget::TakeRows(const WindowRecord& list, const Scale& scale)
{
    auto& rows = static_cast<QStandardItemModel&>(*model());
    rows.clear();
    const int across = m_isMultiColumn ? scale.ToWidget(list.list.columnWidth) : 1;
    const QSize size(across, scale.ToWidget(RowHeight));
    for (const CString& text : list.list.rows) {
        auto* const row = new QStandardItem(Shown(text));
        row->setSizeHint(size);
        rows.appendRow(row);
    }
    // A slim scroll bar over the list's edge reaches rows that do not fit.
    const QScopedValueRollback mirroring(m_isMirroring, true);
    const int count = list.RowCount();
    const int inView = list.RowsInView();
    QScrollBar& bar = Bar();
    bar.setRange(0, std::max(0, count - inView));
    bar.setPageStep(inView);
    bar.setVisible(count > inView);
    const int slim = scale.ToWidget(ScrollBarWidth);
    const QSize all = scale.ToWidget(list.place).size();
    bar.setGeometry(m_isMultiColumn ? QRect(0, all.height() - slim, all.width(), slim)
                                    : QRect(all.width() - slim, 0, slim, all.height()));
    if (m_isMultiColumn && list.place.Height() < RowHeight + ScrollBarWidth) {
        bar.hide();  // it would cover the only row; wheel and arrow keys scroll
    }
    bar.raise();
    TakeSelection(list);
    TakeTop(list);
}

void ListWidget::TakeSelection(const WindowRecord& list)
{
    const int row = list.list.selection;
    if (row < 0) {
        selectionModel()->clear();
    } else {
        const int top = list.list.top;
        selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::ClearAndSelect);
        if (top != list.list.top) {
            TakeTop(list);
        }
    }
    TakeTop(list);
}

void ListWidget::TakeTop(const WindowRecord& list)
{
    const QScopedValueRollback mirroring(m_isMirroring, true);
    Bar().setValue(list.list.top);
    if (model()->rowCount() > 0) {
        executeDelayedItemsLayout();
        QScrollBar& own = m_isMultiColumn ? *horizontalScrollBar() : *verticalScrollBar();
        own.setMaximum(std::max(own.maximum(), list.list.top));  // the last row may be alone at the top
        own.setValue(list.list.top);
    }
}

// A frame marks the list that has the keyboard.
void ListWidget::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    QPainter painter(viewport());
    if (m_isMultiColumn && !Bar().isVisible()) {
        PaintCountsOutOfView(painter);
    }
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

// How many pieces are before and after those in view, over the rest of a column at the right.
void ListWidget::PaintCountsOutOfView(QPainter& painter) const
{
    const WindowRecord* const list = FindWindowRecord(m_list);
    const int before = list != nullptr ? list->list.top : 0;
    const int after = list != nullptr ? list->RowCount() - before - list->RowsInView() : 0;
    if (before <= 0 && after <= 0) {
        return;
    }
    QStringList counts;
    if (before > 0) {
        counts << QStringLiteral("\u2039%1").arg(before);
    }
    if (after > 0) {
        counts << QStringLiteral("%1\u203A").arg(after);
    }
    const QString text = counts.join(QLatin1Char(' '));
    QRect chip = viewport()->rect();
    chip.setLeft(chip.right() - painter.fontMetrics().horizontalAdvance(text) - 4);
    painter.fillRect(chip, palette().brush(QPalette::Button));
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(chip, Qt::AlignCenter, text);
}

QString Shown(const CString& text) { return QString::fromStdString(Texts().utf8FromGbk(text)); }

int CaretInWidget(const WindowRecord& box)
{
    return static_cast<int>(Shown(box.text.Left(box.caret)).size());
}

namespace {

struct LabelName {
    const char* label;
    const char* name;
};

constexpr LabelName LabelNames[] = {
    {"梁类型", QT_TRANSLATE_NOOP("Desk", "Beam type")},
    {"序号", QT_TRANSLATE_NOOP("Desk", "Number")},
    {"跨数", QT_TRANSLATE_NOOP("Desk", "Spans")},
    {"悬挑", QT_TRANSLATE_NOOP("Desk", "Cantilever")},
    {"梁宽", QT_TRANSLATE_NOOP("Desk", "Beam width")},
    {"梁高", QT_TRANSLATE_NOOP("Desk", "Beam height")},
    {"标高", QT_TRANSLATE_NOOP("Desk", "Elevation")},
    {"钢筋符", QT_TRANSLATE_NOOP("Desk", "Grade sign")},
    {"钢筋种类", QT_TRANSLATE_NOOP("Desk", "Steel grade")},
    {"直径", QT_TRANSLATE_NOOP("Desk", "Diameter")},
    {"加密间距", QT_TRANSLATE_NOOP("Desk", "Tight spacing")},
    {"加密肢数", QT_TRANSLATE_NOOP("Desk", "Legs where tight")},
    {"间距", QT_TRANSLATE_NOOP("Desk", "Spacing")},
    {"肢数", QT_TRANSLATE_NOOP("Desk", "Legs")},
    {"钢筋成份", QT_TRANSLATE_NOOP("Desk", "Type of the piece")},
    {"钢筋数", QT_TRANSLATE_NOOP("Desk", "Number of bars")},
    {"上下排", QT_TRANSLATE_NOOP("Desk", "Upper and lower row")},
    {"分隔符", QT_TRANSLATE_NOOP("Desk", "Separator")},
};

}  // namespace

void NameControls(const WindowRecord& popUp, const std::function<QWidget*(HWND)>& widgetOf)
{
    QString name;
    for (const HWND child : popUp.children) {
        const WindowRecord& control = *FindWindowRecord(child);
        if (control.kind == WindowKind::Label) {
            const QString label = Shown(control.text);
            const auto isIt = [&](const LabelName& each) { return label == QString::fromUtf8(each.label); };
            const auto row = std::find_if(std::begin(LabelNames), std::end(LabelNames), isIt);
            name = row != std::end(LabelNames) ? QCoreApplication::translate("Desk", row->name) : name;
        } else if (QWidget* const widget = widgetOf(child); widget && control.kind != WindowKind::Button) {
            widget->setAccessibleName(
                control.IsMultiColumn() ? QCoreApplication::translate("Desk", "Composed pieces") : name);
        }
    }
}

QWidget* MakeControl(const WindowRecord& control, QWidget* panel)
{
    QWidget* made = nullptr;
    switch (control.kind) {
    case WindowKind::ListBox: made = new ListWidget(control.handle, panel); break;
    case WindowKind::EditBox: {
        auto* const line = new QLineEdit(panel);
        line->setFrame(false);
        line->setTextMargins(0, 0, 0, 0);
        if (Has(control.style, ControlStyle::AlignRight)) {
            line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
        line->setAutoFillBackground(true);
        made = line;
        break;
    }
    case WindowKind::Button: {
        auto* const button = new QPushButton(panel);
        button->setAutoDefault(false);
        made = button;
        break;
    }
    default: {
        auto* const label = new QLabel(panel);
        label->setAlignment((Has(control.style, ControlStyle::AlignCenter)  ? Qt::AlignHCenter
                             : Has(control.style, ControlStyle::AlignRight) ? Qt::AlignRight
                                                                            : Qt::AlignLeft) |
                            Qt::AlignVCenter);
        label->setTextFormat(Qt::PlainText);
        made = label;
        break;
    }
    }
    made->setContextMenuPolicy(Qt::PreventContextMenu);
    return made;
}

void TakePlace(QWidget& widget, const WindowRecord& window, const Scale& scale)
{
    widget.setGeometry(scale.ToWidget(window.place));
    QFont font = widget.font();
    font.setPixelSize(scale.ToWidget(FontHeight) - (scale.Zoom() > 1.0 ? 1 : 0));
    widget.setFont(font);
}

void TakeText(QWidget& widget, const WindowRecord& window)
{
    const QString text = Shown(window.text);
    if (auto* const line = qobject_cast<QLineEdit*>(&widget)) {
        const QSignalBlocker quiet(line);  // a change by the program is no edit
        if (line->text() != text) {
            line->setText(text);
        }
        if (!line->hasSelectedText()) {
            line->setCursorPosition(CaretInWidget(window));
        }
    } else if (auto* const button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setText(text);
    } else if (auto* const label = qobject_cast<QLabel*>(&widget)) {
        label->setText(text);
    }
}

}  // namespace Desk
