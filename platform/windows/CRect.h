// CRect: a rectangle in pixels.
#pragma once

#include "platform/windows/CPoint.h"

// Holds the pixels from left and top up to, but not including, right and bottom.
class CRect : public RECT {
public:
    constexpr CRect() noexcept : CRect(0, 0, 0, 0) {}
    constexpr CRect(int l, int t, int r, int b) noexcept : RECT()
    {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    constexpr CRect(const RECT& rect) noexcept : RECT(rect) {}

    [[nodiscard]] constexpr int Width() const noexcept { return right - left; }
    [[nodiscard]] constexpr int Height() const noexcept { return bottom - top; }
    [[nodiscard]] constexpr CPoint TopLeft() const noexcept { return {left, top}; }
    [[nodiscard]] constexpr BOOL PtInRect(CPoint point) const noexcept
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom ? TRUE : FALSE;
    }

    friend constexpr bool operator==(const CRect& a, const CRect& b) noexcept
    {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
};
