// The hit rate: places worked out by hand, and random projects replayed the plain way beside it.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "desk/ranking/Replay.h"
#include "desk/ranking/SimpleOrders.h"
#include "tests/ranking/Plain.h"
#include "tests/support/Seed.h"

namespace Desk::Hitrate {

void PrintTo(const Tally& tally, std::ostream* out)
{
    *out << tally.uses << ": " << tally.first << " " << tally.within3 << " " << tally.within5 << " "
         << tally.within10 << ", seen " << tally.seen << ", " << tally.MeanReciprocalRank();
}

namespace {

// What is seen is looked at apart.
Tally TallyOf(const std::vector<std::size_t>& places)
{
    Tally tally;
    for (const std::size_t place : places) {
        tally.Add(place, false);
    }
    return tally;
}

Tally Unseen(Tally tally)
{
    tally.seen = 0;
    return tally;
}

TEST(Tally, CountsEachPlaceInAllColumnsItFits)
{
    const Tally tally = TallyOf({1, 3, 4, 5, 10, 11, 0});
    EXPECT_EQ((std::vector{tally.uses, tally.first, tally.within3, tally.within5, tally.within10}),
              (std::vector<std::size_t>{7, 1, 2, 4, 5}));
    EXPECT_NEAR(tally.MeanReciprocalRank(), (1 + 1.0 / 3 + 1.0 / 4 + 1.0 / 5 + 1.0 / 10 + 1.0 / 11) / 7,
                1e-9);
    EXPECT_EQ(Tally().MeanReciprocalRank(), 0.0);
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

Tally Of(const std::vector<KindTally>& kinds, const std::string& name, Order order = Order::Ranker)
{
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [&](const KindTally& kind) { return kind.kind == name; });
    return Unseen(found->Of(order));
}

TEST(Replay, LooksForEachNameInWhatTheNamesBeforePropose)
{
    // Guess list: place 1. Free neighbour KL2(3): 1. KL1(3) proposes nothing with (2): none. From 1 to 3
    // with (3) and (2): KL4(3), KL4(2). A name without serial and a repeated one are never proposed.
    const Project project =
        ProjectOf(&Beam::name, {"KL1(1)", "KL2(1)", "KL3(2)", "", "KL4(2)", "KL", "KL4(2)", "kl5(2)"});
    for (const Known known : {Known::All, Known::Before}) {
        const std::vector<KindTally> kinds = ReplayProject(project, known);
        EXPECT_EQ(Of(kinds, "name"), TallyOf({1, 1, 0, 2, 0, 0, 0}));
        // KL4(2) stands behind KL, KL1(1) to KL3(2)
        EXPECT_EQ(Of(kinds, "name", Order::Alphabetical), TallyOf({0, 0, 0, 0, 0, 5, 0}));
        EXPECT_EQ(Of(kinds, "name", Order::Frequency), TallyOf({0, 0, 0, 0, 0, 5, 0}));
        EXPECT_EQ(kinds[1].Of(Order::Ranker).seen, 1U);
        EXPECT_EQ(kinds[0].Of(Order::Ranker).uses, 0U) << "all but names";
    }
}

TEST(Replay, CountsPlacesOfListsByHand)
{
    // The row of blanks takes no place: 0.1 is the first row below it.
    const Project levels = ProjectOf(&Beam::elevation, {"0.2", "0.1", "0.2", "0.1"});
    EXPECT_EQ(Of(ReplayProject(levels, Known::All), "elevation"), TallyOf({2, 1, 2, 1}));
    // Drawn: neither guesses nor texts have the first two.
    const std::vector<KindTally> drawn = ReplayProject(levels, Known::Before);
    EXPECT_EQ(Of(drawn, "elevation"), TallyOf({0, 0, 2, 1}));
    EXPECT_EQ(Of(drawn, "all"), TallyOf({0, 0, 2, 1}));
    EXPECT_EQ(drawn[0].Of(Order::Proposal).seen, 2U);
    // Alone, a text meets the guesses: 2B16 is the third of them.
    const Project alone = ProjectOf(&Beam::topBars, {"2B16"});
    for (const Known known : {Known::All, Known::Before}) {
        EXPECT_EQ(Of(ReplayProject(alone, known), "top bars"), TallyOf({3}));
    }
    // G4B12 is found as 4B12, which the ranker makes of both of them; a proposal is as it is written.
    const Project side = ProjectOf(&Beam::side, {"G4B12", "N4B12", "G4B12"});
    const std::vector<KindTally> sides = ReplayProject(side, Known::All);
    EXPECT_EQ(Of(sides, "torsion, side"), TallyOf({1, 1, 1}));
    EXPECT_EQ(Of(sides, "torsion, side", Order::Frequency), TallyOf({1, 1, 1}));
    EXPECT_EQ(sides[0].Of(Order::Proposal).seen, 2U);

    // End bars are looked for on the beam's own through bars.
    Project project = ProjectOf(&Beam::topBars, {"2B20", "2B25", "2B20"});
    project.beams[0].leftEnd = "4B20";
    project.beams[1].leftEnd = "2B25+2B22";
    project.beams[2].rightEnd = "5B20";
    const std::vector<KindTally> ends = ReplayProject(project, Known::All);
    // 5B20 and the guesses 2B20+1B18 and so on, 4B20 behind them; 2B25+2B22 among the guesses for 2B25,
    // which stand as written; 5B20 is no guess.
    EXPECT_EQ(Of(ends, "end bars"), TallyOf({6, 3, 0}));
    EXPECT_EQ(Of(ends, "end bars", Order::Frequency), TallyOf({0, 0, 0}));
    EXPECT_EQ(Of(ends, "section").uses, 0U);

    // So are texts at supports; without through bars they are looked for among all ends of that side.
    project.beams[1].inPlace = {{Role::TopSupport, 2, "4B20", {}, -1, {}}};
    project.beams[1].topBars.clear();
    const std::vector<KindTally> inPlace = ReplayProject(project, Known::All);
    EXPECT_EQ(Of(inPlace, "end bars").uses, 4U);
    EXPECT_EQ(Of(inPlace, "end bars", Order::Frequency),
              TallyOf({0, 0, 2, 0}));  // after 2B25+2B22, the other
    EXPECT_EQ(Of(ReplayProject(project, Known::Before), "end bars", Order::Frequency),
              TallyOf({0, 0, 2, 0}));
}

// What is known when a text is asked for, the plain way: a copy of the project without the text, and
// without what comes after it.
Project KnownWithout(Project project, const FieldRef& ref, Known known)
{
    if (known == Known::Before) {
        project.beams.resize(ref.index + 1);
        bool isAfter = false;
        for (const FieldRef& other : RefsOf(project, {false, ref.index})) {
            isAfter = isAfter || other == ref;
            // Through bars are entered before what lies on them.
            if (isAfter && (other.field == ref.field || other.field != Field::TopBars)) {
                TextAt(project, other).clear();
            }
        }
    }
    TextAt(project, ref).clear();
    return project;
}

TEST(Replay, IsWhatRunsOnAllTextsGive)
{
    std::mt19937 random(FirstSeed(7));
    for (int round = 0; round < 30; ++round) {
        const Project project = RandomProject(random, 14);
        for (const Known known : {Known::All, Known::Before}) {
            const std::vector<KindTally> kinds = ReplayProject(project, known);
            std::map<Field, Tally> plain;
            for (std::size_t i = 0; i < project.beams.size(); ++i) {
                for (const FieldRef& ref : RefsOf(project, {false, i})) {
                    const std::string& text = TextAt(project, ref);
                    if (text.empty()) {
                        continue;
                    }
                    const bool isName = ref.field == Field::Name;
                    const Project rest = KnownWithout(project, ref, isName ? Known::Before : known);
                    const PlainHost host(rest);
                    const CStringArray list = RunRanker(QuestionFor(rest, ref, false)).texts;
                    const bool isBar = RowOf(ref.field).ranker == Desk::Ranker::Bars;
                    const CString listed(std::string_view(text).substr(isBar ? HeadOf(text).size() : 0));
                    const auto found = std::find(list.begin(), list.end(), listed);
                    const auto blanks = static_cast<std::size_t>(ref.field == Field::Elevation);
                    plain[ref.field].Add(found == list.end()
                                             ? 0
                                             : static_cast<std::size_t>(found - list.begin()) + 1 - blanks,
                                         false);
                }
            }
            plain[Field::LeftEnd] += plain[Field::RightEnd];
            plain[Field::Torsion] += plain[Field::Side];
            for (const auto& [field, name] : std::map<Field, const char*>{{Field::Name, "name"},
                                                                          {Field::Section, "section"},
                                                                          {Field::Elevation, "elevation"},
                                                                          {Field::TopBars, "top bars"},
                                                                          {Field::LeftEnd, "end bars"},
                                                                          {Field::Torsion, "torsion, side"},
                                                                          {Field::Stirrup, "stirrups"}}) {
                EXPECT_EQ(Of(kinds, name), plain[field]) << name << " in round " << round;
            }
        }
    }
}

}  // namespace
}  // namespace Desk::Hitrate
