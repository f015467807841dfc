// Beams found by the names that people type.
#pragma once

#include <string>

#include "desk/project/Project.h"

namespace Desk {

// A beam by its full name, or by its name without the span suffix. The first one when several have it.
// Throws Failure that names beams like it when there is none.
[[nodiscard]] const Beam& FindBeam(const Project& project, const std::string& name);

}  // namespace Desk
