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

// Where the pointer goes. A bare place is the panel's own surface, outside every control.
struct Place {
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
    Place place;
    CPoint distance;  // of a drag
    int number = 1;   // kind, notches of the wheel, times of a key
    UINT key = 0;
    bool shift = false;
    CString text;  // to type or to set
};

// Steps stand one a line or with ";" between them; a line that begins with "#" is a remark. A word
// with a blank or ";" in it is put in quotes of either kind. A file name gives the steps the origin
// "FILE:LINE". Throws Failure that tells step, fault and right form.
[[nodiscard]] std::vector<Step> ReadSteps(std::string_view text, const std::string& file = {});

// "step 3 "click 552 KM": " and what is wrong.
[[noreturn]] void ThrowAt(const Step& step, const std::string& what);

// The forms of all steps with a word about each, for the help.
[[nodiscard]] std::string StepHelp();

}  // namespace Desk::Panels
