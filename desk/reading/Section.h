// The section and the elevation of a beam. The module's rules (GetBeamWidth, GetBeamHeight, and the order
// of elevations) take the numbers out of any text; this tells such texts from others and reads haunches,
// the second height of a tapering beam, and brackets.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Desk {

class Cursor;

// 300x600, 300x600/500, 300x700 Y500x250, Y500x250. All in mm, 0 for what the text lacks.
struct Section {
    int width = 0;
    int height = 0;
    int otherHeight = 0;  // at the other end
    int haunchLength = 0;
    int haunchHeight = 0;

    bool operator==(const Section&) const = default;
    [[nodiscard]] std::string Text() const;
};

// A drawing's 300X600, 300 * 600, bxh=300x600 as well; sides of two to four digits. Takes what is at
// the cursor and moves after it, or gives nothing and leaves the cursor.
[[nodiscard]] std::optional<Section> ReadSection(Cursor& at);
// A whole text.
[[nodiscard]] std::optional<Section> ReadSection(std::string_view text);
// Of a section text, in mm; 0 for a text without.
[[nodiscard]] int WidthOf(std::string_view section);

// -0.100, (-0.100): a number with decimals.
struct Elevation {
    double metres = 0.0;
    int decimals = 3;  // 1 to 4
    bool inBrackets = false;

    bool operator==(const Elevation&) const = default;
    [[nodiscard]] std::string Text() const;
};

// Plus signs go, since the grammar has none; 0.100~0.200 is none. Otherwise as ReadSection.
[[nodiscard]] std::optional<Elevation> ReadElevation(Cursor& at);
[[nodiscard]] std::optional<Elevation> ReadElevation(std::string_view text);

}  // namespace Desk
