// The two orders that a ranking has to beat: the texts that remain, by alphabet or by how often they are
// used.
#pragma once

#include <cstddef>
#include <map>

#include "RankerModule.h"

namespace Desk::Hitrate {

// Places count from 1; 0 stands for a text that is not among the others.
struct SimplePlaces {
    std::size_t alphabetical = 0;
    std::size_t frequency = 0;  // most used first, ties by alphabet
};

class SimpleOrders {
public:
    void Add(const CString& text) { ++m_uses[text]; }

    // Where a text stands among all texts but one use of itself.
    [[nodiscard]] SimplePlaces PlacesWithout(const CString& text) const;
    // Where it stands among all texts.
    [[nodiscard]] SimplePlaces PlacesOf(const CString& text) const;

private:
    [[nodiscard]] SimplePlaces Places(const CString& text, std::size_t usesLeft) const;

    std::map<CString, std::size_t> m_uses;
};

}  // namespace Desk::Hitrate
