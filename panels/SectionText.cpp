// Cutting and composing beam sections.
#include "panels/SectionText.h"

namespace SectionText {
namespace {

void CutFrom(CString& text, char ch)
{
    const int position = text.Find(ch);
    if (position >= 0) {
        text = text.Left(position);
    }
}

}  // namespace

bool Decompose(CString& text, Fields& fields)
{
    if (text.IsEmpty()) {
        return false;
    }
    CutFrom(text, ' ');
    CutFrom(text, '/');
    const CString section = text;  // the text can be one of the fields
    int sign = section.Find('x');
    if (sign < 0) {
        sign = section.Find('X');
        if (sign < 0) {
            sign = section.Find('*');
            fields.separator = "*";
        } else {
            fields.separator = "X";
        }
    }
    fields.width = section.Left(sign);
    fields.height = section.Mid(sign + 1);
    return true;
}

CString Compose(const Fields& fields) { return fields.width + fields.separator + fields.height; }

}  // namespace SectionText
