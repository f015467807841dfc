// LayerState: the windows of the process and what holds for all of them.
#pragma once

#include "platform/windows/Display.h"
#include "platform/windows/private/WindowTable.h"

class CWinApp;

struct LayerState {
    CWinApp* application = nullptr;  // the first one made, while it is alive
    WindowTable windows;
    HWND focus = nullptr;
    HWND pressedButton = nullptr;  // under the left button since its press
    bool shiftDown = false;
    int (*messageBox)(const CString&) = nullptr;
    Display* display = nullptr;

    // Objects of windows that are gone. They stay while a call into a window runs, since the caller
    // may still hold one, and until the next window is made.
    std::vector<std::unique_ptr<CWnd>> retired;
    int callDepth = 0;
};
