// The rankers by way of C give what they give by way of C++, on random lists.
#include "tests/c/CHost.h"
#include "tests/rankers/random/MakeTexts.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Seed.h"

namespace {

using Yardstick::Chance;

struct Ranked {
    Texts texts;
    Stamps stamps;
    int focus = -1;

    bool operator==(const Ranked&) const = default;
    friend void PrintTo(const Ranked& ranked, std::ostream* out)
    {
        *out << testing::PrintToString(ranked.texts) << testing::PrintToString(ranked.stamps)
             << ranked.focus;
    }
};

struct Question {
    int kind = 0;
    int width = 0;
    int area = 0;
    int seismic = 0;
    int grade = 0;
    std::string bars;
    int project = 2;
};

// The same run and, for bars and stirrups, the table's rows behind it.
template <class Ranker>
Ranked Run(Ranker& ranker, const Question& question)
{
    if constexpr (requires { ranker.m_nProjectKind; }) {
        ranker.m_nProjectKind = question.project;
    }
    CStringArray candidates;
    ranker.ProcessController(candidates);
    Ranked ranked;
    if constexpr (requires { ranker.m_arFlags; }) {
        ranked.focus = ranker.FindIndexOfFocusByArFlags();
        ranker.ChaBiao(candidates);
        ranked.stamps = StampsOf(ranker.m_arFlags);
    } else if constexpr (std::is_same_v<Ranker, BEAMNAME_HITNESS_RANKER>) {
        ranked.focus = 0;
    }
    ranked.texts = TextsOf(candidates);
    return ranked;
}

Ranked ByCpp(const Question& question, const Texts& texts)
{
    FakeHost host;
    host.m_texts = texts;
    switch (question.kind) {
    case RK_NAME: {
        for (const std::string& name : texts) {
            CString type;
            CString suffix;
            int serial = 0;
            BEAMNAME_HITNESS_RANKER::GetBeamType(name.c_str(), type);
            BEAMNAME_HITNESS_RANKER::GetBeamXu(name.c_str(), serial);
            BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(name.c_str(), suffix);
            host.m_types.emplace_back(type.View());
            host.m_names[host.m_types.back()].serials.push_back(static_cast<unsigned>(serial));
            host.m_names[host.m_types.back()].suffixes.emplace_back(suffix.View());
        }
        BEAMNAME_HITNESS_RANKER ranker;
        return Run(ranker, question);
    }
    case RK_SECTION: {
        BEAMSIZE_HITNESS_RANKER ranker;
        return Run(ranker, question);
    }
    case RK_ELEVATION: {
        BEAMLEVEL_HITNESS_RANKER ranker;
        return Run(ranker, question);
    }
    case RK_STIRRUP: {
        GuJinBiao table;
        table.InintOnce();
        GUJIN_HITNESS_RANKER ranker;
        ranker.SetPara(question.width, question.seismic, question.grade, &table);
        return Run(ranker, question);
    }
    default: {
        SteelBiao table;
        table.InintOnce();
        CHABIAO_HITNESS_RANKER ranker;
        ranker.SetPara(question.width, question.area, &table, question.bars.c_str());
        return Run(ranker, question);
    }
    }
}

// The project as a list, or through the callbacks.
Ranked ByC(const Question& question, const Texts& texts, bool bByList)
{
    CHost host;
    host.m_texts = texts;
    EXPECT_EQ(RK_OK, rk_context_set_encoding(host.m_context, RK_GBK));
    const rk_list project = bByList ? host.NewList(texts) : nullptr;
    const rk_list result = bByList ? project : host.NewList({"old"});
    const rk_ranker ranker = host.NewRanker(question.kind);
    const bool bTable = question.kind == RK_BARS || question.kind == RK_STIRRUP;
    if (question.kind == RK_BARS) {
        EXPECT_EQ(RK_OK, rk_ranker_set_bars(ranker, question.width, question.area, question.bars.data(),
                                            question.bars.size()));
    } else if (question.kind == RK_STIRRUP) {
        EXPECT_EQ(RK_OK, rk_ranker_set_stirrups(ranker, question.width, question.seismic, question.grade));
    }
    EXPECT_EQ(question.kind == RK_ELEVATION ? RK_BAD_ARGUMENT : RK_OK,
              rk_ranker_set_project_kind(ranker, question.project));
    EXPECT_EQ(RK_OK, rk_ranker_run(ranker, project, result)) << rk_last_error();
    Ranked ranked;
    EXPECT_EQ(RK_OK, rk_ranker_focus(ranker, &ranked.focus));
    EXPECT_EQ(bTable ? RK_OK : RK_BAD_ARGUMENT, rk_ranker_add_table_rows(ranker, result));
    ranked.texts = TextsOf(result);
    ranked.stamps = StampsOf(result);
    return ranked;
}

TEST(CRankers, GiveWhatTheModulesGive)
{
    constexpr unsigned Trials = 400;
    const unsigned first = FirstSeed(1);
    for (unsigned seed = first; seed < first + Trials; ++seed) {
        SCOPED_TRACE(SeedName(seed));
        Chance chance(seed);
        Question question;
        question.kind = chance.Of({RK_NAME, RK_SECTION, RK_ELEVATION, RK_STIRRUP, RK_BARS});
        question.width = chance.Of({199, 250, 300, 400, 700});
        question.area = static_cast<int>(chance.Below(4000));
        question.seismic = chance.Of({0, 1, 2, 4});
        question.grade = chance.Of({20, 30, 40, 22});
        question.bars = chance.OneIn(3) ? chance.Bars() : chance.Of({"1", "4", "5.1", "2B20"});
        question.project = chance.Of({2, 0});
        const auto make = question.kind == RK_NAME        ? &Chance::Name
                          : question.kind == RK_SECTION   ? &Chance::Section
                          : question.kind == RK_ELEVATION ? &Chance::Elevation
                          : question.kind == RK_STIRRUP   ? &Chance::Stirrup
                                                          : &Chance::Bars;
        const Texts texts = chance.Texts(static_cast<unsigned>(chance.Of({0, 5, 30})), make);
        const Ranked expected = ByCpp(question, texts);
        ASSERT_EQ(expected, ByC(question, texts, true));
        if (question.kind != RK_NAME) {
            ASSERT_EQ(expected, ByC(question, texts, false));
        }
    }
}

TEST(CRankers, AskForNamesAndRememberOne)
{
    CHost host;
    host.m_types = {"KL", "边L"};
    const rk_list result = host.NewList();
    const rk_ranker ranker = host.NewRanker(RK_NAME);
    for (int again = 0; again < 2; ++again) {
        host.m_asked.clear();
        DONE(rk_ranker_run(ranker, nullptr, result));
        EXPECT_EQ(host.m_types, host.m_asked) << "the types of the last run are still known, once";
        EXPECT_EQ(
            (Texts{"KL2(1)", "KL5(1)", "KL2(2A)", "KL5(2A)", "边L2(1)", "边L5(1)", "边L2(2A)", "边L5(2A)"}),
            TextsOf(result));
    }
    std::int32_t step = 0;
    DONE(rk_ranker_set_previous_name(ranker, "KL3", 3, &step));
    DONE(rk_ranker_set_previous_name(ranker, "KL1(2)", 6, &step));
    EXPECT_EQ(-1, step);
}

}  // namespace
