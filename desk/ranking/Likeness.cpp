#include "desk/ranking/Likeness.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>

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
constexpr int RowReach = 1000;  // half millimetres
constexpr std::array<int, Likeness::MostNear> Nearness = {3, 3, 3, 2, 2, 1, 1, 1, 1};

void AddWhereEqual(std::vector<int>& points, const std::vector<int>& column, int value, int worth)
{
    int* const to = points.data();
    const int* const from = column.data();
    const std::size_t count = points.size();
    for (std::size_t i = 0; i < count; ++i) {
        to[i] += from[i] == value ? worth : 0;
    }
}

void AddWhereWithin(std::vector<int>& points, const std::vector<int>& column, int least, int most,
                    int worth)
{
    int* const to = points.data();
    const int* const from = column.data();
    const std::size_t count = points.size();
    for (std::size_t i = 0; i < count; ++i) {
        to[i] += (from[i] >= least) & (from[i] <= most) ? worth : 0;
    }
}

bool IsNeighbour(int serial, int other) { return serial >= 0 && std::abs(serial - other) == 1; }

bool IsInRow(const Traits& a, const Traits& b)
{
    return a.direction != 0 && a.direction == b.direction &&
           std::abs(std::int64_t{a.along} - b.along) <= RowReach;
}

std::uint64_t SquaredDistance(const Traits& a, const Traits& b)
{
    const auto apart = [](std::int64_t one, std::int64_t other) {
        const std::int64_t difference = std::min(std::abs(one - other), std::int64_t{3'000'000'000});
        return static_cast<std::uint64_t>(difference * difference);
    };
    const bool isTurned = (a.direction == 2) != (b.direction == 2);
    return apart(a.along, isTurned ? b.across : b.along) + apart(a.across, isTurned ? b.along : b.across);
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
                                           &m_stirrup, &m_topBars, &m_along[0], &m_along[1], &m_along[2]}) {
        column->resize(beams);
    }
}

void Likeness::Set(std::size_t beam, const Traits& traits)
{
    m_traits[beam] = traits;
    m_family[beam] = traits.family;
    m_spans[beam] = traits.spans;
    m_serial[beam] = traits.serial;
    m_section[beam] = traits.section;
    m_width[beam] = traits.width;
    m_height[beam] = traits.height;
    m_stirrup[beam] = traits.stirrup;
    m_topBars[beam] = traits.topBars;
    for (int direction = 1; direction <= 3; ++direction) {
        m_along[static_cast<std::size_t>(direction - 1)][beam] =
            traits.direction == direction ? traits.along : Traits::NoRow;
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
    if (known == 0) {
        points.assign(static_cast<std::size_t>(end), 0);
        if (beam.direction != 0) {
            // Beams without a row have the least number, which no row reaches.
            const auto within = [](std::int64_t at) {
                return static_cast<int>(
                    std::clamp<std::int64_t>(at, Traits::NoRow + 1, std::numeric_limits<int>::max()));
            };
            AddWhereWithin(points, m_along[static_cast<std::size_t>(beam.direction - 1)],
                           within(std::int64_t{beam.along} - RowReach),
                           within(std::int64_t{beam.along} + RowReach), SameRow);
        }
    } else {
        KnownTraits added = KnowsTopBars;
        while ((known & added) == 0) {
            added >>= 1U;
        }
        points = Points(asked, end, known & ~added);
        if (added == KnowsName && beam.family > 0) {
            AddWhereEqual(points, m_family, beam.family, SameFamily);
            AddWhereEqual(points, m_spans, beam.spans, SameSpans);
            AddWhereEqual(points, m_serial, beam.serial - 1, NextSerial);
            AddWhereEqual(points, m_serial, beam.serial + 1, NextSerial);
        } else if (added == KnowsSection && beam.section > 0) {
            if (beam.width > 0) {
                AddWhereEqual(points, m_width, beam.width, SameWidth);
                AddWhereEqual(points, m_height, beam.height, SameHeight);
            }
            AddWhereEqual(points, m_section, beam.section, SameSection);
        } else if (added == KnowsStirrup) {
            AddWhereEqual(points, m_stirrup, beam.stirrup, SameStirrup);
        } else if (added == KnowsTopBars) {
            AddWhereEqual(points, m_topBars, beam.topBars, SameTopBars);
        }
    }
    if (asked.beam < end) {
        points[static_cast<std::size_t>(asked.beam)] = -1;
    }
    std::vector<int>& most = asked.mostOf[known];
    most.clear();
    for (std::size_t from = 0; from < points.size(); from += Block) {
        int of = -1;
        for (std::size_t i = from; i < std::min(from + Block, points.size()); ++i) {
            of = std::max(of, points[i]);
        }
        most.push_back(of);
    }
    return points;
}

void Likeness::FindNear(int beam, int end, bool byBars, std::vector<int>& near) const
{
    const Traits& from = Of(beam);
    near.clear();
    if (from.direction == 0) {
        return;
    }
    struct Found {
        std::uint64_t distance;
        int beam;
    };
    const auto take = [&](bool sameDirection, std::size_t room) {
        std::vector<Found> found;
        const auto isNearer = [](const Found& a, const Found& b) {
            return a.distance != b.distance ? a.distance < b.distance : a.beam > b.beam;
        };
        for (int other = end - 1; other >= 0 && room > 0; --other) {
            const Traits& to = Of(other);
            if (other == beam || to.direction == 0 || (to.direction == from.direction) != sameDirection ||
                !(byBars ? to.hasBars : to.hasSection)) {
                continue;
            }
            const Found one = {SquaredDistance(from, to), other};
            if (found.size() == room) {
                if (one.distance >= found.back().distance) {
                    continue;
                }
                found.pop_back();
            }
            found.insert(std::upper_bound(found.begin(), found.end(), one, isNearer), one);
        }
        for (const Found& each : found) {
            near.push_back(each.beam);
        }
    };
    take(true, MostNear);
    take(false, MostNear - near.size());
}

const std::vector<int>& Likeness::NearOf(Asked& asked, int end, KnownTraits known) const
{
    const std::size_t byBars = (known & KnowsSection) != 0 ? 1 : 0;
    if (!asked.hasNear[byBars]) {
        FindNear(asked.beam, end, byBars == 1, asked.near[byBars]);
        asked.hasNear[byBars] = true;
    }
    return asked.near[byBars];
}

const std::vector<int>& Likeness::Near(int beam, int end, KnownTraits known) const
{
    return NearOf(At(beam, end), end, known);
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
            Enter(voters, {points[other] + Nearness[i], near[i], column[other]});
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
                at == near.end() ? 0 : Nearness[static_cast<std::size_t>(at - near.begin())];
            Enter(voters, {points[static_cast<std::size_t>(other)] + nearness, other, text});
        }
    }
    return voters;
}

