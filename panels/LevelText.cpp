// The keys of the elevation keypad.
#include "panels/LevelText.h"

#include "platform/text/GbkWalk.h"

namespace LevelText {
namespace {

bool InBrackets(const CString& level) { return level.GetAt(0) == '('; }

// From the second character to the last but one.
CString Inside(const CString& level) { return level.Mid(1, level.GetLength() - 2); }

}  // namespace

void Add(CString& level, const CString& text)
{
    if (InBrackets(level)) {
        level = "(" + Inside(level) + text + ")";
    } else {
        level += text;
    }
}

bool AddPoint(CString& level)
{
    if (level.Find('.') >= 0) {
        return false;
    }
    Add(level, ".");
    return true;
}

bool AddMinus(CString& level)
{
    if (level.Find('-') >= 0) {
        return false;
    }
    level = InBrackets(level) ? "(-" + level.Mid(1) : "-" + level;
    return true;
}

bool AddBrackets(CString& level)
{
    if (level.Find('(') >= 0) {
        return false;
    }
    level = "(" + level + ")";
    return true;
}

bool TakeBack(CString& level)
{
    if (level.IsEmpty()) {
        return false;
    }
    level = level.Find(')') >= 0 ? Inside(level)
                                 : level.Left(PreviousCharacter(level.View(), level.GetLength()));
    return true;
}

}  // namespace LevelText
