// Events made, fed through the host's loop and written down.
#include "desk/console/panel/Hand.h"

#include "desk/console/panel/EventNames.h"

namespace Desk::Panels {

void Hand::Press(CPoint point)
{
    m_pressed = WindowFromPoint(point);
    Mouse(m_pressed, WM_LBUTTONDOWN, point, MK_LBUTTON);
}

void Hand::Release(CPoint point)
{
    const HWND target = IsWindow(m_pressed) ? m_pressed : WindowFromPoint(point);
    m_pressed = nullptr;
    Mouse(target, WM_LBUTTONUP, point, 0);
}

void Hand::DoubleClick(CPoint point)
{
    Press(point);
    Release(point);
    m_pressed = WindowFromPoint(point);
    Mouse(m_pressed, WM_LBUTTONDBLCLK, point, MK_LBUTTON);
    Release(point);
}

void Hand::RightClick(CPoint point)
{
    Mouse(WindowFromPoint(point), WM_RBUTTONDOWN, point, MK_RBUTTON);
    Mouse(WindowFromPoint(point), WM_RBUTTONUP, point, 0);
}

void Hand::Wheel(CPoint point, int notches)
{
    Mouse(WindowFromPoint(point), WM_MOUSEWHEEL, point, MAKEWPARAM(0, notches * WHEEL_DELTA));
}

void Hand::Key(UINT key, bool shift)
{
    const bool hasCharacter =
        key == VK_BACK || key == VK_TAB || key == VK_RETURN || key == VK_ESCAPE || key == VK_SPACE;
    if (shift) {
        KeyEvent(WM_KEYDOWN, VK_SHIFT);
    }
    if (!KeyEvent(WM_KEYDOWN, key) && hasCharacter) {
        KeyEvent(WM_CHAR, key);
    }
    KeyEvent(WM_KEYUP, key);
    if (shift) {
        KeyEvent(WM_KEYUP, VK_SHIFT);
    }
}

void Hand::Type(const CString& text)
{
    for (const char byte : text.View()) {
        KeyEvent(WM_CHAR, static_cast<unsigned char>(byte));
    }
}

void Hand::Mouse(HWND target, UINT message, CPoint point, WPARAM wParam)
{
    if (!IsWindow(target)) {
        return;
    }
    CPoint inside = point;
    CWnd::FromHandle(target)->ScreenToClient(&inside);
    Send({target, message, wParam, MAKELPARAM(inside.x, inside.y), m_time += 10, point},
         "at " + std::to_string(inside.x) + "," + std::to_string(inside.y));
}

bool Hand::KeyEvent(UINT message, WPARAM key)
{
    constexpr LPARAM FirstPress = 1;
    constexpr LPARAM WentUp = 0xC0000001;  // was down before, is up now, once
    const CWnd* const focus = CWnd::GetFocus();
    return focus != nullptr && focus->IsWindowVisible() &&
           Send({focus->m_hWnd, message, key, message == WM_KEYUP ? WentUp : FirstPress, m_time += 10,
                 CPoint()},
                message == WM_CHAR ? CharName(key) : KeyName(key));
}

bool Hand::Send(MSG msg, const std::string& detail)
{
    Event event;
    event.name = MessageName(msg.message);
    event.target = NameOfWindow(msg.hwnd);
    event.detail = detail;
    m_watch.panelAnswered = false;
    m_watch.WriteTo(&event.offered);
    const bool finished = AfxPreTranslateMessage(&msg) != FALSE;
    m_watch.Look();
    if (finished) {
        event.finishedBy = m_watch.panelAnswered ? "panel" : event.target;
    } else {
        m_watch.WriteTo(&event.dispatched);
        DispatchMessage(&msg);
        m_watch.Look();
    }
    m_watch.WriteTo(nullptr);
    if (m_events != nullptr) {
        m_events->push_back(std::move(event));
    }
    return finished;
}

std::string Hand::NameOfWindow(HWND hWnd) const
{
    const WindowRecord* const window = FindWindowRecord(hWnd);
    if (hWnd == m_hPanel || window == nullptr) {
        return "panel";
    }
    return window->IsControl() ? NameOf(window->kind, window->id) : "parent window";
}

}  // namespace Desk::Panels
