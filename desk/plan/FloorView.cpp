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
    m_hovered = nullptr;
    m_marks = nullptr;
    m_small = nullptr;
    m_items.clear();
    m_all.clear();
    SetPointing(false);
    scene()->clear();
    if (project == nullptr) {
        return;
    }
    FloorItems floor = AddFloor(*scene(), *project, behind, ColorsFor(m_isDark));
    m_all = std::move(floor.all);
    m_items = std::move(floor.owners);
    m_covering = floor.covering;
    m_small = new SmallTexts(m_items);
    m_small->SetColors(&ColorsFor(m_isDark));
    m_all.push_back(m_small);
    scene()->addItem(m_small);
    const QRectF all = scene()->itemsBoundingRect() | floor.shown;
    scene()->setSceneRect(all.adjusted(-all.width(), -all.height(), all.width(), all.height()));
    SetContent(floor.shown, GoodHeight / floor.textHeight);
    Fit();
}

void FloorView::Refresh(const FieldRef& ref)
{
    if (OwnerItem* const item = ItemOf(ref)) {
        item->Take(*m_project);
        Scaled();  // the text may have another length
    }
}

void FloorView::SetChosen(std::optional<FieldRef> ref)
{
    if (OwnerItem* const before = m_chosen ? ItemOf(*m_chosen) : nullptr) {
        before->SetLit(std::nullopt);
        m_small->SetLit(nullptr, std::nullopt);
    }
    m_chosen = ref && ItemOf(*ref) != nullptr ? ref : std::nullopt;
    if (!m_chosen) {
        return;
    }
    OwnerItem& item = *ItemOf(*m_chosen);
    item.SetLit(m_chosen);
    m_small->SetLit(&item, m_chosen);
    BringIntoView(mapFromScene(item.mapToScene(item.BoxOf(*m_chosen))).boundingRect());
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
    if (m_small != nullptr) {
        m_small->Choose(m_leastTextSize / transform().m11());
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

void FloorView::SetPointing(bool pointing)
{
    m_isPointing = pointing;
    viewport()->setCursor(pointing ? Qt::CrossCursor : Qt::ArrowCursor);
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
FloorView::Hit FloorView::HitAt(const QPoint& inView) const
{
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
    viewport()->setCursor(m_isPointing ? Qt::CrossCursor
                          : isThing    ? Qt::PointingHandCursor
                                       : Qt::ArrowCursor);
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

void FloorView::mousePressEvent(QMouseEvent* event)
{
    const Hit hit = HitAt(event->position().toPoint());
    const bool left = event->button() == Qt::LeftButton;
    if (left && m_isPointing) {
        const QPointF at = mapToScene(event->position().toPoint());
        emit Pointed({at.x(), -at.y()});
    } else if (left && hit.mark) {
        emit MarkPicked(*hit.mark);
    } else if (left && hit.item != nullptr) {
        emit Picked(hit.Ref());
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
    if (event->button() == Qt::LeftButton && hit.item != nullptr && !m_isPointing) {
        emit PanelAsked(hit.Ref());
    }
}

}  // namespace Desk
