// What the sources of the window layer share: finding windows, changing them, calling them.
#pragma once

#include <optional>

#include "platform/windows/private/LayerState.h"

// Whatever may run a handler or the display may destroy windows: nothing here keeps a record over
// such a call, only its handle.
namespace WindowLayer {

[[nodiscard]] LayerState& State();
// Null for a handle that names no window.
[[nodiscard]] Window* Find(HWND hWnd);
// The attached object, or the window's own, made when there is none yet.
[[nodiscard]] CWnd* ObjectOf(Window& window);
// The first child with an id, null when there is none.
[[nodiscard]] Window* ChildWithId(HWND hWnd, int nID);
// The pop-up or frame that holds a control; any other window itself. Null for no window.
[[nodiscard]] Window* HolderOf(HWND hWnd);
// The rectangle that a window gets for the one asked for: corner and size within the farthest pixel.
[[nodiscard]] CRect PlaceOf(int x, int y, std::int64_t nWidth, std::int64_t nHeight);
[[nodiscard]] CRect PlaceOf(const RECT& rect);
// Where the client area begins on the screen.
[[nodiscard]] CPoint ClientOrigin(const Window& window);
// Shown together with the window that holds it.
[[nodiscard]] bool IsShown(const Window& window);
// Enabled together with the window that holds it, and no label.
[[nodiscard]] bool TakesInput(const Window& window);

// Tells the display, if there is one, of a change.
void Tell(HWND hWnd, WindowChange change);
void TellCreated(HWND hWnd);

// Sets the caret and forgets a half typed character.
void SetCaret(Window& box, int nCaret);
// Sets a window's text by program.
void PutText(Window& window, const CString& strText);
void Destroy(HWND hWnd);
// Lets the objects of former windows go, unless a call into a window runs.
void DropRetired();

// Gives the focus to a window that takes input; anything else changes nothing.
void GiveFocus(HWND hWnd);
// Gives a pop-up or frame the focus in the place where it was last, or else where Tab starts.
void EnterFocus(HWND hHolder);
// Gives the focus to the parent of a window that had it, or to none when that is not shown.
void ReturnFocus(HWND hParent);
// The same when the focus is in a window or in its children; otherwise it stays.
void LeaveFocus(HWND hWnd);
// Moves the focus to the next control of a holder that takes input, from the one that has it.
void StepFocus(HWND hHolder, HWND hFrom, bool bBackwards);

// Message map of the attached object first, then the default handling.
LRESULT Call(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
// What the window's kind does with a message; keys without a use go to the parent.
LRESULT CallDefault(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
// Sends a notification code to a control's parent.
void NotifyParent(HWND hControl, UINT nCode);

// Default handling by kind; nothing where the control has no use for the message.
std::optional<LRESULT> ListBoxDefault(HWND hList, UINT message, WPARAM wParam, LPARAM lParam);
std::optional<LRESULT> EditBoxDefault(HWND hEdit, UINT message, WPARAM wParam, LPARAM lParam);
std::optional<LRESULT> ButtonDefault(HWND hButton, UINT message, WPARAM wParam, LPARAM lParam);

// Marks that a call into a window runs.
class InCall {
public:
    InCall() { ++State().callDepth; }
    InCall(const InCall&) = delete;
    InCall& operator=(const InCall&) = delete;
    ~InCall() { --State().callDepth; }
};

// Shuts a window's ears to its controls for a scope; the window may be gone at its end.
class NotificationLock {
public:
    explicit NotificationLock(HWND hWnd) : m_hWnd(hWnd) { Change(1); }
    NotificationLock(const NotificationLock&) = delete;
    NotificationLock& operator=(const NotificationLock&) = delete;
    ~NotificationLock() { Change(-1); }

private:
    void Change(int step) const
    {
        if (Window* const window = Find(m_hWnd)) {
            window->notificationLock += step;
        }
    }

    HWND m_hWnd;
};

}  // namespace WindowLayer
