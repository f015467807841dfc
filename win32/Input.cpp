#include "win32/Input.h"

#include <utility>

#include "platform/windows/CWnd.h"
#include "platform/windows/Events.h"
#include "platform/windows/UserInput.h"
#include "win32/Texts.h"

namespace {

// Keys that the window layer has no name for.
constexpr UINT KeyAlt = 18, KeyMenu = 93, KeyF10 = 121, KeyF1 = 112, KeyF24 = 135;
constexpr UINT SystemKeyDown = 0x104;  // a key with Alt, or F10

constexpr LPARAM KeyWentDown = 1;
constexpr std::uintptr_t WasDownBefore = 1U << 30;
constexpr std::uintptr_t WithAlt = 1U << 29;

MSG Escape(HWND popUp) { return {popUp, WM_KEYDOWN, VK_ESCAPE, KeyWentDown, 0, {}}; }

HWND FocusedWindow()
{
    const CWnd* const focus = CWnd::GetFocus();
    return focus != nullptr ? focus->m_hWnd : nullptr;
}

HWND HolderOf(HWND window)
{
    const WindowRecord* const record = FindWindowRecord(window);
    return record != nullptr && record->IsControl() ? record->parent : window;
}

bool IsShownPopUp(HWND window)
{
    const WindowRecord* const record = FindWindowRecord(window);
    return record != nullptr && record->kind == WindowKind::PopUp && record->visible;
}

bool IsEditBox(HWND window)
{
    const WindowRecord* const record = FindWindowRecord(window);
    return record != nullptr && record->kind == WindowKind::EditBox && record->enabled;
}

// The control of the system handles the key itself: letters, caret, deletion, clipboard, input methods.
bool IsForEditBox(UINT key)
{
    switch (key) {
    case VK_ESCAPE:
    case VK_RETURN:
    case VK_TAB:
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT: return false;
    default: return key < KeyF1 || key > KeyF24;
    }
}

// The keys that replace the right button.
bool IsRightPress(UINT key, bool shift, bool alt)
{
    return key == KeyMenu || (key == KeyF10 && shift) || (key == VK_RETURN && !shift && !alt);
}

}  // namespace

void Input::TakeFocus(HWND window)
{
    const WindowRecord* const holder = FindWindowRecord(HolderOf(window));
    if (window == FocusedWindow() && holder != nullptr && holder->visible) {
        const Mirroring scope(*this);
        Native::Focus(m_shown.NativeOf(window));
    }
}

bool Input::Send(const MSG& event, bool dispatch)
{
    MSG msg = event;
    ++m_sending;
    const bool taken = AfxPreTranslateMessage(&msg) != FALSE;
    if (!taken && dispatch) {
        DispatchMessage(&msg);
    }
    --m_sending;
    return taken;
}

bool Input::Mouse(HWND window, const Native::Event& event, UINT message, WPARAM wParam, bool dispatch)
{
    CWnd* const target = CWnd::FromHandle(window);
    if (target == nullptr) {
        return true;
    }
    const Scale scale = m_shown.ScaleOf(window);
    const CPoint inside(scale.FromSystem(event.x), scale.FromSystem(event.y));
    CPoint place = inside;
    target->ClientToScreen(&place);
    return Send({window, message, wParam, MAKELPARAM(inside.x, inside.y), event.time, place}, dispatch);
}

bool Input::OnMouse(Native::Handle control, const Native::Event& event)
{
    const HWND window = m_shown.WindowOf(control);
    if (window == nullptr) {
        return false;
    }
    const bool native = IsEditBox(window);
    switch (event.message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (native && FocusedWindow() != window) {
            CWnd::FromHandle(window)->SetFocus();
        } else if (FindWindowRecord(window)->kind == WindowKind::Button) {
            m_pushed = window;
            Native::Push(control, true);
        }
        break;
    case WM_LBUTTONUP:
        if (const HWND pushed = std::exchange(m_pushed, nullptr); IsWindow(pushed)) {
            Native::Push(m_shown.NativeOf(pushed), false);
        }
        break;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:  // two quick presses count as two
        Mouse(window, event, WM_RBUTTONDOWN, MK_RBUTTON, true);
        return true;
    case WM_RBUTTONUP:
    case WM_MOUSEWHEEL: Mouse(window, event, event.message, event.wParam, true); return true;
    default: break;
    }
    return Mouse(window, event, event.message, event.wParam, !native) || !native || !IsWindow(window);
}

