// Texts of the bar panel that its clicks do not lead to; random sessions compare the rest.
#include <gtest/gtest.h>

#include "panels/BarGroup.h"
#include "panels/BarPiece.h"
#include "tests/support/Texts.h"

namespace {

using BarPiece::Rows;

TEST(BarPiece, NeedsBothCountsForARowSplit)
{
    EXPECT_EQ(BarPiece::Compose({"6", "B", "25", "2", "4", " "}), "6B25 2/4 ");
    EXPECT_EQ(BarPiece::Compose({"6", "B", "25", "2", "", ","}), "6B25,");
    EXPECT_EQ(BarPiece::Compose({"6", "B", "25", "", "4", ","}), "6B25,");
}

TEST(BarPiece, OpeningAnEndHandsTheTailOver)
{
    CString group = "+(2B12+2B14);";
    CString last = "+2B14);";
    CString follower = "+2B16 ";
    BarPiece::OpenEnd(BarPiece::Erection, group, last, follower);
    EXPECT_EQ(group + "|" + last + "|" + follower, "+(2B12+2B14|+2B14|+2B16) ");
    group = last = "*2B12,";
    follower = "+2B16 ";
    BarPiece::OpenEnd(BarPiece::StarTorsion, group, last, follower);
    EXPECT_EQ(group + "|" + last + "|" + follower, "*2B12|*2B12|+2B16 ");
    group = last = follower = "";
    BarPiece::OpenEnd(BarPiece::Erection, group, last, follower);
    EXPECT_EQ(group + "|" + last + "|" + follower, "||)");
}

TEST(BarPiece, RewrittenOneKeepsItsDressing)
{
    struct Case {
        const char* bare;
        const char* old;
        const char* rewritten;
    };
    const Case cases[] = {
        {"2B22,", "2B25;", "2B22,"},       {"2B22,", "+2B25 ", "+2B22,"},
        {"2B22,", "+(2B12", "+(2B22"},     {"2B22,", "+2B14);", "+2B22),"},
        {"2B22 ", "+(2B14);", "+(2B22) "}, {"6B25 2/4;", "*2B14", "*6B25 2/4"},
        {"2B22;", "N6B25 2/4 ", "N2B22;"}, {"2B22;", "G2B12 1/1", "G2B22"},
        {"2B22;", "", "2B22);"},           {"", "2B12", ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(BarPiece::Replace(c.bare, c.old), c.rewritten) << c.bare << " over " << c.old;
    }
}

// Reads a rows value as "type later count grade diameter upper lower terminator", "." for untouched.
std::string Shown(const Rows& rows)
{
    std::string shown;
    for (const std::optional<int>& row : {rows.type, rows.later, rows.count, rows.grade, rows.diameter,
                                          rows.upper, rows.lower, rows.terminator}) {
        shown += row ? std::to_string(*row) : ".";
        shown += ' ';
    }
    shown.pop_back();
    return shown;
}

TEST(BarPiece, ReadsBackFromTheOutsideIn)
{
    struct Case {
        const char* piece;
        int type;
        const char* rows;
    };
    const Case cases[] = {
        {"", 0, ". . -1 1 -1 0 0 2"},          {"2B25 ", 0, "0 . 1 1 7 0 0 2"},
        {"2A10,", 1, "1 . 1 0 0 0 0 1"},       {"+2B14);", -1, ". 0 1 1 2 0 0 0"},
        {"+(2B12", -1, "2 . 1 1 1 0 0 2"},     {"+(2B12) ", -1, "2 . 1 1 1 0 0 2"},
        {"6B25 2/4;", -1, ". . 5 1 7 2 4 0"},  {"+6B25 8/1", 0, "0 0 5 1 7 8 1 2"},
        {"*8C16;", 3, "3 . 7 2 3 0 0 0"},      {"N1D18 1/1 ", -1, "4 . 0 3 4 1 1 2"},
        {"G2B12", 5, "5 . 1 1 1 0 0 2"},       {"9B25;", -1, ". . -1 1 7 0 0 0"},
        {"B25;", -1, ". . -1 1 7 0 0 0"},      {"2B32;", -1, ". . 1 1 . 0 0 0"},
        {"25", -1, ". . -1 . . 0 0 2"},        {";", -1, ". . -1 . . 0 0 0"},
        {"+", -1, ". 0 -1 . . 0 0 ."},         {"6B25 9/12;", -1, ". . 5 1 7 -1 -1 0"},
        {"6B25/4B25;", -1, ". . 5 1 . 0 0 0"}, {"6B25 /", -1, ". . 5 1 7 0 0 ."},
        {"/ 3", -1, ". . -1 . . 3 0 2"},       {"2B12)", 0, "0 . 1 1 1 0 0 ."},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Shown(BarPiece::ReadBack(c.piece, c.type)), c.rows) << c.piece;
    }
}

TEST(BarGroups, TypesOutOfRangeHaveNone)
{
    EXPECT_EQ(BarGroups::OfType(-1), -1);
    EXPECT_EQ(BarGroups::OfType(6), -1);
}

TEST(BarGroups, OnlyAFirstAndFinalTerminatorComesOff)
{
    const char* const texts[][2] = {
        {"2B22+2B25;", "2B22+2B25"}, {"2B25 ", "2B25"}, {"2B25,", "2B25"}, {"6B25 2/4;", "6B25 2/4;"},
        {"6B25 2/4 ", "6B25 2/4 "},  {"2B25", "2B25"},  {"", ""},          {";", ""}};
    for (const auto& [text, stripped] : texts) {
        EXPECT_EQ(BarGroups::WithoutTerminator(text), stripped) << text;
    }
    EXPECT_EQ(BarGroups::WithoutBrackets("+(2B12+2B14);"), "2B12+2B14");
    EXPECT_EQ(BarGroups::WithoutBrackets("+()"), "");
    EXPECT_EQ(BarGroups::WithoutBrackets(""), "");
}

}  // namespace
