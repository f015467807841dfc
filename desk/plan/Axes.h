// The axes of a floor with their bubbles.
#pragma once

#include "desk/plan/OwnerItem.h"

namespace Desk {

// From the project's "axes": {"x": {"1": 0}, "y": {"A": 0}} in mm. What is not of that form is left out;
// null when nothing is left.
[[nodiscard]] QGraphicsItem* MakeAxes(const Project& project, bool dark);

}  // namespace Desk
