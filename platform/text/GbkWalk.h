// Steps through a text of GBK bytes by whole characters.
#pragma once

#include <string_view>

#include "platform/text/Export.h"

// A double-byte character is a lead byte 0x81 to 0xFE and a trail byte 0x40 to 0xFE other than
// 0x7F; any other byte is a character of its own. The text is read from its start, since a trail
// byte looks like many another.

[[nodiscard]] constexpr bool IsGbkLead(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x81 && value <= 0xFE;
}
[[nodiscard]] constexpr bool IsGbkTrail(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x40 && value <= 0xFE && value != 0x7F;
}

// Where the character in front of a position starts and where the one behind it ends; a position
// inside a character counts as behind that character. The ends of the text stay.
[[nodiscard]] PLATFORM_API int PreviousCharacter(std::string_view text, int nPosition);
[[nodiscard]] PLATFORM_API int NextCharacter(std::string_view text, int nPosition);
