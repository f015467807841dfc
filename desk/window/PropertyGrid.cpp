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
        if (const std::optional<FieldRef> place = PlaceOf(row); place && !m_isFilling) {
            emit Picked(*place);
        }
    });
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* row) {
        if (const std::optional<FieldRef> place = PlaceOf(row)) {
            emit PanelAsked(*place);
        }
    });
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* row, int column) {
        const std::optional<FieldRef> place = PlaceOf(row);
        if (place && column == ValueColumn && !m_isFilling) {
            // Later, since the answer fills the grid anew under the editor's feet.
            m_edited = {*place, row->text(ValueColumn)};
            QMetaObject::invokeMethod(this, &PropertyGrid::TellEdited, Qt::QueuedConnection);
        }
    });
}

void PropertyGrid::Show(const Project& project, const std::optional<FieldRef>& place)
{
    const QScopedValueRollback filling(m_isFilling, true);
    const bool same = place && m_owner && place->isWall == m_owner->isWall &&
                      place->index == m_owner->index && topLevelItemCount() > 0;
    if (!same) {
        clear();
    }
    m_owner = place;
    if (!place) {
        return;
    }
    if (!same) {
        for (const Field field : place->isWall ? WallFields() : BeamFields()) {
            AddText(project, {place->isWall, place->index, field});
        }
        if (place->isWall) {
            AddFixed(tr("Thickness"), tr("%1 mm").arg(project.walls[place->index].thickness));
        } else {
            const Beam& beam = project.beams[place->index];
            AddFixed(tr("Floor"), QString::fromStdString(beam.floor));
            AddFixed(tr("Concrete"), QStringLiteral("C%1").arg(beam.concreteGrade));
            AddFixed(tr("Seismic class"), QString::number(beam.seismicClass));
            AddFixed(tr("Required top"), tr("%1 mm²").arg(beam.area.top));
            AddFixed(tr("Required ends"), tr("%1 / %2 mm²").arg(beam.area.leftEnd).arg(beam.area.rightEnd));
            AddFixed(tr("Required bottom"), tr("%1 mm²").arg(beam.area.bottom));
        }
    } else {
        for (const Field field : place->isWall ? WallFields() : BeamFields()) {
            const FieldRef each{place->isWall, place->index, field};
            RowOf(each)->setText(ValueColumn, QString::fromStdString(TextAt(project, each)));
        }
    }
    setCurrentItem(RowOf(*place), ValueColumn);
}

QRect PropertyGrid::OnScreen(const FieldRef& place) const
{
    const QTreeWidgetItem* const row = RowOf(place);
    if (row == nullptr) {
        return {};
    }
    const QRect inside = visualRect(indexFromItem(row, ValueColumn));
    return {viewport()->mapToGlobal(inside.topLeft()), inside.size()};
}

void PropertyGrid::EditMarked()
{
    if (QTreeWidgetItem* const row = currentItem(); PlaceOf(row)) {
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

void PropertyGrid::AddText(const Project& project, const FieldRef& place)
{
    auto* const row =
        new QTreeWidgetItem(this, {FieldName(place.field), QString::fromStdString(TextAt(project, place))});
    row->setData(CaptionColumn, FieldRole, static_cast<int>(place.field));
    row->setFlags(row->flags() | Qt::ItemIsEditable);
    if (place.isWall && place.field == Field::Name) {
        return;  // no panel composes it
    }
    auto* const open = new QToolButton;
    open->setText(QStringLiteral("..."));
    open->setObjectName(QStringLiteral("open-%1").arg(static_cast<int>(place.field)));
    open->setAutoRaise(true);
    open->setFocusPolicy(Qt::NoFocus);
    open->setToolTip(tr("Opens the panel that composes the text by mouse"));
    connect(open, &QToolButton::clicked, this, [this, row] {
        setCurrentItem(row, ValueColumn);
        if (const std::optional<FieldRef> asked = PlaceOf(row)) {
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

std::optional<FieldRef> PropertyGrid::PlaceOf(const QTreeWidgetItem* row) const
{
    if (row == nullptr || !m_owner || !row->data(CaptionColumn, FieldRole).isValid()) {
        return std::nullopt;
    }
    return FieldRef{m_owner->isWall, m_owner->index,
                    static_cast<Field>(row->data(CaptionColumn, FieldRole).toInt())};
}

QTreeWidgetItem* PropertyGrid::RowOf(const FieldRef& place) const
{
    if (!m_owner || place.isWall != m_owner->isWall || place.index != m_owner->index) {
        return nullptr;
    }
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const std::optional<FieldRef> each = PlaceOf(topLevelItem(i));
        if (each && each->field == place.field) {
            return topLevelItem(i);
        }
    }
    return nullptr;
}

}  // namespace Desk
