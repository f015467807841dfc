// Proposals: the yardstick on random floors, and small floors on which one clause of the rule decides.
#include <functional>
#include <random>

#include <gtest/gtest.h>

#include "desk/project/ProjectFile.h"
#include "desk/ranking/Proposals.h"
#include "tests/support/Seed.h"
#include "tests/yardstick/Proposals.h"

namespace Desk {
namespace {

std::vector<std::uint8_t> RandomBytes(unsigned seed)
{
    std::mt19937 random(seed);
    std::vector<std::uint8_t> bytes(5 * (1 + random() % 30));
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(random());
    }
    return bytes;
}

TEST(Proposals, AreAsTheYardstickSays)
{
    const unsigned first = FirstSeed(1);
    ASSERT_EQ(Yardstick::Differs(Yardstick::Generated(40, first), true), "");
    for (unsigned seed = first; seed < first + 8; ++seed) {
        SCOPED_TRACE(SeedName(seed));
        const std::vector<std::uint8_t> bytes = RandomBytes(seed);
        ASSERT_EQ(Yardstick::Differs(Yardstick::FloorOf(bytes.data(), bytes.size(), false), true), "");
        ASSERT_EQ(Yardstick::Differs(Yardstick::FloorOf(bytes.data(), bytes.size(), true), false), "");
    }
}

// Everything the proposer says of a floor.
std::vector<std::string> AllOf(const Project& project)
{
    const Proposer proposer(project);
    std::vector<std::string> all;
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        for (const FieldRef& ref : RefsOf(project, {false, i})) {
            for (const Proposal& each : proposer.For(ref, 3)) {
                all.push_back(each.text + ' ' + std::to_string(each.share) + ' ' + each.reason.English());
            }
        }
        for (const BeamProposal& each : proposer.ForBeam(i, 3)) {
            all.push_back(std::to_string(each.share) + ' ' + each.reason.English());
        }
    }
    return all;
}

TEST(Proposals, StayAFloorMovedOrTurned)
{
    const unsigned seed = FirstSeed(7);
    const std::vector<std::uint8_t> bytes = RandomBytes(seed);
    const Project project = Yardstick::FloorOf(bytes.data(), bytes.size(), true);
    Project moved = project;
    Project turned = project;
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        for (PlanPoint Beam::*point : {&Beam::start, &Beam::end}) {
            const PlanPoint& at = project.beams[i].*point;
            moved.beams[i].*point = {at.x + 123456, at.y - 7654321};
            turned.beams[i].*point = {-at.y, at.x};
        }
    }
    EXPECT_EQ(AllOf(moved), AllOf(project));
    EXPECT_EQ(AllOf(turned), AllOf(project));
}

TEST(Proposals, DoNotGoByTheOrderOfKeysInTheFile)
{
    const auto floor = [](const char* one, const char* other) {
        return ParseProject(std::string(R"j({"version": 1, "title": "T", "beams": [)j") + one + ',' +
                                other + R"j(, {"name": "L3(1)", "section": "250x500"}]})j",
                            "test");
    };
    const Project project =
        floor(R"j({"name": "L1(1)", "section": "250x500", "stirrup": "A8@200(2)", "topBars": "2B16"})j",
              R"j({"name": "L2(1)", "section": "250x600", "topBars": "2B20", "end": [6000, 0]})j");
    const Project reversed =
        floor(R"j({"topBars": "2B16", "stirrup": "A8@200(2)", "section": "250x500", "name": "L1(1)"})j",
              R"j({"end": [6000, 0], "topBars": "2B20", "section": "250x600", "name": "L2(1)"})j");
    ASSERT_EQ(project.beams.size(), 3U);
    EXPECT_FALSE(AllOf(project).empty());
    EXPECT_EQ(AllOf(reversed), AllOf(project));
}

Beam Named(const char* name, const char* section, const char* bottom, PlanPoint at = {})
{
    Beam beam;
    beam.name = name;
    beam.section = section;
    beam.bottomBars = bottom;
    beam.start = at;
    beam.end = at.x == 0 && at.y == 0 ? at : PlanPoint{at.x + 4000, at.y};
    return beam;
}

std::string First(const Project& project, Field field, std::size_t beam = 0)
{
    const std::vector<Proposal> proposals = Proposer(project).For({false, beam, field}, 1);
    return proposals.empty() ? "none" : proposals[0].text + ' ' + proposals[0].reason.English();
}

