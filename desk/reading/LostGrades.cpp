// Puts grade signs back where the drawing lost them.
#include <algorithm>
#include <array>

#include "desk/reading/Bars.h"
#include "desk/reading/Cursor.h"

namespace Desk {

namespace {

constexpr std::array<int, 13> BarDiameters = {8, 10, 12, 14, 16, 18, 20, 22, 25, 28, 32, 36, 40};  // mm

// Cuts digits that lost their grade sign; nothing unless there is exactly one way.
std::optional<std::string> CutLostGrade(std::string_view digits)
{
    std::optional<std::string> cut;
    for (std::size_t i = 1; i < digits.size() && i <= 2; ++i) {
        const std::string_view count = digits.substr(0, i);
        const std::string_view diameter = digits.substr(i);
        if (count.front() == '0' || diameter.size() != 2 || diameter.front() == '0' ||
            std::find(BarDiameters.begin(), BarDiameters.end(), NumberValue(diameter)) ==
                BarDiameters.end()) {
            continue;
        }
        if (cut) {
            return std::nullopt;
        }
        cut = std::string(count) + OpenGrade + std::string(diameter);
    }
    return cut;
}

}  // namespace

std::optional<std::string> WithLostGrades(std::string_view plain)
{
    Cursor cursor(plain);
    std::string text;
    int terms = 0;
    while (!cursor.AtEnd()) {
        const std::string_view digits = cursor.Digits();
        if (digits.empty()) {
            const char joint = cursor.EatOneOf("+;,() /");
            if (joint == '\0') {
                return std::nullopt;
            }
            text += joint;
            continue;
        }
        const std::optional<std::string> term = CutLostGrade(digits);
        if (!term) {
            return std::nullopt;
        }
        text += *term;
        ++terms;
    }
    return terms >= 2 ? std::optional(text) : std::nullopt;
}

}  // namespace Desk
