// Counts at which place of a list the wanted text stood.
#pragma once

#include <cstddef>

namespace Desk::Hitrate {

struct Tally {
    std::size_t uses = 0;
    std::size_t first = 0;    // at place 1
    std::size_t within3 = 0;  // at place 1 to 3, and so on
    std::size_t within5 = 0;
    std::size_t within10 = 0;
    std::size_t missing = 0;  // not in the list

    bool operator==(const Tally&) const = default;

    // Places count from 1; 0 stands for a text that the list does not hold.
    void Add(std::size_t place)
    {
        const auto isWithin = [place](std::size_t last) {
            return static_cast<std::size_t>(place >= 1 && place <= last);
        };
        ++uses;
        first += isWithin(1);
        within3 += isWithin(3);
        within5 += isWithin(5);
        within10 += isWithin(10);
        missing += static_cast<std::size_t>(place == 0);
    }

    Tally& operator+=(const Tally& other)
    {
        uses += other.uses;
        first += other.first;
        within3 += other.within3;
        within5 += other.within5;
        within10 += other.within10;
        missing += other.missing;
        return *this;
    }
};

}  // namespace Desk::Hitrate
