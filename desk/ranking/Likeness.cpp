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
constexpr int Never = -1000;    // points of the beam itself
constexpr int RowReach = 1000;  // half millimetres
constexpr std::array<int, Likeness::MostNear> Nearness = {3, 3, 3, 2, 2, 1, 1, 1, 1};

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

bool IsNeighbour(int serial, int other) { return serial >= 0 && std::abs(serial - other) == 1; }

bool IsInRow(const Traits& a, const Traits& b)
{
    return a.direction != 0 && a.direction == b.direction &&
           std::abs(std::int64_t{a.Along()} - b.Along()) <= RowReach;
}

// Of half millimetres, no more than two of them can add up to.
std::uint64_t Squared(std::int64_t a, std::int64_t b)
{
    const std::int64_t apart = std::min(std::abs(a - b), std::int64_t{3'000'000'000});
    return static_cast<std::uint64_t>(apart * apart);
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
    for (int direction = 1; direction <= 3; ++direction) {
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
        const int* const along = m_along[static_cast<std::size_t>(std::max(beam.direction - 1, 0))].data();
        const int from = within(-RowReach);
        const int to = beam.direction == 0 ? Traits::NoRow : within(RowReach);
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

void Likeness::SortByX() const
{
    if (m_isSorted) {
        return;
    }
    for (std::size_t direction = 1; direction <= 3; ++direction) {
        std::vector<std::pair<int, int>>& byX = m_byX[direction - 1];
        byX.clear();
        for (std::size_t i = 0; i < m_traits.size(); ++i) {
            if (m_traits[i].direction == static_cast<int>(direction)) {
                byX.emplace_back(m_traits[i].x, static_cast<int>(i));
            }
        }
        std::sort(byX.begin(), byX.end());
    }
    m_isSorted = true;
}

void Likeness::FindNear(int beam, int end, bool byBars, std::vector<int>& near) const
{
    const Traits& from = Of(beam);
    near.clear();
    if (from.direction == 0) {
        return;
    }
    SortByX();
    std::vector<Found> found;
    FindNear(beam, end, byBars, from.direction, MostNear, found);
    const std::size_t ofDirection = found.size();
    for (int direction = 1; direction <= 3 && ofDirection < MostNear; ++direction) {
        if (direction != from.direction) {
            std::vector<Found> others(found.begin() + static_cast<std::ptrdiff_t>(ofDirection),
                                      found.end());
            FindNear(beam, end, byBars, direction, MostNear - ofDirection, others);
            found.resize(ofDirection);
            found.insert(found.end(), others.begin(), others.end());
        }
    }
    for (const Found& each : found) {
        near.push_back(each.beam);
    }
}

// From the beam on to both sides, as far as the last one found lies.
void Likeness::FindNear(int beam, int end, bool byBars, int direction, std::size_t room,
                        std::vector<Found>& found) const
{
    const Traits& from = Of(beam);
    const auto isNearer = [](const Found& a, const Found& b) {
        return a.distance != b.distance ? a.distance < b.distance : a.beam > b.beam;
    };
    // False where this one and all beyond it lie too far.
    const auto take = [&](const std::pair<int, int>& at) {
        if (found.size() == room && Squared(at.first, from.x) > found.back().distance) {
            return false;
        }
        const Traits& to = Of(at.second);
        if (at.second < end && at.second != beam && (byBars ? to.hasBars : to.hasSection)) {
            const Found one = {Squared(at.first, from.x) + Squared(to.y, from.y), at.second};
            found.insert(std::upper_bound(found.begin(), found.end(), one, isNearer), one);
            found.resize(std::min(found.size(), room));
        }
        return true;
    };
    const std::vector<std::pair<int, int>>& byX = m_byX[static_cast<std::size_t>(direction - 1)];
    const auto middle = std::lower_bound(byX.begin(), byX.end(), std::pair(from.x, 0));
    auto right = middle;
    auto left = middle;
    bool goesRight = true;
    bool goesLeft = true;
    while (goesRight || goesLeft) {
        goesRight = goesRight && right != byX.end() && take(*right++);
        goesLeft = goesLeft && left != byX.begin() && take(*--left);
    }
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
