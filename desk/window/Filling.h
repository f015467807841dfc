// The way through a floor whose beams get their texts one after another.
#pragma once

#include <optional>

#include "desk/project/Fields.h"

namespace Desk {

// The next annotation that a text is wanted for: of the same beam, or else of the next beam that lacks
// section, stirrups, top or bottom bars. These are wanted for each beam, the others where at least half of
// the beams most like it have one: those of its type and section, or else of its section, or else of its
// type. From a text that is there the way goes around the beam; from an annotation without one it passes
// over that and those before it. Where names suffice, a beam with a name alone takes part in another one
// and lacks nothing.
[[nodiscard]] std::optional<FieldRef> StepToFill(const Project& project,
                                                 const std::optional<FieldRef>& from, bool namesSuffice);

}  // namespace Desk
