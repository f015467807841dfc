// Cutting and composing beam names.
#include "panels/NameText.h"

namespace NameText {
namespace {

// What stands between two positions, both left out.
CString Between(const CString& text, int left, int right) { return text.Mid(left + 1, right - left - 1); }

}  // namespace

bool Decompose(CString name, Fields& fields)
{
    const int typeEnd = name.ReverseFind('L');
    if (typeEnd < 0) {
        return false;
    }
    fields.type = name.Left(typeEnd + 1);
    const int open = name.Find('(');
    if (open < 0) {
        fields.serial = name.Mid(typeEnd + 1);
        return true;
    }
    fields.serial = Between(name, typeEnd, open);
    const int close = name.Find(')');
    if (close < 0) {
        return true;
    }
    int mark = name.Find('A', open);
    if (mark < 0) {
        mark = name.Find('B', open);
    }
    fields.cantilever = mark < 0 ? CString() : name.Mid(mark, 1);
    fields.span = Between(name, open, mark < 0 ? close : mark);
    return true;
}

bool Compose(const Fields& fields, CString& name)
{
    const bool hasSpan = !fields.span.IsEmpty() && fields.span != "0";
    const CString inBrackets = (hasSpan ? fields.span : CString()) + fields.cantilever;
    name = fields.type + fields.serial + (inBrackets.IsEmpty() ? CString() : "(" + inBrackets + ")");
    return !inBrackets.IsEmpty();
}

CString DigitOfRow(int row) { return row >= 0 && row <= 9 ? CString("1234567890").Mid(row, 1) : CString(); }

}  // namespace NameText
