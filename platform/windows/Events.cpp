// The host loop's two steps, and which window a mouse event belongs to.
#include "platform/windows/Events.h"

#include "platform/windows/private/WindowLayer.h"

namespace {

using namespace WindowLayer;

bool IsMouse(UINT message) { return message >= WM_MOUSEMOVE && message <= WM_MOUSEWHEEL; }

bool IsInput(UINT message) { return IsMouse(message) || (message >= WM_KEYDOWN && message <= WM_CHAR); }

void NoteShift(const MSG& msg)
{
    if (msg.wParam == VK_SHIFT && (msg.message == WM_KEYDOWN || msg.message == WM_KEYUP)) {
        State().shiftDown = msg.message == WM_KEYDOWN;
    }
}

// A control that takes no input leaves the event to its parent, whose client area begins elsewhere.
void PassThrough(MSG& msg)
{
    const Window* window = Find(msg.hwnd);
    while (window != nullptr && window->IsControl() &&
           (!window->enabled || window->kind == WindowKind::Label)) {
        if (IsMouse(msg.message)) {
            msg.lParam = MAKELPARAM(GET_X_LPARAM(msg.lParam) + window->place.left,
                                    GET_Y_LPARAM(msg.lParam) + window->place.top);
        }
        msg.hwnd = window->parent;
        window = Find(msg.hwnd);
    }
}

}  // namespace

BOOL AfxPreTranslateMessage(MSG* pMsg)
{
    NoteShift(*pMsg);
    const InCall inCall;
    HWND hWnd = pMsg->hwnd;
    while (const Window* const window = Find(hWnd)) {
        const HWND next = window->IsControl() ? window->parent : nullptr;
        if (window->attached != nullptr && window->attached->PreTranslateMessage(pMsg)) {
            return TRUE;
        }
        hWnd = next;
    }
    return FALSE;
}

LRESULT DispatchMessage(const MSG* pMsg)
{
    MSG msg = *pMsg;
    if (!IsInput(msg.message)) {
        return Call(msg.hwnd, msg.message, msg.wParam, msg.lParam);
    }
    NoteShift(msg);
    PassThrough(msg);
    const Window* const window = Find(msg.hwnd);
    if (window == nullptr || !TakesInput(*window)) {
        return 0;
    }
    const HWND pressed = State().pressedButton;
    if (msg.message == WM_LBUTTONDOWN || (msg.message == WM_LBUTTONUP && pressed != msg.hwnd)) {
        State().pressedButton = nullptr;
    }
    return Call(msg.hwnd, msg.message, msg.wParam, msg.lParam);
}

HWND WindowFromPoint(CPoint point)
{
    const std::vector<HWND>& order = State().windows.Order();
    for (std::size_t above = order.size(); above-- > 0;) {
        const Window& holder = *Find(order[above]);
        if (!holder.visible || !holder.place.PtInRect(point)) {
            continue;
        }
        if (!holder.enabled) {
            return nullptr;
        }
        const CPoint inside(point.x - holder.place.left, point.y - holder.place.top);
        for (const HWND child : holder.children) {
            const Window& control = *Find(child);
            if (control.visible && TakesInput(control) && control.place.PtInRect(inside)) {
                return child;
            }
        }
        return holder.handle;
    }
    return nullptr;
}
