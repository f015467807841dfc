// Positions that a person gives on the plan: pressed, and caught by what is there, or typed.
#pragma once

#include <optional>
#include <string_view>

#include "desk/project/Project.h"

namespace Desk {

// Where a press at a position goes that is at most reach mm away: to an end of a beam or a wall, to a
// crossing of axes, beams and walls with each other or with the level and the upright through a first
// position; else onto the nearest of these lines; else it stays, in whole mm.
[[nodiscard]] PlanPoint Caught(const Project& project, const PlanPoint& at, double reach,
                               const std::optional<PlanPoint>& from = std::nullopt);

// "8000,0"; from a first position "@6000,0", "@6000<90" by length and degrees, and "6000" towards another.
// Nothing for anything else and for what lies outside every plan.
[[nodiscard]] std::optional<PlanPoint>
TypedPoint(std::string_view text, const std::optional<PlanPoint>& from, const PlanPoint& towards);

}  // namespace Desk
