#include "desk/plan/Axes.h"

#include <algorithm>

#include "desk/project/JsonText.h"

namespace Desk {

namespace {

constexpr double Overhang = 2200.0;  // mm that an axis goes beyond the last crossing one
constexpr double Bubble = 450.0;     // mm, radius

struct Axis {
    QString label;
    double place = 0.0;  // mm
};

std::vector<Axis> ReadAxes(const Project& project, const char* direction)
{
    std::vector<Axis> axes;
    const auto all = project.source.find("axes");
    if (all == project.source.end() || !all->is_object() || !all->contains(direction)) {
        return axes;
    }
    const auto& named = (*all)[direction];
    if (!named.is_object()) {
        return axes;
    }
    for (const auto& [label, place] : named.items()) {
        double number = 0.0;
        if (JsonNumber(place, number)) {
            axes.push_back({QString::fromStdString(label), number});
        }
    }
    std::sort(axes.begin(), axes.end(), [](const Axis& a, const Axis& b) { return a.place < b.place; });
    return axes;
}

class AxesItem : public QGraphicsItem {
public:
    AxesItem(std::vector<Axis> across, std::vector<Axis> up, const PlanColors& colors)
        : m_across(std::move(across)), m_up(std::move(up)), m_colors(colors)
    {
        const auto range = [](const std::vector<Axis>& axes) {
            return axes.empty() ? std::pair(0.0, 0.0) : std::pair(axes.front().place, axes.back().place);
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
        QPen dashes(m_colors.axis, 1.0, Qt::DashDotLine);
        dashes.setCosmetic(true);
        painter->setFont(PlanFont());
        for (const Axis& axis : m_across) {
            painter->setPen(dashes);
            painter->drawLine(QPointF(axis.place, m_lines.top()), QPointF(axis.place, m_lines.bottom()));
            PaintBubble(*painter, QPointF(axis.place, m_lines.bottom() + Bubble), axis.label);
        }
        for (const Axis& axis : m_up) {
            painter->setPen(dashes);
            painter->drawLine(QPointF(m_lines.left(), -axis.place), QPointF(m_lines.right(), -axis.place));
            PaintBubble(*painter, QPointF(m_lines.left() - Bubble, -axis.place), axis.label);
        }
    }

private:
    void PaintBubble(QPainter& painter, const QPointF& middle, const QString& label) const
    {
        QPen line(m_colors.axis, 1.0);
        line.setCosmetic(true);
        painter.setPen(line);
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(middle, Bubble, Bubble);
        painter.drawText(QRectF(middle.x() - Bubble, middle.y() - Bubble, 2 * Bubble, 2 * Bubble),
                         Qt::AlignCenter, label);
    }

    std::vector<Axis> m_across;
    std::vector<Axis> m_up;
    PlanColors m_colors;
    QRectF m_lines;
};

}  // namespace

QGraphicsItem* MakeAxes(const Project& project, bool dark)
{
    std::vector<Axis> across = ReadAxes(project, "x");
    std::vector<Axis> up = ReadAxes(project, "y");
    return across.empty() && up.empty() ? nullptr
                                        : new AxesItem(std::move(across), std::move(up), ColorsFor(dark));
}

}  // namespace Desk
