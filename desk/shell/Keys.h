// Key codes of the toolkit as the window layer numbers them.
#pragma once

#include "desk/Toolkit.h"
#include "platform/windows/Messages.h"

namespace Desk {

// 0 for a key without a code in the window layer.
[[nodiscard]] UINT KeyCode(const QKeyEvent& key);

// A line edit handles the key itself: letters, caret, deletion, clipboard.
[[nodiscard]] bool IsForLineEdit(const QKeyEvent& key);

// The keys that replace the right button: Enter, Ctrl+Enter, the menu key, Shift+F10.
[[nodiscard]] bool IsRightPress(const QKeyEvent& key);

}  // namespace Desk
