// Where on the screen a step's target is.
#pragma once

#include "desk/console/panel/Picture.h"
#include "desk/console/panel/Step.h"
#include "platform/windows/Hands.h"

namespace Desk::Panels {

// The control that a step names by id or, a button, by its caption.
[[nodiscard]] Control FindControl(const Step& step, HWND hPanel);

// The screen position of a step's target. A list's row is brought into view with the wheel first. Both
// throw Failure with what the panel has instead.
[[nodiscard]] CPoint Aim(const Step& step, HWND hPanel, Hands& hands);

}  // namespace Desk::Panels
