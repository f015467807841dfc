// WindowRecord: all that is known of one window, for the layer itself and for a display to read.
#pragma once

#include <memory>
#include <vector>

#include "platform/windows/CWnd.h"
#include "platform/windows/DialogTemplate.h"

enum class WindowKind { Frame, PopUp, Label, EditBox, ListBox, Button };

// The rows of a list box. A row's number is its place; -1 stands for none.
struct ListState {
    std::vector<CString> rows;
    int selection = -1;
    int top = 0;           // first row in view
    int columnWidth = 90;  // pixels
    int wheelRest = 0;     // turn of the wheel that was not enough for a row yet
};

struct EditState {
    int caret = 0;            // byte position in the text, never inside a double-byte character
    char pendingLead = '\0';  // first byte of a typed double-byte character that waits for its second
};

struct WindowRecord {
    HWND handle = nullptr;
    WindowKind kind = WindowKind::Frame;
    int id = 0;
    ControlStyle style = ControlStyle::None;
    CRect place;  // frame and pop-up: on the screen; control: in its parent's client area
    CString text;
    bool visible = false;
    bool enabled = true;
    HWND parent = nullptr;                  // of a pop-up: the window it was made for, null for none
    std::vector<HWND> children;             // controls in template order
    std::vector<HWND> popUps;               // pop-ups made for this window
    const DialogTemplate* shape = nullptr;  // of a pop-up
    HWND lastFocus = nullptr;               // frame and pop-up: the child that had the focus last
    int notificationLock = 0;               // above 0 the window hears nothing of its controls
    ListState list;
    EditState edit;
    CWnd* attached = nullptr;
    std::unique_ptr<CWnd> own;  // stands in where no object is attached; made when asked for

    [[nodiscard]] bool IsControl() const { return kind != WindowKind::Frame && kind != WindowKind::PopUp; }
};

// Null for a handle that names no window. Good until the window is destroyed.
[[nodiscard]] PLATFORM_API const WindowRecord* FindWindowRecord(HWND hWnd);
// All windows, each behind its parent.
[[nodiscard]] PLATFORM_API std::vector<HWND> AllWindows();
