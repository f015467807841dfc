#include "desk/plan/SketchItem.h"

#include <utility>

namespace Desk {

namespace {

constexpr double HandleReach = 6.0;  // pixels from its middle
constexpr double TakenReach = 5.0;
constexpr double ShortestHandled = 40.0;  // pixels between two handles that can be told apart
constexpr double Room = 5'000.0;          // mm around positions, for marks as large at every scale

}  // namespace

void SketchItem::SetLines(std::vector<PlanLine> lines, const std::optional<PlanPoint>& taken)
{
    m_lines = std::move(lines);
    m_taken = taken;
    Measure();
}

void SketchItem::SetHandles(std::vector<PlanPoint> handles)
{
    m_handles = std::move(handles);
    Measure();
}

void SketchItem::Measure()
{
    prepareGeometryChange();
    m_all = QRectF();
    const auto add = [&](const PlanPoint& at) {
        const QPointF middle = OnSheet(at);
        m_all |= QRectF(middle.x() - Room, middle.y() - Room, 2 * Room, 2 * Room);
    };
    for (const PlanLine& line : m_lines) {
        add(line.from);
        add(line.to);
    }
    for (const PlanPoint& handle : m_handles) {
        add(handle);
    }
    if (m_taken) {
        add(*m_taken);
    }
    update();
}

std::optional<std::size_t> SketchItem::HandleAt(const QPointF& onSheet, double scale) const
{
    if (m_handles.size() == 2 &&
        scale * QLineF(OnSheet(m_handles[0]), OnSheet(m_handles[1])).length() < ShortestHandled) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < m_handles.size(); ++i) {
        const QPointF off = scale * (onSheet - OnSheet(m_handles[i]));
        if (std::abs(off.x()) <= HandleReach && std::abs(off.y()) <= HandleReach) {
            return i;
        }
    }
    return std::nullopt;
}

void SketchItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/)
{
    const double scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    painter->setPen(LinePen(Colors(), Colors().chosen));
    for (const PlanLine& line : m_lines) {
        painter->drawLine(OnSheet(line.from), OnSheet(line.to));
    }
    if (m_taken) {
        const double reach = TakenReach / scale;
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(QRectF(OnSheet(*m_taken) - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach)));
    }
    painter->setBrush(Colors().chosen);
    for (const PlanPoint& handle : m_handles) {
        if (const QPointF middle = OnSheet(handle); HandleAt(middle, scale)) {
            const double half = 0.7 * HandleReach / scale;
            painter->drawRect(QRectF(middle - QPointF(half, half), QSizeF(2 * half, 2 * half)));
        }
    }
}

}  // namespace Desk
