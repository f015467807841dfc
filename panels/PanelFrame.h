// What the pop-up panels repeat: dragging, recognising an event, delivering the confirmed text. Free
// functions and a small value, since the panels have no common base class of their own.
#pragma once

#include "platform/text/CString.h"
#include "platform/windows/CWnd.h"

class CPropertyGridItem;

namespace PanelFrame {

// The drag of a panel without a title bar: the window jumps at the release by as much as the pointer
// went since the last press. Positions are pixels of the screen.
class Drag {
public:
    // Offered each event. A press goes into the panel's m_nDownX and m_nDownY, a release calls its
    // TestMoveWnd; a release before any press moves nothing, since there is no place to go from.
    template <class Panel>
    void Follow(Panel& panel, const MSG& msg)
    {
        if (msg.message == WM_LBUTTONDOWN) {
            panel.m_nDownX = msg.pt.x;
            panel.m_nDownY = msg.pt.y;
            m_bPressed = true;
        } else if (msg.message == WM_LBUTTONUP && m_bPressed) {
            panel.TestMoveWnd(msg.pt);
        }
    }

private:
    bool m_bPressed = false;
};

// Moves a pop-up on the screen; its size stays.
void MoveBy(CWnd& panel, int x, int y);

[[nodiscard]] bool IsEsc(const MSG& msg);

// True for a right press that normal dispatch brings to the panel: on its bare surface, a label or a
// disabled control. A panel that confirmed on it answers TRUE, or else the text would go out twice.
[[nodiscard]] bool IsOwnRightPress(const MSG& msg, HWND hWnd);

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

}  // namespace PanelFrame