Message Likeness::Shared(int beam, int end, KnownTraits known, int other) const
{
    const Traits& a = Of(beam);
    const Traits& b = Of(other);
    const std::vector<int>& near = Near(beam, end, known);
    const auto at = static_cast<std::size_t>(std::find(near.begin(), near.end(), other) - near.begin());
    const bool isNear = at < near.size();
    const bool knowsName = (known & KnowsName) != 0 && a.family > 0;
    const bool knowsSection = (known & KnowsSection) != 0 && a.section > 0;
    const bool hasSize = knowsSection && a.width > 0;
    struct Thing {
        bool isShared;
        Phrase phrase;
    };
    const Thing things[] = {
        {knowsSection && a.section == b.section, Phrase("Desk", "same section")},
        {(known & KnowsStirrup) != 0 && a.stirrup > 0 && a.stirrup == b.stirrup,
         Phrase("Desk", "same stirrups")},
        {(known & KnowsTopBars) != 0 && a.topBars > 0 && a.topBars == b.topBars,
         Phrase("Desk", "same top bars")},
        {isNear && Nearness[at] == 3, Phrase("Desk", "next to it")},
        {knowsName && a.family == b.family, Phrase("Desk", "same type")},
        {isNear && Nearness[at] < 3, Phrase("Desk", "near it")},
        {hasSize && a.section != b.section && a.width == b.width, Phrase("Desk", "same width")},
        {hasSize && a.section != b.section && a.height == b.height, Phrase("Desk", "same height")},
        {knowsName && a.spans == b.spans, Phrase("Desk", "same spans")},
        {IsInRow(a, b), Phrase("Desk", "in the same row")},
        {knowsName && IsNeighbour(a.serial, b.serial), Phrase("Desk", "neighbouring number")},
    };
    std::vector<Message> shared;
    for (const Thing& thing : things) {
        if (thing.isShared && shared.size() < 3) {
            shared.emplace_back(thing.phrase);
        }
    }
    switch (shared.size()) {
    case 0: return {std::string()};
    case 1: return shared[0];
    case 2: return {Phrase("Desk", "%1, %2"), shared[0], shared[1]};
    default: return {Phrase("Desk", "%1, %2, %3"), shared[0], shared[1], shared[2]};
    }
}

}  // namespace Desk
