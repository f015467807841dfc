// Reads a file of annotation texts, one a line: plain lines, or lines of kind and text with the heading
// "kind<TAB>text".
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Desk {

enum class Encoding { Utf8, Gbk };

struct DrawnText {
    std::size_t line = 0;  // from 1
    std::string kind;      // as the file says it; empty in a plain file
    std::string text;      // UTF-8, as drawn
    std::string fault;     // why the text itself is no use, in words; mostly empty
};

struct TextsFile {
    std::vector<DrawnText> texts;
    std::size_t lines = 0;       // with the heading
    std::size_t blankLines = 0;  // lines of blanks alone; they hold no text
    bool hasKinds = false;
};

// Longer texts are taken for no annotation.
inline constexpr std::size_t LongestText = 1000;  // bytes

// Line ends are LF or CRLF, also mixed; a byte order mark is skipped. A text that is too long or holds a
// control character is kept with its fault. Throws Failure "FILE:LINE:COLUMN: what is wrong" where the
// bytes are not of the encoding, and for a file that is UTF-16. name is what messages call the file.
[[nodiscard]] TextsFile ParseTexts(std::string_view bytes, const std::string& name, Encoding encoding);

// Throws Failure as well when the file cannot be read.
[[nodiscard]] TextsFile ReadTextsFile(const std::filesystem::path& file, Encoding encoding);

}  // namespace Desk