// Two beams are alike to the first but for one thing; the one that was entered first has it.
TEST(Proposals, GoByWhatTheBeamsShare)
{
    struct Clause {
        const char* what;
        std::function<void(Beam& asked, Beam& alike, Beam& other)> make;
        const char* reason;
    };
    const Clause clauses[] = {
        {"nothing: entered last", [](Beam&, Beam&, Beam&) {}, "other"},
        {"frame beams",
         [](Beam& a, Beam& b, Beam& c) {
             a.name = "KL1";
             b.name = "WKL7";
             c.name = "L7";
         },
         "as WKL7: same type, same spans"},
        {"coupling beams",
         [](Beam& a, Beam& b, Beam& c) {
             a.name = "LL1";
             b.name = "LLK7";
             c.name = "L7";
         },
         "as LLK7: same type, same spans"},
        {"spans",
         [](Beam& a, Beam& b, Beam& c) {
             a.name = "L1(3A)";
             b.name = "L7(3A)";
             c.name = "L8(3)";
         },
         "as L7(3A): same type, same spans"},
        {"serial",
         [](Beam& a, Beam& b, Beam& c) {
             a.name = "L3";
             b.name = "L4";
             c.name = "L8";
         },
         "as L4: same type, same spans, neighbouring number"},
        {"width",
         [](Beam& a, Beam& b, Beam&) {
             a.section = "300x600";
             b.section = "300x700";
         },
         "as a beam without a name: same width"},
        {"height",
         [](Beam& a, Beam& b, Beam&) {
             a.section = "300x600";
             b.section = "250x600";
         },
         "as a beam without a name: same height"},
        {"section before a size",
         [](Beam& a, Beam& b, Beam& c) {
             a.section = b.section = "300x600/500";
             c.section = "300x600";
         },
         "as a beam without a name: same section"},
        {"stirrups",
         [](Beam& a, Beam& b, Beam& c) {
             a.stirrup = b.stirrup = "A8@200(2)";
             c.stirrup = "A8@100(2)";
         },
         "as a beam without a name: same stirrups"},
        {"no stirrups", [](Beam&, Beam&, Beam& c) { c.stirrup = "A8@100(2)"; }, "as a beam without a name"},
        {"top bars",
         [](Beam& a, Beam& b, Beam& c) {
             a.topBars = b.topBars = "2B25";
             c.topBars = "2B22";
         },
         "as a beam without a name: same top bars"},
        {"bay",
         [](Beam& a, Beam& b, Beam& c) {
             a.start = {0, 0};
             a.end = {4000, 0};
             b.start = {500, 9000};
             b.end = {4500, 9000};
             c.start = {501, 9000};
             c.end = {4501, 9000};
         },
         "as a beam without a name: next to it, in the same row"},
    };
    for (const Clause& clause : clauses) {
        SCOPED_TRACE(clause.what);
        Project project;
        project.beams = {Named("", "", ""), Named("", "", "3B25"), Named("", "", "3B22")};
        clause.make(project.beams[0], project.beams[1], project.beams[2]);
        const bool isOther = std::string(clause.reason) == "other";
        EXPECT_EQ(First(project, Field::BottomBars),
                  isOther ? "3B22 as a beam without a name" : std::string("3B25 ") + clause.reason);
    }
}

TEST(Proposals, NearestAreThoseOfItsDirection)
{
    // Three that cross it lie on it; of its direction one is far off, and nine others farther.
    Project project;
    project.beams = {Named("L1", "", "", {1000, 0}), Named("L50", "", "3B25", {90000, 0})};
    for (int i = 0; i < 3; ++i) {
        Beam& beam = project.beams.emplace_back(Named("L60", "", "3B22", {3000, -2000}));
        beam.end = {3000, 2000};
    }
    EXPECT_EQ(First(project, Field::BottomBars).substr(0, 4), "3B22")
        << "all are among the nine, they are three";
    for (int i = 0; i < 8; ++i) {
        project.beams.push_back(Named("L70", "", "", {95000.0 + 9000 * i, 0}));
        project.beams.back().side = "G4B12";
    }
    EXPECT_EQ(First(project, Field::BottomBars), "3B25 as L50: next to it, same type, same spans");
    project.beams[1].start = project.beams[1].end;
    EXPECT_NE(First(project, Field::BottomBars).substr(0, 11), "3B25 as L50")
        << "without an extent it has no position";
}

