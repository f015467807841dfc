// What the files that know the system's header share.
#pragma once

#include "win32/Native.h"

#include <windows.h>

namespace Native {

[[nodiscard]] inline HWND WindowOf(Handle window) { return static_cast<HWND>(window); }

// Tells the listener of the window's messages, until the window goes.
void Listen(HWND window, bool isPopUp, Listener& listener);

}  // namespace Native
