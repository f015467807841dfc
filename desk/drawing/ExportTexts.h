// What an exported drawing writes of a beam, line by line.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "desk/project/Project.h"

namespace Desk {

struct DrawnLine {
    std::string text;         // with %%130 to %%133 for grade letters
    std::size_t columns = 0;  // characters, as wide ones count twice
};

struct InPlaceLine {
    Role role = Role::Bottom;
    int number = 1;
    DrawnLine line;
};

// "KL1(2) 300x600", stirrups, "top+(erection);bottom", side and torsion bars, elevation; what the beam has.
[[nodiscard]] std::vector<DrawnLine> LabelLines(const Beam& beam);
// The bars at the beam's ends as texts at its first and last support, then its texts in place.
[[nodiscard]] std::vector<InPlaceLine> TextsInPlace(const Beam& beam, std::size_t supports);

}  // namespace Desk
