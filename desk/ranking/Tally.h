// Counts at which place of a list the wanted text stood.
#pragma once

#include <cstddef>
#include <cstdint>

namespace Desk::Hitrate {

struct Tally {
    std::size_t uses = 0;
    std::size_t first = 0;    // at place 1
    std::size_t within3 = 0;  // at place 1 to 3, and so on
    std::size_t within5 = 0;
    std::size_t within10 = 0;
    std::size_t seen = 0;           // the text stands somewhere in what is known
    std::uint64_t reciprocals = 0;  // sum of 1/place, in 2^-32: whole numbers add up alike in any order

    bool operator==(const Tally&) const = default;

    // Places count from 1; 0 stands for a text that the list does not hold.
    void Add(std::size_t place, bool isSeen)
    {
        const auto isWithin = [place](std::size_t last) {
            return static_cast<std::size_t>(place >= 1 && place <= last);
        };
        ++uses;
        first += isWithin(1);
        within3 += isWithin(3);
        within5 += isWithin(5);
        within10 += isWithin(10);
        seen += static_cast<std::size_t>(isSeen);
        reciprocals += place == 0 ? 0 : One / place;
    }

    Tally& operator+=(const Tally& other)
    {
        uses += other.uses;
        first += other.first;
        within3 += other.within3;
        within5 += other.within5;
        within10 += other.within10;
        seen += other.seen;
        reciprocals += other.reciprocals;
        return *this;
    }

    // The mean of 1/place, 0 for a text that is not in the list.
    [[nodiscard]] double MeanReciprocalRank() const
    {
        return uses == 0 ? 0.0
                         : static_cast<double>(reciprocals) / static_cast<double>(One) /
                               static_cast<double>(uses);
    }

private:
    static constexpr std::uint64_t One = std::uint64_t{1} << 32U;
};

}  // namespace Desk::Hitrate
