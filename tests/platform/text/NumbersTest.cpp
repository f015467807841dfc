// Numbers at the head of a text, the same under every locale.
#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <iterator>
#include <limits>
#include <string>

#include "RankerModule.h"

namespace {

TEST(Numbers, WholeNumberAtTheHead)
{
    struct Case {
        const char* text;
        int value;
    };
    constexpr int Largest = std::numeric_limits<int>::max();
    constexpr int Smallest = std::numeric_limits<int>::min();
    const Case cases[] = {
        {"", 0},
        {"12", 12},
        {"20+2B22", 20},
        {"-0.300", 0},
        {"-5x", -5},
        {"+7", 7},
        {" \t\n\v\f\r8", 8},
        {"- 3", 0},
        {"--3", 0},
        {"x3", 0},
        {"0x10", 0},
        {"0300", 300},
        {"2147483647", Largest},
        {"2147483648", Largest},
        {"-2147483648", Smallest},
        {"-99999999999999999999999", Smallest},
        {"99999999999999999999999", Largest},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(NumberValue(c.text), c.value) << c.text;
    }
}

TEST(Numbers, DecimalNumberAtTheHead)
{
    struct Case {
        const char* text;
        double value;
    };
    const double infinity = std::numeric_limits<double>::infinity();
    const Case cases[] = {
        {"", 0.0},
        {"0.3000", 0.3},
        {"-0.300", -0.3},
        {"+.5", 0.5},
        {"5.", 5.0},
        {".", 0.0},
        {"-.", 0.0},
        {"(0.3)", 0.0},
        {"1e3", 1000.0},
        {"1e", 1.0},
        {"1e+", 1.0},
        {"2E-1m", 0.2},
        {"0x1p4", 0.0},
        {"inf", 0.0},
        {"-nan", 0.0},
        {"      ", 0.0},
        {" 1.5", 1.5},
        {"1,5", 1.0},
        {"1e400", infinity},
        {"-1e400", -infinity},
        {"1e-400", 0.0},
        {"0.001e400", infinity},
        {"0e99999999999", 0.0},
    };
    for (const Case& c : cases) {
        EXPECT_DOUBLE_EQ(RealValue(c.text), c.value) << c.text;
    }
    const std::string manyDigits = "0." + std::string(400, '0') + "1e401";
    EXPECT_DOUBLE_EQ(RealValue(manyDigits), 1.0);
}

TEST(Numbers, DoNotFollowTheLocale)
{
    const char* const names[] = {"de_DE.UTF-8", "fr_FR.UTF-8", "ru_RU.UTF-8"};
    const auto isThere = [](const char* name) { return std::setlocale(LC_ALL, name) != nullptr; };
    if (std::none_of(std::begin(names), std::end(names), isThere)) {
        GTEST_SKIP() << "no locale with a decimal comma on this machine";
    }
    EXPECT_DOUBLE_EQ(RealValue("1.5"), 1.5);
    EXPECT_DOUBLE_EQ(RealValue("1,5"), 1.0);
    std::setlocale(LC_ALL, "C");
}

}  // namespace
