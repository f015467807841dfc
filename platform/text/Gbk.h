// Labels written as readable UTF-8 in the source and kept as GBK bytes, turned at compile time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// A character and its two bytes in code page 936, lead byte high.
struct GbkCharacter {
    char32_t character;
    std::uint16_t bytes;
};

// Every double-byte character that a label of the module uses, in GBK order. A label with another
// one does not compile: add its row, with the code that iconv gives for GBK.
inline constexpr GbkCharacter GbkCharacters[] = {
    {U'标', 0xB1EA}, {U'不', 0xB2BB}, {U'部', 0xB2BF}, {U'侧', 0xB2E0}, {U'成', 0xB3C9}, {U'除', 0xB3FD},
    {U'端', 0xB6CB}, {U'分', 0xB7D6}, {U'份', 0xB7DD}, {U'符', 0xB7FB}, {U'钢', 0xB8D6}, {U'高', 0xB8DF},
    {U'隔', 0xB8F4}, {U'构', 0xB9B9}, {U'贯', 0xB9E1}, {U'号', 0xBAC5}, {U'加', 0xBCD3}, {U'架', 0xBCDC},
    {U'间', 0xBCE4}, {U'筋', 0xBDEE}, {U'径', 0xBEB6}, {U'距', 0xBEE0}, {U'跨', 0xBFE7}, {U'宽', 0xBFED},
    {U'类', 0xC0E0}, {U'立', 0xC1A2}, {U'梁', 0xC1BA}, {U'密', 0xC3DC}, {U'面', 0xC3E6}, {U'扭', 0xC5A4},
    {U'排', 0xC5C5}, {U'删', 0xC9BE}, {U'上', 0xC9CF}, {U'数', 0xCAFD}, {U'宋', 0xCBCE}, {U'体', 0xCCE5},
    {U'挑', 0xCCF4}, {U'通', 0xCDA8}, {U'同', 0xCDAC}, {U'无', 0xCEDE}, {U'误', 0xCEF3}, {U'下', 0xCFC2},
    {U'型', 0xD0CD}, {U'序', 0xD0F2}, {U'悬', 0xD0FC}, {U'有', 0xD3D0}, {U'右', 0xD3D2}, {U'造', 0xD4EC},
    {U'肢', 0xD6AB}, {U'直', 0xD6B1}, {U'种', 0xD6D6}, {U'纵', 0xD7DD}, {U'左', 0xD7F3},
};

// The GBK bytes of one label, closed by a zero byte. Size is the literal's length in UTF-8 bytes
// with its zero byte, which a GBK text never exceeds.
template <std::size_t Size>
struct GbkText {
    std::array<char, Size> m_bytes{};

    // Not constexpr on purpose: reaching it while compiling stops the compiler.
    static void CharacterHasNoRowInTheGbkTable() {}

    consteval GbkText(const char8_t (&utf8)[Size])  // NOLINT: a literal is its own GBK text
    {
        std::size_t out = 0;
        for (std::size_t in = 0; in + 1 < Size;) {
            const char32_t lead = utf8[in];
            if (lead < 0x80) {
                m_bytes[out++] = static_cast<char>(lead);
                ++in;
                continue;
            }
            const std::size_t tail = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
            char32_t character = lead & (0x3FU >> tail);
            for (std::size_t i = 1; i <= tail; ++i) {
                character = (character << 6) | (utf8[in + i] & 0x3FU);
            }
            in += tail + 1;
            const std::uint16_t bytes = BytesOf(character);
            m_bytes[out++] = static_cast<char>(bytes >> 8);
            m_bytes[out++] = static_cast<char>(bytes & 0xFFU);
        }
    }

    [[nodiscard]] constexpr const char* Text() const { return m_bytes.data(); }
    constexpr operator const char*() const { return m_bytes.data(); }

private:
    static constexpr std::uint16_t BytesOf(char32_t character)
    {
        for (const GbkCharacter& row : GbkCharacters) {
            if (row.character == character) {
                return row.bytes;
            }
        }
        CharacterHasNoRowInTheGbkTable();
        return 0;
    }
};

// Gbk(u8"...") gives the label's GBK bytes; keep the result in a static constexpr object when a
// pointer to it is to outlive the expression.
template <std::size_t Size>
consteval GbkText<Size> Gbk(const char8_t (&utf8)[Size])
{
    return GbkText<Size>(utf8);
}
