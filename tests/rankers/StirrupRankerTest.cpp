// Stirrups: their order, whole runs, stamps and table rows.
#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"

namespace {

using Ranker = GUJIN_HITNESS_RANKER;

const Texts SortedGuesses = {"A8@100/150(2)",  "A8@200(2)",      "A8@100/200(2)", "A8@150/200(2)",
                             "A8@150/250(2)",  "A10@100/150(2)", "A10@200(2)",    "A10@100/200(2)",
                             "A10@150/200(2)", "A10@150/250(2)"};

TEST(StirrupRanker, ComparesNumbers)
{
    struct Case {
        const char* a;
        const char* b;
        int order;
    };
    const Case cases[] = {
        {"A10@200(2)", "A8@250(2)", 1},
        {"A8@200(4)", "A8@200(2)", 1},
        {"B8@200(2)", "A8@200(2)", 0},
        {"A8@200(2)", "A8@100/200(2)", -1},
        {"A8@100/200(2)", "A8@150/200(2)", -1},
        {"A8@100(4)/200(2)", "A8@100(2)/200(2)", 0},
        {"A8@150(4)", "A8@200(2)", -1},
        {"A8-200(2)", "A8@200(2)", 0},
        {"A8@200", "A8@100(2)", -1},
        {"8@200(2)", "A6@100(2)", -1},
        {"A8@200(4", "A8@200(2)", 1},
        {"", "A8@200(2)", -1},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Ranker().CompareGujin(c.a, c.b), c.order) << c.a << " and " << c.b;
        EXPECT_EQ(Ranker().CompareGujin(c.b, c.a), -c.order) << c.b << " and " << c.a;
    }
}

struct Outcome {
    Texts texts;
    int supported;  // leading stamps 1, all others 0
    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out)
{
    *out << testing::PrintToString(outcome.texts) << outcome.supported;
}

Outcome RunOn(const Texts& project, int projectKind = 2)
{
    FakeHost host;
    host.m_texts = project;
    Ranker ranker;
    ranker.m_nProjectKind = projectKind;
    CStringArray list;
    ranker.ProcessController(list);
    const int focus = ranker.FindIndexOfFocusByArFlags();
    EXPECT_EQ(ranker.m_nFocusIndex, focus);
    Stamps stamps(static_cast<std::size_t>(focus + 1), 1);
    stamps.resize(static_cast<std::size_t>(list.GetSize()), 0);
    EXPECT_EQ(StampsOf(ranker.m_arFlags), stamps);
    return {TextsOf(list), focus + 1};
}

TEST(StirrupRanker, Runs)
{
    EXPECT_EQ(RunOn({}), (Outcome{{"A8@200(2)", "A8@100/150(2)", "A8@100/200(2)", "A8@150/200(2)",
                                   "A8@150/250(2)", "A10@200(2)", "A10@100/150(2)", "A10@100/200(2)",
                                   "A10@150/200(2)", "A10@150/250(2)"},
                                  0}));
    EXPECT_EQ(RunOn({}, 0), (Outcome{{"A10@200(2)", "A8@200(2)", "A8@100/150(2)", "A8@100/200(2)",
                                      "A8@150/200(2)", "A8@150/250(2)", "A10@100/150(2)", "A10@100/200(2)",
                                      "A10@150/200(2)", "A10@150/250(2)"},
                                     0}));
    EXPECT_EQ(
        RunOn({"A8@100/200(2)", "A8@200(2)", "A8@200(2)"}),
        (Outcome{{"A8@200(2)", "A8@100/200(2)", "A8@100/150(2)", "A8@150/200(2)", "A8@150/250(2)",
                  "A10@100/150(2)", "A10@200(2)", "A10@100/200(2)", "A10@150/200(2)", "A10@150/250(2)"},
                 2}));
    // Texts that compare equal stay as they came; no text moves to the head of a filled list.
    Texts expected = {"A9@100(4)/200(2)", "A9@100(2)/200(2)"};
    expected.insert(expected.end(), SortedGuesses.begin(), SortedGuesses.end());
    EXPECT_EQ(RunOn({"A9@100(4)/200(2)", "A9@100(2)/200(2)"}, 0), (Outcome{expected, 2}));
}

TEST(StirrupRanker, StampsThatOnlyAHostWritesKeepTheirPlaces)
{
    Ranker ranker;
    CStringArray list;
    Fill(list, {"A8@200(2)", "A6@200(2)", "A12@200(2)", "A10@200(2)"});
    Fill(ranker.m_arFlags, {0, 2, 1, 1});
    ranker.SortResult(list);
    EXPECT_EQ(TextsOf(list), (Texts{"A8@200(2)", "A6@200(2)", "A10@200(2)", "A12@200(2)"}));
    EXPECT_EQ(StampsOf(ranker.m_arFlags), (Stamps{0, 2, 1, 1}));
}

TEST(StirrupRanker, TableRowsFollowARun)
{
    GuJinBiao table;
    table.InintOnce();
    FakeHost host;
    host.m_texts = {"A8@200(4)"};
    Ranker ranker;
    ranker.SetPara(400, 1, 40, &table);
    CStringArray list;
    ranker.ProcessController(list);
    ranker.ChaBiao(list);
    EXPECT_EQ(list.GetSize(), 12);
    EXPECT_EQ(list[11], "A8@100/200(4)");
    EXPECT_EQ(ranker.m_arFlags.GetSize(), 12);
    EXPECT_EQ(ranker.FindIndexOfFocusByArFlags(), 0);

    // The stamps stay over SetPara and no table gives no rows.
    ranker.SetPara(400, 1, 40, nullptr);
    EXPECT_EQ(ranker.m_arFlags.GetSize(), 12);
    ranker.ChaBiao(list);
    EXPECT_EQ(list.GetSize(), 12);
}

}  // namespace
