// The name of a beam. The module's rules (GetBeamType, GetBeamXu, GetBeamKuaAndXuantiao) find type, serial
// and suffix of a name; this tells a name from other texts and takes the suffix apart.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Desk {

class Cursor;

// KL12(3A) is type, serial, span count and cantilever mark.
struct BeamName {
    std::string type;        // ends with "L"; with the part of the building "A-KL"
    int serial = 0;          // of up to three digits
    char letter = '\0';      // after the serial: KL13a
    int spans = 0;           // 0 for none given
    char cantilever = '\0';  // A or B

    bool operator==(const BeamName&) const = default;
    [[nodiscard]] std::string Text() const;
};

// A drawing's KL-1(2), "KL1 (2)", kl1(4a), KL13a(1), LLk3 as well, marked where the module would not find
// its parts. Takes what is at the cursor and moves after it, or gives nothing and leaves the cursor.
[[nodiscard]] std::optional<BeamName> ReadName(Cursor& at);
// A whole name, as the module knows it.
[[nodiscard]] std::optional<BeamName> ReadName(std::string_view text);
// A whole name as drawings have it: lower case as in KL13a and LLk3 as well.
[[nodiscard]] std::optional<BeamName> ReadNameInAnyCase(std::string_view text);

}  // namespace Desk
