// Key codes of the toolkit as the window layer numbers them.
#pragma once

#include "desk/Toolkit.h"
#include "platform/windows/Messages.h"

namespace Desk {

// 0 for a key that the window layer has no number for.
[[nodiscard]] UINT KeyCode(const QKeyEvent& key);

// A line edit has a use of its own for the key: letters, caret, deletion, clipboard.
[[nodiscard]] bool IsForLineEdit(const QKeyEvent& key);

// What stands for the right button where there is no mouse: the menu key, Shift+F10, Ctrl+Enter.
[[nodiscard]] bool IsRightPress(const QKeyEvent& key);

}  // namespace Desk
