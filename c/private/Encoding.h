// UTF-8 and GBK without the help of the system, so that it is the same wherever the library runs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace RankerC {

// True for a text of ASCII characters without a zero byte, which is the same in both.
[[nodiscard]] bool IsPlain(std::string_view text) noexcept;

// The two bytes of a character in GBK, lead byte high, or the one byte that it has; 0 when it has
// none.
[[nodiscard]] unsigned GbkOf(char32_t character) noexcept;

// Nothing for a text that cannot be converted whole: no UTF-8, no GBK, a character that GBK lacks.
[[nodiscard]] std::optional<std::string> GbkFromUtf8(std::string_view utf8);
[[nodiscard]] std::optional<std::string> Utf8FromGbk(std::string_view gbk);

}  // namespace RankerC
