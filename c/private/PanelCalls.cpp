#include "c/private/PanelCalls.h"

#include <algorithm>
#include <array>

#include "c/private/Encoding.h"

namespace RankerC {

namespace {

bool IsMouse(std::int32_t message) { return message >= RK_MOUSE_MOVE && message <= RK_WHEEL; }

bool IsShown(Panel& panel)
{
    const CDialog& dialog = panel.m_face->Dialog();
    return dialog.GetSafeHwnd() != nullptr && dialog.IsWindowVisible() != FALSE;
}

CWnd& TargetOf(Panel& panel, std::int32_t control)
{
    if (control == RK_THE_FOCUS) {
        CWnd* const focus = FocusIn(panel);
        return focus != nullptr ? *focus : panel.m_face->Dialog();
    }
    return control == RK_THE_PANEL ? panel.m_face->Dialog() : NeedControl(panel, control);
}

WPARAM ButtonsOf(std::int32_t message)
{
    switch (message) {
    case RK_LEFT_DOWN:
    case RK_LEFT_DOUBLE: return MK_LBUTTON;
    case RK_RIGHT_DOWN:
    case RK_RIGHT_DOUBLE: return MK_RBUTTON;
    default: return 0;
    }
}

DWORD NextTime()
{
    static DWORD time = 0;
    return time += 10;
}

bool Send(Panel& panel, MSG msg)
{
    if (!IsShown(panel) || ::IsWindow(msg.hwnd) == FALSE) {
        return false;
    }
    msg.time = NextTime();
    if (AfxPreTranslateMessage(&msg) != FALSE) {
        return true;
    }
    DispatchMessage(&msg);
    return false;
}

bool SendMouse(Panel& panel, const CWnd& target, std::int32_t message, CPoint inside, int turn)
{
    constexpr int Farthest = 0x7FFF;  // what half a parameter holds
    if (std::min(inside.x, inside.y) < -Farthest || std::max(inside.x, inside.y) > Farthest) {
        throw Refusal{RK_BAD_ARGUMENT, "the position is too far from the control"};
    }
    CPoint onScreen = inside;
    target.ClientToScreen(&onScreen);
    const WPARAM wParam = message == RK_WHEEL ? MAKEWPARAM(0, turn) : ButtonsOf(message);
    return Send(panel, {target.m_hWnd, static_cast<UINT>(message), wParam, MAKELPARAM(inside.x, inside.y),
                        0, onScreen});
}

// The bytes of a character, as many messages of one byte each.
bool SendCharacter(Panel& panel, HWND target, std::uint32_t character)
{
    const bool bByte = panel.m_context->m_bGbk;
    const unsigned bytes = bByte ? character : GbkOf(static_cast<char32_t>(character));
    if (bytes == 0 || bytes > 0xFFFF || (bByte && bytes > 0xFF)) {
        throw Refusal{RK_BAD_TEXT, "GBK has no character " + std::to_string(character)};
    }
    bool bFinished = false;
    if (bytes > 0xFF) {
        bFinished = Send(panel, {target, WM_CHAR, bytes >> 8, 1, 0, CPoint()});
    }
    return Send(panel, {target, WM_CHAR, bytes & 0xFFU, 1, 0, CPoint()}) || bFinished;
}

}  // namespace

bool FeedEvent(Panel& panel, const rk_event& event)
{
    constexpr LPARAM FirstPress = 1;
    constexpr LPARAM WentUp = 0xC0000001;  // down before, up now, once
    const CWnd& target = TargetOf(panel, event.control);
    if (IsMouse(event.message)) {
        return SendMouse(panel, target, event.message, CPoint(event.x, event.y), event.turn);
    }
    switch (event.message) {
    case RK_CHARACTER: return SendCharacter(panel, target.m_hWnd, event.key);
    case RK_KEY_DOWN: return Send(panel, {target.m_hWnd, WM_KEYDOWN, event.key, FirstPress, 0, CPoint()});
    case RK_KEY_UP: return Send(panel, {target.m_hWnd, WM_KEYUP, event.key, WentUp, 0, CPoint()});
    default: RefuseValue("event->message", event.message);
    }
}

void Click(Panel& panel, std::int32_t control, std::int32_t row, std::int32_t how)
{
    constexpr int Inside = 5;  // pixels from a row's corner
    constexpr std::array<std::int32_t, 4> Double = {RK_LEFT_DOWN, RK_LEFT_UP, RK_LEFT_DOUBLE, RK_LEFT_UP};
    constexpr std::array<std::int32_t, 2> Right = {RK_RIGHT_DOWN, RK_RIGHT_UP};
    if (how < RK_CLICK || how > RK_RIGHT_CLICK) {
        RefuseValue("how", how);
    }
    const CWnd& target = TargetOf(panel, control);
    CRect place;
    target.GetClientRect(&place);
    CPoint point(place.Width() / 2, place.Height() / 2);
    if (row != -1) {
        CListBox& list = NeedListBox(panel, control);
        CRect of;
        list.GetItemRect(NeedIndex("row", row, list.GetCount()), &of);
        if (of.left < 0 || of.top < 0 || of.right > place.right || of.bottom > place.bottom) {
            list.SetTopIndex(row);
            list.GetItemRect(row, &of);
        }
        point = CPoint(of.left + Inside, of.top + Inside);
    }
    if (!IsShown(panel) || target.IsWindowVisible() == FALSE) {
        throw Refusal{RK_NOT_DONE, "the panel or the control is hidden"};
    }
    const HWND window = target.m_hWnd;
    const std::size_t steps = how == RK_DOUBLE_CLICK ? Double.size() : Right.size();
    for (std::size_t step = 0; step < steps && ::IsWindow(window) != FALSE; ++step) {
        const std::int32_t message = how == RK_RIGHT_CLICK ? Right[step] : Double[step];
        SendMouse(panel, *CWnd::FromHandle(window), message, point, 0);
    }
}

}  // namespace RankerC
