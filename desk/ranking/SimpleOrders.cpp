// Places by counting what stands in front.
#include "desk/ranking/SimpleOrders.h"

namespace Desk::Hitrate {

SimplePlaces SimpleOrders::PlacesWithout(const CString& text) const
{
    const auto found = m_uses.find(text);
    return Places(text, found == m_uses.end() || found->second == 0 ? 0 : found->second - 1);
}

SimplePlaces SimpleOrders::PlacesOf(const CString& text) const
{
    const auto found = m_uses.find(text);
    return Places(text, found == m_uses.end() ? 0 : found->second);
}

SimplePlaces SimpleOrders::Places(const CString& text, std::size_t usesLeft) const
{
    if (usesLeft == 0) {
        return {};
    }
    SimplePlaces places{1, 1};
    for (const auto& [other, uses] : m_uses) {
        const bool isBefore = other < text;
        places.alphabetical += static_cast<std::size_t>(isBefore);
        places.frequency += static_cast<std::size_t>(uses > usesLeft && other != text);
        places.frequency += static_cast<std::size_t>(uses == usesLeft && isBefore);
    }
    return places;
}

}  // namespace Desk::Hitrate
