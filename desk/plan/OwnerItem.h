// OwnerItem: one beam or wall on the plan with its texts.
#pragma once

#include <optional>

#include "desk/plan/OwnerTexts.h"

namespace Desk {

struct PlanColors {
    QColor ground;
    QColor axis;
    QColor beam;
    QColor wall;
    QColor text;
    QColor endText;
    QColor chosen;      // of the lit beam
    QColor chosenText;  // ground of the lit text
};

[[nodiscard]] const PlanColors& ColorsFor(bool dark);

// Local coordinates: mm, x along the beam in reading direction, 0 in its middle, y down the sheet.
class OwnerItem : public QGraphicsItem {
public:
    // Type of the item, by which the view tells it from the axes.
    enum { Type = UserType + 1 };

    OwnerItem(const Project& project, bool isWall, std::size_t index);

    [[nodiscard]] int type() const override { return Type; }
    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    // The texts have changed; their positions stay.
    void TakeTexts(const Project& project);

    // Positions of the block's upper left corner beside the beam, the best first.
    [[nodiscard]] std::vector<QPointF> BlockPositions() const;
    [[nodiscard]] QSizeF BlockSize() const { return SizeOf(m_block); }
    void SetBlock(const QPointF& corner);

    // Texts are drawn, and found, from a height on that can be read; the scale is pixels a mm.
    [[nodiscard]] static bool IsReadable(double scale);
    [[nodiscard]] std::optional<Field> FieldAt(const QPointF& local) const;
    [[nodiscard]] bool IsOnBody(const QPointF& local, double reach) const;
    // The rectangle of a field's text, drawn or not.
    [[nodiscard]] QRectF BoxOf(Field field) const;
    [[nodiscard]] QRectF Body() const;
    // Rectangles of the texts at the ends.
    [[nodiscard]] std::vector<QRectF> EndBoxes() const;

    [[nodiscard]] FieldRef RefOf(Field field) const { return {m_isWall, m_index, field}; }
    void SetColors(const PlanColors* colors) { m_colors = colors; }
    void SetLit(std::optional<Field> field);
    void SetHovered(std::optional<Field> field);

private:
    [[nodiscard]] Label EndLabel(Field field, const std::string& text) const;
    [[nodiscard]] std::vector<Label> AllLabels() const;
    void PaintBody(QPainter& painter) const;
    void PaintTexts(QPainter& painter) const;

    bool m_isWall;
    std::size_t m_index;
    double m_length = 0.0;  // mm
    double m_width = 0.0;
    QPointF m_corner;  // of the block
    std::vector<Label> m_block;
    std::vector<Label> m_ends;  // in local coordinates
    std::optional<Field> m_lit;
    std::optional<Field> m_hovered;
    const PlanColors* m_colors = nullptr;
};

}  // namespace Desk
