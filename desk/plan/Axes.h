// The axes of a floor with their bubbles.
#pragma once

#include "desk/plan/OwnerItem.h"

namespace Desk {

// Null for a project without axes.
[[nodiscard]] QGraphicsItem* MakeAxes(const Project& project, bool dark);

}  // namespace Desk
