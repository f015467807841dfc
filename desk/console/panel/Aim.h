// Where on the screen a step's place is.
#pragma once

#include "desk/console/panel/Hand.h"
#include "desk/console/panel/Step.h"

namespace Desk::Panels {

// The control that a step names by id or, a button, by its caption.
[[nodiscard]] const WindowRecord& FindControl(const Step& step, HWND hPanel);

// The screen position of a step's place. A list's row is brought into view with the wheel first. All
// throw Failure for what the panel does not have, and say what it has.
[[nodiscard]] CPoint Aim(const Step& step, HWND hPanel, Hand& hand);

[[nodiscard]] CPoint MiddleOf(const WindowRecord& control);

}  // namespace Desk::Panels
