// Reads a plain text as a row of annotations, as a beam's whole annotation line holds them; a text with a
// single annotation is the shortest such row.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/reading/Annotation.h"
#include "desk/reading/Cursor.h"
#include "desk/reading/ReadBars.h"
#include "desk/reading/ReadFields.h"

namespace Desk::Import {

// What stands in a plain text, in the order in which it was found.
struct Line {
    std::optional<ReadField> name;
    std::optional<ReadField> section;
    std::optional<ReadField> elevation;
    std::optional<SpacedBars> spaced;
    std::vector<BarGroup> groups;
    std::string spans;  // span lengths behind the name; empty for none
    std::vector<std::string>
        notUnderstood;                  // stretches that no reader takes, each up to a blank or separator
    std::vector<std::string> repeated;  // annotations for which an earlier one holds the place

    [[nodiscard]] bool IsEmpty() const
    {
        return !name && !section && !elevation && !spaced && groups.empty();
    }
};

[[nodiscard]] Line ReadLine(std::string_view plain, const Choices& choices);

}  // namespace Desk::Import
