// Cutting and composing stirrup annotations.
#include "host/StirrupText.h"

#include <string_view>

#include "platform/text/Numbers.h"

namespace StirrupText {
namespace {

constexpr std::size_t None = std::string_view::npos;

// What stands between two positions, both left out; empty when they stand the wrong way round.
std::string_view Between(std::string_view text, std::size_t left, std::size_t right)
{
    return left + 1 >= right ? std::string_view() : text.substr(left + 1, right - left - 1);
}

// A stirrup text cut into views. A part that the text does not reach is missing as a whole: the
// first four stand or fall with the spacing mark and the grade, the last two with the legs' bracket.
struct Cut {
    bool hasGrade = false;
    bool hasLegs = false;
    std::string_view grade;
    std::string_view diameter;
    std::string_view tightSpacing;
    std::string_view tightLegs;
    std::string_view spacing;
    std::string_view behindBracket;
};

Cut CutText(std::string_view text)
{
    Cut cut;
    std::size_t mark = text.find('@');
    if (mark == None) {
        mark = text.find('-');
    }
    std::size_t grade = text.find('A');
    if (grade == None) {
        grade = text.find('B');
    }
    if (mark == None || grade == None) {
        return cut;
    }
    cut.hasGrade = true;
    cut.grade = text.substr(grade, 1);
    cut.diameter = Between(text, grade, mark);
    std::size_t start = mark;
    const std::size_t slash = text.find('/');
    if (slash != None) {
        const std::string_view tight = Between(text, mark, slash);
        const std::size_t bracket = tight.find('(');
        cut.tightSpacing = tight.substr(0, bracket);
        if (bracket != None) {
            cut.tightLegs = tight.substr(bracket + 1);
            cut.tightLegs = cut.tightLegs.substr(0, cut.tightLegs.find(')'));
        }
        start = slash;
    }
    const std::size_t bracket = text.find('(', start);
    if (bracket != None) {
        cut.hasLegs = true;
        cut.spacing = Between(text, start, bracket);
        cut.behindBracket = text.substr(bracket + 1);
    }
    return cut;
}

void Trim(CString& text)
{
    text.TrimLeft();
    text.TrimRight();
}

CString WithBrackets(const CString& legs) { return legs.Find('(') < 0 ? "(" + legs + ")" : legs; }

}  // namespace

bool Decompose(CString text, Fields& fields)
{
    const Cut cut = CutText(text.View());
    if (!cut.hasGrade) {
        return false;
    }
    fields.grade = cut.grade;
    fields.diameter = cut.diameter;
    fields.tightSpacing = cut.tightSpacing;
    fields.tightLegs = cut.tightLegs;
    if (!cut.hasLegs) {
        return false;
    }
    fields.spacing = cut.spacing;
    // The last character of the text is taken for the closing bracket.
    fields.legs = cut.behindBracket.substr(0, cut.behindBracket.empty() ? 0 : cut.behindBracket.size() - 1);
    return true;
}

Measures Measure(const CString& text)
{
    const Cut cut = CutText(text.View());
    return {NumberValue(cut.diameter), NumberValue(cut.spacing), NumberValue(cut.tightSpacing),
            NumberValue(cut.behindBracket.substr(0, 1))};
}

CString ComposeFromRows(const Fields& rows)
{
    CString text = rows.grade + rows.diameter + "@";
    if (!rows.tightSpacing.IsEmpty()) {
        text += rows.tightSpacing + rows.tightLegs + "/";
    }
    return text + rows.spacing + rows.legs;
}

bool ComposeFromBoxes(Fields& boxes, CString& text)
{
    for (CString* const field : {&boxes.grade, &boxes.diameter, &boxes.tightSpacing, &boxes.tightLegs,
                                 &boxes.spacing, &boxes.legs}) {
        Trim(*field);
    }
    if (boxes.grade.IsEmpty() || boxes.diameter.IsEmpty()) {
        return false;
    }
    if (boxes.tightSpacing.IsEmpty()) {
        boxes.tightLegs.Empty();
    }
    if (boxes.spacing.IsEmpty() || boxes.legs.IsEmpty()) {
        return false;
    }
    if (!boxes.tightLegs.IsEmpty()) {
        boxes.tightLegs = WithBrackets(boxes.tightLegs);
    }
    boxes.legs = WithBrackets(boxes.legs);
    text = ComposeFromRows(boxes);
    return true;
}

CString TightForm(const CString& text)
{
    const int behindMark = text.Find('@') + 1;
    return text.Left(behindMark) + "100/" + text.Mid(behindMark);
}

}  // namespace StirrupText
