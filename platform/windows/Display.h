// Display: what a desktop shell implements to show the windows on a screen.
#pragma once

#include "platform/windows/WindowRecord.h"

enum class WindowChange { Place, Text, Caret, Rows, Selection, Scroll, Visible, Enabled, Focus, Order };

// Without a display every window works all the same, in memory. The display reads the records and
// never writes them; what the user does comes back by the doors of UserInput.h and as events, see
// Events.h. All calls come on the user-interface thread. A display that answers a call by a door
// or an event of its own finds the records up to date.
class PLATFORM_API Display {
public:
    virtual ~Display() = default;

    // A window has been made, hidden; a pop-up is told before its controls.
    virtual void WindowCreated(const WindowRecord& window) = 0;
    // Something of a window is not as it was. Focus is told of the window that has it now; when
    // none has, of the one that had it.
    virtual void WindowChanged(const WindowRecord& window, WindowChange change) = 0;
    // The handle names no window any more. Controls are told before the window that held them.
    virtual void WindowDestroyed(HWND hWnd) = 0;
    // Shows a text with an OK button until the user has answered; answers IDOK.
    virtual int ShowMessageBox(const CString& strText) = 0;
};

// One display a process, none at first; null takes it away. A new display is told of the windows
// that exist. The caller stays the owner.
PLATFORM_API void SetDisplay(Display* pDisplay);
[[nodiscard]] PLATFORM_API Display* GetDisplay();
