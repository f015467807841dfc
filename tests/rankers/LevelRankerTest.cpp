// Beam elevations below their row of blanks.
#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"

namespace {

TEST(LevelRanker, RisingBelowTheBlankRow)
{
    const std::pair<Texts, Texts> cases[] = {
        {{}, {"0.1500", "0.3000", "0.6000"}},
        {{"-0.300", "0.600", "0.100"}, {"-0.300", "0.100", "0.600"}},
        {{"(-0.300)", "0.100", "-0.200"}, {"-0.200", "(-0.300)", "0.100"}},
        {{"0.3", "0.300", "0.3", "0.30"}, {"0.3", "0.300", "0.30"}},
        {{"0.300", "0.3"}, {"0.300", "0.3"}},
        {{"9", "10", "H+1", "", "-1e-1", "1e1"}, {"-1e-1", "H+1", "", "9", "10", "1e1"}},
        {{"      ", "1"}, {"      ", "1"}},
        {{"12", "11", "10", "9", "8", "7", "6", "5", "4", "3", "2"},
         {"2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"}},
    };
    for (const auto& [project, expected] : cases) {
        FakeHost host;
        host.m_texts = project;
        CStringArray list;
        BEAMLEVEL_HITNESS_RANKER().ProcessController(list);
        ASSERT_GE(list.GetSize(), 2);
        EXPECT_EQ(list[0], "      ");
        list.RemoveAt(0);
        EXPECT_EQ(TextsOf(list), expected);
    }
}

}  // namespace
