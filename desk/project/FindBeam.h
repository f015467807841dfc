// Beams found by the names that people type.
#pragma once

#include <cstddef>
#include <string>

#include "desk/project/Project.h"

namespace Desk {

// A beam by its full name, or by its name without the span suffix. The first one when several have it,
// or the one that is written out where the first has its name alone.
// Throws Failure that names beams like it when there is none.
[[nodiscard]] const Beam& FindBeam(const Project& project, const std::string& name);

// On a drawing, the beam that holds the annotations of a beam: itself where it has a text beside its name,
// else the one of the same name that is written out, on its own plan before others, with the most texts,
// the first of them; itself where there is none. Texts in place do not count.
[[nodiscard]] std::size_t WrittenOut(const Project& project, std::size_t beam);

}  // namespace Desk
