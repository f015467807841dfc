// A panel's picture as lines of text.
#pragma once

#include <string>
#include <vector>

#include "desk/console/panel/Picture.h"

namespace Desk::Panels {

// The controls stand to each other as in the window, each as wide and high as its text needs:
// ">KL" is a selected row, "[3|  ]" an edit box, "|" its caret, "<BK>" a button, ".." tells that a
// list has more rows than show. With ids every control carries its own, a list in a line above it.
[[nodiscard]] std::vector<std::string> Draw(const Picture& picture, bool withIds);

}  // namespace Desk::Panels
