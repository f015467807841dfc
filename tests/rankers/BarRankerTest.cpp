// Table rows behind a run of the bar ranker; random lists compare all else.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/FakeHost.h"

namespace {

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
    // The area is cut to a whole number: the row of 1005 is 29 away and not 30.
    ranker.SetPara(300, 0, &table, "2B16");
    ranker.m_dArea = 1034.9;
    list.RemoveAll();
    ranker.ChaBiao(list);
    EXPECT_EQ(TextsOf(list), (Texts{"2B16", "5B16", "2B16+2B20"}));

    // No table gives no rows.
    ranker.m_pSteelBiao = nullptr;
    ranker.ChaBiao(list);
    GUJIN_HITNESS_RANKER stirrups;
    stirrups.SetPara(400, 1, 40, nullptr);
    stirrups.ChaBiao(list);
    EXPECT_EQ(list.GetSize(), 3);
}

}  // namespace
