// A project's annotations in numbers, parsed once: who votes for which text. Texts that cannot be read have
// no votes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "desk/project/Fields.h"
#include "desk/ranking/Likeness.h"
#include "desk/ranking/NextNames.h"
#include "desk/ranking/TextPool.h"

namespace Desk {

// Why a text has a vote: a beam alike has it, or the beam itself elsewhere.
enum class VoteOf { BeamAlike, OtherEnd, NextSpan, OwnText };

struct VotedText {
    int text = 0;  // in its pool
    std::int64_t votes = 0;
    VoteOf first = VoteOf::BeamAlike;  // the strongest of its voters
    int beam = 0;                      // that one, where it is a beam alike
    int points = 0;                    // of that one
    TextUse use;
};

struct Votes {
    std::vector<VotedText> texts;  // best first
    std::int64_t all = 0;
};

// A set of stirrups, top, bottom and side bars, texts of their pools; 0 for none.
inline constexpr std::array<Field, 4> SetFields = {Field::Stirrup, Field::TopBars, Field::BottomBars,
                                                   Field::Side};
struct VotedSet {
    std::array<int, SetFields.size()> texts{};
    std::int64_t votes = 0;
    int beam = 0;  // the strongest voter
};

class KnownTexts {
public:
    explicit KnownTexts(const Project& project);
    // Reads a beam anew.
    void Set(std::size_t beam);

    [[nodiscard]] const Likeness& Alike() const { return m_likeness; }
    [[nodiscard]] const NextNames& Names() const { return m_names; }
    // The field that an annotation serves; of the last support the right end.
    [[nodiscard]] Field FieldOf(const FieldRef& ref) const;
    [[nodiscard]] const TextPool& PoolOf(Field field) const;
    // Of the beams before an end and what comes before the annotation at its own beam.
    [[nodiscard]] UsesKnown UsesFor(const FieldRef& ref, int end) const;
    [[nodiscard]] static KnownTraits TraitsFor(const FieldRef& ref);

    [[nodiscard]] Votes VotesFor(const FieldRef& ref, int end) const;
    // On what a beam lacks of the set.
    [[nodiscard]] std::vector<VotedSet> SetVotesFor(int beam, int end) const;
    [[nodiscard]] KnownTraits TraitsForSet(int beam) const;

private:
    static constexpr std::size_t Fields = static_cast<std::size_t>(Field::Side) + 1;  // of beams
    using Slot = std::pair<Role, int>;
    using SlotTexts = std::vector<std::pair<int, int>>;  // beam and text, in the order of beams

    void SetInPlace(std::size_t beam, std::array<std::vector<int>, Fields>& texts);
    // The beam's own texts elsewhere that this one may repeat, those entered before it.
    template <class Vote>
    void VoteByOwn(const FieldRef& ref, Vote vote) const;

    const Project& m_project;
    std::vector<TextPool> m_pools;  // by field; both ends have one
    // The text of each beam by field, 0 for one that cannot be read; of the end bars those in place where
    // the beam has no others.
    std::array<std::vector<int>, Fields> m_columns;
    std::vector<int> m_hasSet;          // 1 for beams with a text of SetFields
    std::map<Slot, SlotTexts> m_slots;  // texts in place that no column has
    std::vector<std::vector<Slot>> m_slotsOf;
    Likeness m_likeness;
    NextNames m_names;
};

}  // namespace Desk
