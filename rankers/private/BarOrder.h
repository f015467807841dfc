// The order of bar annotations: piece by piece, pieces by their bytes.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/text/Arrays.h"

namespace BarOrder {

// -1, 0 or 1. "+" and "/" cut a text into pieces and are not told apart; pieces compare as texts,
// and a text that runs out of pieces first goes first.
[[nodiscard]] int Compare(std::string_view a, std::string_view b) noexcept;

// A text with its first bytes packed so that most comparisons are of numbers.
class Key {
public:
    explicit Key(std::string_view text) noexcept;

    [[nodiscard]] friend bool operator<(const Key& a, const Key& b) noexcept
    {
        if (a.m_head != b.m_head) {
            return a.m_head < b.m_head;
        }
        return a.m_next != b.m_next ? a.m_next < b.m_next : Compare(a.m_text, b.m_text) < 0;
    }

private:
    std::uint64_t m_head = 0;  // the first eight bytes
    std::uint64_t m_next = 0;  // the next eight
    std::string_view m_text;
};

// Sorts a list, ties in the order in which they stand.
void Sort(CStringArray& arText);

}  // namespace BarOrder
