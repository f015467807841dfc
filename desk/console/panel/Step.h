// The steps by which a panel is driven: what they are, and reading them from text.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "RankerModule.h"

namespace Desk::Panels {

enum class Verb {
    Click,
    Double,
    Press,
    Release,
    Drag,
    Right,
    Wheel,
    Type,
    Clear,
    Key,
    Text,
    Kind,
    Show,
    Hide
};

// Where the pointer goes. A bare target is the panel's own surface, outside every control.
struct Target {
    std::string control;           // id or caption, empty for none
    std::optional<CPoint> point;   // pixels of the panel's client area
    std::optional<int> rowNumber;  // of a list, from 0
    std::optional<std::string> rowText;

    [[nodiscard]] bool IsBare() const { return control.empty() && !point; }
};

struct Step {
    Verb verb = Verb::Show;
    std::string origin;  // "step 3", or "FILE:7" in a script
    std::string source;  // as it was written, without the blanks around it
    Target target;
    CPoint distance;  // of a drag
    int number = 1;   // kind, notches of the wheel, times of a key
    UINT key = 0;
    bool shift = false;
    CString text;  // to type or to set
};

// Steps are separated by ";" or line ends; a line that begins with "#" is a comment. A word that contains
// a blank or ";" needs quotes of either kind. A file name gives the steps the origin "FILE:LINE". Throws
// Failure with the step, what is wrong and the right form.
[[nodiscard]] std::vector<Step> ReadSteps(std::string_view text, const std::string& file = {});

// "step 3: click 552 KM: " and what is wrong.
[[noreturn]] void ThrowAt(const Step& step, const std::string& what);

// The forms of all steps with a short description of each, for the help.
[[nodiscard]] std::string StepHelp();

}  // namespace Desk::Panels
