#include "desk/window/PropertyGrid.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/window/FieldNames.h"

namespace Desk {

namespace {

constexpr int CaptionColumn = 0;
constexpr int ValueColumn = 1;
constexpr int ButtonColumn = 2;

// Only values are edited in place.
class ValueDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        return index.column() == ValueColumn ? QStyledItemDelegate::createEditor(parent, option, index)
                                             : nullptr;
    }
};

}  // namespace

PropertyGrid::PropertyGrid(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName("properties");
    setColumnCount(3);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    setItemDelegate(new ValueDelegate(this));
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(CaptionColumn, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(ValueColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(ButtonColumn, QHeaderView::ResizeToContents);
    header()->setMinimumSectionSize(20);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* row) {
        if (const std::optional<FieldRef> ref = RefOf(row); ref && !m_isFilling) {
            emit Picked(*ref);
        }
    });
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* row) {
        if (const std::optional<FieldRef> ref = RefOf(row)) {
            emit PanelAsked(*ref);
        }
    });
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* row, int column) {
        const std::optional<FieldRef> ref = RefOf(row);
        if (ref && column == ValueColumn && !m_isFilling) {
            // Later, since the answer fills the grid anew under the editor's feet.
            m_edited = {*ref, row->text(ValueColumn)};
            QMetaObject::invokeMethod(this, &PropertyGrid::TellEdited, Qt::QueuedConnection);
        }
    });
}

void PropertyGrid::Show(const Project& project, const std::optional<FieldRef>& ref)
{
    const QScopedValueRollback filling(m_isFilling, true);
    std::vector<FieldRef> refs = ref ? RefsOf(project, *ref) : std::vector<FieldRef>();
    const std::vector<Fixed> fixed = ref ? FixedOf(project, *ref) : std::vector<Fixed>();
    const auto count = static_cast<int>(refs.size() + fixed.size());
    // Rows are made anew for another kind of owner alone: their buttons cost the most.
    const bool sameRows = refs.size() == m_refs.size() && count == topLevelItemCount() &&
                          (refs.empty() || refs.front().isWall == m_refs.front().isWall);
    m_refs = std::move(refs);
    if (!sameRows) {
        clear();
        for (const FieldRef& each : m_refs) {
            AddText(each);
        }
        for (std::size_t i = 0; i < fixed.size(); ++i) {
            AddFixed();
        }
    }
    int row = 0;
    for (const FieldRef& each : m_refs) {
        Fill(row++, FieldName(project, each), QString::fromStdString(TextAt(project, each)));
    }
    for (const auto& [caption, value] : fixed) {
        Fill(row++, caption, value);
    }
    if (ref) {
        setCurrentItem(RowOf(*ref), ValueColumn);
    }
}

void PropertyGrid::Fill(int row, const QString& caption, const QString& value)
{
    QTreeWidgetItem& item = *topLevelItem(row);
    for (const auto& [column, text] : {std::pair(CaptionColumn, caption), std::pair(ValueColumn, value)}) {
        if (item.text(column) != text) {
            item.setText(column, text);
        }
    }
}

std::vector<PropertyGrid::Fixed> PropertyGrid::FixedOf(const Project& project, const FieldRef& ref)
{
    if (ref.isWall) {
        return {{tr("Thickness"), QStringLiteral("%1 mm").arg(project.walls[ref.index].thickness)}};
    }
    const Beam& beam = project.beams[ref.index];
    std::vector<Fixed> rows = {
        {tr("Floor"), QString::fromStdString(beam.floor)},
        {tr("Concrete"), QStringLiteral("C%1").arg(beam.concreteGrade)},
        {tr("Seismic class"), QString::number(beam.seismicClass)},
        {tr("Required top"), QStringLiteral("%1 mm²").arg(beam.area.top)},
        {tr("Required ends"), QStringLiteral("%1 / %2 mm²").arg(beam.area.leftEnd).arg(beam.area.rightEnd)},
        {tr("Required bottom"), QStringLiteral("%1 mm²").arg(beam.area.bottom)}};
    QStringList lengths;
    for (const double length : beam.spans) {
        lengths << QString::number(std::round(length), 'f', 0);
    }
    if (!lengths.isEmpty()) {
        rows.insert(rows.begin(),
                    {tr("Spans"), QStringLiteral("%1 mm").arg(lengths.join(QStringLiteral(" + ")))});
    }
    return rows;
}

QRect PropertyGrid::OnScreen(const FieldRef& ref) const
{
    const QTreeWidgetItem* const row = RowOf(ref);
    if (row == nullptr) {
        return {};
    }
    const QRect inside = visualRect(indexFromItem(row, ValueColumn));
    return {viewport()->mapToGlobal(inside.topLeft()), inside.size()};
}

void PropertyGrid::EditMarked()
{
    if (QTreeWidgetItem* const row = currentItem(); RefOf(row)) {
        editItem(row, ValueColumn);
    }
}

void PropertyGrid::CommitEdit()
{
    for (auto* const editor : viewport()->findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!editor->isHidden()) {  // one that has ended waits for its deletion
            commitData(editor);
            closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    }
    TellEdited();
}

void PropertyGrid::TellEdited()
{
    if (const auto edited = std::exchange(m_edited, std::nullopt)) {
        emit Edited(edited->first, edited->second);
    }
}

void PropertyGrid::AddText(const FieldRef& ref)
{
    auto* const row = new QTreeWidgetItem(this);
    row->setFlags(row->flags() | Qt::ItemIsEditable);
    if (PanelOf(ref) == PanelKind::None) {
        return;
    }
    auto* const open = new QToolButton;
    open->setText(QStringLiteral("..."));
    open->setObjectName(QStringLiteral("open-%1").arg(ref.inPlace < 0 ? static_cast<int>(ref.field)
                                                                      : indexOfTopLevelItem(row)));
    open->setAutoRaise(true);
    open->setFocusPolicy(Qt::NoFocus);
    open->setToolTip(tr("Opens the panel that composes the text by mouse"));
    connect(open, &QToolButton::clicked, this, [this, row] {
        setCurrentItem(row, ValueColumn);
        if (const std::optional<FieldRef> asked = RefOf(row)) {
            emit PanelAsked(*asked);
        }
    });
    setItemWidget(row, ButtonColumn, open);
}

void PropertyGrid::AddFixed()
{
    auto* const row = new QTreeWidgetItem(this);
    row->setFlags(Qt::ItemIsEnabled);
    for (const int column : {CaptionColumn, ValueColumn}) {
        row->setForeground(column, palette().brush(QPalette::PlaceholderText));
    }
}

// The rows of annotations are the first ones.
std::optional<FieldRef> PropertyGrid::RefOf(QTreeWidgetItem* row) const
{
    const auto place = static_cast<std::size_t>(row != nullptr ? indexOfTopLevelItem(row) : -1);
    return place < m_refs.size() ? std::optional(m_refs[place]) : std::nullopt;
}

QTreeWidgetItem* PropertyGrid::RowOf(const FieldRef& ref) const
{
    const auto found = std::find(m_refs.begin(), m_refs.end(), ref);
    return found == m_refs.end() ? nullptr : topLevelItem(static_cast<int>(found - m_refs.begin()));
}

}  // namespace Desk
