// The shapes of texts that are no annotations.
#include "desk/reading/Unread.h"

#include <algorithm>

#include "desk/reading/Cursor.h"

namespace Desk {

namespace {

bool AllDigits(std::string_view text) { return std::all_of(text.begin(), text.end(), Cursor::IsDigit); }

// "C30"
bool IsConcreteGrade(std::string_view plain)
{
    return plain.size() == 3 && plain.front() == 'C' && AllDigits(plain.substr(1)) && plain[1] != '0' &&
           plain[2] % 5 == '0' % 5;
}

// "Q235", "HRB400"
bool IsSteelGrade(std::string_view plain)
{
    Cursor cursor(plain);
    const bool hasWord = cursor.Eat("HRBF") || cursor.Eat("HRB") || cursor.Eat("HPB") ||
                         cursor.Eat("RRB") || cursor.Eat("CRB") || cursor.Eat('Q');
    return hasWord && cursor.Number(3, 4) && (cursor.AtEnd() || cursor.Rest() == "E");
}

}  // namespace

std::string WhatElse(std::string_view drawn, std::string_view plain)
{
    if (plain.empty()) {
        return "blanks or underline codes alone";
    }
    const bool isGradeSign = plain.size() == 1 && Cursor(plain).EatGrade('B') != '\0';
    if (isGradeSign && drawn.find(plain.front()) == std::string_view::npos) {
        return plain.front() == OpenGrade ? "a grade sign alone, of no certain grade"
                                          : "a grade sign alone: " + std::string(plain);
    }
    if (IsConcreteGrade(plain)) {
        return "a concrete grade";
    }
    return IsSteelGrade(plain) ? "a steel grade" : std::string();
}

std::string WhyUnread(std::string_view plain, Kind kind)
{
    const std::string_view letters = Cursor(plain).Letters();
    const std::string_view rest = plain.substr(letters.size());
    const bool isType = !letters.empty() && (letters.find('L') != std::string_view::npos ||
                                             letters.find('l') != std::string_view::npos);
    if (plain.find('~') != std::string_view::npos) {
        return "a range of values; an annotation holds one";
    }
    if (kind == Kind::GlyphCode) {
        return "a sign whose meaning is not known";
    }
    if (letters.empty() && AllDigits(plain)) {
        return "a bare number";
    }
    if (isType && letters.back() != 'L' && letters.back() != 'l' && !rest.empty()) {
        return "the letters in front of the number do not end in L, so it is no beam name";
    }
    if (isType && (rest.empty() || rest.front() == '(')) {
        return "a beam type without a serial";
    }
    if (isType && rest.size() > 3 && AllDigits(rest)) {
        return "a serial of more than three digits; it looks like a length";
    }
    if (letters == "N" && rest.find('@') != std::string_view::npos) {
        return "\"N\" in place of the grade sign of a stirrup";
    }
    if (letters == "HRB" || letters == "HPB" || letters == "RRB") {
        return "a steel's name in place of a grade letter; which letter stands for it differs";
    }
    if (letters == "Hg") {
        return "an elevation told by another one, Hg";
    }
    if (kind == Kind::Name) {
        return "a beam name is letters that end in L and a serial; this has another shape";
    }
    return "no annotation of a beam or a wall has this shape";
}

}  // namespace Desk
