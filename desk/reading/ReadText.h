// Reads one text of a drawing as whatever annotation it is.
#pragma once

#include <optional>
#include <string_view>

#include "desk/reading/Annotation.h"

namespace Desk {

// What the file says of a text, beside the text.
enum class Kind {
    None,  // it says nothing
    Name,
    Section,
    Elevation,
    Bars,
    Stirrup,
    Combined,       // a beam's whole annotation line
    Distributed,    // spaced bars of walls and slabs
    GlyphCode,      // how a grade sign is stored in drawings
    NameTrap,       // looks like a beam name and is none
    SectionColumn,  // a column's section
    Other           // a word that the import does not know
};
inline constexpr Kind AllKinds[] = {Kind::Name,     Kind::Section,       Kind::Elevation,   Kind::Bars,
                                    Kind::Stirrup,  Kind::Combined,      Kind::Distributed, Kind::GlyphCode,
                                    Kind::NameTrap, Kind::SectionColumn, Kind::Other,       Kind::None};
[[nodiscard]] std::string_view KindWord(Kind kind);
[[nodiscard]] Kind KindOf(std::string_view word);

// The kind is a hint: it decides where the text alone leaves a doubt, and what it says of columns and
// traps holds; otherwise the text decides and the reading tells the contradiction.
//
// drawn is UTF-8 without line ends and control characters.
[[nodiscard]] Reading ReadText(std::string_view drawn, Kind kind, const Choices& choices);

}  // namespace Desk
