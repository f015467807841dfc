#include "desk/reading/Stirrup.h"

#include <algorithm>
#include <iterator>

#include "desk/reading/Cursor.h"
#include "host/StirrupText.h"

namespace Desk {

namespace {

// "(2)"; also "(2" at the end of the text. 0 for none.
int EatLegs(Cursor& at)
{
    Cursor cursor = at;
    cursor.SkipBlank();
    const std::optional<int> legs = cursor.Eat('(') ? cursor.Number(1, 2) : std::nullopt;
    if (!legs) {
        return 0;
    }
    if (cursor.AtEnd()) {
        cursor.Mark(Filled::Bracket);
    } else if (!cursor.Eat(')')) {
        return 0;
    }
    at = cursor;
    return *legs;
}

// Cuts "8150", where the "@" was lost, into diameter and a spacing of three digits.
bool CutLostMark(std::string_view digits, Stirrup& read)
{
    if (digits.size() != 4 && digits.size() != 5) {
        return false;
    }
    constexpr int Usual[] = {6, 8, 10, 12, 14, 16};  // mm
    read.diameter = NumberValue(digits.substr(0, digits.size() - 3));
    read.spacing = NumberValue(digits.substr(digits.size() - 3));
    return std::find(std::begin(Usual), std::end(Usual), read.diameter) != std::end(Usual) &&
           read.spacing >= 100 && read.spacing <= 400 && read.spacing % 5 == 0;
}

CString NumberText(int number) { return CString(std::string_view(std::to_string(number))); }
CString LegsText(int legs) { return legs > 0 ? "(" + NumberText(legs) + ")" : CString(); }

}  // namespace

std::string Stirrup::Text() const
{
    const CString tight = tightSpacing > 0 ? NumberText(tightSpacing) : CString();
    const CString text =
        StirrupText::ComposeFromRows({std::string_view(&grade, 1), NumberText(diameter), tight,
                                      LegsText(tightLegs), NumberText(spacing), LegsText(legs)});
    return std::string(text.View());
}

std::optional<Stirrup> ReadStirrup(Cursor& at)
{
    Cursor cursor = at;
    Stirrup read;
    const char grade = cursor.EatGrade(cursor.Chosen().stirrupGrade);
    read.grade = grade != '\0' ? grade : cursor.Chosen().stirrupGrade;
    if (grade == '\0') {
        cursor.Mark(Filled::LostGrade);
    }
    cursor.SkipBlank();
    const std::string_view digits = cursor.Digits();
    if (digits.empty() || digits.front() == '0') {
        return std::nullopt;
    }
    const char mark = cursor.EatJoint('@') ? '@' : cursor.EatJoint('-') ? '-' : '\0';
    if (mark != '\0') {
        const std::optional<int> spacing = cursor.Number(2, 3);
        read.diameter = digits.size() <= 2 ? NumberValue(digits) : 0;
        if (!spacing || read.diameter < 4 || read.diameter > 32) {
            return std::nullopt;
        }
        read.spacing = *spacing;
    } else if (grade == '\0' || !CutLostMark(digits, read)) {
        return std::nullopt;
    } else {
        cursor.Mark(Filled::LostMark);
    }
    read.legs = EatLegs(cursor);
    if (cursor.EatJoint('/')) {
        const std::optional<int> spacing = cursor.Number(2, 3);
        if (!spacing) {
            return std::nullopt;
        }
        read.tightSpacing = read.spacing;
        read.tightLegs = read.legs;
        read.spacing = *spacing;
        read.legs = EatLegs(cursor);
    }
    // Without grade sign or "@" the legs are what makes it a stirrup.
    const bool isDoubtful = mark == '\0' || (grade == '\0' && mark == '-');
    if (isDoubtful && read.legs == 0) {
        return std::nullopt;
    }
    at = cursor;
    return read;
}

std::optional<Stirrup> ReadStirrup(std::string_view text) { return ReadWhole<Stirrup>(text, ReadStirrup); }

int InnerWidth(int width, const std::optional<Stirrup>& stirrup, int concreteGrade)
{
    constexpr int Usual = 8;
    return width - 2 * (CoverOf(concreteGrade) + (stirrup ? stirrup->diameter : Usual));
}

}  // namespace Desk
