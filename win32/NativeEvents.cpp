// Messages of the system, told to the listener before a window handles them.
#include "win32/NativeEvents.h"

#include <commctrl.h>
#include <windowsx.h>

namespace Native {

namespace {

Listener& ListenerOf(DWORD_PTR data) { return *reinterpret_cast<Listener*>(data); }

bool IsHeld(int key) { return GetKeyState(key) < 0; }

Event EventOf(UINT message, WPARAM wParam, LPARAM lParam)
{
    Event event;
    event.message = message;
    event.wParam = wParam;
    event.lParam = lParam;
    event.time = static_cast<std::uint32_t>(GetMessageTime());
    event.shift = IsHeld(VK_SHIFT);
    return event;
}

bool TellMouse(Listener& listener, HWND window, Event event, POINT onScreen)
{
    RECT area;
    GetWindowRect(window, &area);
    event.x = onScreen.x - area.left;
    event.y = onScreen.y - area.top;
    return listener.OnMouse(window, event);
}

// The release goes to the window that got the press, also when it hides in between: nothing below shall
// take it for its own.
void HoldMouse(HWND window, UINT message)
{
    const bool left = message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK;
    const bool right = message == WM_RBUTTONDOWN || message == WM_RBUTTONDBLCLK;
    if (((left && IsHeld(VK_LBUTTON)) || (right && IsHeld(VK_RBUTTON))) && IsWindow(window)) {
        SetCapture(window);
    } else if ((message == WM_LBUTTONUP || message == WM_RBUTTONUP) && GetCapture() == window) {
        ReleaseCapture();
    }
}

// The wheel belongs to what is under the pointer, while the system hands it to what has the keyboard.
bool TellWheel(Listener& listener, HWND window, const Event& event)
{
    const POINT at{GET_X_LPARAM(event.lParam), GET_Y_LPARAM(event.lParam)};
    HWND under = WindowFromPoint(at);
    const bool ours = under != nullptr && GetAncestor(under, GA_ROOT) == GetAncestor(window, GA_ROOT);
    return TellMouse(listener, ours ? under : window, event, at);
}

bool TellInput(Listener& listener, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Event event = EventOf(message, wParam, lParam);
    switch (message) {
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
    case WM_SYSKEYDOWN: return listener.OnKey(window, event);
    case WM_MOUSEWHEEL: return TellWheel(listener, window, event);
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK: {
        POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        ClientToScreen(window, &at);
        const bool taken = TellMouse(listener, window, event, at);
        if (taken) {
            HoldMouse(window, message);
        }
        return taken;
    }
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_CONTEXTMENU: return true;
    default: return false;
    }
}

// After these an edit box may have another text or caret. Text composed by an input method counts when the
// method has done with it.
bool MayEdit(HWND box, UINT message)
{
    constexpr wchar_t Composing[] = L"RankerComposing";
    switch (message) {
    case WM_IME_STARTCOMPOSITION: SetPropW(box, Composing, box); return false;
    case WM_IME_ENDCOMPOSITION: RemovePropW(box, Composing); return true;
    case WM_NCDESTROY: RemovePropW(box, Composing); return false;
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE:
    case WM_SETTEXT:
    case WM_PASTE:
    case WM_CUT:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case EM_REPLACESEL: return GetPropW(box, Composing) == nullptr;
    default: return false;
    }
}

LRESULT CALLBACK ControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                             DWORD_PTR data)
{
    Listener& listener = ListenerOf(data);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, &ControlProc, id);
    } else if (TellInput(listener, window, message, wParam, lParam)) {
        return 0;
    }
    LRESULT result = DefSubclassProc(window, message, wParam, lParam);
    if (message == WM_GETDLGCODE) {
        result |= DLGC_WANTALLKEYS;  // where the host's loop treats its windows as dialogs
    } else if (message == WM_NCHITTEST && result == HTBORDER) {
        result = HTCLIENT;  // for the window layer a box has no border
    } else if (message == WM_SETFOCUS) {
        listener.OnFocused(window);
    } else if (MayEdit(window, message)) {
        listener.OnEdited(window);
    }
    return result;
}

