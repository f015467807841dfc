// What is typed for one annotation: its own, another's, several, or none.
#include <gtest/gtest.h>

#include "desk/reading/Understand.h"

namespace {

using namespace Desk;

Project OneBeam()
{
    Project project;
    Beam& beam = project.beams.emplace_back();
    beam.name = "KL1(2)";
    beam.topBars = "2B20";
    beam.inPlace = {{Role::Bottom, 1, "3B25", {}, -1, {}}};
    project.beams.emplace_back().section = "as drawn";
    project.walls.emplace_back().name = "Q1";
    return project;
}

// "fits", or the texts with their fields: "split" before parts that need no question, "several" before
// others; "nothing" when it is no annotation.
std::string Words(const Understood& found)
{
    if (found.fits) {
        EXPECT_TRUE(found.instead.empty() && found.parts.empty());
        return "fits";
    }
    std::string words = found.isSplit ? "split" : !found.parts.empty() ? "several" : "";
    EXPECT_TRUE(found.parts.empty() || found.instead.empty());
    for (const TextFor& each : found.parts.empty() ? found.instead : found.parts) {
        words += (words.empty() ? "" : " ") + std::string(RowOf(each.at.field).key) + "=" + each.text;
    }
    return words.empty() ? "nothing" : words;
}

TEST(Typed, IsOfItsFieldOrOfOthersOrOfNone)
{
    constexpr struct {
        Field field;
        const char* text;
        const char* found;
    } Cases[] = {
        {Field::Name, "KL12(3A)", "fits"},
        {Field::Name, "", "fits"},
        {Field::Name, "2B25", "bottomBars=2B25 leftEnd=2B25 rightEnd=2B25 erection=2B25 topBars=2B25"},
        {Field::Name, "KL-2(3)", "name=KL2(3)"},
        {Field::Name, "Beam A", "nothing"},
        {Field::Section, "300x600/500", "fits"},
        {Field::Section, "as drawn", "fits"},  // the other beam has it
        {Field::Section, "A8@100/200(2)", "stirrup=A8@100/200(2)"},
        {Field::Section, "KL3(2)", "name=KL3(2)"},
        {Field::Elevation, "300x600", "section=300x600"},
        {Field::Stirrup, "-0.050", "elevation=-0.050"},
        {Field::TopBars, "2B22+3B25/2B22", "fits"},
        {Field::TopBars, "G4B12", "side=G4B12"},
        {Field::BottomBars, "N4B12", "torsion=N4B12"},
        {Field::Side, "N4B12", "torsion=N4B12"},
        {Field::TopBars, "2B1", "nothing"},
        {Field::TopBars, "2B25+1B22;3B20", "split topBars=2B25+1B22 bottomBars=3B20"},
        {Field::BottomBars, "2B25; 3B20", "split topBars=2B25 bottomBars=3B20"},
        {Field::RightEnd, "2B25;3B20", "several rightEnd=2B25 bottomBars=3B20"},
        {Field::BottomBars, ";3B20", "bottomBars=3B20"},
        {Field::BottomBars, "3B20+(2B12)", "several bottomBars=3B20 erection=2B12"},
        {Field::Name, "KL2(3) 300x600 A8@200(2) 2B22;3B25",
         "several name=KL2(3) section=300x600 stirrup=A8@200(2) topBars=2B22 bottomBars=3B25"},
    };
    const Project project = OneBeam();
    for (const auto& [field, text, found] : Cases) {
        EXPECT_EQ(Words(Understand(project, {false, 0, field}, text)), found)
            << RowOf(field).key << " " << text;
    }
}

TEST(Typed, AtATextInPlaceIsReadAsItsField)
{
    const Project project = OneBeam();
    constexpr FieldRef InPlace{false, 0, Field::BottomBars, 0};
    EXPECT_EQ(Words(Understand(project, InPlace, "4B25")), "fits");
    EXPECT_EQ(Words(Understand(project, InPlace, "2B25;4B25")), "fits")
        << "its beam's texts are not its own";
    const std::vector<TextFor> side = {{{false, 0, Field::Side}, "G4B12"}};
    EXPECT_EQ(Understand(project, InPlace, "G4B12").instead, side);
    const std::vector<TextFor> own = {{InPlace, "4B25"}};
    EXPECT_EQ(Understand(project, InPlace, ";4B25").instead, own);
}

TEST(Typed, ForAWallIsOneOfItsTexts)
{
    const Project project = OneBeam();
    const auto at = [&](Field field, const char* text) {
        return Words(Understand(project, {true, 0, field}, text));
    };
    EXPECT_EQ(at(Field::Name, "core, north"), "fits");
    EXPECT_EQ(at(Field::Name, "A10@150"), "horizontalBars=A10@150 verticalBars=A10@150");
    EXPECT_EQ(at(Field::HorizontalBars, "A10@150"), "fits");
    EXPECT_EQ(at(Field::HorizontalBars, "300x600"), "nothing");
}

}  // namespace
