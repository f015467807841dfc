#include "desk/plan/MarksItem.h"

#include <algorithm>
#include <utility>

namespace Desk {

MarksItem::MarksItem(std::vector<PlanMark> marks) : m_marks(std::move(marks))
{
    setPos(m_marks.empty() ? QPointF() : OnSheet(m_marks.front().text.place.at));
    setZValue(2.0);
    for (const PlanMark& each : m_marks) {
        const PlanText& mark = each.text;
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
        const auto& [text, place] = m_marks[i].text;
        painter->setPen(LinePen(Colors(), Colors().mark));
        painter->setBrush(m_lit == i ? QBrush(Colors().chosenText) : QBrush(Qt::NoBrush));
        painter->drawPolygon(m_outlines[i]);
        if (IsReadable(place.height, scale) && !m_marks[i].isAnnotation) {
            DrawPlaced(*painter, OnSheet(place.at) - pos(), -place.angle, place.height,
                       QString::fromStdString(text));
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
        if (IsReadable(m_marks[i].text.place.height, scale) &&
            m_outlines[i].containsPoint(onSheet - pos(), Qt::OddEvenFill)) {
            return i;
        }
    }
    return std::nullopt;
}

}  // namespace Desk
