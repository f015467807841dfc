// How bar annotations compare, and the sorts of the bar ranker with their stamps.
#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"

namespace {

using Ranker = CHABIAO_HITNESS_RANKER;

TEST(BarOrder, ComparesPieceByPiece)
{
    struct Case {
        const char* a;
        const char* b;
        int order;
    };
    const Case cases[] = {
        {"2B20", "2B20", 0},
        {"2B20", "2B20+1B22", -1},
        {"2B20+1B22", "2B20/1B22", 0},
        {"2B20+1B22", "2B20+2B14", -1},
        {"2B22+3B25/2B22", "2B22+3B25", 1},
        {"10B20", "2B20", -1},
        {"N2B16", "9B16", 1},
        {"2B2+9", "2B20", -1},  // the first pieces decide, whatever follows
        {"2B20", "2B20+", -1},
        {"", "+", -1},
        {"", "", 0},
        {"+a", "//", 1},
        {"2B20!", "2B20+1B22", 1},
        {"2B20", "\xB2\xBF", -1},
        {"abcdefghijklmnopqrstuvwxyz+1", "abcdefghijklmnopqrstuvwxyz+2", -1},
    };
    Ranker ranker;
    for (const Case& c : cases) {
        EXPECT_EQ(ranker.CompareSteel(c.a, c.b), c.order) << c.a << " and " << c.b;
        EXPECT_EQ(ranker.CompareSteel(c.b, c.a), -c.order) << c.b << " and " << c.a;
    }
    EXPECT_EQ(ranker.ComparePieceSteel("2B20", "2B22"), -1);
    EXPECT_EQ(ranker.ComparePieceSteel("2B+", "2B20"), -1);
    EXPECT_EQ(ranker.ComparePieceSteel("2B2+", "2B2"), 1);
    EXPECT_EQ(ranker.ComparePieceSteel("3B12", "3B12"), 0);
}

struct Sorted {
    Texts texts;
    Stamps stamps;
    bool operator==(const Sorted&) const = default;
};

Sorted After(void (Ranker::*sort)(CStringArray&), const Texts& texts, const Stamps& stamps)
{
    Ranker ranker;
    CStringArray list;
    Fill(list, texts);
    Fill(ranker.m_arFlags, stamps);
    (ranker.*sort)(list);
    return {TextsOf(list), StampsOf(ranker.m_arFlags)};
}

TEST(BarOrder, Sorts)
{
    // By bars: texts that differ only in their joints keep their order, also among repeats.
    EXPECT_EQ(
        After(&Ranker::SortWithNumAndDia, {"3B12", "2B20/1B22", "2B20", "2B20+1B22", "2B20/1B22"}, {1}),
        (Sorted{{"2B20", "2B20/1B22", "2B20+1B22", "2B20/1B22", "3B12"}, {1}}));
    EXPECT_EQ(After(&Ranker::SortResult, {"b", "a"}, {}), (Sorted{{"a", "b"}, {}}));
    // By stamp alone.
    EXPECT_EQ(After(&Ranker::SortWithFlags, {"a", "b", "c", "d"}, {0, 5, 10, 5}),
              (Sorted{{"c", "b", "d", "a"}, {10, 5, 5, 0}}));
    EXPECT_EQ(After(&Ranker::SortWithFlags, {"a", "b", "c"}, {0, 5}), (Sorted{{"b", "a", "c"}, {5, 0}}));
    // Mixed: texts with equal stamps above 0 are not compared, proposals are.
    EXPECT_EQ(
        After(&Ranker::MixedSort, {"9", "3B12", "5", "2B12", "7", "6"}, {5, 0, 5, 0, 10, 4294967295U}),
        (Sorted{{"6", "7", "9", "5", "2B12", "3B12"}, {4294967295U, 10, 5, 5, 0, 0}}));
    EXPECT_EQ(After(&Ranker::MixedSort, {}, {3}), (Sorted{{}, {3}}));
    EXPECT_EQ(After(&Ranker::MixedSort, {"a"}, {0}), (Sorted{{"a"}, {0}}));
    // Repeats go with their stamps, which are not added up; any other byte makes another text.
    EXPECT_EQ(After(&Ranker::EliminateSameResult, {"a", "2B20", "a", "2B20;", "2B20"}, {0, 5, 10, 0, 15}),
              (Sorted{{"2B20", "2B20;", "a"}, {5, 0, 0}}));
}

}  // namespace
