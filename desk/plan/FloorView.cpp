#include "desk/plan/FloorView.h"

#include <algorithm>
#include <utility>

#include "desk/plan/FloorItems.h"

namespace Desk {

namespace {

constexpr double BodyReach = 4.0;    // pixels beside a beam that still count as on it
constexpr int ViewMargin = 30;       // pixels around an annotation that is brought into view
constexpr double GoodHeight = 16.0;  // pixels of a text that is read with ease

}  // namespace

FloorView::FloorView(QWidget* parent) : PanView(parent)
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
        m_isStale = true;  // the text may have another length
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
    m_isStale = false;
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

// An annotation before a mark, both before a beam, and of two beams the one on top.
FloorView::Hit FloorView::HitAt(const QPoint& inView)
{
    Settle();
    const QPointF at = mapToScene(inView);
    const double scale = transform().m11();
    const double reach = BodyReach / scale;
    if (const auto small = m_small != nullptr ? m_small->At(at) : std::nullopt) {
        return {small->first, small->second};
    }
    Hit body;
    for (QGraphicsItem* const each :
         scene()->items(QRectF(at.x() - reach, at.y() - reach, 2 * reach, 2 * reach),
                        Qt::IntersectsItemBoundingRect)) {
        auto* const item = qgraphicsitem_cast<OwnerItem*>(each);
        if (item == nullptr) {
            continue;
        }
        const QPointF local = item->mapFromScene(at);
        if (const std::optional<FieldRef> text = item->RefAt(local)) {
            return {item, text};
        }
        if (body.item == nullptr && item->IsOnBody(local, reach)) {
            body.item = item;
        }
    }
    if (const auto mark = m_marks != nullptr ? m_marks->MarkAt(at, scale) : std::nullopt) {
        return {nullptr, std::nullopt, mark};
    }
    return body;
}

void FloorView::Hover(const Hit& hit)
{
    if (m_hovered != nullptr && m_hovered != hit.item) {
        m_hovered->SetHovered(std::nullopt);
    }
    if (m_hovered != nullptr && m_hoveredText && m_hoveredText != hit.text) {
        m_small->Touch(*m_hoveredText, *m_hovered);
    }
    m_hovered = hit.item;
    m_hoveredText = hit.text;
    if (hit.item != nullptr) {
        hit.item->SetHovered(hit.text);
        if (hit.text) {
            m_small->Touch(*hit.text, *hit.item);
        }
    }
    const bool isThing = hit.item != nullptr || hit.mark;
    viewport()->setCursor(IsPointing() ? Qt::CrossCursor
                          : isThing    ? Qt::PointingHandCursor
                                       : Qt::ArrowCursor);
}

void FloorView::Settle()
{
    if (m_isStale) {
        Scaled();
    }
}

void FloorView::paintEvent(QPaintEvent* event)
{
    Settle();
    PanView::paintEvent(event);
}

bool FloorView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return PanView::viewportEvent(event);
    }
    const auto& help = static_cast<const QHelpEvent&>(*event);
    if (const Hit hit = HitAt(help.pos()); hit.item != nullptr) {
        emit TipAsked(hit.Ref(), help.globalPos());
    } else {
        QToolTip::hideText();
    }
    return true;
}

void FloorView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (const Hit hit = byKey ? Hit() : HitAt(event->pos()); hit.item != nullptr) {
        emit Picked(hit.Ref());
    }
    emit MenuAsked(byKey && m_chosen ? OnScreen(*m_chosen).center() : event->globalPos());
}

void FloorView::Pick(const Hit& hit)
{
    if (hit.mark) {
        emit MarkPicked(*hit.mark);
    } else if (hit.item != nullptr) {
        emit Picked(hit.Ref());
    }
}

void FloorView::mousePressEvent(QMouseEvent* event)
{
    const QPoint inView = event->position().toPoint();
    const QPointF at = mapToScene(inView);
    const bool left = event->button() == Qt::LeftButton;
    const Hit hit = HitAt(inView);
    const auto handle = m_sketch != nullptr ? m_sketch->HandleAt(at, transform().m11()) : std::nullopt;
    if (left && IsPointing()) {
        const TakePoint pressed = m_pressed;  // which may end the pointing
        pressed({at.x(), -at.y()});
    } else if (left && handle) {
        m_drag = Drag{*handle, inView, false, {}};
    } else if (left && (hit.mark || hit.item != nullptr)) {
        Pick(hit);
    } else {
        PanView::mousePressEvent(event);
    }
}

void FloorView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint inView = event->position().toPoint();
    if (m_drag) {
        DragHandle(inView);
    } else if (!MayPan()) {
        Hover(HitAt(inView));
        if (const QPointF at = mapToScene(inView); m_moved) {
            m_moved({at.x(), -at.y()});
        }
    }
    PanView::mouseMoveEvent(event);
}

void FloorView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_drag || event->button() != Qt::LeftButton) {
        PanView::mouseReleaseEvent(event);
        return;
    }
    const Drag drag = *std::exchange(m_drag, std::nullopt);
    SetSketch({}, std::nullopt);
    if (!drag.hasMoved) {
        Pick(HitAt(drag.pressed));
    } else if (m_chosen) {
        emit EndDragged(*m_chosen, drag.handle == 0, drag.to);
    }
}

void FloorView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (IsPointing()) {
        mousePressEvent(event);
        return;
    }
    const Hit hit = HitAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && hit.item != nullptr) {
        emit PanelAsked(hit.Ref());
    }
}

}  // namespace Desk
