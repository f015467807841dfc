// The beams that are near another one, and what two beams share, in words.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "desk/ranking/Likeness.h"

namespace Desk {

namespace {

// Of half millimetres, no more than two of them can add up to.
std::uint64_t Squared(std::int64_t a, std::int64_t b)
{
    const std::int64_t apart = std::min(std::abs(a - b), std::int64_t{3'000'000'000});
    return static_cast<std::uint64_t>(apart * apart);
}

bool IsNeighbour(int serial, int other) { return serial >= 0 && std::abs(serial - other) == 1; }

bool IsInRow(const Traits& a, const Traits& b)
{
    return a.HasRow() && a.direction == b.direction &&
           std::abs(std::int64_t{a.Along()} - b.Along()) <= Traits::RowReach;
}

}  // namespace

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
        {isNear && NearnessAt[at] == 3, Phrase("Desk", "next to it")},
        {knowsName && a.family == b.family, Phrase("Desk", "same type")},
        {isNear && NearnessAt[at] < 3, Phrase("Desk", "near it")},
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
