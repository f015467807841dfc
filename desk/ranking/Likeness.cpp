#include "desk/ranking/Likeness.h"

#include <algorithm>
#include <cstdint>

namespace Desk {

namespace {

constexpr std::size_t Block = 64;  // beams whose most points are kept

constexpr int SameFamily = 3;
constexpr int SameSpans = 1;
constexpr int NextSerial = 1;
constexpr int SameWidth = 1;
constexpr int SameHeight = 1;
constexpr int SameSection = 2;
constexpr int SameStirrup = 3;
constexpr int SameTopBars = 3;
constexpr int SameRow = 1;
constexpr int Never = -1000;  // points of the beam itself

// What is worth so much for each beam goes onto its points; most gets the most points of each block.
template <class Worth>
void Add(std::vector<int>& points, std::vector<int>& most, Worth worth)
{
    int* const to = points.data();
    const std::size_t count = points.size();
    most.clear();
    for (std::size_t from = 0; from < count; from += Block) {
        const std::size_t end = std::min(from + Block, count);
        int of = -1;
        for (std::size_t i = from; i < end; ++i) {
            to[i] += worth(i);
            of = std::max(of, to[i]);
        }
        most.push_back(of);
    }
}

// Ordered by points, then entered last; room for so many.
void Enter(std::vector<Voter>& voters, const Voter& voter)
{
    const auto isBefore = [](const Voter& a, const Voter& b) {
        return a.points != b.points ? a.points > b.points : a.beam > b.beam;
    };
    if (voters.size() == Likeness::MostVoters) {
        if (!isBefore(voter, voters.back())) {
            return;
        }
        voters.pop_back();
    }
    voters.insert(std::upper_bound(voters.begin(), voters.end(), voter, isBefore), voter);
}

}  // namespace

Likeness::Likeness(std::size_t beams) : m_traits(beams)
{
    for (std::vector<int>* const column : {&m_family, &m_spans, &m_serial, &m_section, &m_width, &m_height,
                                           &m_stirrup, &m_topBars, &m_along[0], &m_along[1]}) {
        column->resize(beams);
    }
}

void Likeness::Set(std::size_t beam, const Traits& traits)
{
    const Traits& before = m_traits[beam];
    m_isSorted = m_isSorted && before.direction == traits.direction && before.x == traits.x;
    m_traits[beam] = traits;
    m_family[beam] = traits.family;
    m_spans[beam] = traits.spans;
    m_serial[beam] = traits.serial;
    m_section[beam] = traits.section;
    m_width[beam] = traits.width;
    m_height[beam] = traits.height;
    m_stirrup[beam] = traits.stirrup;
    m_topBars[beam] = traits.topBars;
    for (int direction = 1; direction <= 2; ++direction) {
        m_along[static_cast<std::size_t>(direction - 1)][beam] =
            traits.direction == direction ? traits.Along() : Traits::NoRow;
    }
    for (Asked& asked : m_asked) {
        asked.beam = -1;
    }
}

Likeness::Asked& Likeness::At(int beam, int end) const
{
    Asked& asked = m_asked[end == static_cast<int>(m_traits.size()) ? 0 : 1];
    if (asked.beam != beam) {
        asked.beam = beam;
        asked.hasNear = {};
        for (std::vector<int>& points : asked.points) {
            points.clear();
        }
    }
    return asked;
}

const std::vector<int>& Likeness::Points(Asked& asked, int end, KnownTraits known) const
{
    std::vector<int>& points = asked.points[known];
    if (!points.empty() || end == 0) {
        return points;
    }
    const Traits& beam = Of(asked.beam);
    std::vector<int>& most = asked.mostOf[known];
    if (known == 0) {
        // Beams without a row have the least number, which no row reaches.
        const auto within = [&beam](int reach) {
            return static_cast<int>(std::clamp<std::int64_t>(
                std::int64_t{beam.Along()} + reach, Traits::NoRow + 1, std::numeric_limits<int>::max()));
        };
        const int* const along = m_along[beam.direction == 2 ? 1 : 0].data();
        const int from = within(-Traits::RowReach);
        const int to = beam.HasRow() ? within(Traits::RowReach) : Traits::NoRow;
        points.assign(static_cast<std::size_t>(end), 0);
        if (asked.beam < end) {
            points[static_cast<std::size_t>(asked.beam)] = Never;
        }
        Add(points, most, [=](std::size_t i) {
            return (along[i] >= from ? SameRow : 0) & (along[i] <= to ? SameRow : 0);
        });
        return points;
    }
    KnownTraits added = KnowsTopBars;
    while ((known & added) == 0) {
        added >>= 1U;
    }
    points = Points(asked, end, known & ~added);
    most = asked.mostOf[known & ~added];
    if (added == KnowsName && beam.family > 0) {
        const int* const family = m_family.data();
        const int* const spans = m_spans.data();
        const int* const serial = m_serial.data();
        Add(points, most, [=, b = beam](std::size_t i) {
            return (family[i] == b.family ? SameFamily : 0) + (spans[i] == b.spans ? SameSpans : 0) +
                   (serial[i] == b.serial - 1 ? NextSerial : 0) +
                   (serial[i] == b.serial + 1 ? NextSerial : 0);
        });
    } else if (added == KnowsSection && beam.section > 0) {
        const int* const section = m_section.data();
        const int* const width = m_width.data();
        const int* const height = m_height.data();
        const int sameWidth = beam.width > 0 ? SameWidth : 0;
        const int sameHeight = beam.width > 0 ? SameHeight : 0;
        Add(points, most, [=, b = beam](std::size_t i) {
            return (section[i] == b.section ? SameSection : 0) + (width[i] == b.width ? sameWidth : 0) +
                   (height[i] == b.height ? sameHeight : 0);
        });
    } else if (added == KnowsStirrup) {
        const int* const stirrup = m_stirrup.data();
        Add(points, most,
            [=, b = beam.stirrup](std::size_t i) { return stirrup[i] == b ? SameStirrup : 0; });
    } else if (added == KnowsTopBars) {
        const int* const topBars = m_topBars.data();
        Add(points, most,
            [=, b = beam.topBars](std::size_t i) { return topBars[i] == b ? SameTopBars : 0; });
    }
    return points;
}

std::vector<Voter> Likeness::Voters(int beam, int end, KnownTraits known,
                                    const std::vector<int>& column) const
{
    std::vector<Voter> voters;
    Asked& asked = At(beam, end);
    const std::vector<int>& points = Points(asked, end, known);
    const std::vector<int>& near = NearOf(asked, end, known);
    for (std::size_t i = 0; i < near.size(); ++i) {
        const auto other = static_cast<std::size_t>(near[i]);
        if (column[other] != 0) {
            Enter(voters, {points[other] + NearnessAt[i], near[i], column[other]});
        }
    }
    const std::vector<int>& most = asked.mostOf[known];
    // From the last beam on, so that of equals the one that comes later never enters.
    const auto least = [&](int other) {
        return voters.size() < MostVoters ? 0 : voters.back().points + (voters.back().beam > other ? 1 : 0);
    };
    for (std::size_t block = most.size(); block-- > 0;) {
        const int to = std::min(end, static_cast<int>((block + 1) * Block));
        if (most[block] < least(to - 1)) {
            continue;
        }
        for (int other = to - 1; other >= static_cast<int>(block * Block); --other) {
            const int text = column[static_cast<std::size_t>(other)];
            const int worth = points[static_cast<std::size_t>(other)];
            if (text != 0 && worth >= 0 && worth >= least(other) &&
                std::find(near.begin(), near.end(), other) == near.end()) {
                Enter(voters, {worth, other, text});
            }
        }
    }
    return voters;
}

std::vector<Voter> Likeness::Voters(int beam, int end, KnownTraits known,
                                    const std::vector<std::pair<int, int>>& texts) const
{
    std::vector<Voter> voters;
    Asked& asked = At(beam, end);
    const std::vector<int>& points = Points(asked, end, known);
    const std::vector<int>& near = NearOf(asked, end, known);
    for (const auto& [other, text] : texts) {
        if (other >= end) {
            break;
        }
        if (other != beam && text != 0) {
            const auto at = std::find(near.begin(), near.end(), other);
            const int nearness =
                at == near.end() ? 0 : NearnessAt[static_cast<std::size_t>(at - near.begin())];
            Enter(voters, {points[static_cast<std::size_t>(other)] + nearness, other, text});
        }
    }
    return voters;
}

}  // namespace Desk
