#include "desk/window/OpenTexts.h"

#include "desk/reading/DrawingText.h"
#include "desk/window/FieldNames.h"
#include "desk/window/Languages.h"

namespace Desk {

namespace {

std::string Readable(const AnnotationText& text) { return ShowPlain(PlainText(text.text)); }

}  // namespace

OpenTexts::OpenTexts(Document& document, FloorView& floor, QWidget* parent)
    : QDockWidget(parent), m_document(document), m_floor(floor), m_rows(new QTreeWidget),
      m_point(new QPushButton)
{
    setObjectName("openTextsDock");
    m_rows->setObjectName("openTexts");
    m_rows->setColumnCount(2);
    m_rows->setRootIsDecorated(false);
    m_rows->setUniformRowHeights(true);
    m_point->setObjectName("pointToBeam");
    auto* const inside = new QWidget;
    auto* const lines = new QHBoxLayout(inside);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(m_rows);
    lines->addWidget(m_point, 0, Qt::AlignTop);
    setWidget(inside);
    hide();

    connect(m_rows, &QTreeWidget::currentItemChanged, this, [this] { m_floor.LightMark(Marked()); });
    connect(m_rows, &QTreeWidget::itemClicked, this, [this] { m_floor.LightMark(Marked()); });
    connect(m_point, &QPushButton::clicked, this, &OpenTexts::StartPointing);
    connect(&floor, &FloorView::MarkPicked, this, [this](std::size_t mark) {
        m_rows->setCurrentItem(m_rows->topLevelItem(static_cast<int>(mark)));
        show();
    });
    connect(&document, &Document::OpenTextsChanged, this, &OpenTexts::Fill);
    connect(&document, &Document::Replaced, this, [this] { setVisible(!m_document.OpenTexts().empty()); });
}

void OpenTexts::Retranslate()
{
    setWindowTitle(tr("Open texts"));
    m_rows->setHeaderLabels({tr("Text"), tr("Why it is open")});
    m_rows->setAccessibleName(windowTitle());
    m_rows->headerItem()->setToolTip(0, tr("A click on a row shows the text on the plan"));
    m_rows->headerItem()->setToolTip(1, tr("Why nothing ties the text to a beam for certain"));
    m_point->setText(tr("Point to its beam"));
    m_point->setToolTip(tr("Then press the beam on the plan"));
    Fill();
}

void OpenTexts::Fill()
{
    const int before = m_rows->indexOfTopLevelItem(m_rows->currentItem());
    const QSignalBlocker quiet(m_rows);
    m_rows->clear();
    m_open = m_document.OpenTexts();
    std::vector<PlanMark> marks;
    for (const std::size_t number : m_open) {
        const AnnotationText& text = m_document.From()->Texts()[number];
        const std::string shown = Readable(text);
        auto* const row = new QTreeWidgetItem(m_rows, {QString::fromStdString(shown), Told(*text.open)});
        row->setToolTip(1, row->text(1));
        marks.push_back({{shown, text.place}, !text.inPlace});
    }
    m_floor.SetMarks(std::move(marks));
    m_rows->setCurrentItem(m_rows->topLevelItem(std::min(before, m_rows->topLevelItemCount() - 1)));
    m_rows->resizeColumnToContents(0);
    m_point->setEnabled(!m_open.empty());
}

void OpenTexts::StartPointing()
{
    if (m_rows->currentItem() == nullptr) {
        m_rows->setCurrentItem(m_rows->topLevelItem(0));
    }
    if (const std::optional<std::size_t> row = Marked()) {
        m_floor.StartPointing([this](const PlanPoint& at) { Take(at); });
        m_floor.setFocus();
        emit Said(tr("Press the beam of %1 on the plan; Esc leaves the text open").arg(TextOf(*row)));
    }
}

void OpenTexts::EndPointing()
{
    if (m_floor.IsPointing()) {
        m_floor.EndPointing();
        emit Said(tr("The text stays open"));
    }
}

void OpenTexts::Take(const PlanPoint& at)
{
    const std::optional<std::size_t> row = Marked();
    if (!row) {
        EndPointing();
        return;
    }
    const QString text = TextOf(*row);
    if (const std::optional<FieldRef> ref = m_document.PointTo(m_open[*row], at)) {
        m_floor.EndPointing();
        emit Said(tr("%1 belongs to %2").arg(text, OwnerName(m_document.Get(), *ref)));
    } else {
        emit Said(tr("There is no beam that could take %1; press another position, or Esc").arg(text));
    }
}

std::optional<std::size_t> OpenTexts::Marked() const
{
    const int row = m_rows->indexOfTopLevelItem(m_rows->currentItem());
    return row >= 0 ? std::optional(static_cast<std::size_t>(row)) : std::nullopt;
}

QString OpenTexts::TextOf(std::size_t row) const
{
    return QString::fromStdString(Readable(m_document.From()->Texts()[m_open[row]]));
}

}  // namespace Desk
