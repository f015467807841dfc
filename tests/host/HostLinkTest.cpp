// The slots: empty ones are harmless, the newest pointer is called, callbacks may call back.
#include <gtest/gtest.h>

#include <typeinfo>

#include "tests/support/FakeHost.h"

namespace {

TEST(HostLink, EveryRankerRunsWithEmptySlots)
{
    CStringArray list;
    BEAMNAME_HITNESS_RANKER().ProcessController(list);
    EXPECT_EQ(list.GetSize(), 16);
    BEAMSIZE_HITNESS_RANKER().ProcessController(list);
    EXPECT_EQ(list.GetSize(), 10);
    BEAMLEVEL_HITNESS_RANKER().ProcessController(list);
    EXPECT_EQ(list.GetSize(), 4);
    GUJIN_HITNESS_RANKER().ProcessController(list);
    EXPECT_EQ(list.GetSize(), 10);
    CHABIAO_HITNESS_RANKER bars;
    bars.SetPara(300, 1000, nullptr, "1");
    bars.ProcessController(list);
    EXPECT_EQ(list.GetSize(), 8);
}

TEST(HostLink, TheNewestPointerIsCalled)
{
    SetBeamEleFunc([](CStringArray& list) { list.Add("1.000"); });
    SetBeamEleFunc([](CStringArray& list) { list.Add("2.000"); });
    CStringArray list;
    BEAMLEVEL_HITNESS_RANKER().ProcessController(list);
    EXPECT_EQ(TextsOf(list), (Texts{"      ", "2.000"}));
    SetBeamEleFunc(nullptr);
    BEAMLEVEL_HITNESS_RANKER().ProcessController(list);
    EXPECT_EQ(list.GetSize(), 4);
}

TEST(HostLink, ACallbackMayRunAnotherRankerAndChangeItsOwnSlot)
{
    SetBeamSectionFunc([](CStringArray& list) {
        SetBeamSectionFunc(nullptr);
        CStringArray inner;
        BEAMSIZE_HITNESS_RANKER().ProcessController(inner);
        list.Add(inner[0]);
    });
    CStringArray list;
    BEAMSIZE_HITNESS_RANKER().ProcessController(list);
    EXPECT_EQ(list.GetSize(), 10);
}

TEST(HostLink, ARankerThatItsOwnCallbackRunsAgainStaysWhole)
{
    static BEAMNAME_HITNESS_RANKER* s_ranker = nullptr;
    static int s_depth = 0;
    BEAMNAME_HITNESS_RANKER ranker;
    s_ranker = &ranker;
    SetBeamTypeFunc([](CStringArray& types) { types.Add(s_depth == 0 ? "KL" : "WKL"); });
    SetBeamNumberFunc([](CUIntArray& serials, CStringArray& suffixes, CString) {
        if (s_depth++ == 0) {
            CStringArray inner;
            s_ranker->ProcessController(inner);
        }
        serials.Add(4);
        suffixes.Add("(1)");
    });
    CStringArray list;
    ranker.ProcessController(list);
    SetBeamTypeFunc(nullptr);
    SetBeamNumberFunc(nullptr);
    EXPECT_FALSE(list.IsEmpty());
}

TEST(HostLink, TheModuleHasAnApplicationObjectOfItsOwn)
{
    const CWinApp* const application = AfxGetApp();
    ASSERT_NE(application, nullptr);
    EXPECT_NE(typeid(*application), typeid(CWinApp));
    {
        const CWinApp another;
        EXPECT_EQ(AfxGetApp(), application);
    }
    EXPECT_EQ(AfxGetApp(), application);
}

}  // namespace
