// Reads the longitudinal bars of one place of a beam from a drawing's text.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "desk/reading/Annotation.h"
#include "desk/reading/Cursor.h"

namespace Desk::Import {

enum class BarPlace { Open, Top, Bottom, Side, Torsion };

// A stretch of bar terms joined by "+" and "/".
struct BarGroup {
    BarPlace place = BarPlace::Open;
    std::string text;        // in the module's grammar; empty for erection bars alone
    std::string erection;    // what stood in brackets behind a "+"
    bool endsShort = false;  // some bars stop before the supports, which only bottom bars do
    std::string leftOut;     // stretches without a place in the grammar, separated by blanks
    std::set<Filled> filled;
};

// Takes a group such as "G4C12", "T3C18", "2C22+(4C12)" or "6C25(2/4)" and moves behind it.
[[nodiscard]] std::optional<BarGroup> ReadBarGroup(Cursor& at, const Choices& choices);

// Puts the grade sign back into terms that lost it, where only one way of cutting the digits gives a
// diameter that bars have: "325+(112);625" is 3 of 25, 1 of 12 and 6 of 25. The whole text must be such
// terms, two at least; the result has OpenGrade signs.
[[nodiscard]] std::optional<std::string> WithLostGrades(std::string_view plain);

}  // namespace Desk::Import
