#include "desk/plan/FloorView.h"

#include <algorithm>

#include "desk/plan/Axes.h"
#include "desk/plan/PlaceBlocks.h"

namespace Desk {

namespace {

constexpr double BodyReach = 4.0;  // pixels beside a beam that still count as on it
constexpr int ViewMargin = 30;     // pixels around an annotation that is brought into view

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

void FloorView::SetProject(const Project* project)
{
    m_project = project;
    m_chosen.reset();
    m_hovered = nullptr;
    m_items.clear();
    scene()->clear();
    if (project == nullptr) {
        return;
    }
    m_items.reserve(project->beams.size() + project->walls.size());
    for (const bool wall : {false, true}) {
        const std::size_t count = wall ? project->walls.size() : project->beams.size();
        for (std::size_t i = 0; i < count; ++i) {
            m_items.push_back(new OwnerItem(*project, wall, i));
        }
    }
    m_covering = PlaceBlocks(m_items);
    for (OwnerItem* const item : m_items) {
        item->SetColors(&ColorsFor(m_isDark));
        scene()->addItem(item);
    }
    AddAxes();
    const QRectF all = scene()->itemsBoundingRect();
    scene()->setSceneRect(all.adjusted(-all.width(), -all.height(), all.width(), all.height()));
    Fit();
}

void FloorView::AddAxes()
{
    if (QGraphicsItem* const axes = m_project != nullptr ? MakeAxes(*m_project, m_isDark) : nullptr) {
        scene()->addItem(axes);
    }
}

void FloorView::Refresh(const FieldRef& ref)
{
    if (OwnerItem* const item = ItemOf(ref)) {
        item->TakeTexts(*m_project);
    }
}

void FloorView::SetChosen(std::optional<FieldRef> ref)
{
    if (OwnerItem* const before = m_chosen ? ItemOf(*m_chosen) : nullptr) {
        before->SetLit(std::nullopt);
    }
    m_chosen = ref && ItemOf(*ref) != nullptr ? ref : std::nullopt;
    if (!m_chosen) {
        return;
    }
    OwnerItem& item = *ItemOf(*m_chosen);
    item.SetLit(m_chosen->field);
    const QRectF box = item.mapRectToScene(item.BoxOf(m_chosen->field));
    const QRect inView = mapFromScene(box).boundingRect();
    const QRect room = viewport()->rect().adjusted(ViewMargin, ViewMargin, -ViewMargin, -ViewMargin);
    if (!room.intersects(inView)) {
        PanBy(room.center() - inView.center());
    }
}

QRect FloorView::OnScreen(const FieldRef& ref) const
{
    const OwnerItem* const item = ItemOf(ref);
    if (item == nullptr) {
        return {};
    }
    const QRect inView = mapFromScene(item->mapToScene(item->BoxOf(ref.field))).boundingRect();
    return {viewport()->mapToGlobal(inView.topLeft()), inView.size()};
}

void FloorView::ZoomBy(double factor)
{
    QPoint at = viewport()->rect().center();
    if (m_chosen) {
        const QPoint chosen = viewport()->mapFromGlobal(OnScreen(*m_chosen).center());
        at = viewport()->rect().contains(chosen) ? chosen : at;
    }
    ZoomAbout(at, factor);
}

void FloorView::SetDark(bool dark)
{
    m_isDark = dark;
    setBackgroundBrush(ColorsFor(dark).ground);
    for (OwnerItem* const item : m_items) {
        item->SetColors(&ColorsFor(dark));
    }
    const QList<QGraphicsItem*> all = scene()->items();
    const auto axes = std::find_if(all.begin(), all.end(), [](const QGraphicsItem* item) {
        return item->type() != static_cast<int>(OwnerItem::Type);
    });
    if (axes != all.end()) {
        delete *axes;
        AddAxes();
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

// A text before a beam, and of two beams the one on top.
FloorView::Hit FloorView::HitAt(const QPoint& inView) const
{
    const QPointF at = mapToScene(inView);
    const double reach = BodyReach / transform().m11();
    const bool readable = OwnerItem::IsReadable(transform().m11());
    Hit body;
    for (QGraphicsItem* const each :
         scene()->items(QRectF(at.x() - reach, at.y() - reach, 2 * reach, 2 * reach),
                        Qt::IntersectsItemBoundingRect)) {
        auto* const item = qgraphicsitem_cast<OwnerItem*>(each);
        if (item == nullptr) {
            continue;
        }
        const QPointF local = item->mapFromScene(at);
        if (const std::optional<Field> field = readable ? item->FieldAt(local) : std::nullopt) {
            return {item, *field, true};
        }
        if (body.item == nullptr && item->IsOnBody(local, reach)) {
            body.item = item;
        }
    }
    return body;
}

void FloorView::Hover(const Hit& hit)
{
    if (m_hovered != nullptr && m_hovered != hit.item) {
        m_hovered->SetHovered(std::nullopt);
    }
    m_hovered = hit.item;
    if (hit.item != nullptr) {
        hit.item->SetHovered(hit.onText ? std::optional(hit.field) : std::nullopt);
    }
    viewport()->setCursor(hit.item != nullptr ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void FloorView::mousePressEvent(QMouseEvent* event)
{
    const Hit hit = HitAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && hit.item != nullptr) {
        emit Picked(hit.item->RefOf(hit.field));
    } else {
        PanView::mousePressEvent(event);
    }
}

void FloorView::mouseMoveEvent(QMouseEvent* event)
{
    if (!MayPan()) {
        Hover(HitAt(event->position().toPoint()));
    }
    PanView::mouseMoveEvent(event);
}

void FloorView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const Hit hit = HitAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && hit.item != nullptr) {
        emit PanelAsked(hit.item->RefOf(hit.field));
    }
}

}  // namespace Desk
