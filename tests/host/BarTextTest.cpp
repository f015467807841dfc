// Reading bar terms, heads and essences, well-formed and not.
#include <gtest/gtest.h>

#include "tests/support/Texts.h"

namespace {

TEST(BarText, SplitsATermAtItsGrade)
{
    struct Case {
        const char* text;
        int count;
        int diameter;
    };
    const Case cases[] = {
        {"", 0, 0},        {"25", 0, 0},     {"4A14", 4, 14}, {"2B20+2B22", 2, 20},
        {"12B25", 12, 25}, {"3A2B5", 3, 5},  {"B", 0, 0},     {"2B", 2, 0},
        {"B20", 0, 20},    {"N2B16", 0, 16}, {"2C25", 0, 0},  {"4A14A16", 4, 14},
    };
    for (const Case& c : cases) {
        int count = -1;
        int diameter = -1;
        CHABIAO_HITNESS_RANKER().GetSteelNumAndDia(c.text, count, diameter);
        EXPECT_EQ(count, c.count) << c.text;
        EXPECT_EQ(diameter, c.diameter) << c.text;
    }
}

TEST(BarText, HeadEndsAtTheFirstJointAndLosesOneHeadCharacter)
{
    EXPECT_EQ(BarText::HeadPiece("2B22+3B25/2B22"), "2B22");
    EXPECT_EQ(BarText::HeadPiece("6B25/4B25+1B20"), "6B25");
    EXPECT_EQ(BarText::HeadPiece("N2B16+1B14"), "2B16");
    EXPECT_EQ(BarText::HeadPiece("*N2B16"), "N2B16");
    EXPECT_EQ(BarText::HeadPiece("+2B16"), "");
    EXPECT_EQ(BarText::HeadPiece("G"), "");
}

TEST(BarText, SameFirstDiameterWantsEnoughBarsOfTheSameSize)
{
    struct Case {
        const char* a;
        const char* b;
        bool same;
    };
    const Case cases[] = {
        {"3B20+1B22", "2B20", true}, {"1B20", "2B20", false},      {"3B20", "2B22", false},
        {"12B25", "2B25", true},     {"N2B16+1B14", "2B16", true}, {"4B20/2B20", "2B20", true},
        {"2A20", "2B20", true},      {"2B20 ", "2B20", false},     {"2B20;", "2B20", false},
        {"2B020", "2B20", false},    {"20", "2B20", false},        {"2B20", "20", false},
        {"", "2B20", false},         {"2B20", "", false},          {"2AB20", "2B20", false},
        {"2B20+9B9", "G2B20", true}, {"B20", "B20", true},         {"2C20", "2B20", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(CHABIAO_HITNESS_RANKER::EqualFirstDia(c.a, c.b), c.same) << c.a << " and " << c.b;
    }
}

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
