// Hands: a user's mouse and keyboard, which reach the windows through the host loop's events alone.
#pragma once

#include "platform/windows/CListBox.h"
#include "platform/windows/Events.h"

// Positions are screen pixels. A mouse event goes to the window that shows there; a release goes to
// the window that got the press, as toolkits do, so that a drag may end anywhere. A key goes to the
// window with the focus. Nothing reaches a hidden window.
class Hands {
public:
    // One turn of the host's loop; true when the event was finished before its target saw it.
    static bool Send(const MSG& event)
    {
        MSG msg = event;
        const bool bFinished = AfxPreTranslateMessage(&msg) != FALSE;
        if (!bFinished) {
            DispatchMessage(&msg);
        }
        return bFinished;
    }

    bool Press(CPoint point)
    {
        m_pressed = WindowFromPoint(point);
        return Mouse(m_pressed, WM_LBUTTONDOWN, point, MK_LBUTTON);
    }
    bool Release(CPoint point)
    {
        const HWND target = IsWindow(m_pressed) ? m_pressed : WindowFromPoint(point);
        m_pressed = nullptr;
        return Mouse(target, WM_LBUTTONUP, point, 0);
    }
    void Click(CPoint point)
    {
        Press(point);
        Release(point);
    }
    // Press, release, double click, release.
    void DoubleClick(CPoint point)
    {
        Click(point);
        m_pressed = WindowFromPoint(point);
        Mouse(m_pressed, WM_LBUTTONDBLCLK, point, MK_LBUTTON);
        Release(point);
    }
    void Drag(CPoint from, CPoint to)
    {
        Press(from);
        Release(to);
    }
    // True when the press was finished before its target saw it.
    bool RightClick(CPoint point)
    {
        const bool bFinished = Mouse(WindowFromPoint(point), WM_RBUTTONDOWN, point, MK_RBUTTON);
        Mouse(WindowFromPoint(point), WM_RBUTTONUP, point, 0);
        return bFinished;
    }
    // Notches above 0 turn away from the user, towards the first row.
    void Wheel(CPoint point, int notches)
    {
        Mouse(WindowFromPoint(point), WM_MOUSEWHEEL, point, MAKEWPARAM(0, notches * WHEEL_DELTA));
    }

    // Down, the character that belongs to the key, up.
    bool Key(UINT key)
    {
        const bool bFinished = KeyEvent(WM_KEYDOWN, key);
        const bool bCharacter =
            key == VK_BACK || key == VK_TAB || key == VK_RETURN || key == VK_ESCAPE || key == VK_SPACE;
        if (!bFinished && bCharacter) {
            KeyEvent(WM_CHAR, key);
        }
        KeyEvent(WM_KEYUP, key);
        return bFinished;
    }
    void ShiftTab()
    {
        KeyEvent(WM_KEYDOWN, VK_SHIFT);
        Key(VK_TAB);
        KeyEvent(WM_KEYUP, VK_SHIFT);
    }
    // Each byte of a GBK text as one typed character.
    void Type(const CString& text)
    {
        for (const char byte : text.View()) {
            KeyEvent(WM_CHAR, static_cast<unsigned char>(byte));
        }
    }

    static CPoint MiddleOf(const CWnd& window)
    {
        CRect rect;
        window.GetWindowRect(&rect);
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }
    // A place on a row; the row shows it only when it is in view.
    static CPoint OnRow(const CListBox& list, int row)
    {
        CRect rect;
        list.GetItemRect(row, &rect);
        CPoint point(rect.left + 5, rect.top + 5);
        list.ClientToScreen(&point);
        return point;
    }

    // What a person does with a control of a panel, named by its id.
    void Click(const CWnd& panel, int id) { Click(MiddleOf(*panel.GetDlgItem(id))); }
    void ClickRow(const CWnd& panel, int id, int row)
    {
        BringIntoView(panel, id, row);
        Click(OnRow(ListOf(panel, id), row));
    }
    void DoubleClickRow(const CWnd& panel, int id, int row)
    {
        BringIntoView(panel, id, row);
        DoubleClick(OnRow(ListOf(panel, id), row));
    }
    bool RightClick(const CWnd& panel, int id) { return RightClick(MiddleOf(*panel.GetDlgItem(id))); }
    // Goes behind the text of an edit box and types.
    void TypeInto(const CWnd& panel, int id, const CString& text)
    {
        Click(panel, id);
        Key(VK_END);
        Type(text);
    }
    // Takes an edit box's text away from its end by Backspace, then types.
    void Retype(const CWnd& panel, int id, const CString& text)
    {
        CString old;
        panel.GetDlgItem(id)->GetWindowText(old);
        TypeInto(panel, id, CString());
        for (int left = old.GetLength(); left > 0; --left) {
            Key(VK_BACK);
        }
        Type(text);
    }

private:
    static CListBox& ListOf(const CWnd& panel, int id)
    {
        return dynamic_cast<CListBox&>(*panel.GetDlgItem(id));
    }

    // Turns the wheel until the row shows whole, at most as often as there are rows.
    void BringIntoView(const CWnd& panel, int id, int row)
    {
        const CListBox& list = ListOf(panel, id);
        CRect client;
        list.GetClientRect(&client);
        for (int turns = list.GetCount(); turns > 0; --turns) {
            CRect rect;
            list.GetItemRect(row, &rect);
            if (rect.left >= client.left && rect.top >= client.top && rect.right <= client.right &&
                rect.bottom <= client.bottom) {
                return;
            }
            Wheel(MiddleOf(list), rect.left < client.left || rect.top < client.top ? 1 : -1);
        }
    }

    bool Mouse(HWND target, UINT message, CPoint point, WPARAM wParam)
    {
        if (!IsWindow(target)) {
            return false;
        }
        CPoint inside = point;
        CWnd::FromHandle(target)->ScreenToClient(&inside);
        return Send({target, message, wParam, MAKELPARAM(inside.x, inside.y), m_time += 10, point});
    }
    bool KeyEvent(UINT message, WPARAM key)
    {
        const CWnd* const focus = CWnd::GetFocus();
        if (focus == nullptr || !focus->IsWindowVisible()) {
            return false;
        }
        return Send(
            {focus->m_hWnd, message, key, message == WM_KEYUP ? KeyWentUp : 1, m_time += 10, CPoint()});
    }

    static constexpr LPARAM KeyWentUp = 0xC0000001;  // down before, now up, once

    HWND m_pressed = nullptr;
    DWORD m_time = 0;
};
