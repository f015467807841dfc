#include "desk/reading/BeamName.h"

#include <algorithm>
#include <set>

#include "desk/reading/Cursor.h"

namespace Desk {

namespace {

// "A-" in front of a name: the part of the building that it belongs to.
void EatBuildingPart(Cursor& at)
{
    Cursor cursor = at;
    while (Cursor::IsLetter(cursor.Peek()) || Cursor::IsDigit(cursor.Peek())) {
        cursor.Skip();
    }
    const std::size_t length = cursor.Since(at).size();
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

// "(3)", "(2A)", "(B)"; a name may do without.
void EatSuffix(Cursor& at, BeamName& name)
{
    Cursor cursor = at;
    cursor.SkipBlank();
    if (!cursor.Eat('(')) {
        return;
    }
    const int spans = cursor.Number(1, 2).value_or(0);
    const char cantilever = cursor.EatOneOf("ABab");
    if ((spans > 0 || cantilever != '\0') && cursor.Eat(')')) {
        name.spans = spans;
        name.cantilever = cantilever;
        at = cursor;
    }
}

}  // namespace

std::string BeamName::Text() const
{
    std::string text = type + std::to_string(serial);
    if (letter != '\0') {
        text += letter;
    }
    if (spans > 0 || cantilever != '\0') {
        text += '(';
        text += spans > 0 ? std::to_string(spans) : "";
        text += cantilever != '\0' ? std::string(1, cantilever) : "";
        text += ')';
    }
    return text;
}

std::optional<BeamName> ReadName(Cursor& at)
{
    Cursor cursor = at;
    BeamName name;
    EatBuildingPart(cursor);
    if (!IsType(cursor.Letters())) {
        return std::nullopt;
    }
    name.type = cursor.Since(at);
    if (cursor.Eat('-')) {
        cursor.Mark(Filled::NameHyphen);
    }
    const std::optional<int> serial = cursor.Number(1, 3);
    if (!serial) {
        return std::nullopt;
    }
    name.serial = *serial;
    // An "x" begins the section of another text: L3x is no name.
    name.letter = cursor.EatOneOf("abcdefghijklmnopqrstuvwyz");
    EatSuffix(cursor, name);
    const std::string text = name.Text();
    if (std::any_of(text.begin(), text.end(), [](char ch) { return ch >= 'a' && ch <= 'z'; })) {
        cursor.Mark(Filled::NameCase);
    }
    at = cursor;
    return name;
}

std::optional<BeamName> ReadName(std::string_view text) { return ReadWhole<BeamName>(text, ReadName); }

std::optional<BeamName> ReadNameInAnyCase(std::string_view text)
{
    Cursor at(text);
    std::optional<BeamName> name = ReadName(at);
    at.SkipBlank();
    const bool isWhole = at.AtEnd() && (at.Marks().empty() || at.Marks() == std::set{Filled::NameCase});
    return isWhole ? name : std::nullopt;
}

}  // namespace Desk
