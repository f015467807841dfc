// Floors, beams and walls as a person makes them: axes, ends, data, and edits that take themselves back.
#include <random>

#include <gtest/gtest.h>

#include "desk/project/Data.h"
#include "desk/project/Edits.h"
#include "desk/project/Making.h"
#include "desk/project/ProjectFile.h"
#include "tests/support/Made.h"
#include "tests/support/Seed.h"

namespace {

using namespace Desk;

std::string Shown(const std::optional<std::vector<Axis>>& axes)
{
    std::string text = axes ? "" : "none";
    for (const Axis& axis : axes.value_or(std::vector<Axis>())) {
        text += axis.label + "=" + std::to_string(static_cast<long>(axis.at)) + " ";
    }
    return text;
}

TEST(Making, AxesAreReadAsPeopleWriteTheirDistances)
{
    EXPECT_EQ(Shown(AxesFrom("2x8000", false)), "1=0 2=8000 3=16000 ");
    EXPECT_EQ(Shown(AxesFrom(" 6000, 2700 + 6000", true)), "A=0 B=6000 C=8700 D=14700 ");
    EXPECT_EQ(Shown(AxesFrom("", true)), "A=0 ");
    const auto many = AxesFrom("30x10", true);
    ASSERT_TRUE(many);
    EXPECT_EQ((*many)[8].label + (*many)[13].label + (*many)[22].label + (*many)[23].label, "JPYA1");
    for (const char* const wrong : {"x", "0", "-5", "8000x", "7x", "2x0", "8000mm", "1e99", "501x1",
                                    "99999999999x1", "3x3x3", "nan"}) {
        EXPECT_EQ(Shown(AxesFrom(wrong, false)), "none") << wrong;
    }
}

TEST(Making, ANewFloorKeepsItsAxesInItsFile)
{
    Project floor = NewFloor("third", *AxesFrom("2x8000", false), *AxesFrom("6000.5", true));
    floor.beams.push_back(MadeBeam("KL1(1)", {0, 0}, {8000, 0}));
    const Project again = ParseProject(FormatProject(floor), "test");
    EXPECT_EQ(again.title, "third");
    EXPECT_EQ(Shown(again.axesAcross), "1=0 2=8000 3=16000 ");
    EXPECT_EQ(again.axesUp.at(1).at, 6000.5);
    EXPECT_EQ(FormatProject(again), FormatProject(floor));
    const Project bare = ParseProject(FormatProject(Project()), "test");
    EXPECT_TRUE(bare.beams.empty() && bare.axesUp.empty());
}

TEST(Making, ATurnedBeamIsTheSameFromTheOtherEnd)
{
    Beam beam = MadeBeam("KL1(2)", {0, 0}, {9000, 0});
    beam.leftEnd = "4B25";
    beam.rightEnd = "5B25";
    beam.area.leftEnd = 1;
    beam.area.rightEnd = 2;
    beam.spans = {4000, 5000};
    beam.inPlace = {{Role::TopSupport, 1, "6B25", {}, -1, {}}, {Role::Bottom, 2, "3B25", {}, -1, {}}};
    const Beam before = beam;
    TurnRound(beam, 7);
    EXPECT_EQ(beam.start.x, 9000);
    EXPECT_EQ(beam.leftEnd + beam.rightEnd, "5B254B25");
    EXPECT_EQ(beam.area.leftEnd, 2);
    EXPECT_EQ(beam.spans, (std::vector<double>{5000, 4000}));
    EXPECT_EQ(beam.inPlace[0].number, 3);
    EXPECT_EQ(beam.inPlace[1].number, 1);
    TurnRound(beam, 7);
    EXPECT_EQ(beam.spans, before.spans);
    EXPECT_EQ(beam.inPlace[0].number, 1);
    beam.spans.clear();
    TurnRound(beam, 3);
    EXPECT_EQ(beam.inPlace[0].number, 4) << "spans by the name";
    beam.inPlace[1].number = 9;
    TurnRound(beam, 3);
    EXPECT_EQ(beam.inPlace[1].number, 1) << "more than there should be";
}

TEST(Making, SpansFollowTheEnds)
{
    const struct {
        PlanPoint start, end;
        std::vector<double> spans;
    } cases[] = {
        {{0, 0}, {12000, 0}, {4000, 8000}},          {{-1000, 0}, {9000, 0}, {5000, 5000}},
        {{0, 0}, {3000, 0}, {4000 / 3., 5000 / 3.}}, {{7, 7}, {9007, 7}, {4000, 5000}},
        {{0, 0}, {0, 9000}, {4000, 5000}},
    };
    for (const auto& [start, end, spans] : cases) {
        Beam beam = MadeBeam("KL1(2)", {0, 0}, {9000, 0});
        beam.spans = {4000, 5000};
        SetEnds(beam, start, end);
        EXPECT_EQ(beam.end.x, end.x);
        ASSERT_EQ(beam.spans.size(), 2U);
        EXPECT_NEAR(beam.spans[0], spans[0], 1e-6);
        EXPECT_NEAR(beam.spans[1], spans[1], 1e-6);
    }
}

TEST(Making, DataAreShownAndTakenAndWrongOnesChangeNothing)
{
    const struct {
        Datum datum;
        const char* typed;
        const char* shown;  // null for what is refused
    } cases[] = {
        {Datum::Floor, "3", "3"},
        {Datum::Floor, "a\nb", nullptr},
        {Datum::Concrete, "C40", "C40"},
        {Datum::Concrete, " 35 ", "C35"},
        {Datum::Concrete, "C5", nullptr},
        {Datum::Concrete, "", nullptr},
        {Datum::SeismicClass, "4", "4"},
        {Datum::SeismicClass, "2.5", nullptr},
        {Datum::RequiredTop, "1200 mm²", "1200"},
        {Datum::RequiredLeft, "-1", nullptr},
        {Datum::RequiredRight, "12 13", nullptr},
        {Datum::Spans, "6000+5700.5 mm", "6000 + 5700.5"},
        {Datum::Spans, "", ""},
        {Datum::Spans, "6000 0", nullptr},
        {Datum::Start, "8400, -12.25", "8400, -12.25"},
        {Datum::End, "8400", nullptr},
        {Datum::End, "1e10 0", nullptr},
        {Datum::End, "x 0", nullptr},
        {Datum::RequiredBottom, "nan", nullptr},
    };
    for (const auto& [datum, typed, shown] : cases) {
        Beam beam;
        beam.area.top = 7;
        const std::string before = DatumText(beam, datum);
        const std::optional<Message> why = SetDatum(beam, datum, typed);
        EXPECT_EQ(why.has_value(), shown == nullptr) << typed;
        EXPECT_EQ(DatumText(beam, datum), shown != nullptr ? shown : before) << typed;
    }
    Wall wall;
    EXPECT_FALSE(SetDatum(wall, Datum::Thickness, "250"));
    EXPECT_TRUE(SetDatum(wall, Datum::Thickness, "10001"));
    EXPECT_EQ(DatumText(wall, Datum::Thickness), "250");
}

TEST(Making, ExchangesTakeThemselvesBack)
{
    std::mt19937 random(FirstSeed(7));
    const auto below = [&](std::size_t count) { return static_cast<std::size_t>(random()) % count; };
    std::vector<std::string> list = {"a", "b", "c"};
    std::vector<std::vector<std::string>> states;
    std::vector<Exchange<std::string>> done;
    for (int step = 0; step < 200; ++step) {
        EditsOf<std::string> edits;
        std::vector<std::string> wanted;
        ExchangedIndices told;
        for (std::size_t i = 0; i < list.size(); ++i) {
            const std::size_t what = below(4);
            if (what == 0) {
                edits.removed.insert(i);
            } else if (what == 1) {
                edits.changed[i] = list[i] + "'";
            }
            if (what <= 1) {
                told.out.push_back(i);
            }
            if (what == 1) {
                told.in.push_back(wanted.size());
            }
            if (what != 0) {
                wanted.push_back(what == 1 ? edits.changed[i] : list[i]);
            }
        }
        for (std::size_t i = below(5); i > 0; --i) {
            edits.added.push_back(std::to_string(step));
            told.in.push_back(wanted.size());
            wanted.push_back(edits.added.back());
        }
        states.push_back(list);
        done.emplace_back(std::move(edits), list.size());
        const ExchangedIndices exchanged = done.back().Do(list);
        ASSERT_EQ(list, wanted);
        EXPECT_EQ(exchanged.out, told.out);
        EXPECT_EQ(exchanged.in, told.in);
    }
    const std::vector<std::string> last = list;
    for (std::size_t i = done.size(); i-- > 0;) {
        done[i].Do(list);
        ASSERT_EQ(list, states[i]);
    }
    for (Exchange<std::string>& each : done) {
        each.Do(list);
    }
    EXPECT_EQ(list, last);
}

}  // namespace
