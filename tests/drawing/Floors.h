// Floors as draughtsmen draw them, to be written in any shape.
#pragma once

#include <optional>
#include <random>
#include <string>
#include <vector>

#include "tests/drawing/Maker.h"

namespace Desk {

inline constexpr double Height = 300;  // of texts, and the pitch of a label's lines

struct DrawnLabel {
    Beam texts;
    PlanPoint name;  // start of the first line
    double angle = 0.0;
    std::optional<PlanPoint> leaderEnd;
    std::size_t outline = 0;  // that of its beam
};

struct DrawnText {
    std::string text;
    PlanPoint at;
    double angle = 0.0;
    std::size_t outline = 0;
};

struct Outline {
    PlanPoint from;
    PlanPoint to;
    double width = 300;
    std::vector<double> supports;  // along it, with both ends; edges are broken there
};

struct DrawnFloor {
    std::vector<DrawnLabel> labels;
    std::vector<DrawnText> inPlace;
    std::vector<DrawnText> others;  // that are no annotations
    std::vector<Outline> outlines;
    std::vector<PlanPoint> columns;
};

// "KL1(2) 300x600", "A8@100/200(2)", "2B22;3B22", "G4B12" and "(-0.100)" for those of the texts that are
// not empty; an empty line for those that are.
[[nodiscard]] std::vector<std::string> LinesOf(const Beam& texts);

// As programs of 1992 to 2018 write them, before and after conversions.
inline constexpr Shape Shapes[] = {
    {.name = "plain"},
    {.name = "WithoutHandles", .lineEnd = "\r\n", .hasHandles = false, .spelling = Spelling::Escape82},
    {.name = "Padded",
     .lineEnd = "\r\n",
     .hasPaddedCodes = true,
     .spelling = Spelling::PrivateE530,
     .outlines = OutlineAs::Polylines},
    {.name = "InBlock", .spelling = Spelling::Mixed, .depth = 1},
    {.name = "MText2000",
     .version = "AC1015",
     .spelling = Spelling::EscapeE000,
     .labels = LabelAs::MText,
     .outlines = OutlineAs::LightPolylines},
    {.name = "MText2004",
     .version = "AC1018",
     .hasPaddedCodes = true,
     .spelling = Spelling::Multibyte,
     .labels = LabelAs::MTextWithCodes,
     .outlines = OutlineAs::LightPolylines,
     .depth = 2},
    {.name = "Converted",
     .version = "AC1015",
     .isUtf8 = true,
     .spelling = Spelling::PrivateE000,
     .outlines = OutlineAs::LightPolylines},
    {.name = "Attributes2007",
     .version = "AC1021",
     .isUtf8 = true,
     .lineEnd = "\r\n",
     .spelling = Spelling::Mixed,
     .labels = LabelAs::Attributes,
     .outlines = OutlineAs::Polylines,
     .depth = 1},
    {.name = "Long2018",
     .version = "AC1032",
     .isUtf8 = true,
     .hasPaddedCodes = true,
     .spelling = Spelling::EscapeE530,
     .labels = LabelAs::MTextWithCodes,
     .outlines = OutlineAs::LightPolylines},
    {.name = "DrawnTwiceAsLarge",
     .spelling = Spelling::PrivateE000,
     .outlines = OutlineAs::Polylines,
     .scale = 2},
};

[[nodiscard]] std::string Draw(const Shape& shape, const DrawnFloor& floor);
void DrawOn(DrawingMaker& maker, const DrawnFloor& floor, const PlanPoint& moved = {});

// Two frame beams of two spans across, one that goes up between them, a secondary beam without a leader,
// and a name alone; a text in place of every role.
[[nodiscard]] DrawnFloor SmallFloor();

// 39 beams on a grid of 7 by 5 axes, 50,400 by 28,800 mm. Every third label is moved away from its beam
// along its leader, over other beams; of the others every eighth has lost its leader.
[[nodiscard]] DrawnFloor CrowdedFloor(unsigned seed);

}  // namespace Desk
