// Cutting at the joints and comparing piece by piece is the same as comparing whole texts with a
// joint that sorts before every character and behind the end of a text.
#include "rankers/private/BarOrder.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "rankers/private/Order.h"
#include "rankers/private/TextIndex.h"

namespace BarOrder {
namespace {

constexpr int End = -2;
constexpr int Joint = -1;

int CharacterAt(std::string_view text, std::size_t position) noexcept
{
    if (position == text.size()) {
        return End;
    }
    const char ch = text[position];
    return ch == '+' || ch == '/' ? Joint : static_cast<unsigned char>(ch);
}

}  // namespace

int Compare(std::string_view a, std::string_view b) noexcept
{
    for (std::size_t i = 0;; ++i) {
        const int left = CharacterAt(a, i);
        const int right = CharacterAt(b, i);
        if (left != right) {
            return left < right ? -1 : 1;
        }
        if (left == End) {
            return 0;
        }
    }
}

// Bytes behind the end and joints are packed as 0, which no text holds: different heads decide as
// the texts do, equal ones leave it to the texts.
Key::Key(std::string_view text) noexcept : m_text(text)
{
    const auto packed = [text](std::size_t from) {
        std::uint64_t bytes = 0;
        for (std::size_t i = from; i < from + 8; ++i) {
            const int ch = i < text.size() ? std::max(CharacterAt(text, i), 0) : 0;
            bytes = (bytes << 8) | static_cast<std::uint64_t>(ch);
        }
        return bytes;
    };
    m_head = packed(0);
    m_next = packed(8);
}

// Sorts the distinct texts only, then deals them out as often as each occurs, so that a project that
// repeats a few hundred texts many thousand times costs one pass.
void Sort(CStringArray& arText)
{
    const int count = arText.GetSize();
    if (count < 2) {
        return;
    }
    TextIndex distinct;
    std::vector<std::uint32_t> numbers;
    numbers.reserve(static_cast<std::size_t>(count));
    for (const CString& text : arText) {
        numbers.push_back(distinct.NumberOf(text.View()));
    }
    std::vector<Key> keys(distinct.Texts().begin(), distinct.Texts().end());
    const auto less = [&keys](int a, int b) {
        return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)];
    };
    const Order::Positions sorted = Order::Sorted(static_cast<int>(keys.size()), less);
    if (keys.size() == numbers.size()) {
        Order::Apply(sorted, arText);
        return;
    }

    // Texts that differ only in their joints compare equal and share a rank.
    std::vector<std::uint32_t> ranks(keys.size());
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (i > 0 && less(sorted[i - 1], sorted[i])) {
            ++rank;
        }
        ranks[static_cast<std::size_t>(sorted[i])] = rank;
    }

    std::vector<std::uint32_t> next(rank + 2, 0);  // where the next entry of a rank goes
    for (const std::uint32_t number : numbers) {
        ++next[ranks[number] + 1];
    }
    std::partial_sum(next.begin(), next.end(), next.begin());
    std::vector<std::uint32_t> dealt(numbers.size());  // the text at each place, by its number
    for (const std::uint32_t number : numbers) {
        dealt[next[ranks[number]]++] = number;
    }
    const std::vector<CString> texts(distinct.Texts().begin(), distinct.Texts().end());
    for (int i = 0; i < count; ++i) {
        arText[i] = texts[dealt[static_cast<std::size_t>(i)]];
    }
}

}  // namespace BarOrder
