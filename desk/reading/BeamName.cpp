// The forms of names, sections and elevations.
#include "desk/reading/ReadFields.h"

#include <algorithm>

namespace Desk::Import {

namespace {

// "A-" in front of a name: the part of the building that it belongs to.
void EatBuildingPart(Cursor& at)
{
    Cursor cursor = at;
    while (Cursor::IsLetter(cursor.Peek()) || Cursor::IsDigit(cursor.Peek())) {
        cursor.Skip();
    }
    const std::size_t length = cursor.Place() - at.Place();
    if (length >= 1 && length <= 2 && cursor.Eat('-') && Cursor::IsLetter(cursor.Peek())) {
        at = cursor;
    }
}

bool IsType(std::string_view letters)
{
    constexpr std::size_t LongestType = 4;
    if (letters.empty() || letters.size() > LongestType) {
        return false;
    }
    return letters.back() == 'L' || letters.back() == 'l' || letters == "LLk" || letters == "LLK" ||
           letters == "llk";
}

// "(3)", "(2A)", "(B)"; nothing stands for a name without a suffix.
std::string_view EatSuffix(Cursor& at)
{
    Cursor cursor = at;
    cursor.SkipBlank();
    const std::size_t start = cursor.Place();
    if (!cursor.Eat('(')) {
        return {};
    }
    const bool hasCount = cursor.Number(1, 2).has_value();
    const bool hasMark = cursor.EatOneOf("ABab") != '\0';
    if ((!hasCount && !hasMark) || !cursor.Eat(')')) {
        return {};
    }
    at = cursor;
    return cursor.Since(start);
}

bool HoldsLower(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char ch) { return ch >= 'a' && ch <= 'z'; });
}

// One "300x600", written with a plain "x".
std::optional<std::string> ReadSides(Cursor& at)
{
    Cursor cursor = at;
    std::string text;
    if (cursor.Eat('Y')) {
        text = "Y";
    }
    const std::optional<std::string_view> width = cursor.Number(2, 4);
    cursor.SkipBlank();
    if (!width || cursor.EatOneOf("xX*") == '\0') {
        return std::nullopt;
    }
    cursor.SkipBlank();
    const std::optional<std::string_view> height = cursor.Number(2, 4);
    if (!height) {
        return std::nullopt;
    }
    text.append(*width).append("x").append(*height);
    Cursor tail = cursor;
    if (tail.Eat('/')) {
        const std::optional<std::string_view> otherHeight = tail.Number(2, 4);
        if (!otherHeight) {
            return std::nullopt;
        }
        text.append("/").append(*otherHeight);
        cursor = tail;
    }
    at = cursor;
    return text;
}

}  // namespace

std::optional<ReadField> ReadName(Cursor& at)
{
    Cursor cursor = at;
    EatBuildingPart(cursor);
    const std::size_t typeStart = cursor.Place();
    while (Cursor::IsLetter(cursor.Peek())) {
        cursor.Skip();
    }
    const std::string_view type = cursor.Since(typeStart);
    ReadField name{std::string(cursor.Since(at.Place())), {}};
    if (!IsType(type)) {
        return std::nullopt;
    }
    if (cursor.Eat('-')) {
        name.filled.insert(Filled::NameHyphen);
    }
    const std::optional<std::string_view> serial = cursor.Number(1, 3);
    if (!serial) {
        return std::nullopt;
    }
    name.text += *serial;
    Cursor letter = cursor;
    if (const char ch = letter.Peek(); ch >= 'a' && ch <= 'z' && ch != 'x') {
        letter.Skip();
        name.text += ch;
        cursor = letter;
    }
    const std::string_view suffix = EatSuffix(cursor);
    name.text += suffix;
    if (HoldsLower(name.text)) {
        name.filled.insert(Filled::NameCase);
    }
    at = cursor;
    return name;
}

std::optional<ReadField> ReadSection(Cursor& at)
{
    Cursor cursor = at;
    for (const std::string_view label : {"bxh", "bXh", "b*h", "BxH", "BXH", "B*H"}) {
        if (cursor.Eat(label)) {
            cursor.SkipBlank();
            if (!cursor.Eat('=') && !cursor.Eat(':')) {
                return std::nullopt;
            }
            cursor.SkipBlank();
            break;
        }
    }
    const std::optional<std::string> sides = ReadSides(cursor);
    if (!sides) {
        return std::nullopt;
    }
    ReadField section{*sides, {}};
    Cursor haunch = cursor;
    haunch.SkipBlank();
    if (section.text.front() != 'Y' && haunch.Peek() == 'Y') {
        if (const std::optional<std::string> second = ReadSides(haunch)) {
            section.text += " " + *second;
            cursor = haunch;
        }
    }
    at = cursor;
    return section;
}

std::optional<ReadField> ReadElevation(Cursor& at)
{
    Cursor cursor = at;
    const bool inBrackets = cursor.Eat('(');
    std::string text;
    cursor.SkipBlank();
    if (cursor.Eat('-')) {
        text = "-";
    } else if (!cursor.Eat('+')) {
        static_cast<void>(cursor.Eat("±"));
    }
    cursor.SkipBlank();
    const std::string_view whole = cursor.Digits();
    const bool hasPoint = cursor.Eat('.');
    const std::string_view decimals = cursor.Digits();
    cursor.SkipBlank();
    const bool isClosed = !inBrackets || cursor.Eat(')');
    if (whole.empty() || whole.size() > 3 || !hasPoint || decimals.empty() || decimals.size() > 4 ||
        !isClosed || cursor.Peek() == '~') {
        return std::nullopt;
    }
    text += std::string(whole) + "." + std::string(decimals);
    at = cursor;
    return ReadField{inBrackets ? "(" + text + ")" : text, {}};
}

}  // namespace Desk::Import
