// What single annotation texts mean, and that the module's own rules find the same in them.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "RankerModule.h"
#include "desk/reading/Bars.h"
#include "desk/reading/BeamName.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"

namespace Desk {

void PrintTo(const BeamName& name, std::ostream* out) { *out << name.Text(); }
void PrintTo(const Section& section, std::ostream* out) { *out << section.Text(); }
void PrintTo(const Elevation& elevation, std::ostream* out) { *out << elevation.Text(); }
void PrintTo(const Stirrup& stirrup, std::ostream* out) { *out << stirrup.Text(); }
void PrintTo(const Bars& bars, std::ostream* out) { *out << bars.Text(); }

namespace {

std::string Rows(std::string_view text)
{
    const std::optional<Bars> read = ReadBars(text);
    std::string rows = read ? std::string(1, read->head).substr(read->head == '\0' ? 1 : 0) : "no bars";
    for (const std::vector<int>& row : read ? read->RowsFromTop() : BarRows()) {
        for (const int diameter : row) {
            rows += std::to_string(diameter) + " ";
        }
        rows += "| ";
    }
    return rows;
}

TEST(Bars, LieInRowsWithTheFirstTermAtTheCorners)
{
    constexpr std::pair<const char*, const char*> Cases[] = {
        {"2B25+1B22", "25 22 25 | "},
        {"3B20+2B16", "20 20 16 16 20 | "},
        {"5C20 3/2", "20 20 20 | 20 20 | "},
        {"6B25(2/4)", "25 25 | 25 25 25 25 | "},
        {"7B25 3/2/2", "25 25 25 | 25 25 | 25 25 | "},
        {"3B25/2B20", "25 25 25 | 20 20 | "},
        {"2B22+3B25/2B22", "22 25 25 25 22 | 22 22 | "},
        {"6B25 4/2+2B22 1/1 ", "25 25 22 25 25 | 25 22 25 | "},
        {"2B25+3B22 3/2", "25 22 22 | 22 25 | "},
        {"4B25 2/2/2B20+2B18 2/2", "25 25 | 25 25 | 20 18 | 18 20 | "},
        {"+(2B12+2B14),", "12 14 14 12 | "},
        {"(2B12)", "12 12 | "},
        {"G4B12", "G12 12 12 12 | "},
        {"*2D12", "*12 12 | "},
        {"2B25;4B20", "25 25 | "},
    };
    for (const auto& [text, rows] : Cases) {
        EXPECT_EQ(Rows(text), rows) << text;
    }
    for (const char* const text :
         {"",       "2B",      "B25",      "2E25",    "5B20 3/3",    "2B25+",  "2B25/",
          "2B25/2", "+(2B12",  "2B25)",    "2B25 x",  "-2B25",       "999B25", "2B9999",
          "B2B25",  "6B254/2", "2B25(-2)", "2B25(2)", "2B22+(2B12)", "325+225"}) {
        EXPECT_EQ(Rows(text), "no bars") << text;
    }
    EXPECT_NEAR(ReadBars("2B25+1B22/2A8")->Area(), 1462.4, 0.1);
}

TEST(Bars, AreCutIntoThePiecesThatThePanelTakes)
{
    using Pieces = std::vector<std::string>;
    EXPECT_EQ(BarPieces("2B22+6B25 4/2/2B20"), (Pieces{"2B22", "6B25 4/2/2B20"}));
    EXPECT_EQ(BarPieces("+(2B12+2B14),"), (Pieces{"2B12", "2B14"}));
    EXPECT_EQ(BarPieces("+any+"), Pieces{"any"});
    EXPECT_EQ(BarPieces(""), Pieces());
}

TEST(Annotations, AreReadWholeOrNotAtAll)
{
    EXPECT_EQ(ReadSection("300X700"), (Section{300, 700}));
    EXPECT_EQ(ReadSection("300×650"), (Section{300, 650}));
    EXPECT_EQ(ReadSection("300*500/350 Y500x250"), (Section{300, 500, 350, 500, 250}));
    EXPECT_EQ(ReadSection("Y500x250"), (Section{0, 0, 0, 500, 250}));
    EXPECT_EQ(WidthOf("Y500x250") + WidthOf("300"), 0);
    for (const char* const text : {"", "300x500/", "300", "300x", "0x700", "300x700x", "bh=300x600", "Y"}) {
        EXPECT_FALSE(ReadSection(text)) << text;
    }
    EXPECT_EQ(ReadElevation("(-0.100)"), (Elevation{-0.1, 3, true}));
    EXPECT_EQ(ReadElevation("+5.35")->Text(), "5.35");
    for (const char* const text : {"", "3", "(0.1", "0.1)", "0.1~0.2", ".5", "05.35", "1.23456"}) {
        EXPECT_FALSE(ReadElevation(text)) << text;
    }
    EXPECT_EQ(ReadStirrup("C8-100(2)/200(14)"), (Stirrup{'C', 8, 100, 2, 200, 14}));
    EXPECT_EQ(ReadStirrup("A10@150"), (Stirrup{'A', 10, 0, 0, 150, 0}));
    for (const char* const text : {"", "8@100(2)", "A8@100()", "A8@100(2", "A8150(2)", "A8@", "A8@100/"}) {
        EXPECT_FALSE(ReadStirrup(text)) << text;
    }
    EXPECT_EQ(ReadName("KL12(3A)"), (BeamName{"KL", 12, '\0', 3, 'A'}));
    EXPECT_EQ(ReadName("A-WKL2(B)"), (BeamName{"A-WKL", 2, '\0', 0, 'B'}));
    for (const char* const text : {"", "KL", "kl1", "KL-1", "KL13a", "KL1()", "KL1(3", "L1200", "LN1"}) {
        EXPECT_FALSE(ReadName(text)) << text;
    }
}

TEST(Annotations, GoThereAndBackAsTheModuleUnderstandsThem)
{
    std::mt19937 random(20261123);
    const auto upTo = [&random](int most) {
        return static_cast<int>(random() % static_cast<unsigned>(most + 1));
    };
    const auto text = [](const auto& value) { return CString(std::string_view(value.Text())); };
    for (int i = 0; i < 2'000; ++i) {
        const BeamName name{i % 2 == 0 ? "KL" : "B-JZL", 1 + upTo(998), '\0', upTo(12), "\0AB"[upTo(2)]};
        ASSERT_EQ(ReadName(name.Text()), name);
        CString type;
        int serial = 0;
        BEAMNAME_HITNESS_RANKER::GetBeamType(text(name), type);
        BEAMNAME_HITNESS_RANKER::GetBeamXu(text(name), serial);
        ASSERT_TRUE(type.View() == name.type && serial == name.serial) << name.Text();

        const int haunch = upTo(1) * (100 + upTo(900));
        const Section section{10 + upTo(900), 10 + upTo(2000), upTo(1) * 800, haunch, haunch};
        ASSERT_EQ(ReadSection(section.Text()), section);
        int width = 0;
        int height = 0;
        BEAMSIZE_HITNESS_RANKER().GetBeamWidth(text(section), width);
        BEAMSIZE_HITNESS_RANKER().GetBeamHeight(text(section), height);
        ASSERT_TRUE(width == section.width && height == section.height) << section.Text();

        const int decimals = 1 + upTo(3);
        const Elevation elevation{(upTo(20'000) - 10'000) / std::pow(10.0, decimals), decimals,
                                  upTo(1) == 0};
        ASSERT_EQ(ReadElevation(elevation.Text()), elevation);

        const int tight = upTo(1) * (50 + upTo(100));
        const Stirrup stirrup{i % 2 == 0 ? 'A' : 'B',  4 + upTo(28),    tight,
                              tight > 0 ? upTo(4) : 0, 100 + upTo(300), 1 + upTo(8)};
        ASSERT_EQ(ReadStirrup(stirrup.Text()), stirrup);
        const StirrupText::Measures rule = StirrupText::Measure(text(stirrup));
        ASSERT_EQ(rule, (StirrupText::Measures{stirrup.diameter, stirrup.spacing, tight, stirrup.legs}));

        Bars bars{"\0GN*"[upTo(3)],
                  std::vector<std::vector<BarTerm>>(static_cast<std::size_t>(1 + upTo(2)))};
        for (std::vector<BarTerm>& layer : bars.layers) {
            for (int terms = 1 + upTo(1); terms > 0; --terms) {
                const int upper = 1 + upTo(4);
                const int lower = 1 + upTo(4);
                layer.push_back({upper + lower, "AB"[upTo(1)], 6 + upTo(30), {}});
                if (upTo(2) == 0) {
                    layer.back().rows = {upper, lower};
                }
            }
        }
        ASSERT_EQ(ReadBars(bars.Text()), bars);
        const BarTerm& first = bars.layers.front().front();
        const BarText::Term term = BarText::SplitTerm(BarText::HeadPiece(text(bars)));
        ASSERT_EQ(term.count, first.count) << bars.Text();
    }
}

}  // namespace
}  // namespace Desk
