// SketchItem: what a person is about to make on the plan, and the handles of the chosen beam or wall.
#pragma once

#include <optional>
#include <vector>

#include "desk/plan/PlanItem.h"
#include "desk/project/Backdrop.h"

namespace Desk {

// Local coordinates are those of the sheet.
class SketchItem : public PlanItem {
public:
    SketchItem() { setZValue(3.0); }

    [[nodiscard]] QRectF boundingRect() const override { return m_all; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    // Lines that follow the pointer, and the position that a press would take.
    void SetLines(std::vector<PlanLine> lines, const std::optional<PlanPoint>& taken);
    // Of a start and an end; none for an empty list.
    void SetHandles(std::vector<PlanPoint> handles);
    // The handle at a position on the sheet, at pixels a mm.
    [[nodiscard]] std::optional<std::size_t> HandleAt(const QPointF& onSheet, double scale) const;

private:
    void Measure();

    std::vector<PlanLine> m_lines;
    std::optional<PlanPoint> m_taken;
    std::vector<PlanPoint> m_handles;
    QRectF m_all;
};

}  // namespace Desk
