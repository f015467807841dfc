// FloorView: what the mouse points to and does.
#include <utility>

#include "desk/plan/FloorView.h"

namespace Desk {

namespace {

constexpr double BodyReach = 4.0;  // pixels beside a beam that still count as on it

}  // namespace

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
    } else if (left && event->modifiers().testFlag(Qt::ShiftModifier)) {
        m_frameFrom = inView;
    } else if (left && event->modifiers().testFlag(Qt::ControlModifier) && hit.item != nullptr) {
        emit Joined(hit.Ref());
    } else if (left && handle) {
        m_drag = Drag{*handle, inView, false, {}};
    } else if (left && (hit.mark || hit.item != nullptr)) {
        const bool isHeld = hit.text && m_hasHandles[hit.text->isWall ? 1 : 0];
        m_textDrag = isHeld ? std::optional(TextDrag{*hit.text, inView}) : std::nullopt;
        Pick(hit);
    } else {
        PanView::mousePressEvent(event);
    }
}

void FloorView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint inView = event->position().toPoint();
    if (m_frameFrom) {
        m_frame->setGeometry(QRect(*m_frameFrom, inView).normalized());
        m_frame->show();
    } else if (m_drag) {
        DragHandle(inView);
    } else if (m_textDrag && event->buttons().testFlag(Qt::LeftButton)) {
        DragText(inView);
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
    const QPoint inView = event->position().toPoint();
    if (m_frameFrom && event->button() == Qt::LeftButton) {
        EndFrame(inView);
        return;
    }
    if (m_textDrag && event->button() == Qt::LeftButton) {
        DropText(inView);
        return;
    }
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

void FloorView::EndFrame(const QPoint& inView)
{
    const QPoint from = *std::exchange(m_frameFrom, std::nullopt);
    m_frame->hide();
    if ((inView - from).manhattanLength() < QApplication::startDragDistance()) {
        if (const Hit hit = HitAt(from); hit.item != nullptr) {
            emit Joined(hit.Ref());
        }
        return;
    }
    const QRectF frame = QRectF(from, inView).normalized();
    std::vector<FieldRef> owners;
    for (const OwnerItem* const item : m_items) {
        const QPolygonF body = mapFromScene(item->mapToScene(item->Body()));
        if (frame.contains(body.boundingRect()) ||
            (inView.x() < from.x() && QPolygonF(frame).intersects(body))) {
            owners.push_back(item->NameRef());
        }
    }
    emit Framed(owners);
}

void FloorView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (IsPointing() || event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::ShiftModifier)) {
        mousePressEvent(event);
        return;
    }
    const Hit hit = HitAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && hit.item != nullptr) {
        emit PanelAsked(hit.Ref());
    }
}

}  // namespace Desk
