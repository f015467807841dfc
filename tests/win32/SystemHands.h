// Hands on the system's controls: places are pixels of the window layer, as those of Hands.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/windows/Events.h"
#include "tests/support/Stage.h"
#include "tests/win32/User.h"
#include "win32/Win32Display.h"

class SystemHands {
public:
    // The DPI of the screen on which pop-ups show.
    SystemHands(const Win32Display& display, int dpi) : m_display(display), m_dpi(dpi) {}

    void Begin(const Stage& stage) const
    {
        const CRect place = FindWindowRecord(stage.panel->m_hWnd)->place;
        constexpr int UsualDpi = 96;
        User::MoveToScreenOf(m_display.NativeOf(stage.panel->m_hWnd), m_dpi, place.left * m_dpi / UsualDpi,
                             place.top * m_dpi / UsualDpi);
    }

    void Click(CPoint point)
    {
        if (const Place at = On(point); at.window != nullptr) {
            User::Press(User::Button::Left, at.x, at.y);
            User::Release(User::Button::Left, at.x, at.y);
        }
    }
    void RightClick(CPoint point)
    {
        if (const Place at = On(point); at.window != nullptr) {
            User::Press(User::Button::Right, at.x, at.y);
            User::Release(User::Button::Right, at.x, at.y);
        }
    }
    void DoubleClick(CPoint point)
    {
        if (const Place at = On(point); at.window != nullptr) {
            User::DoubleClick(at.x, at.y);
        }
    }
    void Drag(CPoint from, CPoint to)
    {
        if (const Place at = On(from); at.window != nullptr) {
            const Place end = In(at.window, to);
            User::Press(User::Button::Left, at.x, at.y);
            User::Release(User::Button::Left, end.x, end.y);
        }
    }
    void Wheel(CPoint point, int notches)
    {
        if (const Place at = On(point); at.window != nullptr) {
            User::Wheel(at.x, at.y, notches);
        }
    }
    void Key(UINT key)
    {
        if (HasFocus()) {
            User::Key(key);
        }
    }
    void Type(const CString& text)
    {
        for (const wchar_t character : User::Wide(std::string(text.View()))) {
            if (HasFocus()) {
                User::Type(character);
            }
        }
    }

    // Where a place is on the screen.
    struct Place {
        HWND window = nullptr;
        int x = 0;
        int y = 0;
    };
    // In the window that shows there. A place that the scroll bar of a list covers moves beside it.
    [[nodiscard]] Place On(CPoint point) const
    {
        const HWND window = WindowFromPoint(point);
        const WindowRecord* const record = FindWindowRecord(window);
        if (record != nullptr && record->kind == WindowKind::ListBox && !record->IsMultiColumn() &&
            record->RowCount() > record->RowsInView()) {
            constexpr int Bar = 6;
            CRect rect;
            CWnd::FromHandle(window)->GetWindowRect(&rect);
            point.x = std::min<int>(point.x, rect.right - Bar - 1);
        }
        if (record == nullptr) {
            return {};
        }
        Place at = In(window, point);  // the last pixel may have none of the system's own
        const User::Area shown = User::PlaceOf(m_display.NativeOf(window));
        at.x = std::min(at.x, shown.x + shown.width - 1);
        at.y = std::min(at.y, shown.y + shown.height - 1);
        return at;
    }

private:
    // Relative to a window, which it may be outside of.
    [[nodiscard]] Place In(HWND window, CPoint point) const
    {
        CWnd::FromHandle(window)->ScreenToClient(&point);
        const User::Area shown = User::PlaceOf(m_display.NativeOf(window));
        const double zoom = m_display.ZoomOf(window);
        return {window, shown.x + static_cast<int>(std::ceil(point.x * zoom)),
                shown.y + static_cast<int>(std::ceil(point.y * zoom))};
    }

    [[nodiscard]] static bool HasFocus()
    {
        const CWnd* const focus = CWnd::GetFocus();
        return focus != nullptr && focus->IsWindowVisible() != FALSE;
    }

    const Win32Display& m_display;
    int m_dpi;
};
