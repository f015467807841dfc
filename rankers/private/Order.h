// Orders as lists of positions: worked out on keys that are parsed once, then applied to a list and
// whatever runs parallel to it.
#pragma once

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "platform/text/Arrays.h"

namespace Order {

// Entry i of an order is the present position of the element that goes to place i.
using Positions = std::vector<int>;

[[nodiscard]] inline Positions Present(int nCount)
{
    Positions order(static_cast<std::size_t>(nCount));
    std::iota(order.begin(), order.end(), 0);
    return order;
}

// The stable order by less(position, position), which must be a strict weak order: the very order
// that an exchange pass with a strict test gives.
template <class Less>
[[nodiscard]] Positions Sorted(int nCount, Less less)
{
    Positions order = Present(nCount);
    if (!std::is_sorted(order.begin(), order.end(), less)) {
        std::stable_sort(order.begin(), order.end(), less);
    }
    return order;
}

// The exchange pass itself, for rules that are no strict weak order: n - 1 passes over a shrinking
// stretch, exchanging neighbours when mustExchange(left position, right position) says so.
template <class Exchange>
[[nodiscard]] Positions ExchangePass(Positions order, Exchange mustExchange)
{
    for (std::size_t end = order.size(); end > 1; --end) {
        for (std::size_t j = 0; j + 1 < end; ++j) {
            if (mustExchange(order[j], order[j + 1])) {
                std::swap(order[j], order[j + 1]);
            }
        }
    }
    return order;
}

// Elements behind those that the order names stay where they are.
template <class Array>
void Apply(const Positions& order, Array& items)
{
    if (std::is_sorted(order.begin(), order.end())) {
        return;
    }
    Array ordered;
    ordered.Reserve(items.GetSize());
    for (const int position : order) {
        ordered.Add(std::move(items[position]));
    }
    for (int i = ordered.GetSize(); i < items.GetSize(); ++i) {
        ordered.Add(std::move(items[i]));
    }
    items = std::move(ordered);
}

}  // namespace Order
