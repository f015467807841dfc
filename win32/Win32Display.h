// Win32Display: shows the windows on the screen as pop-ups of the system's own controls.
#pragma once

#include <memory>

#include "platform/windows/Display.h"
#include "win32/Export.h"

// At most one; while it exists it is the process's display. It belongs to the thread that made it, whose
// loop dispatches the system's messages as any program's does; nothing has to be added to the loop. Handles
// of the system pass as void*, since the system's header and the window layer use the same names.
//
// A pop-up is shown at the DPI of its screen: its rectangle times the zoom is where it is on the screen. A
// press elsewhere in the program dismisses it as Esc does while it shows what it opened with; else it
// stays. Enter, the menu key and Shift+F10 stand for the right button.
class WIN32_API Win32Display : public Display {
public:
    // The window (an HWND of the system) that pop-ups and messages stay above; null for none.
    explicit Win32Display(void* owner = nullptr);
    Win32Display(const Win32Display&) = delete;
    Win32Display& operator=(const Win32Display&) = delete;
    ~Win32Display() override;

    // To be called before the program's first window, unless its manifest says so: without it the system
    // enlarges the program's picture on screens of other DPI. False where the system cannot.
    static bool UsePerMonitorDpi();

    // The system's window for a pop-up or control; null for an unknown handle.
    [[nodiscard]] void* NativeOf(HWND hWnd) const;
    // The system's pixels per pixel of a pop-up and of its controls; 1 for an unknown handle.
    [[nodiscard]] double ZoomOf(HWND hWnd) const;

    // Shows a pop-up below a field on the screen, in pixels of the system, or above it where there is no
    // room.
    void OpenBeside(HWND hPopUp, const CRect& field);

    void WindowCreated(const WindowRecord& window) override;
    void WindowChanged(const WindowRecord& window, WindowChange change) override;
    void WindowDestroyed(HWND hWnd) override;
    int ShowMessageBox(const CString& strText) override;

private:
    class Private;
    std::unique_ptr<Private> m_private;
};
