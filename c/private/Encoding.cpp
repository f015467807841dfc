#include "c/private/Encoding.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <vector>

#include "RankerModule.h"
#include "c/private/GbkRows.h"

namespace RankerC {

namespace {

constexpr unsigned FirstLead = 0x81;
constexpr unsigned FirstTrail = 0x40;
constexpr unsigned NoTrail = 0x7F;  // the one trail byte in between that is none

constexpr char16_t Euro = u'\u20AC';  // the one character besides ASCII that has a single byte
constexpr unsigned EuroByte = 0x80;

unsigned Byte(char ch) { return static_cast<unsigned char>(ch); }

// Where a trail byte's character is in its row.
std::size_t ColumnOf(unsigned trail) { return trail - FirstTrail - (trail > NoTrail ? 1 : 0); }

// The rows the other way round, worked out when the first such text comes.
const std::vector<std::uint16_t>& BytesByCharacter()
{
    static const std::vector<std::uint16_t> bytes = [] {
        std::vector<std::uint16_t> made(0x10000, 0);
        for (unsigned row = 0; row < std::size(GbkRows); ++row) {
            for (unsigned column = 0; column < GbkRows[row].size(); ++column) {
                const unsigned trail = FirstTrail + column;
                const unsigned skipped = trail >= NoTrail ? 1 : 0;
                made[GbkRows[row][column]] =
                    static_cast<std::uint16_t>(((FirstLead + row) << 8) | (trail + skipped));
            }
        }
        made[NoCharacter] = 0;
        made[Euro] = EuroByte;
        return made;
    }();
    return bytes;
}

struct Character {
    char32_t value = 0;
    std::size_t length = 0;  // bytes; 0 for what is no UTF-8
};

// The first character of a text. Overlong forms, surrogates and values past the last character are none.
Character FirstOf(std::string_view utf8)
{
    constexpr std::array<char32_t, 5> Least = {0, 0, 0x80, 0x800, 0x10000};
    const unsigned lead = Byte(utf8[0]);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || utf8.size() < length) {
        return {};
    }
    char32_t value = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((Byte(utf8[i]) & 0xC0U) != 0x80U) {
            return {};
        }
        value = (value << 6) | (Byte(utf8[i]) & 0x3FU);
    }
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    return value < Least[length] || isSurrogate || value > 0x10FFFF ? Character{}
                                                                    : Character{value, length};
}

}  // namespace

bool IsPlain(std::string_view text) noexcept
{
    constexpr std::uint64_t Ones = 0x0101010101010101;
    constexpr std::uint64_t Highs = 0x8080808080808080;
    const char* at = text.data();
    std::size_t left = text.size();
    // Eight bytes at a time: a byte of 0 borrows from its neighbours, one above 0x7F has its high bit.
    for (; left >= 8; left -= 8, at += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, 8);
        if (((word | (word - Ones)) & Highs) != 0) {
            return false;
        }
    }
    for (; left > 0; --left, ++at) {
        if (Byte(*at) - 1U >= 0x7FU) {
            return false;
        }
    }
    return true;
}

unsigned GbkOf(char32_t character) noexcept
{
    if (character < 0x80) {
        return static_cast<unsigned>(character);
    }
    return character < 0x10000 ? BytesByCharacter()[character] : 0;
}

std::optional<std::string> GbkFromUtf8(std::string_view utf8)
{
    std::string gbk;
    gbk.reserve(utf8.size());
    while (!utf8.empty()) {
        const Character first = FirstOf(utf8);
        const unsigned bytes = first.length == 0 ? 0 : GbkOf(first.value);
        if (bytes == 0) {
            return std::nullopt;
        }
        if (bytes > 0xFF) {
            gbk += static_cast<char>(bytes >> 8);
        }
        gbk += static_cast<char>(bytes & 0xFFU);
        utf8.remove_prefix(first.length);
    }
    return gbk;
}

std::optional<std::string> Utf8FromGbk(std::string_view gbk)
{
    std::string utf8;
    utf8.reserve(gbk.size() * 3 / 2);
    for (std::size_t i = 0; i < gbk.size(); ++i) {
        if (Byte(gbk[i]) < 0x80) {
            if (gbk[i] == '\0') {
                return std::nullopt;
            }
            utf8 += gbk[i];
            continue;
        }
        char16_t character = NoCharacter;
        if (Byte(gbk[i]) == EuroByte) {
            character = Euro;
        } else if (IsGbkLead(gbk[i]) && i + 1 < gbk.size() && IsGbkTrail(gbk[i + 1])) {
            const unsigned lead = Byte(gbk[i]);
            character = GbkRows[lead - FirstLead][ColumnOf(Byte(gbk[++i]))];
        }
        if (character == NoCharacter) {
            return std::nullopt;
        }
        if (character >= 0x800) {
            utf8 += static_cast<char>(0xE0 | (character >> 12));
            utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        } else {
            utf8 += static_cast<char>(0xC0 | (character >> 6));
        }
        utf8 += static_cast<char>(0x80 | (character & 0x3F));
    }
    return utf8;
}

}  // namespace RankerC
