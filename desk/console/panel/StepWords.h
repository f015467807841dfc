// Steps as they are written, cut into words.
#pragma once

#include "desk/console/panel/Step.h"

namespace Desk::Panels {

struct Word {
    std::string text;
    bool quoted = false;
};

struct Line {
    Step step;  // with origin and source alone
    std::vector<Word> words;
};

// Throws Failure for a quote that is not closed, or closed in the middle of a word.
[[nodiscard]] std::vector<Line> CutSteps(std::string_view text, const std::string& file);

}  // namespace Desk::Panels
