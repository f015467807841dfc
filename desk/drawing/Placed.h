// The entities of a drawing where they are on the plan: block references are followed, with their
// positions, scales, turns and arrays.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "desk/drawing/Entities.h"

namespace Desk {

// From the coordinates of a block to those of the plan.
struct Transform {
    double xx = 1.0;  // what one step along x gives in x and y
    double xy = 0.0;
    double yx = 0.0;
    double yy = 1.0;
    PlanPoint origin;

    [[nodiscard]] PlanPoint Of(const PlanPoint& point) const;
    // Of a direction: no shift.
    [[nodiscard]] PlanPoint Turned(const PlanPoint& step) const;
    // The point that comes to lie there; the transform must not be flat.
    [[nodiscard]] PlanPoint Back(const PlanPoint& point) const;
    // First inner, then this one.
    [[nodiscard]] Transform After(const Transform& inner) const;
    [[nodiscard]] bool IsFlat() const;
};

struct PlacedText {
    const TextEntity* text = nullptr;  // of the file
    Transform transform;
    TextPlace place;
    std::uint32_t layer = 0;  // that of the block reference for the block's layer 0
    bool isHidden = false;
};

struct Placed {
    std::vector<PlacedText> texts;
    LineList lines;
};

// The file's lines are gone then: those of a large drawing need not be held twice. Throws Failure for
// blocks that hold themselves or grow beyond all measure; name stands for the file in messages.
[[nodiscard]] Placed PlaceEntities(DxfFile& file, const std::string& name);

}  // namespace Desk
