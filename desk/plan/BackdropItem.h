// BackdropItem: what a drawing shows beside the annotations, quietly behind them.
#pragma once

#include "desk/plan/PlanItem.h"
#include "desk/project/Backdrop.h"

namespace Desk {

// Local coordinates: mm, 0 in the middle of all, since drawings can be far from the plan's origin.
class BackdropItem : public PlanItem {
public:
    explicit BackdropItem(const Backdrop& backdrop);

    [[nodiscard]] QRectF boundingRect() const override { return m_all; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    // Lines that are near each other, the longest first.
    struct Tile {
        QRectF bounds;
        std::size_t first;
        std::size_t last;
    };
    struct Text {
        QString text;
        QPointF corner;
        double turn;
        double height;
        QRectF bounds;
    };

    void Tiles(std::size_t first, std::size_t last);
    void AddText(const PlanText& text);

    QRectF m_all;
    std::vector<QLineF> m_lines;
    std::vector<Tile> m_tiles;
    std::vector<Text> m_texts;
};

}  // namespace Desk
