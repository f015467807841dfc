// Occupied rectangles are kept by the cells of a grid.
#include "desk/plan/PlaceBlocks.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace Desk {

namespace {

constexpr double Cell = 3000.0;         // mm
constexpr double Clear = 100.0;         // mm around a block
constexpr double OnText = 100.0;        // what covering a text weighs against covering a beam
constexpr double MostCells = 10'000.0;  // of a rectangle that is kept by its cells
constexpr double MostPieces = 100.0;    // of a body
constexpr double MostLines = 30.0;      // that a block is moved away for want of room

class Ground {
public:
    void Occupy(const QRectF& rect, double weight)
    {
        const std::size_t number = m_rects.size();
        m_rects.push_back({rect, weight});
        if ((rect.width() / Cell + 1.0) * (rect.height() / Cell + 1.0) > MostCells) {
            m_large.push_back(number);
        } else {
            ForEachCell(rect, [&](std::int64_t cell) { m_cells[cell].push_back(number); });
        }
    }

    // The weighted area that is covered; more than a limit is not looked into.
    [[nodiscard]] double Covered(const QRectF& rect, double limit) const
    {
        double covered = 0.0;
        const auto add = [&](const std::vector<std::size_t>& numbers) {
            for (const std::size_t number : numbers) {
                const QRectF both = rect & m_rects[number].rect;
                covered += both.width() * both.height() * m_rects[number].weight;
            }
        };
        add(m_large);
        ForEachCell(rect, [&](std::int64_t cell) {
            const auto found = m_cells.find(cell);
            if (found != m_cells.end() && covered <= limit) {
                add(found->second);
            }
        });
        return covered;
    }

private:
    struct Occupied {
        QRectF rect;
        double weight;
    };

    template <class Use>
    static void ForEachCell(const QRectF& rect, Use use)
    {
        const auto index = [](double at) { return static_cast<std::int64_t>(std::floor(at / Cell)); };
        for (std::int64_t y = index(rect.top()); y <= index(rect.bottom()); ++y) {
            for (std::int64_t x = index(rect.left()); x <= index(rect.right()); ++x) {
                use((y << 32) ^ (x & 0xFFFFFFFF));
            }
        }
    }

    std::vector<Occupied> m_rects;
    std::unordered_map<std::int64_t, std::vector<std::size_t>> m_cells;
    std::vector<std::size_t> m_large;  // what would fill too many cells
};

// A rectangle that is drawn has an area even where it is a line.
QRectF Solid(const QRectF& rect) { return rect.adjusted(-1, -1, 1, 1); }

// A beam or wall, in pieces along it where it is slanted: the rectangle around all of it would cover the
// ground on both sides.
void OccupyBody(Ground& ground, const OwnerItem& item)
{
    const QRectF body = item.Body();
    const QRectF all = Solid(item.mapRectToScene(body));
    const double pieces =
        std::clamp(std::ceil(std::min(all.width(), all.height()) / Cell), 1.0, MostPieces);
    const double length = body.width() / pieces;
    for (double piece = 0.0; piece < pieces; piece += 1.0) {
        const QRectF part(body.left() + piece * length, body.top(), length, body.height());
        ground.Occupy(Solid(item.mapRectToScene(part)), 1.0);
    }
}

void OccupyFixed(Ground& ground, const OwnerItem& item)
{
    OccupyBody(ground, item);
    for (const QRectF& box : item.FixedBoxes()) {
        ground.Occupy(item.mapRectToScene(box), OnText);
    }
}

QRectF BlockRect(const OwnerItem& item, const QPointF& corner)
{
    return item.mapRectToScene(QRectF(corner, item.BlockSize()).adjusted(-Clear, -Clear, Clear, Clear));
}

// Answers whether the block lies on another text.
bool PlaceOne(Ground& ground, OwnerItem& item)
{
    double least = std::numeric_limits<double>::max();
    QPointF best;
    const auto coversText = [&] { return least >= OnText * Clear * Clear; };
    for (double line = 0.0; line <= MostLines && coversText(); line += 1.0) {
        for (const QPointF& corner : item.BlockPositions(line * LineStep)) {
            const double covered = ground.Covered(BlockRect(item, corner), least);
            if (covered < least) {
                least = covered;
                best = corner;
            }
            if (least <= 0.0) {
                break;
            }
        }
    }
    item.SetBlock(best);
    ground.Occupy(BlockRect(item, best), OnText);
    return coversText();
}

}  // namespace

int PlaceBlocks(const std::vector<OwnerItem*>& items)
{
    Ground ground;
    for (const OwnerItem* const item : items) {
        OccupyFixed(ground, *item);
        if (item->IsDragged()) {
            ground.Occupy(BlockRect(*item, item->Block()), OnText);
        }
    }
    int covering = 0;
    for (OwnerItem* const item : items) {
        const bool isToPlace = !item->IsDragged() && !item->BlockSize().isEmpty();
        covering += isToPlace && PlaceOne(ground, *item) ? 1 : 0;
    }
    return covering;
}

void PlaceBlock(OwnerItem& item, const std::vector<OwnerItem*>& others)
{
    Ground ground;
    OccupyFixed(ground, item);
    for (const OwnerItem* const other : others) {
        OccupyFixed(ground, *other);
        if (!other->BlockSize().isEmpty()) {
            ground.Occupy(BlockRect(*other, other->Block()), OnText);
        }
    }
    PlaceOne(ground, item);
}

}  // namespace Desk
