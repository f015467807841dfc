// Stirrups and the spaced bars of walls: one form, and what each makes of it.
#include <algorithm>
#include <iterator>

#include "desk/reading/ReadFields.h"

namespace Desk::Import {

namespace {

// "(2)"; also "(2" at the end of the text. An empty text for none.
std::string EatLegs(Cursor& at, SpacedBars& bars)
{
    Cursor cursor = at;
    cursor.SkipBlank();
    if (!cursor.Eat('(')) {
        return {};
    }
    if (cursor.AtEnd()) {
        bars.isCutOff = true;
        at = cursor;
        return {};
    }
    const std::optional<std::string_view> legs = cursor.Number(1, 2);
    const bool isOpen = legs && cursor.AtEnd();
    if (!legs || (!isOpen && !cursor.Eat(')'))) {
        return {};
    }
    if (isOpen) {
        bars.filled.insert(Filled::Bracket);
    }
    at = cursor;
    return std::string(*legs);
}

// Cuts "8150", where the "@" was lost, into diameter and a spacing of three digits.
bool CutLostMark(std::string_view digits, SpacedBars& bars)
{
    if (digits.size() != 4 && digits.size() != 5) {
        return false;
    }
    const std::string_view diameter = digits.substr(0, digits.size() - 3);
    const std::string_view spacing = digits.substr(digits.size() - 3);
    constexpr std::string_view Usual[] = {"6", "8", "10", "12", "14", "16"};
    if (std::find(std::begin(Usual), std::end(Usual), diameter) == std::end(Usual) || spacing < "100" ||
        spacing > "400" || (spacing.back() != '0' && spacing.back() != '5')) {
        return false;
    }
    bars.diameter = diameter;
    bars.spacing = spacing;
    bars.filled.insert(Filled::LostMark);
    return true;
}

char GradeOf(const SpacedBars& bars, const Choices& choices, std::set<Filled>& filled)
{
    if (bars.grade == '\0') {
        filled.insert(Filled::LostGrade);
        return choices.stirrupGrade;
    }
    if (bars.grade == OpenGrade) {
        filled.insert(Filled::Grade);
        return choices.stirrupGrade;
    }
    return bars.grade;
}

}  // namespace

std::optional<SpacedBars> ReadSpacedBars(Cursor& at)
{
    Cursor cursor = at;
    SpacedBars bars;
    bars.grade = cursor.EatGrade();
    cursor.SkipBlank();
    const std::string_view digits = cursor.Digits();
    if (digits.empty() || digits.front() == '0') {
        return std::nullopt;
    }
    Cursor behindBlank = cursor;
    behindBlank.SkipBlank();
    const char mark = behindBlank.EatOneOf("@-");
    if (mark != '\0') {
        cursor = behindBlank;
        cursor.SkipBlank();
        const std::optional<std::string_view> spacing = cursor.Number(2, 3);
        if (!spacing || digits.size() > 2 || ValueOf(digits) < 4 || ValueOf(digits) > 32) {
            return std::nullopt;
        }
        bars.diameter = digits;
        bars.spacing = *spacing;
    } else if (bars.grade == '\0' || !CutLostMark(digits, bars)) {
        return std::nullopt;
    }
    bars.spacingLegs = EatLegs(cursor, bars);
    Cursor behindSlash = cursor;
    behindSlash.SkipBlank();
    if (behindSlash.Eat('/')) {
        cursor = behindSlash;
        cursor.SkipBlank();
        const std::optional<std::string_view> second = cursor.Number(2, 3);
        if (!second) {
            return std::nullopt;
        }
        bars.hasSecond = true;
        bars.second = *second;
        bars.legs = EatLegs(cursor, bars);
    } else {
        bars.legs = std::move(bars.spacingLegs);
        bars.spacingLegs.clear();
    }
    // Without grade sign or "@" the legs are what makes it a stirrup.
    const bool isDoubtful = mark == '\0' || (bars.grade == '\0' && mark == '-');
    if (isDoubtful && !bars.HasLegs()) {
        return std::nullopt;
    }
    at = cursor;
    return bars;
}

ReadField StirrupText(const SpacedBars& bars, const Choices& choices)
{
    ReadField field{{}, bars.filled};
    field.text = GradeOf(bars, choices, field.filled) + bars.diameter + "@" + bars.spacing;
    if (!bars.spacingLegs.empty()) {
        field.text += "(" + bars.spacingLegs + ")";
    }
    if (bars.hasSecond) {
        field.text += "/" + bars.second;
    }
    if (!bars.HasLegs()) {
        field.filled.insert(Filled::Legs);
    }
    field.text += "(" + (bars.HasLegs() ? bars.legs : std::to_string(choices.legs)) + ")";
    return field;
}

ReadField WallBarText(const SpacedBars& bars, const Choices& choices)
{
    ReadField field{{}, bars.filled};
    field.text = GradeOf(bars, choices, field.filled) + bars.diameter + "@" + bars.spacing;
    if (bars.hasSecond) {
        field.text += "/" + bars.second;
    }
    return field;
}

}  // namespace Desk::Import
