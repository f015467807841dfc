// Texts in columns on a terminal.
#pragma once

#include <string>
#include <string_view>

namespace Desk {

// Cells that a text takes: two for a wide character as in Chinese, one for any other.
[[nodiscard]] int DisplayWidth(std::string_view utf8);

// The text with blanks behind it or before it, up to the width in cells; a longer one as it is.
[[nodiscard]] std::string PadRight(std::string_view text, int width);
[[nodiscard]] std::string PadLeft(std::string_view text, int width);

// In quotes when one would not see it otherwise: a text that is empty or begins or ends with a blank.
[[nodiscard]] std::string Visible(const std::string& text);

// "once", "twice", "3 times".
[[nodiscard]] std::string Times(int count);

}  // namespace Desk
