// Brings the many spellings of drawing programs and fonts to one plain text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Desk {

// Stands in a plain text where the drawing has a grade sign that does not say which grade.
inline constexpr char OpenGrade = '\x01';

// Takes UTF-8. Grade signs of all kinds become A to D or OpenGrade; full-width characters, the many
// crosses, dashes and blanks their ASCII forms; AutoCAD's \U+XXXX and %%c, %%p and underline codes what
// they stand for. Runs of blanks become one, none stays at the ends. What it does not know stays.
[[nodiscard]] std::string PlainText(std::string_view drawn);

// From a position of a text to another one, in bytes.
struct Stretch {
    std::size_t begin = 0;
    std::size_t end = 0;

    bool operator==(const Stretch&) const = default;
};

// The same; spelled gets for each byte of the plain text the stretch of drawn that spells it.
[[nodiscard]] std::string PlainText(std::string_view drawn, std::vector<Stretch>& spelled);

// A plain text for a person: OpenGrade as the sign that it stands for.
[[nodiscard]] std::string ShowPlain(std::string_view plain);

}  // namespace Desk
