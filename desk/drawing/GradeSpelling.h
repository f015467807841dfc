// How a drawing spells the grade signs of bars: one file mixes several ways, and what is written back keeps
// the way of its own text.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "desk/drawing/Drawing.h"
#include "desk/drawing/Labels.h"

namespace Desk {

class GradeSpelling {
public:
    explicit GradeSpelling(const Drawing::Parts& parts) : m_parts(parts) {}

    // A text in the module's grammar as the value of an entity, in place of a part of the line's plain
    // text. Where bars are told, the grade letters are spelled as in that part, else as in that text,
    // else as on its layer, else
    // as in the file, else %%130 to %%133; a section's "x" is spelled as the part has it.
    [[nodiscard]] std::string Spell(const TextLine& line, const Stretch& part, const std::string& text,
                                    bool isBars) const;

private:
    // The code of grade A; the next grades follow it. Letters and %%130 are ways of their own.
    struct Way {
        enum class Kind { Letter, Percent, Escape, Character, Multibyte } kind = Kind::Percent;
        unsigned first = 0;

        auto operator<=>(const Way&) const = default;
    };

    [[nodiscard]] std::string SpellGrade(const TextLine& line, const Stretch& part, char grade) const;
    [[nodiscard]] std::optional<Way> WayOf(const TextLine& line, const Stretch& part) const;
    [[nodiscard]] std::optional<Way> WayOf(std::string_view spelled, char grade) const;
    [[nodiscard]] std::string Written(const Way& way, char grade) const;
    void LearnWays() const;

    const Drawing::Parts& m_parts;
    mutable bool m_isLearnt = false;
    mutable std::map<std::uint32_t, Way> m_ofLayer;
    mutable std::optional<Way> m_ofFile;
};

}  // namespace Desk
