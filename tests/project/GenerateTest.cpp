// Generated projects: the same for a seed, spread over the plan, and readable as a file.
#include <gtest/gtest.h>

#include <set>

#include "desk/project/Generate.h"
#include "desk/project/ProjectFile.h"

namespace {

using namespace Desk;

TEST(Generate, IsTheSameForASeedAndHasEveryBeamAtAPlaceOfItsOwn)
{
    const Project project = GenerateProject(2000, 5);
    EXPECT_EQ(FormatProject(project), FormatProject(GenerateProject(2000, 5)));
    EXPECT_NE(FormatProject(project), FormatProject(GenerateProject(2000, 6)));
    std::set<std::array<double, 4>> places;
    std::set<std::string> sections;
    for (const Beam& beam : project.beams) {
        places.insert({beam.start.x, beam.start.y, beam.end.x, beam.end.y});
        sections.insert(beam.section);
    }
    EXPECT_EQ(places.size(), 2000U);
    EXPECT_GT(sections.size(), 5U);
    EXPECT_EQ(ParseProject(FormatProject(project), "generated").walls.size(), 200U);
}

}  // namespace
