// The quantity list of a project in a window of its own, with files of it.
#pragma once

#include "desk/Toolkit.h"
#include "desk/project/Project.h"

namespace Desk {

// Shows the list as the project is now; the window closes by itself with the one that it is over.
void ShowQuantities(const Project& project, QWidget* over);

}  // namespace Desk
