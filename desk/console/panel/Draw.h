// A panel's picture as lines of text.
#pragma once

#include <string>
#include <vector>

#include "desk/console/panel/Picture.h"

namespace Desk::Panels {

// The controls are arranged as in the window, each as wide and high as its text needs:
// ">KL" is a selected row, "[3|  ]" an edit box, "|" its caret, "<BK>" a button, ".." marks a
// list with rows out of view. With ids every control shows its own, a list in a line above it.
[[nodiscard]] std::vector<std::string> Draw(const Picture& picture, bool withIds);

}  // namespace Desk::Panels
