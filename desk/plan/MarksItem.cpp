#include "desk/plan/MarksItem.h"

#include <algorithm>
#include <utility>

namespace Desk {

MarksItem::MarksItem(std::vector<PlanText> marks) : m_marks(std::move(marks))
{
    setPos(m_marks.empty() ? QPointF() : OnSheet(m_marks.front().place.at));
    setZValue(2.0);
    for (const PlanText& mark : m_marks) {
        const double height = mark.place.height;
        const double room = height / 4.0;
        const QRectF box(0.0, -height, TextWidth(QString::fromStdString(mark.text), height), height);
        m_outlines.push_back(
            FrameOf(mark.place).map(QPolygonF(box.adjusted(-room, -room, room, room))).translated(-pos()));
        m_all |= m_outlines.back().boundingRect();
    }
}

void MarksItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/)
{
    const double scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    for (std::size_t i = 0; i < m_marks.size(); ++i) {
        const TextPlace& place = m_marks[i].place;
        painter->setPen(LinePen(Colors(), Colors().mark));
        painter->setBrush(m_lit == i ? QBrush(Colors().chosenText) : QBrush(Qt::NoBrush));
        painter->drawPolygon(m_outlines[i]);
        if (IsReadable(place.height, scale)) {
            DrawPlaced(*painter, OnSheet(place.at) - pos(), -place.angle, place.height,
                       QString::fromStdString(m_marks[i].text));
        }
    }
}

void MarksItem::Light(std::optional<std::size_t> mark)
{
    m_lit = mark;
    update();
}

std::optional<std::size_t> MarksItem::MarkAt(const QPointF& onSheet, double scale) const
{
    for (std::size_t i = 0; i < m_marks.size(); ++i) {
        if (IsReadable(m_marks[i].place.height, scale) &&
            m_outlines[i].containsPoint(onSheet - pos(), Qt::OddEvenFill)) {
            return i;
        }
    }
    return std::nullopt;
}

}  // namespace Desk
