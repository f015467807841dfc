// Beams as they are drawn: strips between two parallel lines, one after another along the same axis.
#pragma once

#include <vector>

#include "desk/drawing/Placed.h"

namespace Desk {

// Coordinates along a direction and across it: u along, v to its left.
struct Frame {
    double cosine = 1.0;
    double sine = 0.0;

    // The direction that texts along a line of this angle (degrees) are read in: to the right, or upwards.
    [[nodiscard]] static Frame Reading(double degrees);
    [[nodiscard]] double U(const PlanPoint& point) const { return point.x * cosine + point.y * sine; }
    [[nodiscard]] double V(const PlanPoint& point) const { return point.y * cosine - point.x * sine; }
    [[nodiscard]] PlanPoint At(double u, double v) const
    {
        return {u * cosine - v * sine, u * sine + v * cosine};
    }
    // Directions that differ by less than two degrees.
    [[nodiscard]] bool IsParallel(const Frame& other) const;
};

struct Piece {
    double from = 0.0;  // along the frame's u
    double to = 0.0;
};

// Strips of one width along one axis, with gaps where something crosses them.
struct BeamRun {
    Frame frame;
    double axis = 0.0;          // v
    double width = 0.0;         // as drawn
    std::vector<Piece> pieces;  // in ascending order, one at least

    [[nodiscard]] double From() const { return pieces.front().from; }
    [[nodiscard]] double To() const { return pieces.back().to; }
};

// unit is how many drawn mm a mm of a dimension takes.
[[nodiscard]] std::vector<BeamRun> FindRuns(const std::vector<PlanLine>& outlines, double unit);

// What the lines of a layer are, by its name: BEAM or 梁, WALL, COLU, 墙 or 柱 in it, and no word for
// texts.
enum class OutlineKind { None, Beam, Carrier };
[[nodiscard]] OutlineKind OutlineKindOf(std::string_view layer);

}  // namespace Desk
