// OwnerItem: one beam or wall on the plan with its texts.
#pragma once

#include <optional>
#include <vector>

#include "desk/plan/OwnerTexts.h"

namespace Desk {

// Local coordinates: mm, x along the beam in reading direction, 0 in its middle, y down the sheet.
class OwnerItem : public PlanItem {
public:
    // Type of the item, by which the view tells it from the others.
    enum { Type = UserType + 1 };

    OwnerItem(const Project& project, bool isWall, std::size_t index);

    [[nodiscard]] int type() const override { return Type; }
    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    // The texts have changed, or where the beam is; the block's position at the beam stays.
    void Take(const Project& project);
    // Others before it came or went.
    void SetIndex(std::size_t index) { m_index = index; }

    // Positions of the block's upper left corner beside the beam, the best first.
    [[nodiscard]] std::vector<QPointF> BlockPositions() const;
    [[nodiscard]] QSizeF BlockSize() const { return SizeOf(m_block); }
    void SetBlock(const QPointF& corner);
    [[nodiscard]] QPointF Block() const { return m_corner; }

    [[nodiscard]] std::optional<FieldRef> RefAt(const QPointF& local, double scale) const;
    [[nodiscard]] bool IsOnBody(const QPointF& local, double reach) const;
    // Around an annotation's text, drawn or not.
    [[nodiscard]] QPolygonF BoxOf(const FieldRef& ref) const;
    [[nodiscard]] QRectF Body() const;
    // Rectangles of the texts that are not in the block.
    [[nodiscard]] std::vector<QRectF> FixedBoxes() const;

    [[nodiscard]] FieldRef NameRef() const { return {m_isWall, m_index, Field::Name}; }
    // Each an annotation of this beam or wall, or nothing.
    void SetLit(const std::optional<FieldRef>& ref);
    // Chosen together with the lit one.
    void SetTogether(std::vector<FieldRef> refs);
    void SetHovered(const std::optional<FieldRef>& ref);

private:
    [[nodiscard]] FieldRef RefOf(const Label& label) const
    {
        return {m_isWall, m_index, label.field, label.inPlace};
    }
    void Lie(const PlanPoint& start, const PlanPoint& end);
    [[nodiscard]] bool IsChosen() const { return m_lit || !m_together.empty(); }
    [[nodiscard]] std::vector<Label> AllLabels() const;
    void PaintBody(QPainter& painter) const;
    void PaintLeader(QPainter& painter) const;
    void PaintText(QPainter& painter, const Label& label) const;

    bool m_isWall;
    bool m_isDrawn = false;  // its outline and its leader are among the drawing's own lines
    std::size_t m_index;
    BeamBody m_body;
    QPointF m_corner;  // of the block
    std::vector<Label> m_block;
    std::vector<Label> m_fixed;  // in local coordinates
    std::optional<FieldRef> m_lit;
    std::vector<FieldRef> m_together;
    std::optional<FieldRef> m_hovered;
};

}  // namespace Desk
