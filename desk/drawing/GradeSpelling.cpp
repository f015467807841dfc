#include "desk/drawing/GradeSpelling.h"

#include <algorithm>
#include <charconv>

#include "desk/drawing/Parts.h"

namespace Desk {

namespace {

constexpr char HexDigits[] = "0123456789ABCDEF";

bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }

// A to D in front of a diameter, at the head of a text or after what a count or a joint ends with.
bool IsGrade(std::string_view text, std::size_t at)
{
    const char before = at == 0 ? '+' : text[at - 1];
    return text[at] >= 'A' && text[at] <= 'D' && at + 1 < text.size() && IsDigit(text[at + 1]) &&
           (IsDigit(before) || std::string_view("+/; (").find(before) != std::string_view::npos);
}

std::string SpelledAt(const Drawing::Parts& parts, const TextLine& line, std::size_t at)
{
    const Stretch stretch = line.spelled[at];
    return ValueOf(parts.file, parts.EntityOf(line)).substr(stretch.begin, stretch.end - stretch.begin);
}

}  // namespace

std::string GradeSpelling::Spell(const TextLine& line, const Stretch& part, const std::string& text,
                                 bool isBars) const
{
    const bool isMText = m_parts.EntityOf(line).kind == TextKind::MText;
    std::string cross = "x";
    for (std::size_t i = part.begin; i < part.end && i < line.spelled.size(); ++i) {
        if (line.plain[i] == 'x') {
            cross = SpelledAt(m_parts, line, i);
        }
    }
    std::string spelled;
    for (std::size_t i = 0; i < text.size();) {
        if (isBars && IsGrade(text, i)) {
            spelled += SpellGrade(line, part, text[i++]);
        } else if (!isBars && text[i] == 'x' && i > 0 && IsDigit(text[i - 1])) {
            spelled += cross;
            ++i;
        } else {
            std::size_t end = i + 1;
            while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
                ++end;
            }
            spelled += EncodeText(std::string_view(text).substr(i, end - i), m_parts.file.charset, isMText);
            i = end;
        }
    }
    return spelled;
}

std::string GradeSpelling::SpellGrade(const TextLine& line, const Stretch& part, char grade) const
{
    const Stretch all{0, line.plain.size()};
    for (const Stretch& where : {part, all}) {
        for (std::size_t i = where.begin; i < where.end; ++i) {
            const bool isSame = line.plain[i] == grade && IsGrade(line.plain, i);
            // A sign that names no grade was read as the usual one.
            const bool isOpen =
                line.plain[i] == OpenGrade &&
                grade == (line.annotations.front().field == Field::Stirrup ? Choices().stirrupGrade
                                                                           : Choices().barGrade);
            if (isSame || isOpen) {
                return SpelledAt(m_parts, line, i);
            }
        }
        if (const std::optional<Way> way = WayOf(line, where)) {
            return Written(*way, grade);
        }
    }
    LearnWays();
    const auto ofLayer = m_ofLayer.find(m_parts.placed.texts[line.placed].layer);
    return Written(ofLayer != m_ofLayer.end() ? ofLayer->second : m_ofFile.value_or(Way()), grade);
}

std::optional<GradeSpelling::Way> GradeSpelling::WayOf(const TextLine& line, const Stretch& part) const
{
    for (std::size_t i = part.begin; i < part.end && i < line.spelled.size(); ++i) {
        if (IsGrade(line.plain, i)) {
            if (const std::optional<Way> way = WayOf(SpelledAt(m_parts, line, i), line.plain[i])) {
                return way;
            }
        }
    }
    return std::nullopt;
}

std::optional<GradeSpelling::Way> GradeSpelling::WayOf(std::string_view spelled, char grade) const
{
    const auto number = static_cast<unsigned>(grade - 'A');
    if (spelled.size() == 1) {
        return Way{Way::Kind::Letter, 0};
    }
    if (spelled.starts_with("%%13")) {
        return Way{Way::Kind::Percent, 0};
    }
    if (spelled.starts_with("\\U+") || spelled.starts_with("\\u+")) {
        unsigned code = 0;
        std::from_chars(spelled.data() + 3, spelled.data() + spelled.size(), code, 16);
        return code >= number ? std::optional(Way{Way::Kind::Escape, code - number}) : std::nullopt;
    }
    const std::string text = DecodeText(spelled, m_parts.file.charset, false).text;
    if (text.size() < 2 || text.size() > 3) {
        return std::nullopt;
    }
    unsigned code = static_cast<unsigned char>(text.front()) & (0x7FU >> text.size());
    for (const char ch : text.substr(1)) {
        code = (code << 6U) | (static_cast<unsigned char>(ch) & 0x3FU);
    }
    const unsigned first = code - number;
    const bool isKnown = first == 0x82 || first == 0xE000 || first == 0xE530;
    const Way::Kind kind = spelled.starts_with("\\M+") ? Way::Kind::Multibyte : Way::Kind::Character;
    return isKnown ? std::optional(Way{kind, first}) : std::nullopt;
}

std::string GradeSpelling::Written(const Way& way, char grade) const
{
    const auto number = static_cast<unsigned>(grade - 'A');
    const unsigned code = way.first + number;
    switch (way.kind) {
    case Way::Kind::Letter: return {grade};
    case Way::Kind::Percent: return std::string("%%13") + static_cast<char>('0' + number);
    case Way::Kind::Escape: break;
    case Way::Kind::Character:
        if (m_parts.file.charset == Charset::Utf8) {
            const auto byte = [](unsigned bits) {
                return static_cast<char>(static_cast<unsigned char>(bits));
            };
            return code < 0x800
                       ? std::string{byte(0xC0 | (code >> 6U)), byte(0x80 | (code & 0x3FU))}
                       : std::string{byte(0xE0 | (code >> 12U)), byte(0x80 | ((code >> 6U) & 0x3FU)),
                                     byte(0x80 | (code & 0x3FU))};
        }
        if (const std::string bytes = GbkOfPrivate(code); !bytes.empty()) {
            return bytes;
        }
        break;
    case Way::Kind::Multibyte: {
        std::string escape = "\\M+5";
        for (const char byte : GbkOfPrivate(code)) {
            escape += HexDigits[static_cast<unsigned char>(byte) >> 4U];
            escape += HexDigits[static_cast<unsigned char>(byte) & 0xFU];
        }
        return escape;
    }
    }
    std::string escape = "\\U+";
    for (const unsigned shift : {12U, 8U, 4U, 0U}) {
        escape += HexDigits[(code >> shift) & 0xFU];
    }
    return escape;
}

// The way that most texts of a layer, or of the file, have.
void GradeSpelling::LearnWays() const
{
    if (m_isLearnt) {
        return;
    }
    m_isLearnt = true;
    std::map<std::uint32_t, std::map<Way, int>> counts;
    std::map<Way, int> all;
    for (const TextLine& line : m_parts.found.lines) {
        if (const std::optional<Way> way = WayOf(line, {0, line.plain.size()})) {
            ++counts[m_parts.placed.texts[line.placed].layer][*way];
            ++all[*way];
        }
    }
    const auto most = [](const std::map<Way, int>& of) {
        return std::max_element(of.begin(), of.end(),
                                [](const auto& a, const auto& b) { return a.second < b.second; })
            ->first;
    };
    for (const auto& [layer, ways] : counts) {
        m_ofLayer.emplace(layer, most(ways));
    }
    if (!all.empty()) {
        m_ofFile = most(all);
    }
}

}  // namespace Desk
