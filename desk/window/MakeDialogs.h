// Small dialogs that ask what a new project is made of.
#pragma once

#include <optional>

#include "desk/Toolkit.h"
#include "desk/project/Project.h"
#include "desk/reading/Annotation.h"

namespace Desk {

// Each gives nothing when the person leaves it.

// A floor with a title and axes by their distances.
[[nodiscard]] std::optional<Project> AskNewFloor(QWidget& over);
// Grade and legs for texts that tell none.
[[nodiscard]] std::optional<Choices> AskChoices(QWidget& over);

}  // namespace Desk
