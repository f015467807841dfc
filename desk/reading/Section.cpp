#include "desk/reading/Section.h"

#include <array>
#include <charconv>

#include "desk/reading/Cursor.h"

namespace Desk {

namespace {

// "bxh=", "b*h:"; false for a label that nothing follows.
bool SkipLabel(Cursor& at)
{
    if (at.EatOneOf("bB") == '\0') {
        return true;
    }
    const bool isLabel = at.EatOneOf("xX*") != '\0' && at.EatOneOf("hH") != '\0';
    return isLabel && (at.EatJoint('=') || at.EatJoint(':'));
}

// "300x600"
bool ReadSides(Cursor& at, int& first, int& second)
{
    Cursor cursor = at;
    const std::optional<int> width = cursor.Number(2, 4);
    cursor.SkipBlank();
    if (!width || (cursor.EatOneOf("xX*") == '\0' && !cursor.Eat("×"))) {
        return false;
    }
    cursor.SkipBlank();
    const std::optional<int> height = cursor.Number(2, 4);
    if (!height) {
        return false;
    }
    first = *width;
    second = *height;
    at = cursor;
    return true;
}

std::string Sides(int first, int second) { return std::to_string(first) + "x" + std::to_string(second); }

}  // namespace

std::string Section::Text() const
{
    std::string text = width > 0 ? Sides(width, height) : "";
    if (otherHeight > 0) {
        text += '/';
        text += std::to_string(otherHeight);
    }
    if (haunchLength > 0) {
        text += (text.empty() ? "Y" : " Y") + Sides(haunchLength, haunchHeight);
    }
    return text;
}

std::optional<Section> ReadSection(Cursor& at)
{
    Cursor cursor = at;
    Section section;
    if (!SkipLabel(cursor)) {
        return std::nullopt;
    }
    if (ReadSides(cursor, section.width, section.height) && cursor.Eat('/')) {
        const std::optional<int> other = cursor.Number(2, 4);
        if (!other) {
            return std::nullopt;
        }
        section.otherHeight = *other;
    }
    Cursor haunch = cursor;
    haunch.SkipBlank();
    if (haunch.Eat('Y') && ReadSides(haunch, section.haunchLength, section.haunchHeight)) {
        cursor = haunch;
    }
    if (section == Section()) {
        return std::nullopt;
    }
    at = cursor;
    return section;
}

std::optional<Section> ReadSection(std::string_view text) { return ReadWhole<Section>(text, ReadSection); }

int WidthOf(std::string_view section) { return ReadSection(section).value_or(Section()).width; }

std::string Elevation::Text() const
{
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), metres,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    const std::string number(digits.data(), end);
    return inBrackets ? "(" + number + ")" : number;
}

std::optional<Elevation> ReadElevation(Cursor& at)
{
    Cursor cursor = at;
    Elevation elevation;
    elevation.inBrackets = cursor.Eat('(');
    cursor.SkipBlank();
    const bool isNegative = cursor.Eat('-');
    if (!isNegative && !cursor.Eat('+')) {
        static_cast<void>(cursor.Eat("±"));
    }
    cursor.SkipBlank();
    const Cursor number = cursor;
    const std::string_view whole = cursor.Digits();
    const bool hasPoint = cursor.Eat('.');
    const std::string_view decimals = cursor.Digits();
    const double metres = RealValue(cursor.Since(number));
    cursor.SkipBlank();
    const bool isClosed = !elevation.inBrackets || cursor.Eat(')');
    if (whole.empty() || whole.size() > 3 || (whole.size() > 1 && whole.front() == '0') || !hasPoint ||
        decimals.empty() || decimals.size() > 4 || !isClosed || cursor.Peek() == '~') {
        return std::nullopt;
    }
    elevation.metres = isNegative ? -metres : metres;
    elevation.decimals = static_cast<int>(decimals.size());
    at = cursor;
    return elevation;
}

std::optional<Elevation> ReadElevation(std::string_view text)
{
    return ReadWhole<Elevation>(text, ReadElevation);
}

}  // namespace Desk
