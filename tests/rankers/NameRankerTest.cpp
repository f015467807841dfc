// Beam names: what the callbacks are asked, and the remembered step; random lists compare all else.
#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"

namespace {

using Ranker = BEAMNAME_HITNESS_RANKER;

Texts RunOn(Ranker& ranker)
{
    CStringArray list;
    ranker.ProcessController(list);
    return TextsOf(list);
}

TEST(NameRanker, SerialsTimesSuffixes)
{
    FakeHost host;
    host.m_types = {"KL", "L", "KL", "XL", "WKL"};
    host.m_names["KL"] = {{1, 2, 5, 2, 1}, {"(3)", "(2A)", "(3)"}};
    host.m_names["L"] = {{4}, {""}};
    host.m_names["XL"] = {{1}, {}};
    host.m_names["WKL"] = {{}, {"(1)"}};
    Ranker ranker;
    const Texts expected = {"KL3(3)", "KL4(3)", "KL6(3)", "KL3(2A)", "KL4(2A)", "KL6(2A)", "L3", "L5"};
    EXPECT_EQ(RunOn(ranker), expected);
    EXPECT_EQ(host.m_numberCalls, (Texts{"KL", "L", "XL", "WKL"}));
    EXPECT_TRUE(host.m_numberArraysWereEmpty);

    // The types of the first run are still there in the second one.
    EXPECT_EQ(RunOn(ranker), expected);
    EXPECT_EQ(host.m_typesOnEntry, (Texts{"KL", "L", "XL", "WKL"}));
}

TEST(NameRanker, RemembersTheStepFromNameToName)
{
    Ranker ranker;
    const std::pair<const char*, int> steps[] = {{"KL3", 0},    {"KL5(2)", 5}, {"KL4", -4},
                                                 {"L4(1)", -4}, {"", 0},       {"KL9", 0}};
    for (const auto& [name, step] : steps) {
        ranker.SetPreBeamName(name);
        EXPECT_EQ(ranker.m_nPreXuStep, step) << name;
        EXPECT_EQ(ranker.GetMostFixedBeamNameIndex(), 0) << name;
        EXPECT_EQ(ranker.m_strPreBeamName, name);
    }
}

}  // namespace
