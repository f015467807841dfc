// Answers the module's questions from a project, as a drafting host does.
#pragma once

#include <string>
#include <vector>

#include "RankerModule.h"
#include "desk/project/Project.h"

namespace Desk {

// The bar texts of a beam that a kind text of the bar ranker asks for, empty ones included:
//   "1"    top through bars        "2"    left end bars       "3"   right end bars
//   "4"    erection bars           "5.1"  bottom bars         "5.2" torsion and side bars
//   other  both end bars of a beam whose top through bars are that text, of another beam none
[[nodiscard]] std::vector<const std::string*> BarTexts(const Beam& beam, const CString& kind);

// Registers the six project callbacks for as long as the object lives and empties the slots afterwards.
// Borrows the project. One at a time: a second one throws std::logic_error.
//
// Empty texts are not delivered. Beam names without a type or with no serial above 0 are left out; a
// name without a span suffix delivers the empty suffix.
class ProjectHost {
public:
    explicit ProjectHost(const Project& project);
    ~ProjectHost();
    ProjectHost(const ProjectHost&) = delete;
    ProjectHost& operator=(const ProjectHost&) = delete;
};

}  // namespace Desk
