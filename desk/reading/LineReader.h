// Reads a plain text as a row of annotations, as a beam's whole annotation line holds them; a text with a
// single annotation is the shortest such row.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "desk/reading/Annotation.h"
#include "desk/reading/Bars.h"
#include "desk/reading/BeamName.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"

namespace Desk {

// What a plain text holds, in the order in which it was found.
struct Line {
    std::optional<BeamName> name;
    std::optional<Section> section;
    std::optional<Elevation> elevation;
    std::optional<Stirrup> stirrup;  // or a wall's spaced bars
    // Where they are in the text.
    Stretch nameAt;
    Stretch sectionAt;
    Stretch elevationAt;
    Stretch stirrupAt;
    bool isCutOff = false;  // the stirrup ends in an open bracket with nothing in it
    std::vector<DrawnBars> bars;
    bool beginsWithBottom = false;  // a ";" at the head of the text: there are no top bars
    std::set<Filled> filled;
    std::string spans;                       // span lengths after the name; empty for none
    std::vector<std::string> notUnderstood;  // stretches that no reader takes, each up to a separator
    std::vector<std::string> repeated;       // annotations of a kind that an earlier one is of

    [[nodiscard]] bool IsEmpty() const
    {
        return !name && !section && !elevation && !stirrup && bars.empty();
    }
};

[[nodiscard]] Line ReadLine(std::string_view plain, const Choices& choices);

}  // namespace Desk
