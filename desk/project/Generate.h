// Large projects that look like real ones, for trying things out at size.
#pragma once

#include "desk/project/Project.h"

namespace Desk {

// So many beams, and a wall for every ten of them: floors with a grid of axes, side by side on the plan.
// Texts are drawn from the sample's with their frequencies, names run on. The same numbers give the same
// project on every machine.
[[nodiscard]] Project GenerateProject(int beams, unsigned seed);

}  // namespace Desk
