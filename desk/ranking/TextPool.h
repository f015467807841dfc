// The texts of annotations that are the same kind of thing, as small numbers, in the order of their use.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "desk/ranking/NewBars.h"

namespace Desk {

// How often a text is used, and the last beam that has it.
struct TextUse {
    int uses = 0;
    int last = -1;
};

// The uses that count where a text is asked for: those of beams before an end but one, and of that one
// those that come before the text.
struct UsesKnown {
    int beam = 0;
    int end = 0;
    std::size_t ofBeam = 0;
};

class TextPool {
public:
    // Texts that are no annotation of the pool's kind are in no order. Of bars it keeps the facts.
    explicit TextPool(bool (*isReadable)(const std::string&) = nullptr, bool isOfBars = false)
        : m_isReadable(isReadable), m_isOfBars(isOfBars)
    {
    }

    // The number of a text, from 1; 0 is the empty text.
    int Number(const std::string& text);
    // The same, 0 for a text that the pool does not know.
    [[nodiscard]] int Find(const std::string& text) const;
    [[nodiscard]] const std::string& Text(int number) const
    {
        return m_texts[static_cast<std::size_t>(number)].text;
    }
    [[nodiscard]] bool IsReadable(int number) const
    {
        return m_texts[static_cast<std::size_t>(number)].isReadable;
    }

    [[nodiscard]] const BarFacts& FactsOf(int number) const
    {
        return m_texts[static_cast<std::size_t>(number)].facts;
    }

    void SetBeams(std::size_t count) { m_ofBeam.resize(count); }
    // All the beam's texts of the pool in their order, empty ones too.
    void Set(std::size_t beam, std::vector<int> texts);
    [[nodiscard]] const std::vector<int>& Of(int beam) const
    {
        return m_ofBeam[static_cast<std::size_t>(beam)];
    }

    [[nodiscard]] TextUse UseOf(int text, const UsesKnown& known) const;
    // Used more often, then entered last, then by text.
    [[nodiscard]] bool IsBefore(int a, const TextUse& useOfA, int b, const TextUse& useOfB) const;
    // Calls visit(text) for the readable texts with a use, in order, until it answers false.
    template <class Visit>
    bool Walk(const UsesKnown& known, Visit visit) const;
    // How many texts Walk visits before this one, which it visits too.
    [[nodiscard]] std::size_t CountBefore(int text, const UsesKnown& known) const;

private:
    struct Entry {
        std::string text;
        bool isReadable = true;
        BarFacts facts;
        std::vector<int> beams;  // that have it, one entry a use, in order
    };
    // Readable texts with a use at the beams before an end, in reverse order: a new use moves its text but
    // little.
    struct Order {
        int end = -1;
        std::vector<int> texts;
    };

    [[nodiscard]] TextUse Before(int text, int end) const;
    void Place(Order& order, int text, int end) const;
    void TakeOut(Order& order, int text, int end) const;
    [[nodiscard]] const Order& OrderAt(int end) const;
    // Those of the order whose uses at the beam itself are not as the order counts them, in order.
    [[nodiscard]] std::vector<int> Apart(const UsesKnown& known) const;

    bool (*m_isReadable)(const std::string&);
    bool m_isOfBars;
    std::deque<Entry> m_texts = std::deque<Entry>(1);
    std::unordered_map<std::string_view, int> m_numbers;
    std::vector<std::vector<int>> m_ofBeam;
    mutable Order m_all;
    mutable Order m_before;
};

template <class Visit>
bool TextPool::Walk(const UsesKnown& known, Visit visit) const
{
    const std::vector<int>& all = OrderAt(known.end).texts;
    std::vector<int> apart = Apart(known);
    auto next = apart.begin();
    const auto isApart = [&apart](int text) {
        for (const int each : apart) {
            if (each == text) {
                return true;
            }
        }
        return false;
    };
    const auto visitApart = [&](auto isDue) {
        for (; next != apart.end() && isDue(*next); ++next) {
            if (IsReadable(*next) && UseOf(*next, known).uses > 0 && !visit(*next)) {
                return false;
            }
        }
        return true;
    };
    for (auto text = all.rbegin(); text != all.rend(); ++text) {
        if (isApart(*text)) {
            continue;
        }
        const TextUse use = Before(*text, known.end);
        if (!visitApart([&](int each) { return IsBefore(each, UseOf(each, known), *text, use); }) ||
            !visit(*text)) {
            return false;
        }
    }
    return visitApart([](int) { return true; });
}

}  // namespace Desk
