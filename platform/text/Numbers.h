// The number that a text begins with, read the same way whatever the locale.
#pragma once

#include <string_view>

#include "platform/text/Export.h"

// The whole number at the head of a text: white space, a sign, decimal digits; 0 when there are no
// digits. A number outside the 32-bit signed range gives the nearest one inside it.
[[nodiscard]] PLATFORM_API int NumberValue(std::string_view text) noexcept;

// The decimal number at the head of a text: white space, a sign, digits with an optional point and
// an optional power of ten; 0 when there are no digits. Hexadecimal, infinity and not-a-number
// forms count as 0. A number too large for a double gives infinity with its sign, one too small
// gives 0.
[[nodiscard]] PLATFORM_API double RealValue(std::string_view text) noexcept;
