#include "bartext/AnalyseBarComment.h"

#include <algorithm>
#include <string_view>

#include "platform/Numbers.h"

namespace {

constexpr std::string_view Grades = "ABCD";

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

// ".5" behind a diameter: 5.
int TakeTenths(std::string_view& text)
{
    if (text.size() < 2 || text[0] != '.' || !IsDigit(text[1])) {
        return 0;
    }
    const int tenths = text[1] - '0';
    text.remove_prefix(2);
    return tenths;
}

}  // namespace

bool AnalyseBarComment(CString strText, int& nGrade, int& nDiameter, int& nTight, int& nNormal,
                       int* pnTenths)
{
    std::string_view text = strText.View();
    const std::size_t grade = FindGrade(text);
    nGrade = 0;
    if (grade != std::string_view::npos) {
        nGrade = static_cast<int>(Grades.find(text[grade])) + 1;
        text.remove_prefix(grade + 1);
    } else {
        text.remove_prefix(std::min(text.find_first_of("0123456789"), text.size()));
    }
    nDiameter = TakeNumber(text);
    const int tenths = TakeTenths(text);
    if (pnTenths != nullptr) {
        *pnTenths = tenths;
    }
    const std::size_t at = text.find('@');
    text.remove_prefix(at != std::string_view::npos ? at + 1 : text.size());
    nTight = TakeNumber(text);
    SkipBlanks(text);
    nNormal = 0;
    if (text.starts_with('/')) {
        text.remove_prefix(1);
        nNormal = TakeNumber(text);
    }
    return nGrade != 0 && nDiameter != 0;
}
