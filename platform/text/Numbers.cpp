// Decimal numbers at the head of a text.
#include "platform/text/Numbers.h"

#include <charconv>
#include <cstdint>
#include <limits>

namespace {

constexpr bool IsDigit(char ch) noexcept { return ch >= '0' && ch <= '9'; }

// The white space that C skips in front of a number.
std::string_view WithoutLeadingSpace(std::string_view text) noexcept
{
    const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// Takes a sign off the head; true for a minus.
bool TakeSign(std::string_view& text) noexcept
{
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) {
        text.remove_prefix(1);
    }
    return negative;
}

std::size_t DigitCount(std::string_view text) noexcept
{
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[count])) {
        ++count;
    }
    return count;
}

// What a number beyond a double's range is: its leading digit stands before the point or its power
// of ten is positive when it is too large.
bool IsLarge(std::string_view mantissa, std::string_view exponent) noexcept
{
    std::int64_t power = NumberValue(exponent);
    const std::size_t point = mantissa.find('.');
    const std::size_t whole = point == std::string_view::npos ? mantissa.size() : point;
    const std::size_t leading = mantissa.find_first_of("123456789");
    if (leading == std::string_view::npos) {
        return false;
    }
    power += static_cast<std::int64_t>(whole) - static_cast<std::int64_t>(leading);
    return power > 0;
}

}  // namespace

int NumberValue(std::string_view text) noexcept
{
    text = WithoutLeadingSpace(text);
    const bool negative = TakeSign(text);
    constexpr std::int64_t Largest = std::numeric_limits<std::int32_t>::max();
    const std::int64_t limit = negative ? Largest + 1 : Largest;
    std::int64_t value = 0;
    for (const char ch : text) {
        if (!IsDigit(ch)) {
            break;
        }
        value = value * 10 + (ch - '0');
        if (value > limit) {
            value = limit;
            break;
        }
    }
    return static_cast<int>(negative ? -value : value);
}

double RealValue(std::string_view text) noexcept
{
    text = WithoutLeadingSpace(text);
    const bool negative = TakeSign(text);
    const std::size_t whole = DigitCount(text);
    std::size_t length = whole;
    if (length < text.size() && text[length] == '.') {
        const std::size_t fraction = DigitCount(text.substr(length + 1));
        if (whole + fraction == 0) {
            return 0.0;
        }
        length += 1 + fraction;
    }
    if (length == 0) {
        return 0.0;
    }
    const std::string_view mantissa = text.substr(0, length);
    std::string_view exponent;
    if (length < text.size() && (text[length] == 'e' || text[length] == 'E')) {
        std::string_view tail = text.substr(length + 1);
        const std::size_t sign = !tail.empty() && (tail.front() == '-' || tail.front() == '+') ? 1 : 0;
        const std::size_t digits = DigitCount(tail.substr(sign));
        if (digits > 0) {
            exponent = tail.substr(0, sign + digits);
            length += 1 + sign + digits;
        }
    }
    double value = 0.0;
    const std::string_view number = text.substr(0, length);
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        value = IsLarge(mantissa, exponent) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return negative ? -value : value;
}
