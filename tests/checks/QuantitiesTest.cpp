// Quantities worked out by hand.
#include <gtest/gtest.h>

#include <map>

#include "desk/checks/Quantities.h"
#include "desk/project/ProjectFile.h"

namespace {

using namespace Desk;

Project OneBeam(const std::string& keys)
{
    return ParseProject(
        R"j({"version": 1, "beams": [{"concreteGrade": 30, "seismicClass": 3, )j" + keys + "}]}", "test");
}

// Metres by use, grade and diameter: "Top bars B16".
std::map<std::string, double> LengthsOf(const Quantities& all)
{
    std::map<std::string, double> lengths;
    for (const BarQuantity& bar : all.bars) {
        for (std::size_t use = 0; use < BarUses; ++use) {
            if (bar.length.at(use) > 0.0) {
                lengths[NameOf(static_cast<BarUse>(use)).english + std::string(" ") + bar.grade +
                        std::to_string(bar.diameter)] = bar.length.at(use);
            }
        }
    }
    return lengths;
}

void ExpectLengths(const Quantities& all, const std::map<std::string, double>& expected)
{
    const std::map<std::string, double> lengths = LengthsOf(all);
    ASSERT_EQ(lengths.size(), expected.size());
    for (const auto& [bars, length] : expected) {
        ASSERT_TRUE(lengths.contains(bars)) << bars;
        EXPECT_NEAR(lengths.at(bars), length, 0.002) << bars;
    }
}

TEST(Quantities, CountABeamOfOneSpan)
{
    const Project project = OneBeam(R"j("name": "L1(1)", "section": "250x500", "stirrup": "A8@200(2)",
        "topBars": "2B16", "bottomBars": "3B22", "erection": "1B12", "side": "G2B12",
        "torsion": "N2B14", "leftEnd": "4B16 2/2", "start": [0, 0], "end": [0, 6000])j");
    const Quantities all = QuantitiesOf(project);
    // la of B in C30: 0.14 x 300 / 1.43 = 29.371 d.
    ExpectLengths(all, {
                           {"Top bars B16", 2 * (6.0 + 2 * 0.46993) + 2 * (6.0 / 4 + 0.46993)},
                           {"Bottom bars B22", 3 * (6.0 + 2 * 12 * 0.022)},
                           {"Erection bars B12", 2.0 + 0.3},
                           {"Side bars B12", 2 * (6.0 + 2 * 15 * 0.012)},
                           {"Torsion bars B14", 2 * (6.0 + 2 * 29.371 * 0.014)},
                           // (6000 - 100) / 200 = 29.5: 31 of 2 x (210 + 460) + 2 x (80 + 15.2).
                           {"Stirrups A8", 31 * 1.5304},
                       });
    EXPECT_NEAR(all.concrete, 0.25 * 0.5 * 6, 1e-9);
    EXPECT_NEAR(all.formwork, (0.25 + 2 * 0.5) * 6, 1e-9);
    // 22 mm: 380.13 mm² of 7850 kg/m³ are 2.984 kg/m.
    EXPECT_NEAR(all.bars.back().Mass(), 3 * 6.528 * 2.984, 0.01);
    EXPECT_TRUE(all.uncounted.empty());
}

TEST(Quantities, CountAFrameBeamOfTwoSpansWithTextsInPlace)
{
    const std::string beam = R"j("name": "KL1(2)", "section": "350x600", "stirrup": "A8@100/200(4)",
        "topBars": "2B20", "bottomBars": "2B20", "leftEnd": "4B20", "rightEnd": "3B20",
        "spans": [6000, 6000])j";
    const double laE = 1.05 * 29.371 * 0.020;
    const double through = 2 * (12.0 + 2 * laE + 1.4 * laE);  // lapped once
    const double bottom = 2 * 2 * (6.0 + 2 * laE);
    // Tight over 1.5 x 600 = 900: 2 x (9 + 1) and (6000 - 1800) / 200 - 1 = 20. Each 2 x (310 + 560) +
    // 190.4 and, for the inner legs, 2 x (310 / 3 + 560) + 190.4.
    const double stirrups = 2 * 40 * (1.9304 + 1.51707);
    ExpectLengths(QuantitiesOf(OneBeam(beam)),
                  {{"Top bars B20", through + 2 * (2.0 + laE) + (2.0 + laE) + 2 * 4.0},
                   {"Bottom bars B20", bottom},
                   {"Stirrups A8", stirrups}});
    // With texts in place nothing is taken for granted at the inner support, and through bars end where
    // others begin.
    ExpectLengths(QuantitiesOf(OneBeam(beam + R"j(, "inPlace": [
                      {"role": "topSpan", "span": 2, "text": "2B28"}, {"role": "bottom", "span": 2, "text": "2B22"},
                      {"role": "topSupport", "support": 1, "text": "2B20+2B18"}])j")),
                  {{"Top bars B20", 2 * (6.0 + 2 * laE) + 3 * (2.0 + laE)},
                   {"Top bars B28", 2 * (6.0 + 2 * 1.1 * 1.4 * laE)},
                   {"Top bars B18", 2 * (2.0 + 0.9 * laE)},
                   {"Bottom bars B20", bottom / 2},
                   {"Bottom bars B22", 2 * (6.0 + 2 * 1.1 * laE)},
                   {"Stirrups A8", stirrups}});
}

