// Bar terms, head pieces and the essence of a piece.
#include "host/BarText.h"

#include <algorithm>
#include <string_view>

#include "platform/text/Numbers.h"

namespace BarText {
namespace {

constexpr std::size_t None = std::string_view::npos;

std::string_view HeadOf(std::string_view text)
{
    text = text.substr(0, text.find_first_of("+/"));
    if (!text.empty() && (text.front() == '*' || text.front() == 'N' || text.front() == 'G')) {
        text.remove_prefix(1);
    }
    return text;
}

bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }

std::string_view EssenceOf(std::string_view text)
{
    for (int i = 0; i < 2 && !text.empty() && !IsDigit(text.front()); ++i) {
        text.remove_prefix(1);
    }
    for (int i = 0; i < 2 && !text.empty() && !IsDigit(text.back()); ++i) {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace

Term SplitTerm(const CString& text)
{
    const std::string_view view = text.View();
    std::size_t grade = view.find('B');
    if (grade == None) {
        grade = view.find('A');
    }
    if (grade == None) {
        return {};
    }
    return {NumberValue(view.substr(0, grade)), NumberValue(view.substr(grade + 1))};
}

CString HeadPiece(const CString& text) { return HeadOf(text.View()); }

bool SameFirstDiameter(const CString& a, const CString& b)
{
    const std::string_view headA = HeadOf(a.View());
    const std::string_view headB = HeadOf(b.View());
    const std::size_t gradeA = headA.find_first_of("AB");
    const std::size_t gradeB = headB.find_first_of("AB");
    if (gradeA == None || gradeB == None) {
        return false;
    }
    return NumberValue(headB.substr(0, gradeB)) <= NumberValue(headA.substr(0, gradeA)) &&
           headA.substr(gradeA + 1) == headB.substr(gradeB + 1);
}

bool SameEssence(const CString& a, const CString& b) { return EssenceOf(a.View()) == EssenceOf(b.View()); }

}  // namespace BarText
