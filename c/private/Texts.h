// Texts across the border: the caller's bytes and the module's.
#pragma once

#include <string_view>

#include "c/private/Objects.h"

namespace RankerC {

// The caller's bytes; refuses a null pointer with a length.
[[nodiscard]] std::string_view BytesOf(const char* data, std::size_t length, const char* name);
// The same as a text of the module, from the context's encoding.
[[nodiscard]] CString TextOf(const Context& context, const char* data, std::size_t length,
                             const char* name);
[[nodiscard]] CString TextOf(const Context& context, std::string_view bytes, const char* name);

// Whether the context's callers see a text's own bytes: GBK was asked for, or the text is ASCII.
[[nodiscard]] bool IsSeenAsIs(const Context& context, const CString& text);
// A text of the module in UTF-8; refuses what is no GBK.
[[nodiscard]] std::string Utf8Of(const CString& text);
// A text of the module in the context's encoding.
[[nodiscard]] std::string SeenBy(const Context& context, const CString& text);

// Into the caller's buffer with a closing zero byte, or refuses with the length told.
void Give(std::string_view bytes, char* buffer, std::size_t size, std::size_t* length);
void Give(const Context& context, const CString& text, char* buffer, std::size_t size, std::size_t* length);

}  // namespace RankerC
