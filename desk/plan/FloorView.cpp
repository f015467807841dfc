#include "desk/plan/FloorView.h"

#include <algorithm>
#include <map>
#include <utility>

#include "desk/plan/FloorItems.h"

namespace Desk {

namespace {

constexpr int ViewMargin = 30;       // pixels around an annotation that is brought into view
constexpr double GoodHeight = 16.0;  // pixels of a text that is read with ease

}  // namespace

FloorView::FloorView(QWidget* parent)
    : PanView(parent), m_frame(new QRubberBand(QRubberBand::Rectangle, viewport()))
{
    setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    setViewportUpdateMode(QGraphicsView::SmartViewportUpdate);
    setOptimizationFlag(QGraphicsView::DontAdjustForAntialiasing);
    setFrameShape(QFrame::NoFrame);
    SetDark(false);
}

FloorView::~FloorView() = default;

void FloorView::SetProject(const Project* project, const Backdrop* behind)
{
    m_project = project;
    m_chosen.reset();
    m_lit = nullptr;
    m_hovered = nullptr;
    m_marks = nullptr;
    m_small = nullptr;
    m_sketch = nullptr;
    m_drag.reset();
    m_textDrag.reset();
    m_stale.clear();
    m_frameFrom.reset();
    m_frame->hide();
    m_items.clear();
    m_all.clear();
    EndPointing();
    scene()->clear();
    if (project == nullptr) {
        return;
    }
    FloorItems floor = AddFloor(*scene(), *project, behind, ColorsFor(m_isDark));
    m_all = std::move(floor.all);
    m_items = std::move(floor.owners);
    m_walls = std::ssize(project->walls);
    m_covering = floor.covering;
    m_shown = floor.shown;
    m_readingScale = GoodHeight / floor.textHeight;
    m_small = new SmallTexts;
    m_small->SetColors(&ColorsFor(m_isDark));
    m_all.push_back(m_small);
    scene()->addItem(m_small);
    const QRectF all = scene()->itemsBoundingRect() | m_shown;
    scene()->setSceneRect(all.adjusted(-all.width(), -all.height(), all.width(), all.height()));
    SetContent(m_shown, m_readingScale);
    m_sketch = new SketchItem;
    m_sketch->SetColors(&ColorsFor(m_isDark));
    m_all.push_back(m_sketch);
    scene()->addItem(m_sketch);
    Fit();
}

void FloorView::Refresh(const FieldRef& ref)
{
    if (OwnerItem* const item = ItemOf(ref)) {
        item->Take(*m_project);
        m_stale.push_back(item);  // the text may have another length
    }
}

void FloorView::SetChosen(std::optional<FieldRef> ref)
{
    if (m_lit != nullptr) {
        m_lit->SetLit(std::nullopt);
        m_small->SetLit(nullptr, std::nullopt);
    }
    m_lit = ref ? ItemOf(*ref) : nullptr;
    m_chosen = m_lit != nullptr ? ref : std::nullopt;
    ShowHandles();
    if (m_lit != nullptr) {
        m_lit->SetLit(m_chosen);
        m_small->SetLit(m_lit, m_chosen);
        BringIntoView(mapFromScene(m_lit->mapToScene(m_lit->BoxOf(*m_chosen))).boundingRect());
    }
}

void FloorView::SetTogether(const std::set<FieldRef>& refs)
{
    if (refs.empty() && !std::exchange(m_areTogether, false)) {
        return;
    }
    m_areTogether = !refs.empty();
    std::map<OwnerItem*, std::vector<FieldRef>> lit;
    for (const FieldRef& ref : refs) {
        lit[ItemOf(ref)].push_back(ref);
    }
    for (OwnerItem* const item : m_items) {
        const auto found = lit.find(item);
        item->SetTogether(found != lit.end() ? std::move(found->second) : std::vector<FieldRef>());
    }
}

void FloorView::BringIntoView(const QRect& inView)
{
    const QRect room = viewport()->rect().adjusted(ViewMargin, ViewMargin, -ViewMargin, -ViewMargin);
    if (!room.intersects(inView)) {
        PanBy(room.center() - inView.center());
    }
}

void FloorView::BringClose(const FieldRef& ref)
{
    const OwnerItem* const item = ItemOf(ref);
    if (item == nullptr) {
        return;
    }
    const auto inView = [&] { return mapFromScene(item->mapToScene(item->BoxOf(ref))).boundingRect(); };
    if (const double height = item->OwnHeight(ref) * transform().m11(); height < m_leastTextSize) {
        ZoomAbout(inView().center(), std::max(GoodHeight, m_leastTextSize) / height);
    }
    if (!viewport()->rect().contains(inView())) {
        PanBy(viewport()->rect().center() - inView().center());
    }
}

void FloorView::SetLeastTextSize(double pixels)
{
    m_leastTextSize = pixels;
    Scaled();
}

void FloorView::Scaled()
{
    m_stale.clear();
    if (m_small != nullptr) {
        m_small->Choose(m_items, m_leastTextSize / transform().m11());
    }
}

QRect FloorView::OnScreen(const FieldRef& ref) const
{
    const OwnerItem* const item = ItemOf(ref);
    if (item == nullptr) {
        return {};
    }
    const QRect inView = mapFromScene(item->mapToScene(item->BoxOf(ref))).boundingRect();
    return {viewport()->mapToGlobal(inView.topLeft()), inView.size()};
}

QPoint FloorView::OnScreen(const PlanPoint& at) const
{
    return viewport()->mapToGlobal(mapFromScene(OnSheet(at)));
}

void FloorView::SetMarks(std::vector<PlanMark> marks)
{
    if (m_marks != nullptr) {
        m_all.erase(std::remove(m_all.begin(), m_all.end(), m_marks), m_all.end());
        delete std::exchange(m_marks, nullptr);
    }
    if (!marks.empty()) {
        m_marks = new MarksItem(std::move(marks));
        m_marks->SetColors(&ColorsFor(m_isDark));
        m_all.push_back(m_marks);
        scene()->addItem(m_marks);
        if (const QRectF around = m_marks->sceneBoundingRect(); !sceneRect().contains(around)) {
            scene()->setSceneRect(sceneRect() | around);
        }
    }
}

void FloorView::LightMark(std::optional<std::size_t> mark)
{
    if (m_marks == nullptr) {
        return;
    }
    mark = mark && *mark < m_marks->Count() ? mark : std::nullopt;
    m_marks->Light(mark);
    if (mark) {
        BringIntoView(mapFromScene(m_marks->OutlineOf(*mark)).boundingRect());
    }
}

void FloorView::ZoomBy(double factor)
{
    const QPoint middle = viewport()->rect().center();
    const auto chosen = [&] {
        return m_chosen ? viewport()->mapFromGlobal(OnScreen(*m_chosen).center()) : middle;
    };
    const QPoint before = chosen();
    const bool isInView = viewport()->rect().contains(before);
    ZoomAbout(isInView ? before : middle, factor);
    if (isInView) {
        PanBy(before - chosen());  // a small text does not grow
    }
}

void FloorView::SetDark(bool dark)
{
    m_isDark = dark;
    setBackgroundBrush(ColorsFor(dark).ground);
    for (PlanItem* const item : m_all) {
        item->SetColors(&ColorsFor(dark));
    }
    viewport()->update();
}

OwnerItem* FloorView::ItemOf(const FieldRef& ref) const
{
    if (m_project == nullptr || !Exists(*m_project, ref)) {
        return nullptr;
    }
    return m_items[ref.index + (ref.isWall ? m_project->beams.size() : 0)];
}

void FloorView::Settle()
{
    if (!m_stale.empty()) {
        m_small->Renew(std::exchange(m_stale, {}));
    }
}

void FloorView::paintEvent(QPaintEvent* event)
{
    Settle();
    PanView::paintEvent(event);
}

}  // namespace Desk
