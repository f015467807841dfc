// Hands: a user's mouse and keyboard, which reach the windows through the events of the host's loop alone.
#pragma once

#include "platform/windows/CListBox.h"
#include "platform/windows/Events.h"

// Positions are pixels of the screen. A mouse event goes to the window that shows there, a release to the
// window that got the press, as toolkits do, so that a drag may end anywhere. A key goes to the window
// with the focus. Nothing reaches a hidden window.
class PLATFORM_API Hands {
public:
    Hands() = default;
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;
    virtual ~Hands() = default;

    // One turn of the host's loop; true when the event was finished before its target saw it.
    static bool Send(const MSG& event);

    // The same answer for the press.
    bool Press(CPoint point);
    bool Release(CPoint point);
    void Click(CPoint point);
    // Press, release, double click, release.
    void DoubleClick(CPoint point);
    void Drag(CPoint from, CPoint to);
    // The same answer for the press.
    bool RightClick(CPoint point);
    // Notches above 0 turn away from the user, towards the first row.
    void Wheel(CPoint point, int notches);

    // Down, the character that belongs to the key unless the press was finished by then, up; answers for
    // the press.
    bool Key(UINT key, bool bShift = false);
    // Each byte of a GBK text as one typed character.
    void Type(const CString& text);

    [[nodiscard]] static CPoint MiddleOf(const CWnd& window);
    // A position on a row, which shows the row only when it is in view.
    [[nodiscard]] static CPoint OnRow(const CListBox& list, int row);
    // The same after turning the wheel until the row shows whole, at most as often as there are rows.
    [[nodiscard]] CPoint ReachRow(const CListBox& list, int row);

    // Clicks into an edit box, goes to the end of its text and types.
    void TypeInto(const CWnd& box, const CString& text);
    // Takes an edit box's text away from its end by Backspace.
    void Clear(const CWnd& box);

    // What a person does with a control of a panel, named by its id.
    void Click(const CWnd& panel, int id);
    void ClickRow(const CWnd& panel, int id, int row);
    void DoubleClickRow(const CWnd& panel, int id, int row);
    bool RightClick(const CWnd& panel, int id);
    void TypeInto(const CWnd& panel, int id, const CString& text);
    // Clear, then type.
    void Retype(const CWnd& panel, int id, const CString& text);

protected:
    // Every event passes here on its way to the loop, so that a derived class can write it down.
    virtual bool Feed(const MSG& event);

private:
    bool Mouse(HWND target, UINT message, CPoint point, WPARAM wParam);
    bool KeyEvent(UINT message, WPARAM key);

    HWND m_pressed = nullptr;
    DWORD m_time = 0;
};
