// CPoint: a position in pixels.
#pragma once

#include <algorithm>

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

    // How far from the screen's corner a position can lie, in pixels; a few such distances still add up
    // within 32 bits.
    static constexpr int Farthest = 1 << 28;
    // What lies beyond the farthest pixel is put there. Absurd positions go through this before anything
    // is added to them.
    [[nodiscard]] constexpr CPoint Clamped() const noexcept
    {
        return {std::clamp(x, -Farthest, Farthest), std::clamp(y, -Farthest, Farthest)};
    }

    friend constexpr bool operator==(CPoint a, CPoint b) noexcept { return a.x == b.x && a.y == b.y; }
};
