// Names for beams and walls that are made.
#pragma once

#include <string>

#include "desk/project/Project.h"

namespace Desk {

// The name that is proposed for the project's last beam, among all others; one that no beam has.
[[nodiscard]] std::string NewBeamName(const Project& project);
// A name like another one with the next number that none of the project has: KL8(2) like KL3(2), Q4 like
// Q3. Empty for a name without a number.
[[nodiscard]] std::string NextBeamName(const Project& project, const std::string& like);
[[nodiscard]] std::string NextWallName(const Project& project, const std::string& like);

// How many spans a beam has, cantilevers included: as many as are known, else as its name says, else 1.
[[nodiscard]] int SpansOf(const Beam& beam);

}  // namespace Desk
