// A beam's texts as what a cross section is made of: width and height, rows of bars, stirrup legs.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Desk {

struct SectionSize {
    int width = 0;  // mm
    int height = 0;
};

// "300x700"; X, * and the multiplication sign do as well. Of a tapering "300x500/350" the deeper end.
// Nothing for another text.
[[nodiscard]] std::optional<SectionSize> ReadSize(std::string_view text);

// Bars as they lie, the upper row first; each row holds diameters in mm from left to right.
struct BarRows {
    std::vector<std::vector<int>> rows;

    [[nodiscard]] double Area() const;  // mm²
};

// "2B25+1B22", "6B25/4B25" and "2B22+3B25/2B22" from the row above to the row below, "5B20 3/2" and
// "6B25(2/4)" with the counts from the top down; "G4B12", "N4B14", "*2B12" and "+(2B12)" without the mark.
// The first term's bars lie at the corners. Of "2B25;4B25" the part in front of the semicolon. Nothing for
// a text that cannot be read to its end, and for rows that do not add up.
[[nodiscard]] std::optional<BarRows> ReadBars(std::string_view text);

struct StirrupSize {
    int diameter = 0;  // mm
    int legs = 2;      // those outside the dense zone
};

// "A8@100/200(4)". Nothing without grade and diameter, or with fewer than one leg.
[[nodiscard]] std::optional<StirrupSize> ReadStirrup(std::string_view text);

}  // namespace Desk
