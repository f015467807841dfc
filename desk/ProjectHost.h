// Answers the module's questions from a project, as a drafting host does.
#pragma once

#include "desk/Project.h"

namespace Desk {

// Registers the six project callbacks for as long as the object lives and empties the slots afterwards.
// Borrows the project. One at a time.
class ProjectHost {
public:
    explicit ProjectHost(const Project& project);
    ~ProjectHost();
    ProjectHost(const ProjectHost&) = delete;
    ProjectHost& operator=(const ProjectHost&) = delete;
};

}  // namespace Desk