TEST(Proposals, OfTextsWithoutVotesTheMostUsedComeFirst)
{
    Project project;
    for (int i = 0; i < 24; ++i) {
        // The first four are unlike all others in everything, so that sixteen others vote.
        Beam& beam = project.beams.emplace_back(Named(
            i < 4 ? "L1" : "KL1", i < 4 ? "200x400" : "300x600",
            i < 4 ? std::vector{"2B12", "as KL1", "2B14", "2B14"}[static_cast<std::size_t>(i)] : "3B25"));
        beam.name += i < 4 ? "" : "(2)";
    }
    std::vector<std::string> told =
        Yardstick::Said(Proposer(project), {false, 23, Field::BottomBars}, Known::All);
    EXPECT_EQ(told, (std::vector<std::string>{"3B25 100 19", "2B14 0 2", "2B12 0 1"}));
    EXPECT_EQ(Proposer(project).For({false, 23, Field::BottomBars}, 2).size(), 2U);
    EXPECT_TRUE(Proposer(project).For({true, 0, Field::HorizontalBars}, 3).empty());
}

// Three beams alike that have these bottom bars; the fourth needs so much steel there.
std::vector<std::string> ForSteel(std::vector<const char*> bars, int steel, const char* section = "300x600")
{
    Project project;
    for (const char* const each : bars) {
        project.beams.push_back(Named("L1", section, each));
    }
    project.beams.push_back(Named("L2", section, ""));
    project.beams.back().area.bottom = steel;
    std::vector<std::string> told;
    for (const Proposal& each : Proposer(project).For({false, bars.size(), Field::BottomBars}, 4)) {
        const std::string reason = each.reason.English();
        told.push_back(each.text + (reason.find("gives") != std::string::npos ? ' ' + reason : ""));
    }
    return told;
}

TEST(Proposals, GiveTheSteelThatIsRequired)
{
    using Told = std::vector<std::string>;
    EXPECT_EQ(ForSteel({"3B22", "3B22", "2B20"}, 0), (Told{"3B22", "2B20"}));
    EXPECT_EQ(ForSteel({"3B22", "3B22", "2B20"}, 1105),
              (Told{"3B22", "4B20 new, gives 1257 of 1105 mm²", "2B20"}));
    // Too little steel, then too much of it, then no room: 7 bars of 25 in 300 mm.
    EXPECT_EQ(ForSteel({"3B22", "3B22", "2B25"}, 1300),
              (Told{"2B25+1B22 new, gives 1362 of 1300 mm²", "3B25 new, gives 1473 of 1300 mm²", "3B22",
                    "2B25"}));
    EXPECT_EQ(ForSteel({"7B25", "7B25", "7B25 2/5"}, 3400)[0], "7B25 2/5");
    EXPECT_EQ(ForSteel({"7B25", "7B25", "7B25 2/5"}, 3400, "500x600")[0], "7B25");
    EXPECT_EQ(ForSteel({"3C20"}, 2400)[0], "8C20 3/5 new, gives 2513 of 2400 mm²");
    EXPECT_EQ(ForSteel({"3C20"}, 2400, ""), (Told{"3C20"})) << "no width, nothing composed";
    EXPECT_EQ(ForSteel({"as KL1"}, 2400), Told()) << "no grade, nothing composed, and it is no bars";
}

TEST(Proposals, EndBarsLieOnTheThroughBars)
{
    Project project;
    project.beams = {Named("KL1(2)", "300x600", ""), Named("KL2(2)", "300x600", "")};
    project.beams[0].leftEnd = "2B22+2B18";
    project.beams[1].topBars = "2B22";
    project.beams[1].area.leftEnd = 1500;
    EXPECT_EQ(First(project, Field::LeftEnd, 1), "4B22 new, gives 1521 of 1500 mm²");
}

