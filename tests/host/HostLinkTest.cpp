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

// A host that signs all that it answers and gets, each slot with a mark of its own.
template <int Age>
void RegisterAll()
{
    const auto sign = [](CStringArray& list, const char* mark) {
        CString text;
        text.Format("%s%d", mark, Age);
        list.Add(text);
    };
    static constexpr auto Sign = sign;
    SetBeamTypeFunc([](CStringArray& types) { Sign(types, "T"); });
    SetBeamNumberFunc([](CUIntArray& serials, CStringArray& suffixes, CString type) {
        serials.Add(Age);
        Sign(suffixes, type + "N");
    });
    SetBeamSectionFunc([](CStringArray& list) { Sign(list, "900x"); });
    SetBeamEleFunc([](CStringArray& list) { Sign(list, "-1."); });
    SetBeamGujinFunc([](CStringArray& list) { Sign(list, "A8@300(2)G"); });
    SetBeamSteelFunc([](CStringArray& list, CString kind) { Sign(list, "9B9 of kind " + kind + " S"); });
    SetBeamMouseInputFunc([](void* target, int, CString text, int) {
        Sign(*static_cast<CStringArray*>(target), text + "M");
    });
}

template <class Ranker>
Texts RunOf(Ranker& ranker)
{
    CStringArray list;
    ranker.ProcessController(list);
    return TextsOf(list);
}

TEST(HostLink, EachSlotKeepsItsOwnAndNewestPointer)
{
    RegisterAll<4>();
    RegisterAll<7>();
    BEAMNAME_HITNESS_RANKER names;
    names.m_nProjectKind = 0;
    EXPECT_EQ(RunOf(names), (Texts{"T76T7N7", "T78T7N7"}));
    BEAMSIZE_HITNESS_RANKER sections;
    EXPECT_EQ(RunOf(sections).back(), "900x7");
    BEAMLEVEL_HITNESS_RANKER elevations;
    EXPECT_EQ(RunOf(elevations), (Texts{"      ", "-1.7"}));
    GUJIN_HITNESS_RANKER stirrups;
    EXPECT_EQ(RunOf(stirrups).front(), "A8@300(2)G7");
    CHABIAO_HITNESS_RANKER bars;
    bars.SetPara(300, 1000, nullptr, "3");
    EXPECT_EQ(RunOf(bars).front(), "9B9 of kind 3 S7");
    CStringArray delivered;
    CBeamSecDlg panel("300x600");
    panel.m_bToItem = panel.m_bInParent = false;
    panel.m_pHostData = &delivered;
    panel.OnRButtonDown(0, CPoint());
    EXPECT_EQ(TextsOf(delivered), Texts{"300x600M7"});

    const FakeHost takesAndEmptiesTheSlots;
    SetBeamMouseInputFunc(nullptr);
}

TEST(HostLink, ACallbackMayRunAnotherRankerAndChangeItsOwnSlot)
{
    SetBeamSectionFunc([](CStringArray& list) {
        SetBeamSectionFunc([](CStringArray& inner) { inner.Add("900x2"); });
        BEAMSIZE_HITNESS_RANKER ranker;
        list.Add((RunOf(ranker).back() + "1").c_str());
    });
    BEAMSIZE_HITNESS_RANKER ranker;
    EXPECT_EQ(RunOf(ranker).back(), "900x21");
    EXPECT_EQ(RunOf(ranker).back(), "900x2");
    SetBeamSectionFunc(nullptr);
    EXPECT_EQ(RunOf(ranker).size(), 10U);
}

TEST(HostLink, ARankerThatItsOwnCallbackRunsAgainStaysWhole)
{
    static BEAMNAME_HITNESS_RANKER* s_ranker = nullptr;
    static int s_depth = 0;
    static Texts s_inner;
    BEAMNAME_HITNESS_RANKER ranker;
    s_ranker = &ranker;
    // The second run finds enough types for the list of them to move.
    SetBeamTypeFunc([](CStringArray& types) {
        for (const char* const type : {"KL", "WKL", "JZL", "LL", "AL"}) {
            types.Add(type);
            if (s_depth == 0) {
                return;
            }
        }
    });
    SetBeamNumberFunc([](CUIntArray& serials, CStringArray& suffixes, CString) {
        if (s_depth++ == 0) {
            s_inner = RunOf(*s_ranker);
        }
        serials.Add(1);
        suffixes.Add("(1)");
    });
    const Texts outer = RunOf(ranker);
    SetBeamTypeFunc(nullptr);
    SetBeamNumberFunc(nullptr);
    EXPECT_EQ(s_inner, (Texts{"KL2(1)", "WKL2(1)", "JZL2(1)", "LL2(1)", "AL2(1)"}));
    EXPECT_EQ(outer, s_inner);
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
