// OwnerItem: how a beam or wall and its texts are drawn.
#include <algorithm>
#include <array>
#include <utility>

#include "desk/plan/OwnerItem.h"

namespace Desk {

void OwnerItem::SetLit(const std::optional<FieldRef>& ref)
{
    m_lit = ref;
    setZValue(ref ? 1.0 : 0.0);
    update();
}

void OwnerItem::SetTogether(std::vector<FieldRef> refs)
{
    if (refs != m_together) {
        m_together = std::move(refs);
        update();
    }
}

void OwnerItem::SetHovered(const std::optional<FieldRef>& ref)
{
    m_hovered = ref;
    update();
}

void OwnerItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/)
{
    PaintBody(*painter);
    const auto isSmall = [this](const Label& label) { return IsSmall(label); };
    if (std::all_of(m_block.begin(), m_block.end(), isSmall) &&
        std::all_of(m_fixed.begin(), m_fixed.end(), isSmall)) {
        return;  // a floor seen whole, where this is most of the work
    }
    for (const Label& label : LabelsAsTheyAre()) {
        if (!IsSmall(label)) {
            PaintLeader(*painter, label);
            PaintText(*painter, label);
        }
    }
}

void OwnerItem::PaintBody(QPainter& painter) const
{
    const QRectF body = Body();
    const QColor line = IsChosen() ? Colors().chosen : m_isWall ? Colors().wall : Colors().beam;
    painter.setPen(LinePen(Colors(), line, m_lit ? 2.0 : 1.0));
    if (m_isWall) {
        painter.fillRect(body, line);
        return;
    }
    if (m_isDrawn) {
        if (IsChosen()) {
            painter.drawLine(QPointF(body.left(), 0.0), QPointF(body.right(), 0.0));
        }
        return;
    }
    if (IsChosen()) {
        QColor fill = Colors().chosen;
        fill.setAlpha(60);
        painter.fillRect(body, fill);
    }
    painter.drawLine(body.topLeft(), body.topRight());
    painter.drawLine(body.bottomLeft(), body.bottomRight());
    painter.drawLine(body.topLeft(), body.bottomLeft());
    painter.drawLine(body.topRight(), body.bottomRight());
}

// At the left of the block, by lines that continue each other.
void OwnerItem::PaintLeader(QPainter& painter, const Label& label) const
{
    if (!label.IsInBlock() || label.text.isEmpty() || label.box.x() > label.anchor.x()) {
        return;
    }
    painter.setPen(LinePen(Colors(), IsChosen() ? Colors().chosen : Colors().beam));
    const double x = label.anchor.x() - FieldLeader * label.box.height() / TextHeight;
    const QRectF body = Body();
    const bool isBelow = Block().y() > 0.0;
    const std::array line = {QPointF(std::clamp(x, body.left(), body.right()), 0.0),
                             QPointF(x, label.anchor.y()),
                             QPointF(x, isBelow ? label.box.bottom() : label.box.top())};
    painter.drawPolyline(line.data(), static_cast<int>(line.size()));
}

void OwnerItem::PaintText(QPainter& painter, const Label& label) const
{
    const FieldRef ref = RefOf(label);
    if (m_lit == ref || std::count(m_together.begin(), m_together.end(), ref) != 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Colors().chosenText);
        painter.drawPolygon(label.Outline());
    } else if (m_hovered == ref) {
        painter.setPen(LinePen(Colors(), Colors().chosen));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(label.Outline());
    }
    if (label.turn) {
        painter.setPen(Colors().text);
        DrawPlaced(painter, label.box.bottomLeft(), *label.turn, label.box.height(), label.text);
        return;
    }
    const bool end = label.field == Field::LeftEnd || label.field == Field::RightEnd;
    painter.setPen(end && !m_isDrawn ? Colors().endText : Colors().text);
    painter.setFont(PlanFont());
    const double unit = label.box.height() / TextHeight;
    const QTransform before = painter.transform();
    painter.translate(label.box.topLeft());
    painter.scale(unit, unit);
    painter.drawText(QRectF(0, -TextHeight, label.box.width() / unit + TextHeight, 3.0 * TextHeight),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, label.text);
    painter.setTransform(before);
}

}  // namespace Desk