TEST(Proposals, OfATextInPlaceAreThoseOfItsSpan)
{
    Project project;
    project.beams = {Named("KL1(3)", "300x600", "3B20"), Named("KL2(3)", "300x600", "3B20")};
    for (Beam& beam : project.beams) {
        beam.spans = {6000, 6000, 6000};
    }
    project.beams[0].inPlace = {{Role::Bottom, 1, "3B22", {}, -1, {}},
                                {Role::Bottom, 2, "4B22", {}, -1, {}},
                                {Role::TopSupport, 1, "4B25", {}, -1, {}},
                                {Role::TopSupport, 4, "6B25 4/2", {}, -1, {}}};
    project.beams[1].inPlace = {{Role::Bottom, 2, "", {}, -1, {}},
                                {Role::TopSupport, 2, "5B25 3/2", {}, -1, {}},
                                {Role::TopSupport, 3, "", {}, -1, {}},
                                {Role::Bottom, 3, "", {}, -1, {}},
                                {Role::TopSupport, 4, "", {}, -1, {}}};
    const auto first = [&project](int inPlace) {
        const InPlace& text = project.beams[1].inPlace[static_cast<std::size_t>(inPlace)];
        const auto proposals = Proposer(project).For({false, 1, RowOf(text.role).field, inPlace}, 1);
        return proposals[0].text + ' ' + proposals[0].reason.English();
    };
    EXPECT_EQ(first(0), "4B22 as KL1(3): same section, same type, same spans");
    EXPECT_EQ(first(2), "5B25 3/2 as the other end of its span");
    EXPECT_EQ(first(4), "6B25 4/2 as KL1(3): same section, same type, same spans");
    EXPECT_EQ(First(project, Field::RightEnd, 1),
              "6B25 4/2 as KL1(3): same section, same type, same spans");
    EXPECT_EQ(first(3), "3B20 as the whole beam") << "no other beam has one there";
    project.beams[1].inPlace[0].text = "4B22";
    EXPECT_EQ(first(3), "4B22 as the span next to it");
}

TEST(Proposals, NamesAreThoseThatComeNext)
{
    Project project;
    for (const char* const name : {"KL1(2)", "KL2(2)", "KL7(2)", "L1(1)", "roof", "KL8(2)"}) {
        project.beams.push_back(Named(name, "", ""));
    }
    const auto names = [&project](std::size_t beam, Known known = Known::All) {
        std::string all;
        for (const Proposal& each : Proposer(project).For({false, beam, Field::Name}, 5, known)) {
            all += each.text + ' ' + each.reason.English() + "; ";
        }
        return all;
    };
    // KL8 is taken, but the one that it is itself named.
    EXPECT_EQ(names(5, Known::Before).substr(0, 54),
              "KL8(2) the number after KL7; L2(1) the number after L1");
    EXPECT_EQ(names(4).find("KL8"), std::string::npos);
    EXPECT_NE(names(4).find("KL9(2) the number after KL7"), std::string::npos) << names(4);
    EXPECT_EQ(names(0, Known::Before), "");
    // Between two neighbours on the plan, and each floor for itself.
    project.beams[0].section = project.beams[2].section = "300x600";
    project.beams[0].start = project.beams[2].start = project.beams[4].start = {0, 0};
    project.beams[0].end = project.beams[2].end = project.beams[4].end = {0, 5000};
    EXPECT_NE(names(4).find("KL3(2) a free number between KL1 and KL7, near it"), std::string::npos)
        << names(4);
    project.beams[4].floor = "4";
    EXPECT_EQ(names(4).substr(0, 30), "KL1(2) the first free number; ");
}

TEST(Proposals, WholeBeamsAreSetsOfWhatTheBeamLacks)
{
    Project project;
    project.beams = {Named("KL1(2)", "300x600", "3B22"), Named("KL2(2)", "300x600", "3B22"),
                     Named("KL3(2)", "300x600", "4B25"), Named("KL9(2)", "300x600", "")};
    for (Beam& beam : project.beams) {
        beam.topBars = "2B20";
        beam.stirrup = "A8@200(2)";
    }
    Beam& asked = project.beams[3];
    asked.topBars = asked.stirrup = "";
    const auto first = [&project] {
        std::string told;
        for (const BeamProposal& each : Proposer(project).ForBeam(3, 1)) {
            for (const auto& [ref, text] : each.texts) {
                told += std::string(RowOf(ref.field).key) + ' ' + text + ", ";
            }
            told += std::to_string(each.share) + ' ' + each.reason.English();
        }
        return told;
    };
    EXPECT_EQ(first(), "stirrup A8@200(2), topBars 2B20, bottomBars 3B22, 66 "
                       "as KL2(2): same section, same type, same spans");
    asked.area.bottom = 1900;
    EXPECT_EQ(first().substr(0, 53), "stirrup A8@200(2), topBars 2B20, bottomBars 4B25, 33 ");
    asked.stirrup = "A8@100(2)";
    EXPECT_EQ(first().substr(0, 34), "topBars 2B20, bottomBars 4B25, 33 ");
    asked.topBars = "2B20";
    EXPECT_EQ(first(), "") << "one text alone is no whole beam";
    asked = Named("", "", "");
    EXPECT_EQ(first(), "") << "nothing to go by";
}

}  // namespace
}  // namespace Desk
