// The plain types of the window layer: numbers, handles, points and rectangles.
#pragma once

#include <cstdint>

#include "platform/text/Export.h"

using BOOL = int;
using UINT = unsigned int;
using LONG = std::int32_t;
using DWORD = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;

inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;

// Names a window. Null names none; the handle of a destroyed window never names another one.
struct WindowTag;
using HWND = WindowTag*;

struct POINT {
    LONG x;
    LONG y;
};

// right and bottom lie just outside the rectangle.
struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

// Two 16-bit halves in one parameter: an event's client position, a command's id and code. A half
// keeps its sign when it is read as a position.
[[nodiscard]] constexpr LPARAM MAKELPARAM(int low, int high) noexcept
{
    const auto lowHalf = static_cast<std::uint16_t>(low);
    const auto highHalf = static_cast<std::uint16_t>(high);
    return static_cast<LPARAM>((static_cast<std::uint32_t>(highHalf) << 16) | lowHalf);
}
[[nodiscard]] constexpr WPARAM MAKEWPARAM(int low, int high) noexcept
{
    return static_cast<WPARAM>(MAKELPARAM(low, high));
}
[[nodiscard]] constexpr UINT LOWORD(std::uintptr_t value) noexcept
{
    return static_cast<UINT>(value & 0xFFFFU);
}
[[nodiscard]] constexpr UINT HIWORD(std::uintptr_t value) noexcept
{
    return static_cast<UINT>((value >> 16) & 0xFFFFU);
}
[[nodiscard]] constexpr int GET_X_LPARAM(LPARAM value) noexcept
{
    return static_cast<std::int16_t>(LOWORD(static_cast<std::uintptr_t>(value)));
}
[[nodiscard]] constexpr int GET_Y_LPARAM(LPARAM value) noexcept
{
    return static_cast<std::int16_t>(HIWORD(static_cast<std::uintptr_t>(value)));
}
