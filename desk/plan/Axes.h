// The axes of a floor with their bubbles.
#pragma once

#include "desk/plan/PlanItem.h"

namespace Desk {

// Null for a project without axes.
[[nodiscard]] PlanItem* MakeAxes(const Project& project);

}  // namespace Desk
