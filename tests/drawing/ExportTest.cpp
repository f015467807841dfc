// A project that is written as a drawing and read back.
#include <gtest/gtest.h>

#include "desk/drawing/Export.h"
#include "desk/project/Generate.h"
#include "desk/project/ProjectFile.h"
#include "tests/drawing/Told.h"

namespace Desk {
namespace {

// As a drawing holds it: bars at the ends are texts in place at the first and the last support.
Beam AsDrawn(Beam beam, std::size_t supports)
{
    const auto add = [&](std::string& text, std::size_t support) {
        if (!text.empty()) {
            beam.inPlace.push_back({Role::TopSupport, static_cast<int>(support), text, {}, -1, {}});
        }
        text.clear();
    };
    add(beam.leftEnd, 1);
    add(beam.rightEnd, supports);
    return beam;
}

TEST(ExportDrawing, ReadBackIsTheSameProject)
{
    std::vector<Project> projects = {SampleProject(), GenerateProject(150, 3), GenerateProject(400, 4)};
    // The sample once more, with texts in place of every role.
    projects.push_back(SampleProject());
    bool isOdd = false;
    for (Beam& beam : projects.back().beams) {
        isOdd = !isOdd;
        if (!beam.name.starts_with("KL") || beam.name.find_first_of("AB") != std::string::npos) {
            continue;  // others and cantilevers are shorter than the texts
        }
        beam.inPlace = {{Role::TopSpan, 1, "2B20+1B16", {}, -1, {}}};
        const std::map<Role, std::string> below[] = {
            {{Role::Bottom, "3B25"}, {Role::Section, "300x500"}},
            {{Role::Stirrup, "A10@150(4)"}, {Role::Side, "G6B12"}}};
        for (const auto& [role, text] : below[isOdd ? 1 : 0]) {
            beam.inPlace.push_back({role, 1, text, {}, -1, {}});
        }
    }
    for (const Project& project : projects) {
        const std::string bytes = FormatDrawing(project);
        const Drawing drawing = Drawing::Parse(bytes, "floor.dxf", Drawing::CompanionOf(project));
        EXPECT_EQ(drawing.Written(drawing.Get()), bytes);
        const std::vector<Beam>& beams = drawing.Get().beams;
        ASSERT_EQ(beams.size(), project.beams.size()) << project.title;
        for (std::size_t i = 0; i < beams.size(); ++i) {
            Beam wanted = AsDrawn(project.beams[i], std::max<std::size_t>(beams[i].spans.size(), 1) + 1);
            EXPECT_LT(std::hypot(wanted.start.x - beams[i].start.x, wanted.start.y - beams[i].start.y), 1);
            EXPECT_LT(std::hypot(wanted.end.x - beams[i].end.x, wanted.end.y - beams[i].end.y), 1);
            wanted.spans = wanted.spans.empty() ? beams[i].spans : wanted.spans;
            EXPECT_EQ(Told(beams[i]), Told(wanted)) << project.title;
            EXPECT_EQ(beams[i].concreteGrade, wanted.concreteGrade);
            EXPECT_EQ(beams[i].seismicClass, wanted.seismicClass);
            EXPECT_EQ(beams[i].area.bottom, wanted.area.bottom);
        }
        for (const AnnotationText& text : drawing.Texts()) {
            EXPECT_FALSE(text.open.has_value()) << text.text << ": " << text.open->English();
        }
    }
}

}  // namespace
}  // namespace Desk
