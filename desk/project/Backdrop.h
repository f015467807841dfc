// What a drawing shows beside the annotations: its lines, and its other texts. Positions in mm on the plan.
#pragma once

#include <string>
#include <vector>

#include "desk/project/Project.h"

namespace Desk {

struct PlanLine {
    PlanPoint from;
    PlanPoint to;
};

// A text in UTF-8; a line end parts the lines of a longer one.
struct PlanText {
    std::string text;
    TextPlace place;
};

struct Backdrop {
    std::vector<PlanLine> lines;
    std::vector<PlanText> texts;
};

}  // namespace Desk
