// Answers the module's questions from a project, as a drafting host does.
#pragma once

#include "desk/project/Project.h"

namespace Desk {

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
