// Longitudinal bars. The module's rules (host/BarText.h) find the first term of a text and know the grades
// A and B; this reads texts to their end, with grades C and D, and what draughtsmen write of rows.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/reading/DrawingText.h"

namespace Desk {

class Cursor;

// "6B25 4/2"
struct BarTerm {
    int count = 0;
    char grade = 'B';  // A to D
    int diameter = 0;  // mm, 6 to 50
    std::vector<int>
        rows;  // counts from the top down, of these bars or of all of the layer so far; or empty

    bool operator==(const BarTerm&) const = default;
};

// Diameters in mm, row by row from the top, each row from left to right.
using BarRows = std::vector<std::vector<int>>;

// "2B22+3B25/2B22": "+" joins the terms of a layer, "/" a layer and the one below. The bars of the first
// term lie at the corners.
struct Bars {
    char head = '\0';  // G, N, * or none
    std::vector<std::vector<BarTerm>> layers;

    bool operator==(const Bars&) const = default;
    [[nodiscard]] bool IsEmpty() const { return layers.empty(); }
    [[nodiscard]] double Area() const;  // mm²
    // No rows where the counts of rows do not add up to the bars.
    [[nodiscard]] BarRows RowsFromTop() const;
    [[nodiscard]] std::string Text() const;
};

// The bars of a whole text; "6B25(2/4)" counts rows as well, and "+(2B12)," is dressed as the bar panel
// writes it. Of "2B25;4B25" the part before the semicolon. Nothing for rows that do not add up.
[[nodiscard]] std::optional<Bars> ReadBars(std::string_view text);

// Clear distance in mm that the bars of a row must have between them: GB 50010-2010 (2015), 9.2.1. At the
// top 30 mm and 1.5 d, where the concrete is poured, at the bottom 25 mm and d; in the third row from the
// bottom and those above it the distance from centre to centre is twice that of the two rows below.
[[nodiscard]] double ClearDistance(bool isBottom, int thickest, std::size_t rowFromBottom);

// The texts that "+" joins, of any text; "+(2B12+2B14)," is two.
[[nodiscard]] std::vector<std::string> BarPieces(std::string_view text);

// A stretch of a drawing's bars.
struct DrawnBars {
    Bars bars;               // empty for erection bars alone
    Bars erection;           // what is in brackets after a "+"
    char label = '\0';       // T (top) or B (bottom) in front of the bars
    bool endsShort = false;  // some bars stop before the supports, which only bottom bars do
    Stretch at;              // of the bars with their head, in the text
    Stretch erectionAt;      // of the erection bars without their brackets
    std::string leftOut;     // brackets that the grammar has no meaning for, separated by blanks
};

// Takes a stretch such as "G4C12", "T3C18", "2C22+(4C12)" or "6C25(2/4)" and moves after it, or gives
// nothing and leaves the cursor.
[[nodiscard]] std::optional<DrawnBars> ReadDrawnBars(Cursor& at);

// Puts the grade sign back into terms that lost it, where only one way of cutting the digits gives a
// diameter that bars have: "325+(112);625" is 3 of 25, 1 of 12 and 6 of 25. The whole text must be such
// terms, two at least; the result has OpenGrade signs.
[[nodiscard]] std::optional<std::string> WithLostGrades(std::string_view plain);

}  // namespace Desk
