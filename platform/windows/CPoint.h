// CPoint: a position in pixels.
#pragma once

#include "platform/windows/WinTypes.h"

// x grows to the right, y grows downwards.
class CPoint : public POINT {
public:
    constexpr CPoint() noexcept : CPoint(0, 0) {}
    constexpr CPoint(int nX, int nY) noexcept : POINT()
    {
        x = nX;
        y = nY;
    }
    constexpr CPoint(POINT point) noexcept : POINT(point) {}

    friend constexpr bool operator==(CPoint a, CPoint b) noexcept { return a.x == b.x && a.y == b.y; }
};
