#include "desk/plan/Axes.h"

namespace Desk {

namespace {

constexpr double Overhang = 2200.0;  // mm that an axis goes beyond the last crossing one
constexpr double Bubble = 450.0;     // mm, radius

class AxesItem : public PlanItem {
public:
    AxesItem(std::vector<Axis> across, std::vector<Axis> up)
        : m_across(std::move(across)), m_up(std::move(up))
    {
        const auto range = [](const std::vector<Axis>& axes) {
            return axes.empty() ? std::pair(0.0, 0.0) : std::pair(axes.front().at, axes.back().at);
        };
        const auto [left, right] = range(m_across);
        const auto [low, high] = range(m_up);
        m_lines =
            QRectF(QPointF(left - Overhang, -high - Overhang), QPointF(right + Overhang, -low + Overhang));
        setZValue(-1.0);
    }

    [[nodiscard]] QRectF boundingRect() const override
    {
        return m_lines.adjusted(-2 * Bubble, -2 * Bubble, 2 * Bubble, 2 * Bubble);
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/) override
    {
        QPen dashes = LinePen(Colors(), Colors().axis);
        dashes.setStyle(Qt::DashDotLine);
        painter->setFont(PlanFont());
        for (const Axis& axis : m_across) {
            painter->setPen(dashes);
            painter->drawLine(QPointF(axis.at, m_lines.top()), QPointF(axis.at, m_lines.bottom()));
            PaintBubble(*painter, QPointF(axis.at, m_lines.bottom() + Bubble),
                        QString::fromStdString(axis.label));
        }
        for (const Axis& axis : m_up) {
            painter->setPen(dashes);
            painter->drawLine(QPointF(m_lines.left(), -axis.at), QPointF(m_lines.right(), -axis.at));
            PaintBubble(*painter, QPointF(m_lines.left() - Bubble, -axis.at),
                        QString::fromStdString(axis.label));
        }
    }

private:
    void PaintBubble(QPainter& painter, const QPointF& middle, const QString& label) const
    {
        painter.setPen(LinePen(Colors(), Colors().axis));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(middle, Bubble, Bubble);
        painter.drawText(QRectF(middle.x() - Bubble, middle.y() - Bubble, 2 * Bubble, 2 * Bubble),
                         Qt::AlignCenter, label);
    }

    std::vector<Axis> m_across;
    std::vector<Axis> m_up;
    QRectF m_lines;
};

}  // namespace

PlanItem* MakeAxes(const Project& project)
{
    return project.axesAcross.empty() && project.axesUp.empty()
               ? nullptr
               : new AxesItem(project.axesAcross, project.axesUp);
}

}  // namespace Desk
