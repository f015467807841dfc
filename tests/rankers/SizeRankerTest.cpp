// Beam sections: reading sizes, the order with texts that have none, whole runs.
#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"

namespace {

using Ranker = BEAMSIZE_HITNESS_RANKER;

Texts RunOn(const Texts& project, int projectKind = 2)
{
    FakeHost host;
    host.m_texts = project;
    Ranker ranker;
    ranker.m_nProjectKind = projectKind;
    CStringArray list;
    ranker.ProcessController(list);
    return TextsOf(list);
}

const Texts Guesses = {"250x500", "300x500", "350x500", "400x500", "450x500",
                       "250x600", "300x600", "350x600", "400x600", "450x600"};

TEST(SizeRanker, ReadsWidthAndHeight)
{
    struct Case {
        const char* text;
        int width, height;  // -7 stays where the text has no separator
    };
    const Case cases[] = {
        {"300x600", 300, 600},
        {"300X600", 300, 600},
        {"300*600", 300, 600},
        {"300x600/500", 300, 600},
        {"300x600 Y500x250", 300, 600},
        {"300", -7, -7},
        {"", -7, -7},
        {" 300 x600", 300, 0},
        {"300x 600", 300, 0},
        {"Y500x250", 0, 250},
        {"300X600x700", 300, 700},
        {"300/2x600", 300, 0},
        {"300x600/5 5", 300, 600},
        {"300x600 5/5", 300, 600},
        {"x", 0, 0},
        {"300*600X5", 300, 5},
    };
    for (const Case& c : cases) {
        int width = -7;
        int height = -7;
        Ranker().GetBeamWidth(c.text, width);
        Ranker().GetBeamHeight(c.text, height);
        EXPECT_EQ(width, c.width) << c.text;
        EXPECT_EQ(height, c.height) << c.text;
    }
}

TEST(SizeRanker, EmptyProjectGivesTheGuessesAsWritten)
{
    EXPECT_EQ(RunOn({}), Guesses);
    Texts withTall = Guesses;
    withTall.insert(withTall.begin(), "300x1200");
    EXPECT_EQ(RunOn({}, 0), withTall);
}

TEST(SizeRanker, ProjectAndGuessesByWidthThenHeight)
{
    const Texts sorted = {"250x500", "250x600", "300x500", "300x600", "300x1200", "350x500",
                          "350x600", "400x500", "400x600", "450x500", "450x600"};
    EXPECT_EQ(RunOn({"300x1200"}), sorted);
    EXPECT_EQ(RunOn({"300x1200", "250x600", "300x1200"}, 0), sorted);
    const Texts list = RunOn({"300*500", "300X500", "200x600"});
    // Equal sizes stay as they came, the project's in front of the guess.
    EXPECT_EQ(Texts(list.begin(), list.begin() + 6),
              (Texts{"200x600", "250x500", "250x600", "300*500", "300X500", "300x500"}));
}

TEST(SizeRanker, SpecialEntriesGoFromTheHeadOnly)
{
    const Texts list = RunOn({"Y500x250", "  Y300x200", "Z1x1", "Y9", "300x600"});
    EXPECT_EQ(list[0], "Z1x1");
    // Without a separator an entry can stand anywhere; behind the head it stays.
    EXPECT_EQ(RunOn({"Y500x250"}).front(), "250x500");
    EXPECT_EQ(RunOn({"Y500x250"}).size(), 10U);
}

TEST(SizeRanker, AnEntryWithoutSizeIsComparedWithTheOneReadBefore)
{
    // The first pass starts from -1 on both sides: nothing is above -1, so "a" moves nowhere until a
    // size was read on its side.
    CStringArray list;
    Fill(list, {"a", "300x600", "b", "200x500"});
    Ranker().SortResult(list);
    // By height: a|300x600: -1 < 600 stays; 300x600|b: 600 = 600 carried, stays; b|200x500: 600 carried,
    // above 500, exchange -> a 300x600 200x500 b. Second pass: left carried 600, right 600: stays;
    // 600 above 500: exchange -> a 200x500 300x600 b. Third pass: 600 carried above 500: exchange ->
    // 200x500 a 300x600 b. By width: 200, carried -1: exchange -> a 200x500; 200 and 300: stays; 300 and
    // carried 300: stays. Then carried 300 above 200: exchange -> 200x500 a; carried 300 and 300: stays.
    // Then 200 and carried 300: stays.
    EXPECT_EQ(TextsOf(list), (Texts{"200x500", "a", "300x600", "b"}));
}

}  // namespace
