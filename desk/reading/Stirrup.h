// A stirrup, or the spaced bars of a wall, which are written like a stirrup without legs. The module's
// rules (host/StirrupText.h) compose stirrup texts and know the grades A and B; this knows C and D too,
// tells such texts from others, and reads numbers of legs of two digits.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Desk {

class Cursor;

// A10@100(4)/200(2)
struct Stirrup {
    char grade = 'A';      // to D
    int diameter = 0;      // mm, 4 to 32
    int tightSpacing = 0;  // mm; 0 without a tight zone
    int tightLegs = 0;     // 0 for none given
    int spacing = 0;       // mm
    int legs = 0;          // 0 for none given

    bool operator==(const Stirrup&) const = default;
    [[nodiscard]] std::string Text() const;
};

// A drawing's A8-100(2), A8150(2), 8@100(2) as well, marked where something was lost. Takes what is at
// the cursor and moves after it, or gives nothing and leaves the cursor.
[[nodiscard]] std::optional<Stirrup> ReadStirrup(Cursor& at);
// A whole text.
[[nodiscard]] std::optional<Stirrup> ReadStirrup(std::string_view text);

// Thickness of the concrete over a beam's stirrups in mm: GB 50010-2010 (2015), table 8.2.1, environment
// class 1. What a beam's surroundings are a project does not know.
[[nodiscard]] constexpr int CoverOf(int concreteGrade) { return concreteGrade <= 25 ? 25 : 20; }

// Inside the stirrups of a beam so wide, in mm; without a stirrup that can be read one of 8 mm is taken.
[[nodiscard]] int InnerWidth(int width, const std::optional<Stirrup>& stirrup, int concreteGrade);

}  // namespace Desk
