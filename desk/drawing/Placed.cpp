#include "desk/drawing/Placed.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "desk/drawing/Entity.h"
#include "desk/drawing/Pairs.h"
#include "desk/project/Failure.h"

namespace Desk {

namespace {

constexpr int MaxDepth = 24;  // of blocks in blocks

Transform TurnedBy(double degrees)
{
    const double angle = degrees * std::numbers::pi / 180.0;
    // Quarter turns stay exact, so that what is drawn upright is upright.
    const bool isQuarter = std::remainder(degrees, 90.0) == 0.0;
    const double cosine = isQuarter ? std::round(std::cos(angle)) : std::cos(angle);
    const double sine = isQuarter ? std::round(std::sin(angle)) : std::sin(angle);
    return {cosine, sine, -sine, cosine, {}};
}

class Placer {
public:
    Placer(DxfFile& file, const std::string& name)
        : m_file(file), m_name(name), m_left(100'000 + file.bytes.size())
    {
    }

    Placed Place()
    {
        m_placed.lines = std::exchange(m_file.model.lines, LineList());
        Spend(m_placed.lines.lines.size());
        for (std::uint32_t& layer : m_placed.lines.layers) {
            layer |= m_file.layers[layer].isHidden ? LineList::Hidden : 0;
        }
        PlaceAll(m_file.model, Transform(), 0, 0, false);
        for (Entities& block : m_file.blocks) {
            block.lines = LineList();
        }
        return std::move(m_placed);
    }

private:
    void Spend(std::size_t count)
    {
        if (count > m_left) {
            throw Failure(Phrase("Desk", "%1: its blocks hold each other too often to be shown"), m_name);
        }
        m_left -= count;
    }

    void PlaceAll(const Entities& entities, const Transform& transform, std::uint32_t layerOfReference,
                  int depth, bool isHidden)
    {
        const auto layerOf = [&](std::uint32_t own) {
            return depth > 0 && m_file.layers[own].name == "0" ? layerOfReference : own;
        };
        Spend(entities.texts.size() + entities.lines.lines.size());
        for (const TextEntity& text : entities.texts) {
            const std::uint32_t layer = layerOf(text.layer);
            const Transform own = text.isMirrored ? transform.After({-1.0, 0.0, 0.0, 1.0, {}}) : transform;
            const TextPlace place = PlaceOf(text, own);
            if (own.IsFlat() || !IsOnPlan(place.at) || !(place.height <= FarthestOut)) {
                continue;
            }
            m_placed.texts.push_back(
                {&text, own, place, layer, isHidden || text.isHidden || m_file.layers[layer].isHidden});
        }
        for (std::size_t i = 0; i < entities.lines.lines.size(); ++i) {
            const std::uint32_t layer = layerOf(entities.lines.layers[i]);
            const PlanLine& line = entities.lines.lines[i];
            const PlanLine placed{transform.Of(line.from), transform.Of(line.to)};
            if (!IsOnPlan(placed.from) || !IsOnPlan(placed.to)) {
                continue;
            }
            m_placed.lines.Add(placed,
                               layer | (isHidden || m_file.layers[layer].isHidden ? LineList::Hidden : 0));
        }
        for (const InsertEntity& insert : entities.inserts) {
            if (insert.block < m_file.blocks.size()) {
                PlaceInsert(insert, transform, layerOf(insert.layer), depth, isHidden || insert.isHidden);
            }
        }
    }

    void PlaceInsert(const InsertEntity& insert, const Transform& outer, std::uint32_t layer, int depth,
                     bool isHidden)
    {
        if (depth >= MaxDepth) {
            throw Failure(Phrase("Desk", "%1: a block holds itself"), m_name);
        }
        const Entities& block = m_file.blocks[insert.block];
        const Transform mirror = insert.isMirrored ? Transform{-1.0, 0.0, 0.0, 1.0, {}} : Transform();
        const Transform turn = TurnedBy(insert.angle);
        for (int row = 0; row < insert.rows; ++row) {
            for (int column = 0; column < insert.columns; ++column) {
                Spend(1);
                const PlanPoint step = turn.Turned({column * insert.columnStep, row * insert.rowStep});
                Transform own = turn.After({insert.xScale, 0.0, 0.0, insert.yScale, {}});
                own.origin = {insert.at.x + step.x, insert.at.y + step.y};
                const PlanPoint base = own.Turned(block.base);
                own.origin.x -= base.x;
                own.origin.y -= base.y;
                PlaceAll(block, outer.After(mirror.After(own)), layer, depth + 1, isHidden);
            }
        }
    }

    static TextPlace PlaceOf(const TextEntity& text, const Transform& transform)
    {
        const Transform turn = TurnedBy(text.angle);
        const PlanPoint along = transform.Turned(turn.Turned({1.0, 0.0}));
        const PlanPoint up = transform.Turned(turn.Turned({0.0, text.height}));
        return {transform.Of(text.at), std::atan2(along.y, along.x) * 180.0 / std::numbers::pi,
                std::hypot(up.x, up.y)};
    }

    DxfFile& m_file;
    const std::string& m_name;
    std::size_t m_left;
    Placed m_placed;
};

}  // namespace

PlanPoint Transform::Turned(const PlanPoint& step) const
{
    return {xx * step.x + yx * step.y, xy * step.x + yy * step.y};
}

PlanPoint Transform::Of(const PlanPoint& point) const
{
    const PlanPoint turned = Turned(point);
    return {turned.x + origin.x, turned.y + origin.y};
}

bool Transform::IsFlat() const { return !(std::abs(xx * yy - xy * yx) > 1e-12); }

PlanPoint Transform::Back(const PlanPoint& point) const
{
    const double size = xx * yy - xy * yx;
    const double x = point.x - origin.x;
    const double y = point.y - origin.y;
    return {(yy * x - yx * y) / size, (xx * y - xy * x) / size};
}

Transform Transform::After(const Transform& inner) const
{
    const PlanPoint x = Turned({inner.xx, inner.xy});
    const PlanPoint y = Turned({inner.yx, inner.yy});
    return {x.x, x.y, y.x, y.y, Of(inner.origin)};
}

Placed PlaceEntities(DxfFile& file, const std::string& name) { return Placer(file, name).Place(); }

}  // namespace Desk
