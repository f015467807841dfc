#include "bartext/AnalyseBarComment.h"

#include <algorithm>
#include <string_view>

#include "platform/text/Numbers.h"

namespace {

constexpr std::string_view Grades = "ABCD";
constexpr std::string_view DigitsAndPoint = "0123456789.";
constexpr std::string_view Digits = DigitsAndPoint.substr(0, 10);

bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }

void SkipBlanks(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
}

// The digits at the head, which go; 0 without any.
int TakeNumber(std::string_view& text)
{
    SkipBlanks(text);
    const auto digits =
        static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) - text.begin());
    const int number = NumberValue(text.substr(0, digits));
    text.remove_prefix(digits);
    return number;
}

// Where the grade letter stands, npos for nowhere.
std::size_t FindGrade(std::string_view text)
{
    for (std::size_t at = text.find_first_of(Grades); at != std::string_view::npos;
         at = text.find_first_of(Grades, at + 1)) {
        std::string_view behind = text.substr(at + 1);
        SkipBlanks(behind);
        if (!behind.empty() && IsDigit(behind.front())) {
            return at;
        }
    }
    return text.find_first_of(Grades);
}

// ".5" behind a diameter: 5. Further digits go with it.
int TakeTenths(std::string_view& text)
{
    if (text.size() < 2 || text[0] != '.' || !IsDigit(text[1])) {
        return 0;
    }
    const int tenths = text[1] - '0';
    text.remove_prefix(std::min(text.find_first_not_of(Digits, 1), text.size()));
    return tenths;
}

// "(2)" behind a number.
void SkipBracket(std::string_view& text)
{
    SkipBlanks(text);
    if (text.starts_with('(')) {
        text.remove_prefix(std::min(text.find(')'), text.size() - 1) + 1);
        SkipBlanks(text);
    }
}

// Where the number in front of the "@" begins, npos where none stands there.
std::size_t FindDiameter(std::string_view text)
{
    const std::size_t at = text.find('@');
    if (at == std::string_view::npos) {
        return at;
    }
    const std::size_t last = text.substr(0, at).find_last_not_of(" \t");
    if (last == std::string_view::npos || !IsDigit(text[last])) {
        return std::string_view::npos;
    }
    const std::size_t before = text.substr(0, last).find_last_not_of(DigitsAndPoint);
    const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
    std::string_view number = text.substr(begin, last + 1 - begin);
    TakeNumber(number);
    TakeTenths(number);
    return number.empty() ? begin : std::string_view::npos;
}

// The grade letter right in front of a place, npos for none.
std::size_t GradeBefore(std::string_view text, std::size_t place)
{
    const std::size_t last = text.substr(0, place).find_last_not_of(" \t");
    return last != std::string_view::npos && Grades.find(text[last]) != std::string_view::npos
               ? last
               : std::string_view::npos;
}

// Where grade letter and diameter stand; npos for what the text lacks.
struct Start {
    std::size_t grade;
    std::size_t diameter;
};

Start FindStart(std::string_view text)
{
    const std::size_t grade = FindGrade(text);
    if (grade == std::string_view::npos) {
        return {grade, text.find_first_of(Digits)};
    }
    const std::size_t diameter = FindDiameter(text);
    if (diameter == std::string_view::npos) {
        return {grade, grade + 1};
    }
    const std::size_t before = GradeBefore(text, diameter);
    return {before != std::string_view::npos ? before : grade, diameter};
}

}  // namespace

bool AnalyseBarComment(CString strText, int& nGrade, int& nDiameter, int& nTight, int& nNormal,
                       int* pnTenths)
{
    std::string_view text = strText.View();
    const Start start = FindStart(text);
    nGrade =
        start.grade != std::string_view::npos ? static_cast<int>(Grades.find(text[start.grade])) + 1 : 0;
    text.remove_prefix(std::min(start.diameter, text.size()));
    nDiameter = TakeNumber(text);
    const int tenths = TakeTenths(text);
    if (pnTenths != nullptr) {
        *pnTenths = tenths;
    }
    const std::size_t at = text.find('@');
    text.remove_prefix(at != std::string_view::npos ? at + 1 : text.size());
    nTight = TakeNumber(text);
    SkipBracket(text);
    nNormal = 0;
    if (text.starts_with('/')) {
        text.remove_prefix(1);
        nNormal = TakeNumber(text);
    }
    return nGrade != 0 && nDiameter != 0;
}
