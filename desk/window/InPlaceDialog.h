// Asks for the role and the number of a new text in place.
#pragma once

#include <optional>

#include "desk/Toolkit.h"
#include "desk/project/Project.h"

namespace Desk {

// Nothing when the person leaves it. Spans is how many the beam has.
[[nodiscard]] std::optional<InPlace> AskInPlace(QWidget& over, int spans);

}  // namespace Desk
