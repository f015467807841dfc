// Bars by the steel that a beam needs: whether a text gives it and has room, and texts that do.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "desk/project/Fields.h"

namespace Desk {

// What bars have to be at one place of a beam.
struct BarNeed {
    int steel = 0;  // required, mm²; 0 for not known
    int width = 0;  // inside the stirrups, mm; 0 for not known
    bool isBottom = false;
    // End bars lie on the through bars: so many of this diameter are at the corners; 0 for others.
    int cornerDiameter = 0;
    int corners = 0;
};

[[nodiscard]] BarNeed BarNeedOf(const Project& project, const FieldRef& ref);

struct BarRow {
    int count = 0;
    int sum = 0;  // of the diameters, mm
};

// What steel and room need to know of a text.
struct BarFacts {
    int steel = 0;  // mm²; 0 for a text that is no bars
    char grade = '\0';
    int thickest = 0;  // mm
    std::vector<int> diameters;
    std::vector<BarRow> rows;  // from the top
};

// Nothing in it for a text that is no bars.
[[nodiscard]] BarFacts BarFactsOf(const std::string& text);
// Enough steel, and room for each row where the width is known.
[[nodiscard]] bool Suits(const BarNeed& need, const BarFacts& bars);

struct NewBars {
    std::string text;
    int steel = 0;  // mm²
};

// Texts of one grade with these diameters: of one in one or two rows, or two with the thicker bars at the
// corners. Those with the least steel too much come first; none with more than half too much. None where
// the width is not known.
[[nodiscard]] std::vector<NewBars> ComposeBars(const BarNeed& need, char grade,
                                               const std::vector<int>& diameters, std::size_t most);

}  // namespace Desk
