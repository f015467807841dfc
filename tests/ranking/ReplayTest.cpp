// The hit rate: places worked out by hand, and random projects replayed the plain way beside it.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "RankerModule.h"
#include "desk/project/Fields.h"
#include "desk/ranking/ProjectHost.h"
#include "desk/ranking/Replay.h"
#include "desk/ranking/SimpleOrders.h"
#include "tests/support/Seed.h"

namespace Desk::Hitrate {

void PrintTo(const Tally& tally, std::ostream* out)
{
    *out << tally.uses << ": " << tally.first << " " << tally.within3 << " " << tally.within5 << " "
         << tally.within10 << " " << tally.missing;
}

namespace {

Tally TallyOf(const std::vector<std::size_t>& places)
{
    Tally tally;
    for (const std::size_t place : places) {
        tally.Add(place);
    }
    return tally;
}

TEST(Tally, CountsEachPlaceInAllColumnsItFits)
{
    EXPECT_EQ(TallyOf({1, 3, 4, 5, 10, 11, 0}), (Tally{7, 1, 2, 4, 5, 1}));
}

TEST(SimpleOrders, HoldTheTextsThatRemain)
{
    SimpleOrders orders;
    for (const char* const text : {"b", "c", "a", "c", "c", "b", "d"}) {
        orders.Add(text);
    }
    const auto told = [&orders](const char* text) {
        const SimplePlaces without = orders.PlacesWithout(text);
        const SimplePlaces of = orders.PlacesOf(text);
        return std::vector{without.alphabetical, without.frequency, of.alphabetical, of.frequency};
    };
    EXPECT_EQ(told("a"), (std::vector<std::size_t>{0, 0, 1, 3}));
    EXPECT_EQ(told("b"), (std::vector<std::size_t>{2, 3, 2, 2}));  // c c c, a, b, d
    EXPECT_EQ(told("c"), (std::vector<std::size_t>{3, 2, 3, 1}));  // b b, c c, a, d
    EXPECT_EQ(told("e"), (std::vector<std::size_t>{0, 0, 0, 0}));
}

Project ProjectOf(std::string Beam::*member, const std::vector<std::string>& texts)
{
    Project project;
    for (const std::string& text : texts) {
        project.beams.emplace_back().*member = text;
    }
    return project;
}

const KindTally& Of(const std::vector<KindTally>& kinds, const std::string& name)
{
    return *std::find_if(kinds.begin(), kinds.end(),
                         [&](const KindTally& kind) { return kind.kind == name; });
}

TEST(Replay, LooksForEachNameInWhatTheNamesBeforePropose)
{
    // Guess list: place 1. Free neighbour KL2(3): 1. KL1(3) proposes nothing with (2): none. From 1 to 3
    // with (3) and (2): KL4(3), KL4(2). A name without serial and a repeated one are never proposed.
    const Project project =
        ProjectOf(&Beam::name, {"KL1(1)", "KL2(1)", "KL3(2)", "", "KL4(2)", "KL", "KL4(2)", "kl5(2)"});
    const KindTally names = ReplayProject(project).front();
    EXPECT_EQ(names.kind, "name");
    EXPECT_EQ(names.ranker, TallyOf({1, 1, 0, 2, 0, 0, 0}));
    EXPECT_EQ(names.alphabetical,
              TallyOf({0, 0, 0, 0, 0, 5, 0}));  // KL4(2) stands behind KL, KL1(1) to KL3(2)
    EXPECT_EQ(names.frequency, TallyOf({0, 0, 0, 0, 0, 5, 0}));
}

TEST(Replay, CountsPlacesOfListsByHand)
{
    // The row of blanks takes no place: 0.1 is the first row below it.
    EXPECT_EQ(
        Of(ReplayProject(ProjectOf(&Beam::elevation, {"0.2", "0.1", "0.2", "0.1"})), "elevation").ranker,
        TallyOf({2, 1, 2, 1}));
    // Alone, a text meets the guesses: 2B16 is the third of them.
    EXPECT_EQ(Of(ReplayProject(ProjectOf(&Beam::topBars, {"2B16"})), "top bars").ranker, TallyOf({3}));
    // G4B12 is found as 4B12, which the ranker makes of both of them.
    const KindTally side =
        Of(ReplayProject(ProjectOf(&Beam::side, {"G4B12", "N4B12", "G4B12"})), "torsion, side");
    EXPECT_EQ(side.ranker, TallyOf({1, 1, 1}));
    EXPECT_EQ(side.frequency, TallyOf({1, 1, 1}));

    // End bars are looked for on the beam's own through bars.
    Project project = ProjectOf(&Beam::topBars, {"2B20", "2B25", "2B20"});
    project.beams[0].leftEnd = "4B20";
    project.beams[1].leftEnd = "2B25+2B22";
    project.beams[2].rightEnd = "5B20";
    const KindTally ends = Of(ReplayProject(project), "end bars");
    // 5B20 and the guesses 2B20+1B18 and so on, 4B20 behind them; 2B25+2B22 among the guesses for 2B25,
    // which stand as written; 5B20 is no guess.
    EXPECT_EQ(ends.ranker, TallyOf({6, 3, 0}));
    EXPECT_EQ(ends.frequency, TallyOf({0, 0, 0}));
    EXPECT_EQ(Of(ReplayProject(project), "section").ranker.uses, 0U);

    // So are texts at supports; without through bars they are looked for among all ends of that side.
    project.beams[1].inPlace = {{Role::TopSupport, 2, "4B20", {}, -1, {}}};
    project.beams[1].topBars.clear();
    const KindTally inPlace = Of(ReplayProject(project), "end bars");
    EXPECT_EQ(inPlace.ranker.uses, 4U);
    EXPECT_EQ(inPlace.frequency, TallyOf({0, 0, 2, 0}));  // after 2B25+2B22, the other one
}

// The list of a kind the plain way: a copy of the project, the text emptied, a run of its own.
template <class Ranker>
std::size_t PlainPlace(Ranker& ranker, Project project, const FieldRef& ref, CString text)
{
    TextAt(project, ref).clear();
    const ProjectHost host(project);
    CStringArray list;
    ranker.ProcessController(list);
    const auto found = std::find(list.begin(), list.end(), text);
    return found == list.end() ? 0 : static_cast<std::size_t>(found - list.begin()) + 1;
}

TEST(Replay, IsWhatHidingOneUseAfterTheOtherGives)
{
    const std::vector<std::string> bars = {
        "2B20",           "N2B20",          "G2B20", "2B22+1B20", "2B22/1B20",
        "2B22+1B20/2B20", "2B22/1B20+2B20", "3B25",  "",          ""};
    const std::vector<std::string> stirrups = {"A8@200(2)", "B8@200(2)", "A8@100(2)/200(2)",
                                               "A8@100/200(2)", ""};
    const std::vector<std::string> sections = {"300x600",  "300*600", "300X600", "300x700",
                                               "Y300x500", "odd",     ""};
    std::mt19937 random(FirstSeed(7));
    const auto pick = [&random](const std::vector<std::string>& texts) {
        return texts[random() % texts.size()];
    };
    for (int round = 0; round < 60; ++round) {
        Project project;
        project.beams.resize(random() % 14 + 1);
        for (Beam& beam : project.beams) {
            beam.torsion = pick(bars);
            beam.side = pick(bars);
            beam.topBars = pick({"2B20", "2B25", ""});
            beam.leftEnd = pick(bars);
            beam.rightEnd = pick(bars);
            beam.stirrup = pick(stirrups);
            beam.section = pick(sections);
            beam.spans.resize(random() % 3, 6000);
            for (unsigned i = random() % 4; i > 0; --i) {
                const int number = static_cast<int>(random() % 3) + 1;
                beam.inPlace.push_back({Role::TopSupport, number, pick(bars), {}, -1, {}});
                beam.inPlace.push_back({Role::Side, number, pick(bars), {}, -1, {}});
                beam.inPlace.push_back({Role::Stirrup, number, pick(stirrups), {}, -1, {}});
                beam.inPlace.push_back({Role::Section, number, pick(sections), {}, -1, {}});
            }
        }
        const std::vector<KindTally> kinds = ReplayProject(project);
        const auto plain = [&](const std::set<Field>& fields, auto rank) {
            Tally tally;
            for (std::size_t i = 0; i < project.beams.size(); ++i) {
                for (const FieldRef& ref : RefsOf(project, {false, i})) {
                    const std::string& text = TextAt(project, ref);
                    if (fields.contains(ref.field) && !text.empty()) {
                        tally.Add(rank(ref, text));
                    }
                }
            }
            return tally;
        };
        const auto rankBars = [&](const auto& kindOf) {
            return [&project, &kindOf](const FieldRef& ref, std::string text) {
                CHABIAO_HITNESS_RANKER ranker;
                ranker.SetPara(0, 0, nullptr, kindOf(ref));
                text.erase(0, text.find_first_not_of("GN*"));
                return PlainPlace(ranker, project, ref, std::string_view(text));
            };
        };
        const auto endKind = [&project](const FieldRef& ref) {
            const Beam& beam = project.beams[ref.index];
            const auto inPlace = static_cast<std::size_t>(ref.inPlace);
            const bool isRight = ref.inPlace < 0
                                     ? ref.field == Field::RightEnd
                                     : !beam.spans.empty() && beam.inPlace[inPlace].number ==
                                                                  static_cast<int>(beam.spans.size()) + 1;
            return beam.topBars.empty() ? CString(isRight ? "3" : "2")
                                        : CString(std::string_view(beam.topBars));
        };
        const auto sideKind = [](const FieldRef&) { return CString("5.2"); };
        EXPECT_EQ(Of(kinds, "torsion, side").ranker,
                  plain({Field::Torsion, Field::Side}, rankBars(sideKind)));
        EXPECT_EQ(Of(kinds, "end bars").ranker,
                  plain({Field::LeftEnd, Field::RightEnd}, rankBars(endKind)));
        EXPECT_EQ(Of(kinds, "stirrups").ranker,
                  plain({Field::Stirrup}, [&](const FieldRef& ref, const std::string& text) {
                      GUJIN_HITNESS_RANKER ranker;
                      return PlainPlace(ranker, project, ref, std::string_view(text));
                  }));
        EXPECT_EQ(Of(kinds, "section").ranker,
                  plain({Field::Section}, [&](const FieldRef& ref, const std::string& text) {
                      BEAMSIZE_HITNESS_RANKER ranker;
                      return PlainPlace(ranker, project, ref, std::string_view(text));
                  }));
    }
}

}  // namespace
}  // namespace Desk::Hitrate
