// Texts read for the section, and bars laid where they belong.
#include <gtest/gtest.h>

#include "desk/plan/SectionSketch.h"

namespace {

using namespace Desk;

std::string Rows(std::string_view text)
{
    const std::optional<BarRows> read = ReadBars(text);
    std::string rows = read ? "" : "no bars";
    for (const std::vector<int>& row : read ? read->rows : std::vector<std::vector<int>>()) {
        for (const int diameter : row) {
            rows += std::to_string(diameter) + " ";
        }
        rows += "| ";
    }
    return rows;
}

TEST(Section, ReadsWhatTheTextsSay)
{
    EXPECT_EQ(Rows("2B25+1B22"), "25 22 25 | ");
    EXPECT_EQ(Rows("3B20+2B16"), "20 20 16 16 20 | ");
    EXPECT_EQ(Rows("5B20 3/2"), "20 20 20 | 20 20 | ");
    EXPECT_EQ(Rows("6B25(2/4)"), "25 25 | 25 25 25 25 | ");
    EXPECT_EQ(Rows("6B25/4B25"), "25 25 25 25 25 25 | 25 25 25 25 | ");
    EXPECT_EQ(Rows("2B22+3B25/2B22"), "22 25 25 25 22 | 22 22 | ");
    EXPECT_EQ(Rows("6B25 4/2+2B22 1/1 "), "25 25 22 25 25 | 25 22 25 | ");
    EXPECT_EQ(Rows("2B25+3B22 3/2"), "25 22 22 | 22 25 | ");
    EXPECT_EQ(Rows("+(2B12+2B14),"), "12 14 14 12 | ");
    EXPECT_EQ(Rows("G4B12"), "12 12 12 12 | ");
    EXPECT_EQ(Rows("2B25;4B20"), "25 25 | ");
    for (const char* const text : {"", "2B", "B25", "2E25", "5B20 3/3", "2B25+", "2B25/", "2B25/2",
                                   "+(2B12", "2B25)", "2B25 x", "-2B25", "999B25", "2B9999"}) {
        EXPECT_EQ(Rows(text), "no bars") << text;
    }
    EXPECT_NEAR(ReadBars("2B25+1B22")->Area(), 1361.9, 0.1);
    EXPECT_EQ(ReadSize("300X700")->height, 700);
    EXPECT_EQ(ReadSize("300\xC3\x97"
                       "650")
                  ->width,
              300);
    EXPECT_EQ(ReadSize("300x500/350")->height, 500);
    EXPECT_FALSE(ReadSize("300x500/") || ReadSize("300") || ReadSize("300x") || ReadSize("0x700") ||
                 ReadSize("300x700x"));
    EXPECT_EQ(ReadStirrup("A8@100(2)/200(4)")->legs, 4);
    EXPECT_EQ(ReadStirrup("A10@150")->legs, 2);
    EXPECT_FALSE(ReadStirrup("8@100(2)") || ReadStirrup("A8@100()"));
}

Beam Whole()
{
    Beam beam;
    beam.section = "300x600";
    beam.stirrup = "A8@100/200(4)";
    beam.topBars = "2B25";
    beam.erection = "2B12";
    beam.leftEnd = "5B25 3/2";
    beam.bottomBars = "6B22 2/4";
    beam.side = "G4B12";
    beam.area = {900, 2000, 2400, 0};
    return beam;
}

TEST(Section, LaysBarsInsideTheStirrupInTheirRows)
{
    for (const Field field : {Field::TopBars, Field::LeftEnd}) {
        const SectionLayout layout = LayOutSection(Whole(), field);
        EXPECT_TRUE(layout.faults.empty());
        EXPECT_EQ(layout.innerLegs.size(), 2U);
        EXPECT_EQ(layout.dots.size(), (field == Field::TopBars ? 4U : 5U) + 6U + 4U);
        const double face = layout.cover + layout.stirrup;
        for (const BarDot& dot : layout.dots) {
            EXPECT_GE(dot.x - dot.diameter / 2.0, face - 1e-6);
            EXPECT_LE(dot.x + dot.diameter / 2.0, 300 - face + 1e-6);
            EXPECT_GE(dot.y - dot.diameter / 2.0, face - 1e-6);
            EXPECT_LE(dot.y + dot.diameter / 2.0, 600 - face + 1e-6);
        }
        // Of the bottom rows the larger one lies at the face.
        const auto lowest = std::count_if(layout.dots.begin(), layout.dots.end(),
                                          [&](const BarDot& dot) { return dot.y > 600 - face - 12; });
        EXPECT_EQ(lowest, 4);
    }
}

TEST(Section, TellsWhatIsWrong)
{
    const auto faults = [](const Beam& beam, Field field = Field::TopBars) {
        std::string told;
        for (const SectionFault& fault : LayOutSection(beam, field).faults) {
            told += std::to_string(static_cast<int>(fault.fault)) + "/" +
                    std::to_string(static_cast<int>(fault.field)) + " ";
        }
        return told;
    };
    Beam beam = Whole();
    beam.topBars = "2B12";
    EXPECT_EQ(faults(beam), "3/4 ") << "too little steel";
    beam = Whole();
    beam.bottomBars = "9B25";
    EXPECT_EQ(faults(beam), "2/5 ") << "too wide";
    beam = Whole();
    beam.leftEnd = "B5";
    beam.stirrup = "?";
    EXPECT_EQ(faults(beam, Field::LeftEnd), "1/3 1/6 ");
    EXPECT_EQ(faults(beam), "1/3 ");
    beam.section = "";
    EXPECT_EQ(faults(beam), "0/1 ");
    SectionSketch sketch;
    sketch.resize(300, 300);
    sketch.SetBeam(&beam);
    EXPECT_FALSE(sketch.toolTip().isEmpty());
    beam = Whole();
    sketch.SetBeam(&beam);
    const QImage good = sketch.grab().toImage();
    EXPECT_TRUE(sketch.toolTip().isEmpty());
    beam.bottomBars = "4B22";
    sketch.SetBeam(&beam);
    EXPECT_NE(sketch.grab().toImage(), good);
}

}  // namespace
