// Bar terms, row parts, joints and dressings.
#include "desk/reading/ReadBars.h"

#include <utility>

namespace Desk::Import {

namespace {

bool IsDiameter(std::string_view digits)
{
    return digits.front() != '0' && digits.size() <= 2 && ValueOf(digits) >= 6 && ValueOf(digits) <= 50;
}

struct Term {
    std::string text;
    int count = 0;
    bool rowsAreGlued = false;  // "6C254/2"
};

struct Rows {
    std::string upper;
    std::string lower;
};

void Note(std::string& list, std::string_view stretch)
{
    if (!list.empty()) {
        list += ' ';
    }
    list += stretch;
}

// Cuts "254/2" behind the diameter, where a blank was lost in front of a row part.
std::string_view DiameterBeforeRows(std::string_view digits, const Cursor& behind)
{
    const std::string_view rest = behind.Rest();
    const bool rowsFollow = rest.size() > 1 && rest[0] == '/' && Cursor::IsDigit(rest[1]);
    return digits.size() == 3 && rowsFollow ? digits.substr(0, 2) : digits;
}

std::optional<Term> ReadTerm(Cursor& at, const Choices& choices, std::set<Filled>& filled)
{
    Cursor cursor = at;
    const std::optional<std::string_view> count = cursor.Number(1, 2);
    cursor.SkipBlank();
    char grade = cursor.EatGrade();
    if (!count || grade == '\0') {
        return std::nullopt;
    }
    cursor.SkipBlank();
    Cursor behindDiameter = cursor;
    const std::string_view digits = behindDiameter.Digits();
    const std::string_view diameter = DiameterBeforeRows(digits, behindDiameter);
    if (diameter.empty() || !IsDiameter(diameter)) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < diameter.size(); ++i) {
        cursor.Skip();
    }
    if (diameter.size() < digits.size()) {
        filled.insert(Filled::LostBlank);
    }
    if (grade == OpenGrade) {
        grade = choices.barGrade;
        filled.insert(Filled::Grade);
    }
    at = cursor;
    return Term{std::string(*count) + grade + std::string(diameter), ValueOf(*count),
                diameter.size() < digits.size()};
}

// "4/2", where no third row and no bar term follows: "6C25 4/2C20" has none.
std::optional<Rows> ReadRowCounts(Cursor& at, std::string& leftOut)
{
    Cursor cursor = at;
    Rows rows;
    const auto readCount = [&cursor, &leftOut](std::string& row) {
        const std::optional<std::string_view> count = cursor.Number(1, 2);
        if (!count) {
            return false;
        }
        row = *count;
        const std::size_t bracket = cursor.Place();
        if (cursor.Eat("(-") && cursor.Number(1, 2) && cursor.Eat(')')) {
            Note(leftOut, cursor.Since(bracket));
        }
        return true;
    };
    if (!readCount(rows.upper) || !cursor.Eat('/') || !readCount(rows.lower)) {
        return std::nullopt;
    }
    Cursor next = cursor;
    next.SkipBlank();
    if (next.EatGrade() != '\0' || cursor.Peek() == '/') {
        return std::nullopt;
    }
    at = cursor;
    return rows;
}

// A row part behind a blank, in brackets, or glued to the diameter.
std::optional<Rows> ReadRowPart(Cursor& at, bool isGlued, std::string& leftOut)
{
    Cursor cursor = at;
    std::string stretches = leftOut;
    const bool behindBlank = cursor.Eat(' ');
    const bool inBrackets = cursor.Eat('(');
    if (!behindBlank && !inBrackets && !isGlued) {
        return std::nullopt;
    }
    std::optional<Rows> rows = ReadRowCounts(cursor, stretches);
    if (!rows || (inBrackets && !cursor.Eat(')'))) {
        return std::nullopt;
    }
    at = cursor;
    leftOut = std::move(stretches);
    return rows;
}

// Brackets behind a term that the grammar has no place for: "(-3)", "(2)", "(3/3/3)".
void ReadStrangeBracket(Cursor& at, BarGroup& group)
{
    Cursor cursor = at;
    cursor.SkipBlank();
    const std::size_t start = cursor.Place();
    if (!cursor.Eat('(')) {
        return;
    }
    const bool isShort = cursor.Eat('-');
    bool isNumber = true;
    do {
        isNumber = cursor.Number(1, 2).has_value();
    } while (isNumber && cursor.Eat('/'));
    if (isNumber && cursor.Eat(')')) {
        Note(group.leftOut, cursor.Since(start));
        group.endsShort = group.endsShort || isShort;
        at = cursor;
    }
}

// "(2C12+2C14)" behind a "+".
bool ReadErection(Cursor& at, const Choices& choices, BarGroup& group)
{
    Cursor cursor = at;
    std::set<Filled> filled = group.filled;
    if (!group.erection.empty() || !cursor.Eat('(')) {
        return false;
    }
    std::string text;
    do {
        cursor.SkipBlank();
        const std::optional<Term> term = ReadTerm(cursor, choices, filled);
        if (!term) {
            return false;
        }
        text += (text.empty() ? "" : "+") + term->text;
        cursor.SkipBlank();
    } while (cursor.Eat('+'));
    if (!cursor.Eat(')')) {
        return false;
    }
    group.erection = std::move(text);
    group.filled = std::move(filled);
    at = cursor;
    return true;
}

bool EatJoint(Cursor& at, char joint)
{
    Cursor cursor = at;
    cursor.SkipBlank();
    if (!cursor.Eat(joint)) {
        return false;
    }
    cursor.SkipBlank();
    at = cursor;
    return true;
}

// The terms of one layer with their row part; false when no term stands here.
bool ReadLayer(Cursor& at, const Choices& choices, BarGroup& group)
{
    Cursor cursor = at;
    std::string text;
    int bars = 0;
    std::optional<Rows> rows;
    while (true) {
        const std::optional<Term> term = ReadTerm(cursor, choices, group.filled);
        if (!term) {
            break;
        }
        text += (text.empty() ? "" : "+") + term->text;
        bars += term->count;
        rows = ReadRowPart(cursor, term->rowsAreGlued, group.leftOut);
        ReadStrangeBracket(cursor, group);
        at = cursor;
        if (rows) {
            break;
        }
        if (!EatJoint(cursor, '+')) {
            break;
        }
        if (ReadErection(cursor, choices, group)) {
            at = cursor;
            break;
        }
    }
    if (text.empty()) {
        return false;
    }
    if (rows) {
        text += " " + rows->upper + "/" + rows->lower;
        if (ValueOf(rows->upper) + ValueOf(rows->lower) != bars) {
            group.filled.insert(Filled::RowSum);
        }
    }
    group.text += text;
    return true;
}

BarPlace ReadDressing(Cursor& at, std::string& head)
{
    Cursor cursor = at;
    switch (cursor.EatOneOf("GgNn*BT")) {
    case 'G':
    case 'g': head = "G"; break;
    case 'N':
    case 'n': head = "N"; break;
    case '*': head = "*"; break;
    case 'B':
        cursor.Eat(':');
        at = cursor;
        return BarPlace::Bottom;
    case 'T':
        cursor.Eat(':');
        at = cursor;
        return BarPlace::Top;
    default: return BarPlace::Open;
    }
    at = cursor;
    return head == "G" ? BarPlace::Side : BarPlace::Torsion;
}

}  // namespace

std::optional<BarGroup> ReadBarGroup(Cursor& at, const Choices& choices)
{
    Cursor cursor = at;
    BarGroup group;
    cursor.SkipBlank();
    if (cursor.Eat('+')) {
        // The panel writes erection bars alone as "+(2B12)".
        if (!ReadErection(cursor, choices, group)) {
            return std::nullopt;
        }
        at = cursor;
        return group;
    }
    group.place = ReadDressing(cursor, group.text);
    cursor.SkipBlank();
    if (!ReadLayer(cursor, choices, group)) {
        return std::nullopt;
    }
    at = cursor;
    while (EatJoint(cursor, '/')) {
        group.text += '/';
        if (!ReadLayer(cursor, choices, group)) {
            group.text.pop_back();
            break;
        }
        at = cursor;
    }
    return group;
}

}  // namespace Desk::Import
