// MarksItem: texts on the plan that wait for a person.
#pragma once

#include <optional>
#include <vector>

#include "desk/plan/PlanItem.h"
#include "desk/project/Backdrop.h"

namespace Desk {

struct PlanMark {
    PlanText text;
    bool isAnnotation = false;  // whose own item draws the text
};

// Local coordinates: mm, 0 at the first text.
class MarksItem : public PlanItem {
public:
    explicit MarksItem(std::vector<PlanMark> marks);

    [[nodiscard]] QRectF boundingRect() const override { return m_all; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    void Light(std::optional<std::size_t> mark);
    // Around a mark, on the sheet.
    [[nodiscard]] QPolygonF OutlineOf(std::size_t mark) const { return m_outlines[mark].translated(pos()); }
    [[nodiscard]] std::size_t Count() const { return m_marks.size(); }
    // The mark whose text is there where it can be read, at pixels a mm.
    [[nodiscard]] std::optional<std::size_t> MarkAt(const QPointF& onSheet, double scale) const;

private:
    std::vector<PlanMark> m_marks;
    std::vector<QPolygonF> m_outlines;
    std::optional<std::size_t> m_lit;
    QRectF m_all;
};

}  // namespace Desk
