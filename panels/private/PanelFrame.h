// What the pop-up panels repeat: dragging, the way of an event, delivering the confirmed text. Free
// functions, since the panels have no common base class of their own.
#pragma once

#include "platform/text/CString.h"
#include "platform/windows/CDialog.h"

class CPropertyGridItem;

namespace PanelFrame {

// The drag of a panel without a title bar: the window jumps at the release by as much as the pointer
// went since the last press. Offered each event. A press goes into the panel's m_nDownX and m_nDownY, a
// release calls its TestMoveWnd; a release before any press moves nothing, since there is no position to
// go from. Positions are pixels of the screen.
template <class Panel>
void Follow(Panel& panel, bool& bPressed, const MSG& msg)
{
    if (msg.message == WM_LBUTTONDOWN) {
        panel.m_nDownX = msg.pt.x;
        panel.m_nDownY = msg.pt.y;
        bPressed = true;
    } else if (msg.message == WM_LBUTTONUP && bPressed) {
        panel.TestMoveWnd(msg.pt);
    }
}

// Moves a pop-up by the way between two positions on the screen; its size stays.
void Move(CWnd& panel, CPoint from, CPoint to);

// True for a right press that normal dispatch brings to the panel: on its bare surface, a label or a
// disabled control.
[[nodiscard]] bool IsOwnRightPress(const MSG& msg, HWND hPanel);

// An event's way through a panel, whose handle was taken before anything was done with the event: Esc hides
// it, a right press confirms it. FALSE when the window has gone, with the drag or the confirmation. A press
// that dispatch would bring to the panel once more ends here, whether it was so from the start or the
// receiver of the text disabled the control that was pressed.
template <class Confirm>
BOOL Translate(CDialog& panel, HWND hWnd, MSG* pMsg, Confirm confirm)
{
    if (!IsWindow(hWnd)) {
        return FALSE;
    }
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE) {
        panel.ShowWindow(SW_HIDE);
        return TRUE;
    }
    const bool bOwnPress = IsOwnRightPress(*pMsg, hWnd);
    if (pMsg->message == WM_RBUTTONDOWN) {
        confirm();
    }
    if (!IsWindow(hWnd)) {
        return FALSE;
    }
    return bOwnPress || IsOwnRightPress(*pMsg, hWnd) ? TRUE : panel.CDialog::PreTranslateMessage(pMsg);
}

// A right press that the panel's own window gets, whatever control it was on; other events do nothing.
void ForwardRightPress(CWnd& panel, const MSG& msg);

// Where a panel's confirmed text goes and what is said of it.
struct Route {
    bool toItem = true;
    CPropertyGridItem* item = nullptr;
    bool inParent = true;      // counts when it does not go to the item
    void* hostData = nullptr;  // receives when the panel does not live in a parent window
    int hostMode = 0;          // the mode that goes with hostData; a parent gets mode 1
    int code = 0;
};

// Calls SetValue of the item, or else the mouse-input callback with the panel's parent window or the
// host data. Without item or callback nothing is delivered. Whoever gets the text may destroy the
// panel's window or the panel: remember the window's handle and ask IsWindow before touching either.
void Deliver(const CWnd& panel, const Route& route, CString strText);

// The confirmation: hides the panel and lets it deliver. True when the press goes on to the default
// handling: deliver() answers TRUE and the window is still there.
template <class DeliverTexts>
[[nodiscard]] bool Confirm(CWnd& panel, DeliverTexts deliver)
{
    const HWND hWnd = panel.m_hWnd;
    panel.ShowWindow(SW_HIDE);
    return deliver() && IsWindow(hWnd);
}

}  // namespace PanelFrame
