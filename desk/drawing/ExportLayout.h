// Where the lines and texts of an exported drawing lie.
#pragma once

#include <optional>
#include <vector>

#include "desk/project/Backdrop.h"
#include "desk/project/Project.h"

namespace Desk {

struct BeamOnPlan {
    bool isUp = false;               // nearer to the y direction than to the x direction
    std::vector<PlanLine> outline;   // broken at the supports
    std::optional<PlanLine> leader;  // from the label to the beam's axis; none without a name
    std::vector<PlanText> label;     // one a line, grade letters as drawings write them
    std::vector<PlanText> inPlace;   // likewise
};

// Parallel to the project's beams.
[[nodiscard]] std::vector<BeamOnPlan> LayOutBeams(const Project& project);

}  // namespace Desk
