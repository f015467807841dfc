// CWnd: an object attached to a window of the layer; base of dialogs and controls.
#pragma once

#include "platform/text/CString.h"
#include "platform/windows/CRect.h"
#include "platform/windows/MessageMap.h"

class CDataExchange;

// A window is a record behind a handle; a CWnd lends it a class. At most one object is attached to
// a window. An object that made its window (Create, CreateFrame) destroys it when it goes; one
// that is bound to a control of a dialog (DDX_Control) lets go of it. When the window is destroyed
// m_hWnd becomes null. Every operation on an object without a window does nothing and answers 0,
// null, FALSE or an empty text.
//
// Objects that nobody attached (from FromHandle, GetDlgItem and their like) are of the window's
// own class and belong to it; keep no pointer to one when its window is gone.
//
// The order of the first four virtual operations is fixed.
class PLATFORM_API CWnd {
public:
    HWND m_hWnd = nullptr;

    CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    // The class's message map; DECLARE_MESSAGE_MAP overrides it.
    virtual const AFX_MSGMAP* GetMessageMap() const;

protected:
    // Exchanges the class's fields with the window's controls by DDX calls. Run by UpdateData.
    virtual void DoDataExchange(CDataExchange* pDX);

public:
    // Sees an event of the window or of a child before its target does; TRUE: the event is
    // finished and goes no further.
    virtual BOOL PreTranslateMessage(MSG* pMsg);

    // Makes a bare top-level window, hidden, at a place on the screen. FALSE, with nothing changed,
    // for an object that has a window already.
    BOOL CreateFrame(const CRect& rect);
    // Destroys the window with its children and the pop-ups whose parent it is. The focus goes
    // where it goes when the window is hidden.
    BOOL DestroyWindow();

    [[nodiscard]] HWND GetSafeHwnd() const { return m_hWnd; }
    // The attached object, or the window's own where none is attached; null for a handle that
    // names no window.
    static CWnd* FromHandle(HWND hWnd);
    [[nodiscard]] CWnd* GetParent() const;
    // The child with this id, first one first; null when there is none.
    [[nodiscard]] CWnd* GetDlgItem(int nID) const;
    [[nodiscard]] int GetDlgCtrlID() const;
    // The first child in template order, labels included, and the next or previous one behind a
    // child; pop-ups are nobody's children. Null at the ends.
    [[nodiscard]] CWnd* GetTopWindow() const;
    [[nodiscard]] CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;

    // Answers whether the window was shown before. Showing a pop-up puts it above the others and
    // gives it the focus: the control that had it last, or else the first that Tab reaches. Hiding
    // a window that holds the focus gives the focus back to its parent.
    BOOL ShowWindow(int nCmdShow);
    // TRUE when the window and, for a control, the pop-up that holds it are shown.
    [[nodiscard]] BOOL IsWindowVisible() const;
    // Answers whether the window was disabled before.
    BOOL EnableWindow(BOOL bEnable = TRUE);
    [[nodiscard]] BOOL IsWindowEnabled() const;

    // Pop-ups and frames: pixels of the screen. Controls: pixels of the parent's client area. A
    // window has no border: its client area is all of it. A position or size beyond 2^28 pixels stays
    // there, a negative size counts as 0.
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(const RECT* lpRect, BOOL bRepaint = TRUE);
    void GetWindowRect(RECT* lpRect) const;  // on the screen
    void GetClientRect(RECT* lpRect) const;  // from 0, 0
    void ScreenToClient(POINT* lpPoint) const;
    void ClientToScreen(POINT* lpPoint) const;

    // Sets a caption or the text of an edit box, whose caret then stands behind the text. Never
    // notifies.
    void SetWindowText(const CString& strText);
    void GetWindowText(CString& rString) const;

    // Gives the focus to an enabled window and answers who had it, which may be null.
    CWnd* SetFocus();
    static CWnd* GetFocus();

    // Message map first, then the window's default handling. Safe where a handler destroys the
    // window or this object.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    // Runs DoDataExchange, TRUE reading the controls into the fields and FALSE the other way.
    // Notifications of this window's controls are dropped meanwhile. Without a window it answers
    // FALSE and changes nothing.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

protected:
    // Default handling, for an override to call; each answers what the window's kind does with the
    // message.
    void OnRButtonDown(UINT nFlags, CPoint point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    static const AFX_MSGMAP* GetThisMessageMap();
};

// TRUE while the handle names a window.
PLATFORM_API BOOL IsWindow(HWND hWnd);
// CWnd::SendMessage by handle; 0 for a handle that names no window.
PLATFORM_API LRESULT SendMessage(HWND hWnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
