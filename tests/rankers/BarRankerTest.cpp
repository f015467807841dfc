// Runs of the bar ranker: stamps, focus, guesses and table rows.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/FakeHost.h"

namespace {

struct Outcome {
    Texts texts;
    Stamps stamps;
    int focus;
    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out)
{
    *out << testing::PrintToString(outcome.texts) << testing::PrintToString(outcome.stamps)
         << outcome.focus;
}

Outcome RunOn(const Texts& project, const char* kind, int projectKind = 2)
{
    FakeHost host;
    host.m_texts = project;
    CHABIAO_HITNESS_RANKER ranker;
    ranker.m_nProjectKind = projectKind;
    ranker.SetPara(300, 1000, nullptr, kind);
    CStringArray list;
    ranker.ProcessController(list);
    EXPECT_EQ(host.m_kindAsked, kind);
    const int focus = ranker.FindIndexOfFocusByArFlags();
    EXPECT_EQ(ranker.m_nFocusIndex, focus);
    return {TextsOf(list), StampsOf(ranker.m_arFlags), focus};
}

Outcome Guess(const Texts& texts) { return {texts, Stamps(texts.size(), 0), -1}; }

const Texts TwoBars = {"2B12", "2B14", "2B16", "2B18", "2B20", "2B22", "2B25", "2B28"};
const Texts ThreeBars = {"3B12", "3B14", "3B16", "3B18", "3B20", "3B22", "3B25", "3B28"};

Texts With(const char* first, Texts texts)
{
    texts.insert(texts.begin(), first);
    return texts;
}

TEST(BarRanker, GuessesForAnEmptyProject)
{
    for (const char* const kind : {"1", "2", "3", "4"}) {
        EXPECT_EQ(RunOn({}, kind), Guess(TwoBars)) << kind;
    }
    EXPECT_EQ(RunOn({}, "1", 0), Guess(With("4B20", TwoBars)));
    EXPECT_EQ(RunOn({}, "2", 0), Guess(TwoBars));
    EXPECT_EQ(RunOn({}, "5.1"), Guess(ThreeBars));
    EXPECT_EQ(RunOn({}, "5.2", 0), Guess(With("2B20", ThreeBars)));
    struct Case {
        const char* topJin;
        Texts texts;
    };
    const Case cases[] = {
        {"2B12", {"4B12", "2B12+1B14", "2B12+2B14"}},
        {"2B14", {"4B14", "2B14+1B12", "2B14+2B12", "2B14+1B16", "2B14+2B16"}},
        {"2B16", {"4B16", "2B16+1B14", "2B16+2B14", "2B16+1B18", "2B16+2B18"}},
        {"2B18", {"4B18", "2B18+1B16", "2B18+2B16", "2B18+1B20", "2B18+2B20"}},
        {"2B20", {"4B20", "2B20+1B18", "2B20+2B18", "2B20+1B22", "2B20+2B22"}},
        {"2B22", {"4B22", "2B22+1B20", "2B22+2B20", "2B22+1B25", "2B22+2B25"}},
        {"3B25", {"4B25", "3B25+1B22", "3B25+2B22", "3B25+1B20", "3B25+2B20", "3B25+1B28", "3B25+2B28"}},
        {"2B28", {"2B28+1B25", "2B28+2B25"}},
        {"2B20+1B18", {"4B20", "2B20+1B18+1B18", "2B20+1B18+2B18", "2B20+1B18+1B22", "2B20+1B18+2B22"}},
        {"2A12", {"4B12", "2A12+1B14", "2A12+2B14"}},
        {"G2B12", {"4B12", "G2B12+1B14", "G2B12+2B14"}},
        {"1B20", {}},
        {"2B32", {}},
        {"5", {}},
        {"", {}},
        {"5.3", {}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(RunOn({}, c.topJin), Guess(c.texts)) << c.topJin;
        EXPECT_EQ(RunOn({}, c.topJin, 0), Guess(c.texts)) << c.topJin;
    }
}

TEST(BarRanker, ProjectTextsByUseThenGuessesByBars)
{
    EXPECT_EQ(RunOn({"2B20", "2B25", "2B20", "N2B25"}, "1"),
              (Outcome{{"2B20", "2B25", "2B12", "2B14", "2B16", "2B18", "2B22", "2B28"},
                       {10, 5, 0, 0, 0, 0, 0, 0},
                       1}));
    // The head goes, the stamps of what becomes equal are not added up: the more used one stays.
    EXPECT_EQ(RunOn({"2B25", "N2B25", "*2B25", "N2B25", "G"}, "2B9"), (Outcome{{"2B25", ""}, {10, 5}, 1}));
    // Joints are not told apart in the order, but they are in the count.
    EXPECT_EQ(RunOn({"2B20/1B22", "2B20+1B22", "2B20/1B22"}, "2B9"),
              (Outcome{{"2B20/1B22", "2B20+1B22"}, {5, 5}, 1}));
    // No text is put at the head of a list that the project filled.
    EXPECT_EQ(RunOn({"9B9"}, "1", 0).texts, With("9B9", TwoBars));
    EXPECT_EQ(RunOn({"9B9"}, "5.1", 0).texts, With("9B9", ThreeBars));
}

TEST(BarRanker, NineProjectTextsCallForNoGuess)
{
    Texts eight = {"1", "2", "3", "4", "5", "6", "7", "8"};
    EXPECT_EQ(RunOn(eight, "5.1").texts.size(), 16U);
    Texts nine = eight;
    nine.emplace_back("N1");
    // Counted before heads go: nine texts, then eight.
    EXPECT_EQ(RunOn(nine, "5.1"), (Outcome{eight, Stamps(8, 5), 7}));
}

TEST(BarRanker, StampsAndFocus)
{
    CHABIAO_HITNESS_RANKER ranker;
    EXPECT_EQ(ranker.FindIndexOfFocusByArFlags(), -1);
    Fill(ranker.m_arFlags, {5, 5});
    EXPECT_EQ(ranker.FindIndexOfFocusByArFlags(), 1);
    Fill(ranker.m_arFlags, {0, 5});
    EXPECT_EQ(ranker.FindIndexOfFocusByArFlags(), -1);

    CStringArray list;
    Fill(list, {"a", "a", "b", "a"});
    ranker.StampFlags(list, 3);
    EXPECT_EQ(StampsOf(ranker.m_arFlags), (Stamps{0, 5}));
    ranker.StampFlags(list, 2);
    EXPECT_EQ(StampsOf(ranker.m_arFlags), (Stamps{0, 5, 0, 0}));
    ranker.StampFlags(list, 0);
    EXPECT_EQ(StampsOf(ranker.m_arFlags), (Stamps{0, 5, 0, 0, 10, 10, 5, 5}));
    ranker.SetPara(1, 2, nullptr, "1");
    EXPECT_TRUE(ranker.m_arFlags.IsEmpty());

    Fill(list, {"GN1", "", "*", "a", "N"});
    ranker.CutHead(list);
    EXPECT_EQ(TextsOf(list), (Texts{"N1", "", "", "a", ""}));
}

TEST(BarRanker, TableRowsFollowARun)
{
    SteelBiao table;
    table.InintOnce();
    struct Case {
        const char* kind;
        Texts rows;  // behind the project's "9B9" and the guesses
    };
    const Case cases[] = {
        {"1", {}},  // every row's text is a guess already
        {"5.2", {}},
        {"2B18", {"2B18"}},  // "4B18" is among the end bars guessed
    };
    for (const Case& c : cases) {
        FakeHost host;
        host.m_texts = {"9B9"};
        CHABIAO_HITNESS_RANKER ranker;
        ranker.SetPara(300, 1000, &table, c.kind);
        CStringArray list;
        ranker.ProcessController(list);
        Texts expected = TextsOf(list);
        ranker.ChaBiao(list);
        expected.insert(expected.end(), c.rows.begin(), c.rows.end());
        EXPECT_EQ(TextsOf(list), expected) << c.kind;
        EXPECT_EQ(ranker.m_arFlags.GetSize(), list.GetSize());
        EXPECT_EQ(ranker.FindIndexOfFocusByArFlags(), 0);
    }
    CHABIAO_HITNESS_RANKER ranker;
    ranker.SetPara(300, 1000, &table, "3");
    CStringArray list;
    ranker.ChaBiao(list);
    EXPECT_EQ(TextsOf(list), (Texts{"2B16", "2B18", "2B20", "2B25"}));
    EXPECT_EQ(StampsOf(ranker.m_arFlags), Stamps(4, 0));

    // An area that no int holds is the nearest one, no number is none at all.
    const Texts rising = {"2B12", "2B14", "2B16", "2B18", "2B20", "2B22", "2B25"};
    const Texts falling(rising.rbegin(), rising.rend());
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    for (const double area : {1e300, Infinity, -1e300, -Infinity, std::nan("")}) {
        ranker.m_dArea = area;
        ranker.m_nWidth = 250;
        list.RemoveAll();
        ranker.ChaBiao(list);
        EXPECT_EQ(TextsOf(list), area > 0 ? falling : rising) << area;
    }
}

}  // namespace
