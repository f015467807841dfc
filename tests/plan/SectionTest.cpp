// Bars laid where they belong in a section.
#include <gtest/gtest.h>

#include "desk/plan/SectionSketch.h"

namespace {

using namespace Desk;

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
