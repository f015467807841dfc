// CWnd: where a window stands, and whether it is shown and enabled.
#include <algorithm>

#include "platform/windows/private/WindowLayer.h"

using WindowLayer::Find;

namespace {

constexpr int Farthest = 1 << 28;  // pixels; a few such distances still add up within 32 bits

CRect OnScreen(const WindowRecord& window)
{
    const CPoint origin = WindowLayer::ClientOrigin(window);
    return {origin.x, origin.y, origin.x + window.place.Width(), origin.y + window.place.Height()};
}

}  // namespace

BOOL CWnd::ShowWindow(int nCmdShow)
{
    WindowRecord* const window = Find(m_hWnd);
    if (window == nullptr) {
        return FALSE;
    }
    const bool before = window->visible;
    const HWND handle = window->handle;
    window->visible = nCmdShow != SW_HIDE;
    const bool bShowHolder = window->visible && !window->IsControl();
    if (bShowHolder) {
        WindowLayer::App().windows.Raise(handle);
    }
    if (before != window->visible) {
        WindowLayer::Tell(handle, WindowChange::Visible);
    }
    if (bShowHolder) {
        WindowLayer::Tell(handle, WindowChange::Order);
        const WindowRecord* const focused = WindowLayer::HolderOf(WindowLayer::App().focus);
        if (focused == nullptr || focused->handle != handle) {
            WindowLayer::EnterFocus(handle);
        }
    } else if (nCmdShow == SW_HIDE) {
        WindowLayer::LeaveFocus(handle);
    }
    return before ? TRUE : FALSE;
}

BOOL CWnd::IsWindowVisible() const
{
    const WindowRecord* const window = Find(m_hWnd);
    return window != nullptr && WindowLayer::IsShown(*window) ? TRUE : FALSE;
}

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    WindowRecord* const window = Find(m_hWnd);
    if (window == nullptr) {
        return FALSE;
    }
    const bool before = window->enabled;
    const HWND handle = window->handle;
    window->enabled = bEnable != FALSE;
    if (before != window->enabled) {
        WindowLayer::Tell(handle, WindowChange::Enabled);
        if (before) {
            WindowLayer::LeaveFocus(handle);
        }
    }
    return before ? FALSE : TRUE;
}

BOOL CWnd::IsWindowEnabled() const
{
    const WindowRecord* const window = Find(m_hWnd);
    return window != nullptr && window->enabled ? TRUE : FALSE;
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL /*bRepaint*/)
{
    WindowRecord* const window = Find(m_hWnd);
    if (window == nullptr) {
        return;
    }
    // A panel flung about by releases without presses must not run out of numbers.
    const int left = std::clamp(x, -Farthest, Farthest);
    const int top = std::clamp(y, -Farthest, Farthest);
    const CRect place(left, top, left + std::clamp(nWidth, 0, Farthest),
                      top + std::clamp(nHeight, 0, Farthest));
    if (window->place != place) {
        window->place = place;
        WindowLayer::Tell(m_hWnd, WindowChange::Place);
    }
}

void CWnd::MoveWindow(const RECT* lpRect, BOOL bRepaint)
{
    const CRect rect(*lpRect);
    MoveWindow(rect.left, rect.top, rect.Width(), rect.Height(), bRepaint);
}

void CWnd::GetWindowRect(RECT* lpRect) const
{
    if (const WindowRecord* const window = Find(m_hWnd)) {
        *lpRect = OnScreen(*window);
    }
}

void CWnd::GetClientRect(RECT* lpRect) const
{
    if (const WindowRecord* const window = Find(m_hWnd)) {
        *lpRect = CRect(0, 0, window->place.Width(), window->place.Height());
    }
}

void CWnd::ScreenToClient(POINT* lpPoint) const
{
    if (const WindowRecord* const window = Find(m_hWnd)) {
        const CPoint origin = WindowLayer::ClientOrigin(*window);
        lpPoint->x -= origin.x;
        lpPoint->y -= origin.y;
    }
}

void CWnd::ClientToScreen(POINT* lpPoint) const
{
    if (const WindowRecord* const window = Find(m_hWnd)) {
        const CPoint origin = WindowLayer::ClientOrigin(*window);
        lpPoint->x += origin.x;
        lpPoint->y += origin.y;
    }
}
