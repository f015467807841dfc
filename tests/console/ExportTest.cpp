// Exported drawings: read back they are the project again.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "desk/drawing/Drawing.h"
#include "desk/drawing/Export.h"
#include "desk/project/Generate.h"
#include "desk/project/ProjectFile.h"

namespace Desk {
namespace {

using Texts = std::vector<std::string>;

// What a beam says, the bars at its ends as the texts in place that a drawing makes of them.
Texts Told(const Beam& beam)
{
    Texts told;
    for (const Field field : BeamFields()) {
        if (field != Field::LeftEnd && field != Field::RightEnd) {
            told.push_back(beam.*RowOf(field).ofBeam);
        }
    }
    const std::size_t fields = told.size();
    const auto add = [&told](Role role, const std::string& number, const std::string& text) {
        if (!text.empty()) {
            told.push_back(std::string(RowOf(role).key) + " " + number + ": " + text);
        }
    };
    const int last = static_cast<int>(std::max<std::size_t>(beam.spans.size(), 1)) + 1;
    const auto support = [last](int number) { return number == last ? "last" : std::to_string(number); };
    add(Role::TopSupport, "1", beam.leftEnd);
    add(Role::TopSupport, "last", beam.rightEnd);
    for (const InPlace& text : beam.inPlace) {
        add(text.role, text.role == Role::TopSupport ? support(text.number) : std::to_string(text.number),
            text.text);
    }
    std::sort(told.begin() + static_cast<std::ptrdiff_t>(fields), told.end());
    return told;
}

// An oblique direction is read to a tenth of a degree.
bool IsNear(const PlanPoint& a, const PlanPoint& b) { return std::hypot(a.x - b.x, a.y - b.y) < 10.0; }

void ExpectToComeBack(const Project& project, bool withPositions)
{
    const Drawing drawing = Drawing::Parse(FormatDrawing(project), "export");
    for (const AnnotationText& text : drawing.Texts()) {
        EXPECT_FALSE(text.open) << text.text << ": " << text.open->English();
    }
    const std::vector<Beam>& beams = drawing.Get().beams;
    ASSERT_EQ(beams.size(), project.beams.size());
    for (std::size_t i = 0; i < beams.size(); ++i) {
        const Beam& wanted = project.beams[i];
        EXPECT_EQ(Told(beams[i]), Told(wanted)) << wanted.name;
        if (withPositions) {
            EXPECT_TRUE(IsNear(beams[i].start, wanted.start) && IsNear(beams[i].end, wanted.end))
                << wanted.name << ": " << beams[i].start.x << ',' << beams[i].start.y << " to "
                << beams[i].end.x << ',' << beams[i].end.y;
        }
        if (!wanted.spans.empty()) {
            ASSERT_EQ(beams[i].spans.size(), wanted.spans.size()) << wanted.name;
            for (std::size_t k = 0; k < wanted.spans.size(); ++k) {
                EXPECT_NEAR(beams[i].spans[k], wanted.spans[k], 1.0) << wanted.name;
            }
        }
    }
}

Beam Full(const std::string& name, const PlanPoint& start, const PlanPoint& end)
{
    Beam beam;
    beam.name = name;
    beam.section = "300x700 Y500x250";
    beam.stirrup = "A8@100(4)/200(2)";
    beam.topBars = "2B22+1C20";
    beam.bottomBars = "6B25 2/4";
    beam.erection = "2D12";
    beam.torsion = "N4B12";
    beam.side = "G4B12";
    beam.elevation = "(-0.100)";
    beam.start = start;
    beam.end = end;
    return beam;
}

TEST(ExportedProject, ComesBackWithAllItsBeamsTextsAndSpans)
{
    Project project;
    project.beams = {Full("KL1(3)", {0, 0}, {18'000, 0}), Full("KL2(3)", {0, 9000}, {0, 27'000}),
                     Full("L1(3)", {30'000, 0}, {30'000 + 14'400, 10'800})};
    for (Beam& beam : project.beams) {
        beam.spans = {7000.0, 3000.0, 8000.0};
        for (const RoleRow& row : AllRoles()) {
            const bool isTop = row.role == Role::TopSupport || row.role == Role::TopSpan;
            const std::string text = row.role == Role::Stirrup     ? "B10@100(2)"
                                     : row.role == Role::Side      ? "G6B10"
                                     : row.role == Role::Torsion   ? "N2B16"
                                     : row.role == Role::Section   ? "350x800"
                                     : row.role == Role::Elevation ? "(-0.250)"
                                                                   : "4A25 2/2";
            beam.inPlace.push_back({row.role, isTop ? 3 : 1, text, {}, -1, nullptr});
        }
        beam.leftEnd = "2B25+2B22";
        beam.rightEnd = "3B25/2B22";
    }
    project.beams.push_back({});  // says that it is as KL1
    project.beams.back().name = "KL1(3)";
    project.beams.back().start = {0, 35'000};
    project.beams.back().end = {18'000, 35'000};
    for (const auto& [name, member] :
         {std::pair("L5(1)", &Beam::bottomBars), std::pair("L6(1)", &Beam::erection),
          std::pair("L7", &Beam::topBars), std::pair("L8(2)", &Beam::elevation)}) {
        Beam beam;  // without a position
        beam.name = name;
        beam.*member = member == &Beam::elevation ? "0.350" : "3B18";
        project.beams.push_back(beam);
    }
    ExpectToComeBack(project, false);
    project.beams.resize(4);
    ExpectToComeBack(project, true);
}

TEST(ExportedProject, TheSampleAndGeneratedFloorsComeBack)
{
    ExpectToComeBack(SampleProject(), true);
    ExpectToComeBack(GenerateProject(600, 1), true);
}

TEST(ExportedProject, IsADrawingWhateverTheProjectHolds)
{
    Project odd;
    odd.axesAcross = {{"1", 0.0}};
    EXPECT_TRUE(Drawing::Parse(FormatDrawing(odd), "empty").Get().beams.empty());
    odd.beams.resize(5);
    odd.beams[0].topBars = "2B25";  // no name, no position
    odd.beams[1] = Full("KL1(9B)", {-1e9, -1e9}, {1e9, 1e9});
    odd.beams[2] = Full("KL2(2)", {0, 0}, {1, 0});
    odd.beams[2].spans = {1e9, 0.0, -5.0};
    odd.beams[2].inPlace = {{Role::TopSupport, 1000, "2B25", {}, -1, nullptr},
                            {Role::Bottom, -3, "3B25", {}, -1, nullptr}};
    odd.beams[3] = Full("\xF0\x9F\x98\x80\n\xFF", {5000, 0}, {5000, 4000});
    odd.walls.resize(1);
    const std::string bytes = FormatDrawing(odd);
    EXPECT_NE(bytes.find("\\U+D83D\\U+DE00 ?"), std::string::npos);
    EXPECT_FALSE(Drawing::Parse(bytes, "odd").Get().beams.empty());
}

}  // namespace
}  // namespace Desk
