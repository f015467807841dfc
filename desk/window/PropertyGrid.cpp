#include "desk/window/PropertyGrid.h"

#include <utility>

#include "desk/window/FieldNames.h"

namespace Desk {

namespace {

constexpr int CaptionColumn = 0;
constexpr int ValueColumn = 1;
constexpr int ButtonColumn = 2;
constexpr int FieldRole = Qt::UserRole;

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
    const bool same = ref && m_owner && ref->isWall == m_owner->isWall && ref->index == m_owner->index &&
                      topLevelItemCount() > 0;
    if (!same) {
        clear();
    }
    m_owner = ref;
    if (!ref) {
        return;
    }
    if (!same) {
        for (const Field field : ref->isWall ? WallFields() : BeamFields()) {
            AddText(project, {ref->isWall, ref->index, field});
        }
        if (ref->isWall) {
            AddFixed(tr("Thickness"), QStringLiteral("%1 mm").arg(project.walls[ref->index].thickness));
        } else {
            const Beam& beam = project.beams[ref->index];
            AddFixed(tr("Floor"), QString::fromStdString(beam.floor));
            AddFixed(tr("Concrete"), QStringLiteral("C%1").arg(beam.concreteGrade));
            AddFixed(tr("Seismic class"), QString::number(beam.seismicClass));
            AddFixed(tr("Required top"), QStringLiteral("%1 mm²").arg(beam.area.top));
            AddFixed(tr("Required ends"),
                     QStringLiteral("%1 / %2 mm²").arg(beam.area.leftEnd).arg(beam.area.rightEnd));
            AddFixed(tr("Required bottom"), QStringLiteral("%1 mm²").arg(beam.area.bottom));
        }
    } else {
        for (const Field field : ref->isWall ? WallFields() : BeamFields()) {
            const FieldRef each{ref->isWall, ref->index, field};
            RowOf(each)->setText(ValueColumn, QString::fromStdString(TextAt(project, each)));
        }
    }
    setCurrentItem(RowOf(*ref), ValueColumn);
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

void PropertyGrid::AddText(const Project& project, const FieldRef& ref)
{
    auto* const row =
        new QTreeWidgetItem(this, {FieldName(ref.field), QString::fromStdString(TextAt(project, ref))});
    row->setData(CaptionColumn, FieldRole, static_cast<int>(ref.field));
    row->setFlags(row->flags() | Qt::ItemIsEditable);
    if (PanelOf(ref) == PanelKind::None) {
        return;
    }
    auto* const open = new QToolButton;
    open->setText(QStringLiteral("..."));
    open->setObjectName(QStringLiteral("open-%1").arg(static_cast<int>(ref.field)));
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

void PropertyGrid::AddFixed(const QString& caption, const QString& value)
{
    auto* const row = new QTreeWidgetItem(this, {caption, value});
    row->setFlags(Qt::ItemIsEnabled);
    for (const int column : {CaptionColumn, ValueColumn}) {
        row->setForeground(column, palette().brush(QPalette::PlaceholderText));
    }
}

std::optional<FieldRef> PropertyGrid::RefOf(const QTreeWidgetItem* row) const
{
    if (row == nullptr || !m_owner || !row->data(CaptionColumn, FieldRole).isValid()) {
        return std::nullopt;
    }
    return FieldRef{m_owner->isWall, m_owner->index,
                    static_cast<Field>(row->data(CaptionColumn, FieldRole).toInt())};
}

QTreeWidgetItem* PropertyGrid::RowOf(const FieldRef& ref) const
{
    if (!m_owner || ref.isWall != m_owner->isWall || ref.index != m_owner->index) {
        return nullptr;
    }
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const std::optional<FieldRef> each = RefOf(topLevelItem(i));
        if (each && each->field == ref.field) {
            return topLevelItem(i);
        }
    }
    return nullptr;
}

}  // namespace Desk
