#include "desk/window/PropertyGrid.h"

#include <algorithm>
#include <utility>

#include "desk/window/FieldNames.h"
#include "desk/window/Languages.h"

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
        if (column == ValueColumn && !m_isFilling && !m_refs.empty()) {
            const std::optional<FieldRef> ref = RefOf(row);
            const auto line = static_cast<std::size_t>(indexOfTopLevelItem(row)) - m_refs.size();
            // Later, since the answer fills the grid anew under the editor's feet.
            m_edited = {ref.value_or(m_refs.front()),
                        ref ? std::nullopt : std::optional(m_data.at(line).datum), row->text(ValueColumn)};
            QMetaObject::invokeMethod(this, &PropertyGrid::TellEdited, Qt::QueuedConnection);
        }
    });
}

void PropertyGrid::Show(const Project& project, const std::optional<FieldRef>& ref)
{
    const QScopedValueRollback filling(m_isFilling, true);
    std::vector<FieldRef> refs = ref ? RefsOf(project, *ref) : std::vector<FieldRef>();
    m_data = ref ? DataOf(project, *ref) : std::vector<DataLine>();
    const auto count = static_cast<int>(refs.size() + m_data.size());
    // Rows are made anew for another kind of owner alone: their buttons cost the most.
    const bool sameRows = refs.size() == m_refs.size() && count == topLevelItemCount() &&
                          (refs.empty() || refs.front().isWall == m_refs.front().isWall);
    m_refs = std::move(refs);
    if (!sameRows) {
        clear();
        for (const FieldRef& each : m_refs) {
            AddText(each);
        }
        for (std::size_t i = 0; i < m_data.size(); ++i) {
            AddData();
        }
    }
    int row = 0;
    for (const FieldRef& each : m_refs) {
        Fill(row++, FieldName(project, each), QString::fromStdString(TextAt(project, each)));
    }
    for (const DataLine& line : m_data) {
        Fill(row++, line.caption, line.value);
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
    if (QWidget* const open = itemWidget(&item, ButtonColumn)) {
        open->setAccessibleName(tr("Compose: %1").arg(caption));
    }
}

std::vector<PropertyGrid::DataLine> PropertyGrid::DataOf(const Project& project, const FieldRef& ref)
{
    std::vector<DataLine> lines;
    const auto add = [&lines](const auto& owner) {
        for (const DatumRow& row : Desk::DataOf(owner)) {
            lines.push_back({row.datum, QString::fromUtf8(IsChinese() ? row.chinese : row.english),
                             QString::fromStdString(DatumText(owner, row.datum))});
        }
    };
    if (ref.isWall) {
        add(project.walls[ref.index]);
    } else {
        add(project.beams[ref.index]);
    }
    return lines;
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
    if (QTreeWidgetItem* const row = currentItem()) {
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
        if (edited->datum) {
            emit DataEdited(edited->ref, *edited->datum, edited->text);
        } else {
            emit Edited(edited->ref, edited->text);
        }
    }
}

void PropertyGrid::AddText(const FieldRef& ref)
{
    auto* const row = new QTreeWidgetItem(this);
    row->setFlags(row->flags() | Qt::ItemIsEditable);
    row->setToolTip(CaptionColumn, tr("F2 or a second click edits the text, F4 composes it"));
    if (PanelOf(ref) == PanelKind::None) {
        return;
    }
    auto* const open = new QToolButton;
    open->setText(QStringLiteral("..."));
    open->setObjectName(QStringLiteral("open-%1").arg(ref.inPlace < 0 ? static_cast<int>(ref.field)
                                                                      : indexOfTopLevelItem(row)));
    open->setAutoRaise(true);
    open->setFocusPolicy(Qt::NoFocus);
    open->setToolTip(tr("Opens the panel that composes the text by mouse (F4)"));
    connect(open, &QToolButton::clicked, this, [this, row] {
        setCurrentItem(row, ValueColumn);
        if (const std::optional<FieldRef> asked = RefOf(row)) {
            emit PanelAsked(*asked);
        }
    });
    setItemWidget(row, ButtonColumn, open);
}

void PropertyGrid::AddData()
{
    auto* const row = new QTreeWidgetItem(this);
    row->setFlags(row->flags() | Qt::ItemIsEditable);
    row->setToolTip(CaptionColumn, tr("F2 or a second click edits it"));
    row->setForeground(CaptionColumn, palette().brush(QPalette::PlaceholderText));
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
