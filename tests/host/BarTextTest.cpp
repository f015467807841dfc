// The essence of a piece of bars; random texts compare terms and heads.
#include <gtest/gtest.h>

#include "tests/support/Texts.h"

namespace {

TEST(BarText, EssenceIsWhatTwoCharactersOfDressingHide)
{
    struct Case {
        const char* a;
        const char* b;
        bool same;
    };
    const Case cases[] = {
        {"+(2B12),", "2B12", true},
        {"*2B12 ", "2B12;", true},
        {"6B25 2/4;", "6B25;", false},
        {"6B25 2/4;", "+6B25 2/4", true},
        {"+((2B12", "2B12", false},
        {"2B12);;", "2B12", false},
        {"", ";", true},
        {"\xB2\xBF"
         "2B12",
         "2B12", true},
        {"2B12", "2B14", false},
        {"++", "2", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(BarText::SameEssence(c.a, c.b), c.same) << c.a << " and " << c.b;
        EXPECT_EQ(BarText::SameEssence(c.b, c.a), c.same) << c.b << " and " << c.a;
    }
}

}  // namespace
