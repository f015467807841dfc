// One pass over the characters; codes and glyphs are tables.
#include "desk/reading/DrawingText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "desk/project/Encoding.h"

namespace Desk {

namespace {

constexpr std::string_view OpenGradeText("\x01", 1);

struct Spelling {
    std::string_view drawn;
    std::string_view plain;
};

// Codes that are written out in a text, the longer of two that begin alike first.
constexpr Spelling Codes[] = {
    {"%%130", "A"},
    {"%%131", "B"},
    {"%%132", "C"},
    {"%%133", "D"},
    {"[一级钢]", "A"},
    {"[二级钢]", "B"},
    {"[三级钢]", "C"},
    {"[四级钢]", "D"},
    {"%%c", OpenGradeText},
    {"%%C", OpenGradeText},
    {"%%p", "±"},
    {"%%P", "±"},
    {"%%u", ""},
    {"%%U", ""},
    {"%%o", ""},
    {"%%O", ""},
};

struct Glyphs {
    char32_t first;
    char32_t last;
    char plain;  // of the first; the others follow it when step is 1
    int step;
};

constexpr Glyphs GlyphTable[] = {
    {0x0082, 0x0085, 'A', 1},        // grade signs 1 to 4 of drawing fonts
    {0xE000, 0xE003, 'A', 1},        //
    {0xE530, 0xE533, 'A', 1},        //
    {0x03A6, 0x03A6, OpenGrade, 0},  // Greek capital phi
    {0x03C6, 0x03C6, OpenGrade, 0},  // Greek small phi
    {0x03D5, 0x03D5, OpenGrade, 0},  // Greek phi symbol
    {0x00D8, 0x00D8, OpenGrade, 0},  // Latin capital o with stroke
    {0x00F8, 0x00F8, OpenGrade, 0},  // Latin small o with stroke
    {0x0424, 0x0424, OpenGrade, 0},  // Cyrillic capital ef
    {0x0444, 0x0444, OpenGrade, 0},  // Cyrillic small ef
    {0x2205, 0x2205, OpenGrade, 0},  // empty set
    {0x2300, 0x2300, OpenGrade, 0},  // diameter sign
    {U'桅', U'桅', OpenGrade, 0},    // capital phi whose UTF-8 bytes were taken for GBK
    {U'蠁', U'蠁', OpenGrade, 0},    // small phi, the same
    {0x00D7, 0x00D7, 'x', 0},        // multiplication sign
    {0x2715, 0x2715, 'x', 0},        // multiplication x
    {0x2A2F, 0x2A2F, 'x', 0},        // vector product
    {0x0425, 0x0425, 'x', 0},        // Cyrillic capital ha
    {0x0445, 0x0445, 'x', 0},        // Cyrillic small ha
    {0x2010, 0x2013, '-', 0},        // hyphens and the en dash
    {0x2212, 0x2212, '-', 0},        // minus sign
    {0x0009, 0x0009, ' ', 0},        // tab
    {0x0020, 0x0020, ' ', 0},        // blank
    {0x00A0, 0x00A0, ' ', 0},        // no-break space
    {0x2000, 0x200A, ' ', 0},        // spaces of set widths
    {0x3000, 0x3000, ' ', 0},        // ideographic space
    {0xFF01, 0xFF5E, '!', 1},        // full-width forms of ASCII
};

std::optional<char> PlainCharacter(char32_t character)
{
    for (const Glyphs& row : GlyphTable) {
        if (character >= row.first && character <= row.last) {
            return static_cast<char>(row.plain + row.step * static_cast<int>(character - row.first));
        }
    }
    return std::nullopt;
}

// A character of a text and how many bytes it takes there.
struct Character {
    char32_t value;
    std::size_t bytes;
};

// A byte that is no UTF-8 is a character by itself.
Character FirstCharacter(std::string_view text)
{
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    const std::size_t bytes = Utf8Length(text);
    if (bytes < 2) {
        return {lead, 1};
    }
    char32_t value = lead & (0x7FU >> bytes);
    for (std::size_t i = 1; i < bytes; ++i) {
        value = (value << 6) | (byte(i) & 0x3FU);
    }
    return {value, bytes};
}

void AppendUtf8(std::string& out, char32_t value)
{
    const auto add = [&out](char32_t byte) { out += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (value < 0x80) {
        add(value);
    } else if (value < 0x800) {
        add(0xC0 | (value >> 6));
        add(0x80 | (value & 0x3F));
    } else {
        add(0xE0 | (value >> 12));
        add(0x80 | ((value >> 6) & 0x3F));
        add(0x80 | (value & 0x3F));
    }
}

// The character of a \U+XXXX at the head of a text. Control characters and halves of a pair are none.
std::optional<char32_t> EscapedCharacter(std::string_view text)
{
    constexpr std::size_t Length = 7;
    if (text.size() < Length || (text.substr(0, 3) != "\\U+" && text.substr(0, 3) != "\\u+")) {
        return std::nullopt;
    }
    char32_t value = 0;
    for (const char ch : text.substr(3, 4)) {
        const std::size_t digit = std::string_view("0123456789ABCDEFabcdef").find(ch);
        if (digit == std::string_view::npos) {
            return std::nullopt;
        }
        value = value * 16 + static_cast<char32_t>(digit < 16 ? digit : digit - 6);
    }
    if (value < 0x20 || (value >= 0xD800 && value <= 0xDFFF)) {
        return std::nullopt;
    }
    return value;
}

void AppendCharacter(std::string& out, char32_t value)
{
    const std::optional<char> plain = PlainCharacter(value);
    if (!plain) {
        AppendUtf8(out, value);
    } else if (*plain != ' ' || (!out.empty() && out.back() != ' ')) {
        out += *plain;
    }
}

// Appends what the head of a text stands for and answers how many bytes spell it.
std::size_t AppendFirst(std::string& plain, std::string_view drawn)
{
    for (const Spelling& code : Codes) {
        if (drawn.starts_with(code.drawn)) {
            plain += code.plain;
            return code.drawn.size();
        }
    }
    if (const std::optional<char32_t> escaped = EscapedCharacter(drawn)) {
        constexpr std::size_t Escape = 7;
        AppendCharacter(plain, *escaped);
        return Escape;
    }
    const Character character = FirstCharacter(drawn);
    if (character.value >= 0x10000 || (character.bytes == 1 && character.value >= 0x80)) {
        plain += drawn.substr(0, character.bytes);
    } else {
        AppendCharacter(plain, character.value);
    }
    return character.bytes;
}

}  // namespace

std::string PlainText(std::string_view drawn)
{
    std::vector<Stretch> spelled;
    return PlainText(drawn, spelled);
}

std::string PlainText(std::string_view drawn, std::vector<Stretch>& spelled)
{
    std::string plain;
    plain.reserve(drawn.size());
    spelled.clear();
    spelled.reserve(drawn.size());
    for (std::size_t at = 0; at < drawn.size();) {
        const std::size_t begin = at;
        at += AppendFirst(plain, drawn.substr(at));
        spelled.resize(plain.size(), {begin, at});
    }
    if (!plain.empty() && plain.back() == ' ') {
        plain.pop_back();
        spelled.pop_back();
    }
    return plain;
}

std::string ShowPlain(std::string_view plain)
{
    std::string shown;
    for (const char ch : plain) {
        shown += ch == OpenGrade ? std::string("Φ") : std::string(1, ch);
    }
    return shown;
}

}  // namespace Desk
