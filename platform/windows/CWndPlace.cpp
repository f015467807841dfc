// CWnd: where a window stands, and whether it is shown and enabled.
#include "platform/windows/private/WindowLayer.h"

using WindowLayer::Find;

namespace {

CRect OnScreen(const Window& window)
{
    const CPoint origin = WindowLayer::ClientOrigin(window);
    return {origin.x, origin.y, origin.x + window.place.Width(), origin.y + window.place.Height()};
}

void PutAt(HWND hWnd, const CRect& place)
{
    Window* const window = Find(hWnd);
    if (window != nullptr && window->place != place) {
        window->place = place;
        WindowLayer::Tell(hWnd, WindowChange::Place);
    }
}

}  // namespace

BOOL CWnd::ShowWindow(int nCmdShow)
{
    Window* const window = Find(m_hWnd);
    if (window == nullptr) {
        return FALSE;
    }
    const bool before = window->visible;
    const HWND handle = window->handle;
    window->visible = nCmdShow != SW_HIDE;
    const bool bShowHolder = window->visible && !window->IsControl();
    if (bShowHolder) {
        WindowLayer::State().windows.Raise(handle);
    }
    if (before != window->visible) {
        WindowLayer::Tell(handle, WindowChange::Visible);
    }
    if (bShowHolder) {
        WindowLayer::Tell(handle, WindowChange::Order);
        const Window* const focused = WindowLayer::HolderOf(WindowLayer::State().focus);
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
    const Window* const window = Find(m_hWnd);
    return window != nullptr && WindowLayer::IsShown(*window) ? TRUE : FALSE;
}

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    Window* const window = Find(m_hWnd);
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
    const Window* const window = Find(m_hWnd);
    return window != nullptr && window->enabled ? TRUE : FALSE;
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL /*bRepaint*/)
{
    PutAt(m_hWnd, WindowLayer::PlaceOf(x, y, nWidth, nHeight));
}

void CWnd::MoveWindow(const RECT* lpRect, BOOL /*bRepaint*/)
{
    PutAt(m_hWnd, WindowLayer::PlaceOf(*lpRect));
}

void CWnd::GetWindowRect(RECT* lpRect) const
{
    if (const Window* const window = Find(m_hWnd)) {
        *lpRect = OnScreen(*window);
    }
}

void CWnd::GetClientRect(RECT* lpRect) const
{
    if (const Window* const window = Find(m_hWnd)) {
        *lpRect = CRect(0, 0, window->place.Width(), window->place.Height());
    }
}

void CWnd::ScreenToClient(POINT* lpPoint) const
{
    if (const Window* const window = Find(m_hWnd)) {
        const CPoint origin = WindowLayer::ClientOrigin(*window);
        const CPoint point = CPoint(*lpPoint).Clamped();
        *lpPoint = CPoint(point.x - origin.x, point.y - origin.y);
    }
}

void CWnd::ClientToScreen(POINT* lpPoint) const
{
    if (const Window* const window = Find(m_hWnd)) {
        const CPoint origin = WindowLayer::ClientOrigin(*window);
        const CPoint point = CPoint(*lpPoint).Clamped();
        *lpPoint = CPoint(point.x + origin.x, point.y + origin.y);
    }
}