bool Input::OnKey(Native::Handle control, const Native::Event& event)
{
    const HWND window = m_shown.WindowOf(control);
    if (window == nullptr) {
        return false;
    }
    const auto key = static_cast<UINT>(event.wParam);
    const bool native = IsEditBox(window);
    if (event.message == WM_CHAR) {
        return Character(window, event, native);
    }
    const auto flags = static_cast<std::uintptr_t>(event.lParam);
    const bool alt = (flags & WithAlt) != 0;
    const bool down = event.message != WM_KEYUP;
    const bool right = down && IsRightPress(key, event.shift, alt);
    if (event.message == SystemKeyDown && !right) {
        return false;
    }
    const HWND focus = FocusedWindow();
    const HWND target = IsWindow(focus) && HolderOf(focus) == HolderOf(window) ? focus : window;
    const auto send = [&](UINT message, WPARAM code, bool dispatch) {
        return Send({target, message, code, event.lParam, event.time, {}}, dispatch);
    };
    if (key != VK_SHIFT) {  // an event of the Shift key may have been missed
        send(event.shift ? WM_KEYDOWN : WM_KEYUP, VK_SHIFT, false);
    }
    const bool nativeKey = native && IsForEditBox(key);
    const bool taken = send(down ? WM_KEYDOWN : WM_KEYUP, key, !nativeKey);
    if (down) {
        m_keyWasTaken = taken;
    }
    if (right && !taken) {
        if ((flags & WasDownBefore) == 0) {
            Take(HolderOf(window));
        }
        m_keyWasTaken = true;
        return true;
    }
    return taken || !nativeKey || !IsWindow(window);
}

// A double-byte character is two events, as the window layer types it.
bool Input::Character(HWND window, const Native::Event& event, bool native)
{
    if (m_keyWasTaken) {
        return true;
    }
    const auto character = static_cast<wchar_t>(event.wParam);
    const bool nativeKey = native && IsForEditBox(static_cast<UINT>(character < ' ' ? character : 0));
    const std::optional<CString> typed = Texts::GbkFrom({&character, 1});
    bool taken = false;
    for (int i = 0; typed && i < typed->GetLength() && IsWindow(window); ++i) {
        const auto byte = static_cast<unsigned char>(typed->GetAt(i));
        taken = Send({window, WM_CHAR, byte, event.lParam, event.time, {}}, !nativeKey) || taken;
    }
    return taken || !nativeKey || !IsWindow(window);
}

// The right button's click in the middle of a pop-up, for what stands for it.
void Input::Take(HWND popUp)
{
    if (const WindowRecord* const record = FindWindowRecord(popUp)) {
        const Native::Area area = m_shown.ScaleOf(popUp).ToSystem(record->place);
        Native::Event middle;
        middle.x = area.width / 2;
        middle.y = area.height / 2;
        Mouse(popUp, middle, WM_RBUTTONDOWN, MK_RBUTTON, true);
        Mouse(popUp, middle, WM_RBUTTONUP, 0, true);
    }
}

void Input::OnEdited(Native::Handle control)
{
    const HWND box = m_shown.WindowOf(control);
    if (m_mirroring > 0 || m_reporting != nullptr || !IsEditBox(box)) {
        return;
    }
    const WindowRecord* record = FindWindowRecord(box);
    const std::wstring now = Native::TextOf(control);
    const int caret = Native::CaretOf(control);
    if (now == Texts::Shown(record->text) && caret == Texts::ShownPosition(record->text, record->caret)) {
        return;
    }
    BOOL taken = FALSE;
    if (const std::optional<Texts::Edited> edited = Texts::EditedFrom(record->text, now, caret)) {
        m_reporting = box;
        ++m_sending;
        taken = UserEditsText(box, edited->text, edited->caret);
        --m_sending;
        m_reporting = nullptr;
    }
    record = FindWindowRecord(box);
    if (record != nullptr && (taken == FALSE || now != Texts::Shown(record->text))) {
        m_shown.TakeText(*record);
    }
}

// The system may give the keyboard to a pop-up as a whole, and to a control without a press.
void Input::OnFocused(Native::Handle control)
{
    const HWND window = m_shown.WindowOf(control);
    if (m_mirroring > 0 || !IsShownPopUp(HolderOf(window))) {
        return;
    }
    const HWND focus = FocusedWindow();
    if (window == HolderOf(window)) {
        if (focus != window && HolderOf(focus) == window) {
            TakeFocus(focus);
        }
    } else if (focus != window) {
        CWnd::FromHandle(window)->SetFocus();
    }
}

void Input::OnScrolled(Native::Handle list, int top)
{
    SendMessage(m_shown.WindowOf(list), LB_SETTOPINDEX, static_cast<WPARAM>(top));
}

void Input::OnClosed(Native::Handle popUp)
{
    if (const HWND window = m_shown.WindowOf(popUp); IsShownPopUp(window)) {
        Send(Escape(window), true);
    }
}

// As Esc. Not while an event is handled: then the window elsewhere is the module's doing or the host's.
void Input::OnLeft(Native::Handle popUp)
{
    const HWND window = m_shown.WindowOf(popUp);
    if (m_sending == 0 && IsShownPopUp(window) && !m_shown.IsUnfinished(window)) {
        Send(Escape(window), true);
    }
}

void Input::OnDpi(Native::Handle popUp, int dpi, int x, int y)
{
    if (const HWND window = m_shown.WindowOf(popUp)) {
        m_shown.TakeDpi(window, dpi, x, y);
    }
}
