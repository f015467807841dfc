// Texts cross between the desk's UTF-8 and the module's GBK bytes here.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/text/CString.h"

namespace Desk {

// Nothing when the text is not valid UTF-8 or holds a character that GBK lacks.
[[nodiscard]] std::optional<CString> GbkFromUtf8(std::string_view text);

// Length in bytes of the UTF-8 character that a text begins with; 0 for none. The text is not empty.
[[nodiscard]] std::size_t Utf8Length(std::string_view text);

// Bytes that are no GBK character become U+FFFD.
[[nodiscard]] std::string Utf8FromGbk(const CString& text);

}  // namespace Desk