// Rows as the system's own lists draw them, in the middle of a height that the font may exceed.
void DrawRow(const DRAWITEMSTRUCT& row)
{
    const bool disabled = (row.itemState & ODS_DISABLED) != 0;
    const bool selected = (row.itemState & ODS_SELECTED) != 0;
    const int back = selected ? (disabled ? COLOR_GRAYTEXT : COLOR_HIGHLIGHT) : COLOR_WINDOW;
    const int text = selected ? COLOR_HIGHLIGHTTEXT : disabled ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT;
    FillRect(row.hDC, &row.rcItem, GetSysColorBrush(back));
    const int length = row.itemID == static_cast<UINT>(-1)
                           ? 0
                           : static_cast<int>(SendMessageW(row.hwndItem, LB_GETTEXTLEN, row.itemID, 0));
    if (length > 0) {
        std::wstring shown(static_cast<std::size_t>(length) + 1, L'\0');
        SendMessageW(row.hwndItem, LB_GETTEXT, row.itemID, reinterpret_cast<LPARAM>(shown.data()));
        RECT inside = row.rcItem;
        inside.left += 2;
        SetBkMode(row.hDC, TRANSPARENT);
        SetTextColor(row.hDC, GetSysColor(text));
        DrawTextW(row.hDC, shown.c_str(), length, &inside, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    }
    if ((row.itemState & ODS_FOCUS) != 0) {
        DrawFocusRect(row.hDC, &row.rcItem);
    }
}

void TellScroll(Listener& listener, HWND bar, WPARAM what)
{
    HWND list = reinterpret_cast<HWND>(GetWindowLongPtrW(bar, GWLP_USERDATA));
    SCROLLINFO range{};
    range.cbSize = sizeof range;
    range.fMask = SIF_ALL;
    GetScrollInfo(bar, SB_CTL, &range);
    const int page = static_cast<int>(range.nPage);
    int top = range.nPos;
    switch (LOWORD(what)) {
    case SB_LINEUP: --top; break;
    case SB_LINEDOWN: ++top; break;
    case SB_PAGEUP: top -= page; break;
    case SB_PAGEDOWN: top += page; break;
    case SB_THUMBTRACK: top = range.nTrackPos; break;
    case SB_TOP: top = 0; break;
    case SB_BOTTOM: top = range.nMax; break;
    default: return;
    }
    const int last = range.nMax - page + 1;
    listener.OnScrolled(list, top < 0 ? 0 : top > last ? last : top);
}

void Erase(HWND popUp, HDC dc)
{
    RECT area;
    GetClientRect(popUp, &area);
    FillRect(dc, &area, GetSysColorBrush(COLOR_BTNFACE));
    FrameRect(dc, &area, GetSysColorBrush(COLOR_BTNSHADOW));
}

LRESULT CALLBACK PopUpProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                           DWORD_PTR data)
{
    Listener& listener = ListenerOf(data);
    switch (message) {
    case WM_NCDESTROY: RemoveWindowSubclass(window, &PopUpProc, id); break;
    case WM_GETDLGCODE: return DLGC_WANTALLKEYS;
    case WM_ERASEBKGND: Erase(window, reinterpret_cast<HDC>(wParam)); return 1;
    case WM_DRAWITEM: DrawRow(*reinterpret_cast<DRAWITEMSTRUCT*>(lParam)); return TRUE;
    case WM_VSCROLL: TellScroll(listener, reinterpret_cast<HWND>(lParam), wParam); return 0;
    case WM_SETFOCUS: listener.OnFocused(window); return 0;
    case WM_CLOSE: listener.OnClosed(window); return 0;
    case WM_ACTIVATE:
        if (LOWORD(wParam) == WA_INACTIVE && lParam != 0) {
            listener.OnLeft(window);
        }
        break;
    case WM_DPICHANGED: {
        const RECT& wanted = *reinterpret_cast<RECT*>(lParam);
        listener.OnDpi(window, LOWORD(wParam), wanted.left, wanted.top);
        return 0;
    }
    default:
        if (TellInput(listener, window, message, wParam, lParam)) {
            return 0;
        }
        break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

void Listen(HWND window, bool isPopUp, Listener& listener)
{
    SetWindowSubclass(window, isPopUp ? &PopUpProc : &ControlProc, 1,
                      reinterpret_cast<DWORD_PTR>(&listener));
}

}  // namespace Native
