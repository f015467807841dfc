// The values of texts in a drawing: their encoding and escapes, with a map from what they say back to the
// bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desk/reading/DrawingText.h"

namespace Desk {

enum class Charset { Utf8, Gbk };

// What a value says, in UTF-8, and for each byte of it the stretch of the value that spells it.
struct Decoded {
    std::string text;
    std::vector<Stretch> spelled;

    void Append(std::string_view utf8, const Stretch& stretch);
};

// \M+5XXXX becomes its character, and so does \U+XXXX but for control characters; %% codes stay. Of an
// MTEXT the formatting is taken out, a fraction \Sa^b; becomes a/b, and \P a line end. Bytes that are no
// character of the charset become U+FFFD, the pair A2 4C, which fonts show as a grade sign, U+03A6.
[[nodiscard]] Decoded DecodeText(std::string_view value, Charset charset, bool isMText);

// A text in UTF-8 as a value: \U+XXXX for what the charset lacks. For an MTEXT its own signs are escaped.
[[nodiscard]] std::string EncodeText(std::string_view utf8, Charset charset, bool isMText);

// The bytes that GBK keeps for the private characters U+E000 to U+E765; empty for others.
[[nodiscard]] std::string GbkOfPrivate(unsigned character);

// The charset of a file by the bytes of its texts: how many bytes are not ASCII, and how many of those are
// no UTF-8. No such share decides where fileSays is kept.
[[nodiscard]] Charset CharsetFor(std::size_t highBytes, std::size_t notUtf8, Charset fileSays);
// Adds the counts of a value.
void CountHighBytes(std::string_view value, std::size_t& highBytes, std::size_t& notUtf8);

}  // namespace Desk
