// From a drawing's texts to beams.
#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "desk/project/Failure.h"
#include "tests/drawing/Floors.h"
#include "tests/drawing/Told.h"
#include "tests/support/Seed.h"

namespace Desk {
namespace {

constexpr const char* SmallFloorTold =
    R"(KL1(2) 0,0 to 14000,0 (8000 6000): section 300x600, stirrup C8@100/200(2), topBars 2C22, side G4C12; topSupport 1 4C22; topSupport 2 5C22 3/2; topSupport 3 2C22+2C20; bottom 2 3C20; stirrup 2 C10@150(2); side 2 G2C10; torsion 2 N2C16
KL2(2) 0,6000 to 14000,6000 (8000 6000): section 300x650, elevation (-0.100), stirrup A8@100(2), topBars 2C20, bottomBars 3C25, torsion N4C14; topSpan 2 2C20+1C16; section 2 300x500; elevation 2 (-0.050)
KL3(1) 0,0 to 0,6000 (6000): section 250x500, stirrup C8@100/200(2), topBars 2C18, bottomBars 3C18; topSupport 2 3C18+1C20; bottom 1 4C18
KL3(1) 14000,0 to 14000,6000 (6000):
L1(1) 4000,0 to 4000,6000 (6000): section 200x400, stirrup A6@200(2), topBars 2C14, bottomBars 3C16
)";

// The text of a drawing that reads so.
const AnnotationText& TextOf(const Drawing& drawing, const std::string& text)
{
    const auto found = std::find_if(drawing.Texts().begin(), drawing.Texts().end(),
                                    [&](const AnnotationText& one) { return one.text == text; });
    if (found == drawing.Texts().end()) {
        throw std::out_of_range("no annotation " + text);
    }
    return *found;
}

TEST(ReadDrawing, AFloorIsTheSameInEveryShape)
{
    for (const Shape& shape : Shapes) {
        const Drawing drawing = Parsed(Draw(shape, SmallFloor()));
        Project project = drawing.Get();
        for (Beam& beam :
             project.beams) {  // positions are those of the drawing, lengths those of the dimensions
            for (PlanPoint* const point : {&beam.start, &beam.end}) {
                *point = {point->x / shape.scale, point->y / shape.scale};
            }
        }
        EXPECT_EQ(Told(project), SmallFloorTold) << shape.name;
        for (const AnnotationText& text : drawing.Texts()) {
            EXPECT_FALSE(text.open.has_value()) << shape.name << ": " << text.text;
            EXPECT_EQ(text.refs.size(), text.roles.size()) << shape.name << ": " << text.text;
            for (const FieldRef& ref : text.refs) {
                EXPECT_TRUE(Exists(drawing.Get(), ref)) << shape.name << ": " << text.text;
            }
        }
        EXPECT_GE(drawing.Behind().lines.size(), 18U + 24U) << shape.name;
        EXPECT_TRUE(std::any_of(drawing.Behind().texts.begin(), drawing.Behind().texts.end(),
                                [](const PlanText& text) { return text.text == "二层梁配筋图"; }))
            << shape.name;
    }
}

TEST(ReadDrawing, EveryTextTellsItsRolesAndItsLabel)
{
    const Drawing drawing = Parsed(Draw({}, SmallFloor()));
    const std::string name = TextOf(drawing, "KL2(2) 300x650").handle;
    const std::vector<std::pair<std::string, std::vector<std::string>>> cases = {
        {"KL2(2) 300x650", {"name", "section"}},
        {"%%1308@100(2)", {"stirrup"}},
        {"2%%13220;3%%13225", {"topBars", "bottomBars"}},
        {"N4%%13214", {"torsion"}},
        {"(-0.100)", {"elevation"}},
        {"2%%13220+1%%13216", {"topSpan"}},
        {"300x500", {"section"}},
    };
    for (const auto& [drawn, roles] : cases) {
        const AnnotationText& text = TextOf(drawing, drawn);
        EXPECT_EQ(text.roles, roles) << drawn;
        EXPECT_EQ(text.label, name) << drawn;
        EXPECT_EQ(text.inPlace, text.refs[0].inPlace >= 0) << drawn;
        EXPECT_EQ(text.refs[0].index, 1U) << drawn;
    }
    const TextPlace& place = TextOf(drawing, "2%%13220+1%%13216").place;
    EXPECT_EQ(Told(place.at), "10300,6250");
    EXPECT_DOUBLE_EQ(place.height, Height);
    EXPECT_EQ(drawing.Texts().size(), 28U) << "title and calculation results are none";
}

// Two beams across that are 1,000 apart and a label between them.
DrawnFloor TwoNearBeams(bool hasLeader)
{
    DrawnFloor floor = SmallFloor();
    floor.outlines = {{{0, 0}, {8000, 0}, 200, {0, 8000}}, {{0, 1000}, {8000, 1000}, 200, {0, 8000}}};
    floor.columns.clear();
    floor.others.clear();
    floor.inPlace = {{"3C20", {3000, 500}, 0, 0}};
    floor.labels.resize(1);
    floor.labels[0].texts = Beam();
    floor.labels[0].texts.name = "L7(1)";
    floor.labels[0].name = {1000, 400};
    floor.labels[0].leaderEnd.reset();
    if (hasLeader) {
        floor.labels[0].leaderEnd = PlanPoint{925, 1000};
    }
    return floor;
}

TEST(ReadDrawing, BetweenTwoBeamsALeaderTellsAndNothingElse)
{
    const Drawing led = Parsed(Draw({}, TwoNearBeams(true)));
    EXPECT_FALSE(TextOf(led, "L7(1)").open.has_value());
    EXPECT_EQ(Told(led.Get().beams.at(0).start), "150,1000");

    const Drawing open = Parsed(Draw({}, TwoNearBeams(false)));
    const AnnotationText& name = TextOf(open, "L7(1)");
    ASSERT_TRUE(name.open.has_value());
    EXPECT_FALSE(name.open->English().empty());
    EXPECT_TRUE(TextOf(open, "3%%13220").open.has_value());

    // A person points, first the name and then the text in place.
    Project project = open.Get();
    const auto point = [&](const std::string& drawn, const PlanPoint& at) {
        const auto text = static_cast<std::size_t>(&TextOf(open, drawn) - open.Texts().data());
        const std::optional<Drawing::Pointed> pointed = open.PointTo(project, text, at);
        if (pointed) {
            project.beams.at(pointed->beam) = pointed->as;
            project.pointed[open.Texts()[text].handle] = at;
            EXPECT_TRUE(Exists(project, pointed->ref));
        }
        return pointed.has_value();
    };
    EXPECT_FALSE(point("L7(1)", {3000, 9000}));
    EXPECT_TRUE(point("L7(1)", {4000, 20}));
    EXPECT_TRUE(point("3%%13220", {3500, 0}));
    EXPECT_EQ(Told(project), "L7(1) 150,0 to 7850,0 (7700):; topSpan 1 3C20\n");
    // The companion remembers.
    const std::string companion = Drawing::CompanionOf(project);
    const Drawing again = Drawing::Parse(Draw({}, TwoNearBeams(false)), "floor.dxf", companion);
    EXPECT_EQ(Told(again.Get()), Told(project));
    EXPECT_FALSE(TextOf(again, "L7(1)").open || TextOf(again, "3%%13220").open);
    EXPECT_EQ(again.Written(project), Draw({}, TwoNearBeams(false)));
}

TEST(ReadDrawing, PlansSideBySideAreToldApart)
{
    const PlanPoint moved{40'000, 0};
    DrawingMaker twice({});
    DrawOn(twice, SmallFloor());
    DrawOn(twice, SmallFloor(), moved);
    const Drawing both = Parsed(twice.Bytes());
    ASSERT_EQ(both.Get().beams.size(), 10U);
    for (std::size_t i = 0; i < 10; ++i) {
        Beam beam = both.Get().beams[i];
        EXPECT_EQ(beam.start.x >= moved.x, i >= 5);
        beam.start.x -= i < 5 ? 0 : moved.x;
        beam.end.x -= i < 5 ? 0 : moved.x;
        EXPECT_NE(std::string(SmallFloorTold).find(Told(beam)), std::string::npos) << Told(beam);
    }

    // One floor, with the labels across on the first plan and the others on the second.
    DrawnFloor across = SmallFloor();
    DrawnFloor up = SmallFloor();
    std::erase_if(across.labels, [](const DrawnLabel& label) { return label.angle == 90; });
    std::erase_if(up.labels, [](const DrawnLabel& label) { return label.angle == 0; });
    std::erase_if(across.inPlace, [](const DrawnText& text) { return text.angle == 90; });
    std::erase_if(up.inPlace, [](const DrawnText& text) { return text.angle == 0; });
    DrawingMaker halves({});
    DrawOn(halves, across);
    DrawOn(halves, up, moved);
    const Drawing floor = Parsed(halves.Bytes());
    ASSERT_EQ(floor.Get().beams.size(), 5U);
    for (const AnnotationText& text : floor.Texts()) {
        EXPECT_FALSE(text.open.has_value()) << text.text;
    }
    for (Beam beam : floor.Get().beams) {
        const double back = beam.start.x >= moved.x ? moved.x : 0;
        beam.start.x -= back;
        beam.end.x -= back;
        EXPECT_NE(std::string(SmallFloorTold).find(Told(beam)), std::string::npos) << Told(beam);
    }
}

// Arrayed beams, broken where they pass under a hidden layer's texts; a label of one MTEXT that is long.
TEST(ReadDrawing, ArraysHiddenLayersAndLongTexts)
{
    DrawingMaker maker({.name = "Array", .version = "AC1018"});
    maker.HideLayer("HIDDEN");
    maker.BeginBlock({});
    maker.Line({0, -100}, {6000, -100}, "BEAM");
    maker.Line({0, 100}, {6000, 100}, "BEAM");
    maker.EndBlock(1, 3, {0, 5000});
    for (const double y : {0.0, 5000.0, 10'000.0}) {
        maker.Line({1000, y}, {1000, y + 900}, "T");
    }
    const std::string codes = "{\\fSimSun|b0|i0|c134|p2;\\C1;\\H0.9999999999999x;\\W0.8;";
    const std::string longCodes(300, '~');
    maker.MText({{1075, 900}, 0, 300}, {codes + "L1(1)} {\\H1x;200x400}", "A8@200(2)"}, "T");
    maker.MText({{1075, 5900}, 0, 300},
                {codes + codes + codes + codes + codes + "L2(1)}}}}} 200x450", "2C14;3C16"}, "T");
    maker.Text({{1075, 10'900}, 0, 300}, "L3(1) 200x500", "T");
    maker.Text({{1075, 10'600}, 0, 300}, "C8@200(2)", "T");
    maker.Text({{2500, -500}, 0, 250}, "3C18", "HIDDEN");
    const std::string bytes = maker.Bytes();
    const Drawing drawing = Parsed(bytes);
    EXPECT_EQ(Told(drawing.Get()),
              "L1(1) 0,0 to 6000,0 (6000): section 200x400, stirrup A8@200(2); bottom 1 3C18\n"
              "L2(1) 0,5000 to 6000,5000 (6000): section 200x450, topBars 2C14, bottomBars 3C16\n"
              "L3(1) 0,10000 to 6000,10000 (6000): section 200x500, stirrup C8@200(2)\n");
    Project edited = drawing.Get();
    edited.beams[1].bottomBars = "4D25";
    edited.beams[1].section = "250x450";
    const std::string written = drawing.Written(edited);
    EXPECT_EQ(Told(Parsed(written).Get()), Told(edited));
    edited = drawing.Get();
    EXPECT_EQ(drawing.Written(edited), bytes);
}

// Two real-looking floors side by side; every third label stands away from its beam, over other beams.
TEST(ReadDrawing, NoTextOfACrowdedPlanGoesToAWrongBeam)
{
    const unsigned seed = FirstSeed(7);
    int found = 0, open = 0, wrong = 0;
    int foundInPlace = 0, openInPlace = 0, wrongInPlace = 0;
    for (unsigned trial = 0; trial < 10; ++trial) {
        SCOPED_TRACE(SeedName(seed + trial));
        DrawnFloor floors[] = {CrowdedFloor(seed + trial), CrowdedFloor(seed + trial + 100)};
        const PlanPoint moved[] = {{0, 0}, {70'000, 0}};
        DrawingMaker maker({.name = "Crowded", .spelling = Spelling::Mixed});
        std::vector<std::pair<const Outline*, PlanPoint>> beamOf;  // by label
        for (int i = 0; i < 2; ++i) {
            DrawOn(maker, floors[i], moved[i]);
            for (const DrawnLabel& label : floors[i].labels) {
                beamOf.emplace_back(&floors[i].outlines[label.outline], moved[i]);
            }
        }
        const Drawing drawing = Parsed(maker.Bytes());
        ASSERT_EQ(drawing.Get().beams.size(), beamOf.size());
        std::set<std::string> openLabels;
        for (const AnnotationText& text : drawing.Texts()) {
            if (text.open && !text.inPlace) {
                openLabels.insert(text.label.empty() ? text.handle : text.label);
            }
        }
        for (const AnnotationText& text : drawing.Texts()) {
            if (text.inPlace || text.roles.empty() || text.roles[0] != "name") {
                continue;
            }
            if (text.open) {
                ++open;
                continue;
            }
            const std::size_t index = text.refs.at(0).index;
            const auto& [outline, plan] = beamOf[index];
            const Beam& beam = drawing.Get().beams[index];
            const auto off = [&, plan = plan](const PlanPoint& a, const PlanPoint& b) {
                return std::hypot(a.x - b.x - plan.x, a.y - b.y - plan.y);
            };
            const bool isRight = off(beam.start, outline->from) < 500 && off(beam.end, outline->to) < 500;
            ++(isRight ? found : wrong);
            EXPECT_TRUE(isRight) << Told(beam) << "is " << Told(outline->from) << " to "
                                 << Told(outline->to);
        }
        // Texts in place by what is drawn where.
        std::map<std::string, std::size_t> truth;
        std::size_t before = 0;
        for (int i = 0; i < 2; ++i) {
            for (const DrawnText& text : floors[i].inPlace) {
                truth[Told({text.at.x + moved[i].x, text.at.y + moved[i].y})] = before + text.outline;
            }
            before += floors[i].labels.size();
        }
        for (const AnnotationText& text : drawing.Texts()) {
            const auto at = truth.find(Told(text.place.at));
            if (at == truth.end()) {
                continue;
            }
            const bool isRight = text.inPlace && !text.open && text.refs.at(0).index == at->second;
            ++(text.open ? openInPlace : isRight ? foundInPlace : wrongInPlace);
            EXPECT_TRUE(isRight || text.open) << text.text << " at " << at->first;
        }
    }
    std::cout << "Crowded plans: of " << found + open + wrong << " labels " << found << " find their beam, "
              << open << " stay open, " << wrong << " go wrong; of "
              << foundInPlace + openInPlace + wrongInPlace << " texts in place " << foundInPlace << ", "
              << openInPlace << ", " << wrongInPlace << std::endl;
    EXPECT_EQ(wrong + wrongInPlace, 0);
    EXPECT_GT(found, 9 * open) << "most find their beam";
}

TEST(ReadDrawing, SaysWhatItDoesNotRead)
{
    const std::string whole = Draw({}, SmallFloor());
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"AutoCAD Binary DXF\r\n\x1A" + std::string(1, '\0') + "rest", "DXF"},
        {std::string("AC1032\0\0\0\0\0", 11) + whole, "DXF"},
        {whole.substr(0, whole.size() / 2), ""},
        {"  0\nSECTION\n  2\nENT", ""},
        {"hello\nworld\n", ""},
        {"0\n", ""},
    };
    for (const auto& [bytes, part] : cases) {
        try {
            static_cast<void>(Parsed(bytes));
            ADD_FAILURE() << "read: " << bytes.substr(0, 20);
        } catch (const Failure& failure) {
            EXPECT_EQ(std::string(failure.what()).find("floor.dxf"), 0U) << failure.what();
            EXPECT_NE(std::string(failure.what()).find(part), std::string::npos) << failure.what();
        }
    }
    EXPECT_FALSE(IsDrawing("{\"version\": 1}"));
    EXPECT_FALSE(IsDrawing("\xEF\xBB\xBF\n  {}"));
}

}  // namespace
}  // namespace Desk