TEST(Quantities, TellWhatIsNotCounted)
{
    const Quantities all = QuantitiesOf(ParseProject(R"j({"version": 1, "beams": [
        {"name": "L1(1)", "section": "250x500", "bottomBars": "3B20", "end": [6000, 0]},
        {"name": "L1(1)", "end": [3000, 0]},
        {"name": "L2(1)", "bottomBars": "3 B", "stirrup": "A8", "end": [6000, 0]},
        {"name": "L3(1)", "section": "250x500"},
        {"name": "XL1", "section": "250x500/300", "leftEnd": "2B20", "stirrup": "?", "end": [2000, 0]}]
})j",
                                                     "test"));
    // The second beam's texts are at the first one; 0.4 m is the middle height of the cantilever.
    EXPECT_NEAR(all.concrete, 0.25 * 0.5 * 9 + 0.25 * 0.4 * 2, 1e-9);
    EXPECT_EQ(all.beams, 4U);
    std::string told;
    for (const Uncounted& left : all.uncounted) {
        told += std::to_string(left.at.index) + " " + RowOf(left.at.field).key + " " + left.text + ": " +
                left.why.English() + "\n";
    }
    EXPECT_EQ(told, "2 bottomBars 3 B: cannot be read\n2 section : the beam has no section\n"
                    "3 section 250x500: the beam has no length\n4 stirrup ?: cannot be read\n");
    EXPECT_NEAR(LengthsOf(all).at("Top bars B20"), 2 * (2.0 + 29.371 * 0.020), 0.002);
}

TEST(Quantities, AddUpAndAreWrittenAsATable)
{
    const Project project = SampleProject();
    const Quantities all = QuantitiesOf(project);
    double mass = 0.0;
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        mass += QuantitiesOf(project, i).Mass();
    }
    EXPECT_NEAR(all.Mass(), mass, 1e-6);
    // Office floors take 100 to 200 kg of beam steel for a m³ of beams.
    EXPECT_GT(all.Mass() / all.concrete, 100.0);
    EXPECT_LT(all.Mass() / all.concrete, 200.0);
    EXPECT_TRUE(all.uncounted.empty());
    const std::string csv = CsvOf(TableOf(all, [](const Phrase& phrase) {
        return std::string(phrase.english) == "Grade" ? "a \"b\", c" : phrase.english;
    }));
    EXPECT_TRUE(csv.starts_with("\xEF\xBB\xBF\"a \"\"b\"\", c\",\"Diameter, mm\",")) << csv.substr(0, 80);
}

}  // namespace
