// What the ranking is worth on a project: each annotation is hidden in turn and looked for in the list that
// its ranker makes of the rest.
#pragma once

#include <string>
#include <vector>

#include "desk/project/Project.h"
#include "desk/ranking/Tally.h"

namespace Desk::Hitrate {

struct KindTally {
    std::string kind;
    Tally ranker;
    Tally alphabetical;
    Tally frequency;
};

// One entry a kind, names first; a kind that the project does not use has no uses.
//
// Names are replayed in project order: each is looked for in what the ranker proposes, and the simple
// orders hold, given the names before it. All other texts, those in place too, are hidden one use at a
// time, with the beam's own parameters, and the simple orders sort what the ranker gets from the project:
// end bars those of beams with the same top through bars, torsion and side bars as one. Head characters
// "G", "N" and "*" of bars do not count, since the ranker cuts them. The row of blanks at the head of the
// elevations is no candidate and takes no place.
//
// Registers a project host while it runs, so none may live.
[[nodiscard]] std::vector<KindTally> ReplayProject(Project project);

}  // namespace Desk::Hitrate
