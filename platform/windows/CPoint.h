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

    friend constexpr bool operator==(CPoint a, CPoint b) noexcept { return a.x == b.x && a.y == b.y; }
};

// How far from the screen's corner a position can lie, in pixels; a few such distances still add up
// within 32 bits.
inline constexpr int FarthestPixel = 1 << 28;

// A position with what lies beyond the farthest pixel put there. Absurd positions go through this
// before anything is added to them.
[[nodiscard]] constexpr CPoint Clamped(CPoint point) noexcept
{
    return {std::clamp(point.x, -FarthestPixel, FarthestPixel),
            std::clamp(point.y, -FarthestPixel, FarthestPixel)};
}
