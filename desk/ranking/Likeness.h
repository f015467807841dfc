// How much beams are alike, in points, by what is known of one of them when a text is asked for.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "desk/project/Failure.h"

namespace Desk {

// What a beam is compared by, in numbers; texts by their number in their pool, 0 for none.
struct Traits {
    int family = 0;   // types that stand for one another, 0 for a beam without a readable name
    int spans = -1;   // the name's suffix; -1 without a readable name
    int serial = -2;  // the name's type and serial, neighbours one apart; -2 without a readable name
    int section = 0;
    int width = 0;  // mm, 0 for not known
    int height = 0;
    int stirrup = 0;
    int topBars = 0;
    int x = 0;  // middle of the beam in half millimetres
    int y = 0;
    int direction = 0;  // 1 along x, 2 along y, 3 just between; 0 for a beam without an extent
    bool hasSection = false;
    bool hasBars = false;  // any annotation after the section

    [[nodiscard]] bool HasRow() const { return direction == 1 || direction == 2; }
    [[nodiscard]] int Along() const { return direction == 2 ? y : x; }
    static constexpr int NoRow = std::numeric_limits<int>::min();
    static constexpr int RowReach = 1000;  // half millimetres
};

// Which traits of the beam that is asked for are known, by the fields that they come from.
using KnownTraits = unsigned;
inline constexpr KnownTraits KnowsName = 1;
inline constexpr KnownTraits KnowsSection = 2;
inline constexpr KnownTraits KnowsStirrup = 4;
inline constexpr KnownTraits KnowsTopBars = 8;
inline constexpr KnownTraits KnowsAll = 15;

struct Voter {
    int points = 0;
    int beam = 0;
    int text = 0;
};

class Likeness {
public:
    static constexpr std::size_t MostVoters = 16;
    static constexpr std::size_t MostNear = 9;
    // Points of the nearest, the next and so on.
    static constexpr std::array<int, MostNear> NearnessAt = {3, 3, 3, 2, 2, 1, 1, 1, 1};

    explicit Likeness(std::size_t beams);
    void Set(std::size_t beam, const Traits& traits);
    [[nodiscard]] const Traits& Of(int beam) const { return m_traits[static_cast<std::size_t>(beam)]; }

    // Of the beams before an end, without the beam itself, those with most points that have a text in the
    // column, which has an entry a beam; entered last first where points are equal.
    [[nodiscard]] std::vector<Voter> Voters(int beam, int end, KnownTraits known,
                                            const std::vector<int>& column) const;
    // The same of a list of texts of some beams, in the order of beams.
    [[nodiscard]] std::vector<Voter> Voters(int beam, int end, KnownTraits known,
                                            const std::vector<std::pair<int, int>>& texts) const;
    // The annotated beams nearest to a beam, those of its direction first; at most MostNear.
    [[nodiscard]] const std::vector<int>& Near(int beam, int end, KnownTraits known) const;
    // What a beam shares with the one that is asked for: the strongest first, at most three.
    [[nodiscard]] Message Shared(int beam, int end, KnownTraits known, int other) const;

private:
    // Kept for the beam that was asked for last, for all its fields.
    struct Asked {
        int beam = -1;
        std::array<std::vector<int>, KnowsAll + 1> points;  // by what is known, without nearness
        std::array<std::vector<int>, KnowsAll + 1> mostOf;  // of each block of points
        std::array<std::vector<int>, 2> near;               // to section, to bars
        std::array<bool, 2> hasNear{};
    };

    [[nodiscard]] Asked& At(int beam, int end) const;
    [[nodiscard]] const std::vector<int>& Points(Asked& asked, int end, KnownTraits known) const;
    [[nodiscard]] const std::vector<int>& NearOf(Asked& asked, int end, KnownTraits known) const;
    struct Found {
        std::uint64_t distance;
        int beam;
    };
    void SortByX() const;
    void FindNear(int beam, int end, bool byBars, std::vector<int>& near) const;
    void FindNear(int beam, int end, bool byBars, int direction, std::size_t room,
                  std::vector<Found>& found) const;

    std::vector<Traits> m_traits;
    // The same by column, which the compiler turns into few instructions.
    std::vector<int> m_family, m_spans, m_serial, m_section, m_width, m_height, m_stirrup, m_topBars;
    std::array<std::vector<int>, 2> m_along;  // by direction, NoRow for beams of the others
    mutable bool m_isSorted = false;
    mutable std::array<std::vector<std::pair<int, int>>, 3> m_byX;  // by direction: x and beam
    mutable std::array<Asked, 2> m_asked;                           // of all beams, of those before
};

}  // namespace Desk
