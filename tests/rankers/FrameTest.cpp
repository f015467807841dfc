// What all rankers share: a run to read of each, virtual steps in their order, copying.
#include <gtest/gtest.h>

#include "tests/support/FakeHost.h"

namespace {

template <class Ranker>
Texts RunOn(const Texts& project, int projectKind = 2)
{
    FakeHost host;
    host.m_texts = project;
    Ranker ranker;
    if constexpr (requires { ranker.m_nProjectKind; }) {
        ranker.m_nProjectKind = projectKind;
    }
    if constexpr (requires { ranker.m_pSteelBiao; }) {
        ranker.SetPara(300, 1000, nullptr, "1");
    }
    CStringArray list;
    ranker.ProcessController(list);
    return TextsOf(list);
}

// One run of each kind to read; random lists compare all others.
TEST(RankerFrame, ExampleRuns)
{
    EXPECT_EQ(RunOn<BEAMLEVEL_HITNESS_RANKER>({"(-0.300)", "0.100", "-0.200", "0.100"}),
              (Texts{"      ", "-0.200", "(-0.300)", "0.100"}));
    EXPECT_EQ(RunOn<BEAMSIZE_HITNESS_RANKER>({}, 0),
              (Texts{"300x1200", "250x500", "300x500", "350x500", "400x500", "450x500", "250x600",
                     "300x600", "350x600", "400x600", "450x600"}));
    EXPECT_EQ(
        RunOn<GUJIN_HITNESS_RANKER>({"A8@100/200(2)", "A8@200(2)", "A8@200(2)"}),
        (Texts{"A8@200(2)", "A8@100/200(2)", "A8@100/150(2)", "A8@150/200(2)", "A8@150/250(2)",
               "A10@100/150(2)", "A10@200(2)", "A10@100/200(2)", "A10@150/200(2)", "A10@150/250(2)"}));
    EXPECT_EQ(RunOn<CHABIAO_HITNESS_RANKER>({"2B20", "2B25", "2B20", "N2B25"}),
              (Texts{"2B20", "2B25", "2B12", "2B14", "2B16", "2B18", "2B22", "2B28"}));
}

TEST(RankerFrame, BaseStepsLeaveTheListAlone)
{
    CStringArray list;
    Fill(list, {"b", "a", "b"});
    HITNESS_RANKER ranker;
    ranker.ProcessController(list);
    ranker.SelectFromProject(list);
    ranker.AdaptResultSize(list);
    ranker.AddPreferable(list);
    ranker.SortResult(list);
    ranker.GuessFromScratch(list);
    EXPECT_EQ(TextsOf(list), (Texts{"b", "a", "b"}));
}

// Writes down which virtual steps a run goes through, and how long the list is then.
template <class Ranker>
class Traced : public Ranker {
public:
    void SelectFromProject(CStringArray& list) override
    {
        Ranker::SelectFromProject(list);
        Note("select", list);
    }
    void AdaptResultSize(CStringArray& list) override { Note("adapt", list); }
    void AddPreferable(CStringArray& list) override { Note("prefer", list); }
    void SortResult(CStringArray& list) override
    {
        Note("sort", list);
        Ranker::SortResult(list);
    }
    void GuessFromScratch(CStringArray& list) override
    {
        Ranker::GuessFromScratch(list);
        Note("guess", list);
    }
    Texts m_trace;

private:
    void Note(const char* step, const CStringArray& list)
    {
        m_trace.push_back(step + (" " + std::to_string(list.GetSize())));
    }
};

template <class Ranker>
Texts TraceOf(const Texts& project)
{
    FakeHost host;
    host.m_texts = project;
    if (!project.empty()) {
        host.m_types = {"KL"};
        host.m_names["KL"] = {{7}, project};  // two free serials
    }
    Traced<Ranker> ranker;
    CStringArray list;
    list.Add("left over");
    ranker.ProcessController(list);
    return ranker.m_trace;
}

TEST(RankerFrame, RunsThroughItsVirtualStepsInOrder)
{
    using Name = BEAMNAME_HITNESS_RANKER;
    using Size = BEAMSIZE_HITNESS_RANKER;
    using Level = BEAMLEVEL_HITNESS_RANKER;
    using Bars = CHABIAO_HITNESS_RANKER;
    using Stirrups = GUJIN_HITNESS_RANKER;
    const Texts nine = {"2B1", "2B2", "2B3", "2B4", "2B5", "2B6", "2B7", "2B8", "2B9"};
    Texts ten = nine, eleven = nine;
    ten.emplace_back("3B1");
    eleven.insert(eleven.end(), {"3B1", "3B2"});
    EXPECT_EQ(TraceOf<Level>({}), (Texts{"select 0", "guess 3", "sort 3"}));
    EXPECT_EQ(TraceOf<Level>({"1", "1", "2"}), (Texts{"select 2", "sort 2"}));
    EXPECT_EQ(TraceOf<Name>({}), (Texts{"select 0", "guess 19", "adapt 19", "sort 16"}));
    EXPECT_EQ(TraceOf<Name>({"(1)", "(2)", "(3)", "(4)", "(5)"}), (Texts{"select 10", "sort 10"}));
    EXPECT_EQ(TraceOf<Name>({"(1)", "(2)", "(3)", "(4)", "(5)", "(6)"}),
              (Texts{"select 12", "adapt 12", "sort 12"}));
    EXPECT_EQ(TraceOf<Level>(ten), (Texts{"select 10", "sort 10"}));
    EXPECT_EQ(TraceOf<Level>(eleven), (Texts{"select 11", "adapt 11", "sort 11"}));
    EXPECT_EQ(TraceOf<Size>({}), (Texts{"select 0", "guess 10"}));
    EXPECT_EQ(TraceOf<Size>({"250x500"}), (Texts{"select 1", "guess 11", "adapt 11", "sort 10"}));
    EXPECT_EQ(TraceOf<Bars>({}), (Texts{"select 0", "guess 0"}));
    EXPECT_EQ(TraceOf<Bars>({"2B20"}), (Texts{"select 1", "guess 1"}));
    EXPECT_EQ(TraceOf<Bars>(nine), (Texts{"select 9"}));
    EXPECT_EQ(TraceOf<Bars>(ten), (Texts{"select 10"}));
    EXPECT_EQ(TraceOf<Bars>(eleven), (Texts{"select 11", "adapt 11"}));
    EXPECT_EQ(TraceOf<Stirrups>({}), (Texts{"select 0", "guess 10"}));
    EXPECT_EQ(TraceOf<Stirrups>({"A8@200(2)"}), (Texts{"select 1", "guess 11", "adapt 11", "sort 10"}));
}

TEST(RankerFrame, Copies)
{
    BEAMSIZE_HITNESS_RANKER size;
    size.m_nHostWord = 5;
    size.m_nProjectKind = 1;
    BEAMSIZE_HITNESS_RANKER assigned;
    assigned = size;
    EXPECT_EQ(assigned.m_nHostWord, 5);
    EXPECT_EQ(assigned.m_nProjectKind, 1);
    EXPECT_EQ(BEAMSIZE_HITNESS_RANKER(size).m_nProjectKind, 1);
    BEAMLEVEL_HITNESS_RANKER level;
    level.m_nHostWord = 6;
    EXPECT_EQ(BEAMLEVEL_HITNESS_RANKER(level).m_nHostWord, 6);
}

}  // namespace
