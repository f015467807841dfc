// OwnerItem: one beam or wall on the plan with its texts.
#pragma once

#include <optional>
#include <vector>

#include "desk/plan/OwnerTexts.h"

namespace Desk {

inline constexpr double FieldLeader = 90.0;  // mm from a block's leader to its texts

// Local coordinates: mm, x along the beam in reading direction, 0 in its middle, y down the sheet.
class OwnerItem : public PlanItem {
public:
    // Type of the item, by which the view tells it from the others.
    enum { Type = UserType + 1 };

    OwnerItem(const Project& project, bool isWall, std::size_t index);

    [[nodiscard]] int type() const override { return Type; }
    [[nodiscard]] QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    // The texts have changed, or where the beam is; the block's position at the beam stays.
    void Take(const Project& project);
    // Others before it came or went.
    void SetIndex(std::size_t index) { m_index = index; }

    // Positions of the block's upper left corner beside the beam, the best first; so many mm further away
    // than the nearest ones.
    [[nodiscard]] std::vector<QPointF> BlockPositions(double away = 0.0) const;
    [[nodiscard]] QSizeF BlockSize() const { return SizeOf(m_block); }
    void SetBlock(const QPointF& corner);
    [[nodiscard]] QPointF Block() const { return m_dragged.value_or(m_corner); }
    // A person has dragged the block to where it is.
    [[nodiscard]] bool IsDragged() const { return m_dragged.has_value(); }

    // Texts lower than this, in mm, are drawn so high where there is room, and not by this item.
    void SetLeastHeight(double height) { m_leastHeight = height; }
    [[nodiscard]] bool HasSmallTexts() const;
    // All its labels, with a text and without, as high as they are drawn; those of a line one by one.
    [[nodiscard]] std::vector<Label> Labels() const;
    // Also of a label that has grown.
    [[nodiscard]] bool IsSmall(const Label& label) const
    {
        return label.box.height() <= 1.000001 * m_leastHeight;
    }
    void PaintText(QPainter& painter, const Label& label) const;
    // From the beam along a line of the block; nothing for other texts.
    void PaintLeader(QPainter& painter, const Label& label) const;
    // As the project has the text.
    [[nodiscard]] double OwnHeight(const FieldRef& ref) const;

    // Of the texts that it draws itself.
    [[nodiscard]] std::optional<FieldRef> RefAt(const QPointF& local) const;
    [[nodiscard]] bool IsOnBody(const QPointF& local, double reach) const;
    // Around an annotation's text, drawn or not.
    [[nodiscard]] QPolygonF BoxOf(const FieldRef& ref) const;
    [[nodiscard]] QRectF Body() const;
    // Around the texts that are dragged with this one: its block's, or it alone. Empty for one that has no
    // text.
    [[nodiscard]] QRectF DraggedBox(const FieldRef& ref) const;
    // Rectangles of the texts that are not in the block.
    [[nodiscard]] std::vector<QRectF> FixedBoxes() const;

    [[nodiscard]] FieldRef RefOf(const Label& label) const
    {
        return {m_isWall, m_index, label.field, label.inPlace};
    }
    [[nodiscard]] FieldRef NameRef() const { return {m_isWall, m_index, Field::Name}; }
    // Each an annotation of this beam or wall, or nothing.
    void SetLit(const std::optional<FieldRef>& ref);
    // Chosen together with the lit one.
    void SetTogether(std::vector<FieldRef> refs);
    void SetHovered(const std::optional<FieldRef>& ref);

private:
    void TakeDragged(const PlanPoint& at);
    void Lie(const PlanPoint& start, const PlanPoint& end);
    // After each change of what it draws, or where.
    void Measure();
    [[nodiscard]] bool IsChosen() const { return m_lit || !m_together.empty(); }
    [[nodiscard]] std::vector<Label> LabelsAsTheyAre() const;
    void PaintBody(QPainter& painter) const;

    bool m_isWall;
    bool m_isDrawn = false;  // its outline and its leader are among the drawing's own lines
    std::size_t m_index;
    BeamBody m_body;
    QRectF m_bounds;                   // asked for several times at each redraw
    QPointF m_corner;                  // of the block
    std::optional<QPointF> m_dragged;  // the same
    std::vector<Label> m_block;
    std::vector<Label> m_fixed;  // in local coordinates
    double m_leastHeight = 0.0;
    std::optional<FieldRef> m_lit;
    std::vector<FieldRef> m_together;
    std::optional<FieldRef> m_hovered;
};

}  // namespace Desk
