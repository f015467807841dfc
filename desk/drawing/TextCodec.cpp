#include "desk/drawing/TextCodec.h"

#include <optional>

#include "desk/project/Encoding.h"

namespace Desk {

namespace {

constexpr std::string_view Unknown = "\xEF\xBF\xBD";  // U+FFFD

// Where GBK keeps private characters, row by row.
struct PrivateArea {
    unsigned firstRow;
    unsigned lastRow;
    unsigned firstPlace;
    unsigned places;     // of a row; 7F is none
    unsigned character;  // the first one
};
constexpr PrivateArea PrivateAreas[] = {
    {0xAA, 0xAF, 0xA1, 94, 0xE000}, {0xF8, 0xFE, 0xA1, 94, 0xE234}, {0xA1, 0xA7, 0x40, 96, 0xE4C6}};

bool IsHigh(char ch) { return static_cast<unsigned char>(ch) >= 0x80; }

std::optional<unsigned> Hex(std::string_view digits)
{
    unsigned value = 0;
    for (const char ch : digits) {
        const std::size_t digit = std::string_view("0123456789ABCDEFabcdef").find(ch);
        if (digit == std::string_view::npos) {
            return std::nullopt;
        }
        value = value * 16 + static_cast<unsigned>(digit < 16 ? digit : digit - 6);
    }
    return digits.size() == 4 ? std::optional(value) : std::nullopt;
}

std::string Utf8Of(unsigned value)
{
    const auto byte = [](unsigned bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    if (value < 0x80) {
        return {byte(value)};
    }
    if (value < 0x800) {
        return {byte(0xC0 | (value >> 6)), byte(0x80 | (value & 0x3F))};
    }
    return {byte(0xE0 | (value >> 12)), byte(0x80 | ((value >> 6) & 0x3F)), byte(0x80 | (value & 0x3F))};
}

// A character of two GBK bytes.
std::string FromGbkPair(std::string_view pair)
{
    const auto row = static_cast<unsigned char>(pair[0]);
    const auto second = static_cast<unsigned char>(pair[1]);
    for (const PrivateArea& area : PrivateAreas) {
        const unsigned place = second - area.firstPlace - (second > 0x7F && area.firstPlace < 0x7F ? 1 : 0);
        if (row >= area.firstRow && row <= area.lastRow && second >= area.firstPlace && second != 0x7F &&
            place < area.places) {
            return Utf8Of(area.character + (row - area.firstRow) * area.places + place);
        }
    }
    return Utf8FromGbk(CString(pair));
}

// Bytes of a drawing font's grade signs, which are no UTF-8 either.
bool IsRawGrade(std::string_view bytes)
{
    return bytes.size() > 1 && bytes[0] == '\xA2' && bytes[1] >= 'J' && bytes[1] <= 'M';
}

class Decoder {
public:
    Decoder(std::string_view value, Charset charset, bool isMText)
        : m_value(value), m_charset(charset), m_isMText(isMText)
    {
        m_decoded.text.reserve(value.size());
        m_decoded.spelled.reserve(value.size());
    }

    Decoded Decode()
    {
        while (m_at < m_value.size()) {
            if (m_value[m_at] == '\\' && Escape()) {
                continue;
            }
            if (m_isMText && Format()) {
                continue;
            }
            Character();
        }
        return std::move(m_decoded);
    }

private:
    [[nodiscard]] std::string_view Rest() const { return m_value.substr(m_at); }

    void Put(std::string_view utf8, std::size_t bytes)
    {
        m_decoded.Append(utf8, {m_at, m_at + bytes});
        m_at += bytes;
    }

    bool Escape()
    {
        const std::string_view rest = Rest();
        if (rest.starts_with("\\U+")) {
            const std::optional<unsigned> value = Hex(rest.substr(3, 4));
            if (value && *value >= 0xA0 && (*value < 0xD800 || *value > 0xDFFF)) {
                Put(Utf8Of(*value), 7);
                return true;
            }
            if (value && m_isMText) {  // stays as it is: the reading knows grade signs so
                Put(rest.substr(0, 7), 7);
                return true;
            }
        }
        if (rest.starts_with("\\M+5")) {
            if (const std::optional<unsigned> value = Hex(rest.substr(4, 4))) {
                const char pair[] = {static_cast<char>(*value >> 8U), static_cast<char>(*value & 0xFFU)};
                Put(FromGbkPair({pair, 2}), 8);
                return true;
            }
        }
        return false;
    }

    // One piece of an MTEXT's own signs.
    bool Format()
    {
        const std::string_view rest = Rest();
        if (rest.front() == '{' || rest.front() == '}') {
            ++m_at;
            return true;
        }
        if (rest.starts_with("^J") || rest.starts_with("^I")) {
            Put(rest[1] == 'J' ? "\n" : " ", 2);
            return true;
        }
        if (rest.front() != '\\' || rest.size() < 2) {
            return false;
        }
        switch (rest[1]) {
        case 'P':
        case 'N': Put("\n", 2); return true;
        case '~': Put(" ", 2); return true;
        case '\\':
        case '{':
        case '}': Put(rest.substr(1, 1), 2); return true;
        case 'L':
        case 'l':
        case 'O':
        case 'o':
        case 'K':
        case 'k': m_at += 2; return true;
        case 'S': Fraction(); return true;
        default: break;
        }
        if (std::string_view("fFHWQTACcp").find(rest[1]) == std::string_view::npos) {
            return false;
        }
        const std::size_t end = rest.find(';');
        m_at += end == std::string_view::npos ? rest.size() : end + 1;
        return true;
    }

    void Fraction()
    {
        m_at += 2;
        while (m_at < m_value.size() && m_value[m_at] != ';') {
            const char ch = m_value[m_at];
            if (ch == '^' || ch == '#' || ch == '/') {
                Put("/", 1);
            } else {
                Character();
            }
        }
        m_at += m_at < m_value.size() ? 1 : 0;
    }

    void Character()
    {
        const std::string_view rest = Rest();
        if (!IsHigh(rest.front())) {
            Put(rest.substr(0, 1), 1);
        } else if (IsRawGrade(rest)) {
            Put(FromGbkPair(rest.substr(0, 2)), 2);
        } else if (m_charset == Charset::Utf8) {
            const std::size_t bytes = Utf8Length(rest);
            bytes > 0 ? Put(rest.substr(0, bytes), bytes) : Put(Unknown, 1);
        } else {
            const std::string character = rest.size() > 1 ? FromGbkPair(rest.substr(0, 2)) : "";
            character.empty() || character.starts_with(Unknown) ? Put(Unknown, 1) : Put(character, 2);
        }
    }

    std::string_view m_value;
    Charset m_charset;
    bool m_isMText;
    std::size_t m_at = 0;
    Decoded m_decoded;
};

}  // namespace

void Decoded::Append(std::string_view utf8, const Stretch& stretch)
{
    text += utf8;
    spelled.resize(text.size(), stretch);
}

Decoded DecodeText(std::string_view value, Charset charset, bool isMText)
{
    return Decoder(value, charset, isMText).Decode();
}

std::string EncodeText(std::string_view utf8, Charset charset, bool isMText)
{
    std::string value;
    while (!utf8.empty()) {
        const std::size_t bytes = Utf8Length(utf8);
        const std::string_view character = utf8.substr(0, bytes > 0 ? bytes : 1);
        utf8.remove_prefix(character.size());
        if (character.size() == 1) {
            const bool isOwn =
                isMText && std::string_view("\\{}").find(character) != std::string_view::npos;
            value.append(isOwn ? "\\" : "").append(character);
            continue;
        }
        if (charset == Charset::Utf8) {
            value += character;
            continue;
        }
        if (const std::optional<CString> gbk = GbkFromUtf8(character)) {
            value += gbk->View();
            continue;
        }
        unsigned code = static_cast<unsigned char>(character.front()) & (0x7FU >> character.size());
        for (const char ch : character.substr(1)) {
            code = (code << 6U) | (static_cast<unsigned char>(ch) & 0x3FU);
        }
        constexpr char Digits[] = "0123456789ABCDEF";
        value += "\\U+";
        for (const unsigned shift : {12U, 8U, 4U, 0U}) {
            value += Digits[(code >> shift) & 0xFU];
        }
    }
    return value;
}

std::string GbkOfPrivate(unsigned character)
{
    for (const PrivateArea& area : PrivateAreas) {
        const unsigned count = (area.lastRow - area.firstRow + 1) * area.places;
        if (character >= area.character && character < area.character + count) {
            const unsigned row = area.firstRow + (character - area.character) / area.places;
            const unsigned place = area.firstPlace + (character - area.character) % area.places;
            return {static_cast<char>(row),
                    static_cast<char>(place + (area.firstPlace < 0x7F && place >= 0x7F ? 1 : 0))};
        }
    }
    return {};
}

void CountHighBytes(std::string_view value, std::size_t& highBytes, std::size_t& notUtf8)
{
    while (!value.empty()) {
        if (!IsHigh(value.front())) {
            value.remove_prefix(1);
            continue;
        }
        const std::size_t bytes = Utf8Length(value);
        highBytes += bytes > 0 ? bytes : 1;
        notUtf8 += bytes > 0 ? 0 : 1;
        value.remove_prefix(bytes > 0 ? bytes : 1);
    }
}

Charset CharsetFor(std::size_t highBytes, std::size_t notUtf8, Charset fileSays)
{
    if (highBytes == 0) {
        return fileSays;
    }
    if (notUtf8 == 0) {
        return Charset::Utf8;
    }
    return 2 * notUtf8 > highBytes ? Charset::Gbk : fileSays;
}

}  // namespace Desk
