// Beam names: taking them apart, free serials, whole runs, the remembered step.
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

TEST(NameRanker, TakesNamesApart)
{
    struct Case {
        const char* name;
        const char* type;
        int serial;
        const char* suffix;
    };
    const Case cases[] = {
        {"KZL3(2)", "KZL", 3, "(2)"}, {"KL12(3A)", "KL", 12, "(3A)"},   {"AL1", "AL", 1, ""},
        {"KL(2)", "KL", 0, "(2)"},    {"TB7(2)", "", 0, "(2)"},         {"", "", 0, ""},
        {"LLK3", "LL", 0, ""},        {"KL-1(2)", "KL", -1, "(2)"},     {"KL1(L)", "KL1(L", 0, "(L)"},
        {"KL 7a(1)", "KL", 7, "(1)"}, {"KL2(1)(2)", "KL", 2, "(1)(2)"},
    };
    for (const Case& c : cases) {
        CString type("?");
        CString suffix("?");
        int serial = 99;
        Ranker::GetBeamType(c.name, type);
        Ranker::GetBeamXu(c.name, serial);
        Ranker::GetBeamKuaAndXuantiao(c.name, suffix);
        EXPECT_EQ(type, c.type) << c.name;
        EXPECT_EQ(serial, c.serial) << c.name;
        EXPECT_EQ(suffix, c.suffix) << c.name;
    }
}

TEST(NameRanker, FreeSerials)
{
    struct Case {
        Stamps used;
        Stamps free;
    };
    const Case cases[] = {
        {{}, {}},
        {{1}, {2}},
        {{7}, {6, 8}},
        {{0}, {1}},
        {{5, 1, 2}, {3, 4, 6}},
        {{5, 7, 9}, {4, 6, 8, 10}},
        {{1, 5, 9}, {2, 6, 8, 10}},
        {{9, 5, 3, 2, 1}, {4, 6, 8, 10}},
        {{3, 3}, {2, 4, 4}},
        {{2147483647U}, {2147483646U}},
        {{1, 2147483647U}, {2}},
        {{4294967295U}, {}},
        {{2147483646U, 2147483648U}, {2147483645U, 2147483647U}},
    };
    for (const Case& c : cases) {
        Ranker ranker;
        Fill(ranker.m_arUsedXu, c.used);
        CUIntArray free;
        free.Add(77);
        ranker.FindXu(free);
        Stamps expected = {77};
        expected.insert(expected.end(), c.free.begin(), c.free.end());
        EXPECT_EQ(StampsOf(free), expected);
        EXPECT_TRUE(std::is_sorted(ranker.m_arUsedXu.begin(), ranker.m_arUsedXu.end()));
    }
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

TEST(NameRanker, EmptyProjectGivesTheGuesses)
{
    FakeHost host;
    Ranker ranker;
    const Texts guesses = {"KL1(1)", "KZL1(1)", "WKL1(1)", "LL1(1)", "AL1", "BKL1", "JCL1(1)", "L1(1)",
                           "JCL2",   "JCL3",    "LL1",     "LL2",    "AL2", "BKL2", "L1",      "L2"};
    EXPECT_EQ(RunOn(ranker), guesses);
    EXPECT_TRUE(host.m_numberCalls.empty());
}

TEST(NameRanker, AListWithoutKGetsOne)
{
    FakeHost host;
    host.m_types = {"L"};
    host.m_names["L"] = {{1}, {"(1)"}};
    host.m_names["WKL"] = {{1}, {"(1)"}};
    EXPECT_EQ(RunOn(*std::make_unique<Ranker>()), (Texts{"KL1(1)", "L2(1)"}));
    Ranker other;
    other.m_nProjectKind = 0;
    EXPECT_EQ(RunOn(other), (Texts{"L2(1)"}));
    host.m_types = {"WKL"};
    EXPECT_EQ(RunOn(*std::make_unique<Ranker>()), (Texts{"WKL2(1)"}));
    CStringArray empty;
    Ranker().StrangeFuncForKL(empty);
    EXPECT_EQ(TextsOf(empty), Texts{"KL1(1)"});
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
