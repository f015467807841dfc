// Reads names, sections, elevations and stirrups from a drawing's text. Each reader takes what stands at
// the cursor and moves behind it, or gives nothing and leaves the cursor where it is.
#pragma once

#include <optional>
#include <set>
#include <string>

#include "desk/reading/Annotation.h"
#include "desk/reading/Cursor.h"

namespace Desk::Import {

struct ReadField {
    std::string text;  // in the module's grammar
    std::set<Filled> filled;
};

// KL7(3), KL-1(2), A-KL1(3), kl1(4a), KL13a(1): letters that end with "L" (or the type LLk), a serial of
// up to three digits, span count and cantilever mark in brackets.
[[nodiscard]] std::optional<ReadField> ReadName(Cursor& at);

// 300x600, Y500x250, 300x600/500, 300x700 Y500x250, bxh=300x600; sides of two to four digits in mm.
[[nodiscard]] std::optional<ReadField> ReadSection(Cursor& at);

// 3.470, (-0.100): a number with decimals in m. Plus signs go, since the grammar has none.
[[nodiscard]] std::optional<ReadField> ReadElevation(Cursor& at);

// A stirrup, or the spaced bars of a wall, which are written like a stirrup without legs.
struct SpacedBars {
    char grade = '\0';  // A to D or OpenGrade; 0 when it is lost
    std::string diameter;
    std::string spacing;      // the tight one when there are two
    std::string spacingLegs;  // empty for none
    bool hasSecond = false;
    std::string second;
    std::string legs;       // behind the last spacing; empty for none
    bool isCutOff = false;  // ends in an open bracket with nothing behind it
    std::set<Filled> filled;

    [[nodiscard]] bool HasLegs() const { return !legs.empty(); }
};
[[nodiscard]] std::optional<SpacedBars> ReadSpacedBars(Cursor& at);

// Legs are those of the choices where the drawing has none.
[[nodiscard]] ReadField StirrupText(const SpacedBars& bars, const Choices& choices);
// Without legs.
[[nodiscard]] ReadField WallBarText(const SpacedBars& bars, const Choices& choices);

}  // namespace Desk::Import
