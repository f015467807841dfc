#include "desk/plan/FloorView.h"

#include <algorithm>
#include <cmath>

#include "desk/plan/Axes.h"
#include "desk/plan/PlaceBlocks.h"

namespace Desk {

namespace {

constexpr double LeastScale = 1e-4;  // pixels a mm
constexpr double MostScale = 0.5;
constexpr double WheelStep = 1.2;  // a notch of the wheel
constexpr double BodyReach = 4.0;  // pixels beside a beam that still count as on it
constexpr int KeySteps = 8;        // strokes of an arrow key across the view
constexpr int ViewMargin = 30;     // pixels around an annotation that is brought into view

}  // namespace

FloorView::FloorView(QWidget* parent) : QGraphicsView(parent)
{
    setScene(new QGraphicsScene(this));
    setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    setViewportUpdateMode(QGraphicsView::SmartViewportUpdate);
    setOptimizationFlag(QGraphicsView::DontAdjustForAntialiasing);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::NoAnchor);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
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

void FloorView::Refresh(const FieldRef& place)
{
    if (OwnerItem* const item = ItemOf(place)) {
        item->TakeTexts(*m_project);
    }
}

void FloorView::SetChosen(std::optional<FieldRef> place)
{
    if (OwnerItem* const before = m_chosen ? ItemOf(*m_chosen) : nullptr) {
        before->SetLit(std::nullopt);
    }
    m_chosen = place && ItemOf(*place) != nullptr ? place : std::nullopt;
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
        m_isFitted = false;
    }
}

QRect FloorView::OnScreen(const FieldRef& place) const
{
    const OwnerItem* const item = ItemOf(place);
    if (item == nullptr) {
        return {};
    }
    const QRect inView = mapFromScene(item->mapToScene(item->BoxOf(place.field))).boundingRect();
    return {viewport()->mapToGlobal(inView.topLeft()), inView.size()};
}

void FloorView::Fit()
{
    QRectF all = scene()->itemsBoundingRect();
    if (all.isEmpty()) {
        all = QRectF(-1000, -1000, 2000, 2000);
    }
    fitInView(all, Qt::KeepAspectRatio);
    m_isFitted = true;
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

OwnerItem* FloorView::ItemOf(const FieldRef& place) const
{
    if (m_project == nullptr || !Exists(*m_project, place)) {
        return nullptr;
    }
    return m_items[place.index + (place.isWall ? m_project->beams.size() : 0)];
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

void FloorView::ZoomTo(double scale)
{
    const double now = transform().m11();
    const double factor = std::clamp(scale, LeastScale, MostScale) / now;
    this->scale(factor, factor);
    m_isFitted = false;
}

// What lies at a place of the view stays there.
void FloorView::ZoomAbout(const QPoint& inView, double factor)
{
    const QPointF before = mapToScene(inView);
    ZoomTo(transform().m11() * factor);
    PanBy(inView - mapFromScene(before));
}

void FloorView::PanBy(const QPoint& pixels)
{
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - pixels.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - pixels.y());
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
    m_pressed = m_panned = event->position().toPoint();
    const Hit hit = HitAt(m_pressed);
    if (event->button() == Qt::LeftButton && hit.item != nullptr) {
        emit Picked(hit.item->PlaceOf(hit.field));
    } else if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
        m_mayPan = true;
        m_isPanning = event->button() == Qt::MiddleButton;
    }
}

void FloorView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint now = event->position().toPoint();
    if (!m_mayPan) {
        Hover(HitAt(now));
        return;
    }
    m_isPanning = m_isPanning || (now - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (m_isPanning) {
        viewport()->setCursor(Qt::ClosedHandCursor);
        PanBy(now - m_panned);
        m_panned = now;
        m_isFitted = false;
    }
}

void FloorView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_mayPan && !m_isPanning && event->button() == Qt::LeftButton) {
        emit NothingPicked();
    }
    m_mayPan = false;
    m_isPanning = false;
    viewport()->setCursor(Qt::ArrowCursor);
}

void FloorView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const Hit hit = HitAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && hit.item != nullptr) {
        emit PanelAsked(hit.item->PlaceOf(hit.field));
    }
}

// About the pointer.
void FloorView::wheelEvent(QWheelEvent* event)
{
    constexpr double Notch = 120.0;
    ZoomAbout(event->position().toPoint(), std::pow(WheelStep, event->angleDelta().y() / Notch));
    event->accept();
}

void FloorView::keyPressEvent(QKeyEvent* event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const QSize step = viewport()->size() / KeySteps;
    const int page = viewport()->height() - step.height();
    QPoint by;
    switch (event->key()) {
    case Qt::Key_Left: by = {step.width(), 0}; break;
    case Qt::Key_Right: by = {-step.width(), 0}; break;
    case Qt::Key_Up: by = {0, step.height()}; break;
    case Qt::Key_Down: by = {0, -step.height()}; break;
    case Qt::Key_PageUp: by = {0, page}; break;
    case Qt::Key_PageDown: by = {0, -page}; break;
    default: break;
    }
    if (!plain || by.isNull()) {
        event->ignore();
        return;
    }
    PanBy(by);
    m_isFitted = false;
}

void FloorView::showEvent(QShowEvent* event)
{
    QGraphicsView::showEvent(event);
    if (m_isFitted) {
        Fit();
    }
}

void FloorView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    if (m_isFitted) {
        Fit();
    }
}

}  // namespace Desk
