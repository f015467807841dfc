#include "desk/ranking/TextPool.h"

#include <algorithm>

namespace Desk {

int TextPool::Number(const std::string& text)
{
    if (text.empty()) {
        return 0;
    }
    if (const auto found = m_numbers.find(text); found != m_numbers.end()) {
        return found->second;
    }
    const int number = static_cast<int>(m_texts.size());
    m_texts.push_back({text,
                       m_isReadable == nullptr || m_isReadable(text),
                       m_isOfBars ? BarFactsOf(text) : BarFacts(),
                       {}});
    m_numbers.emplace(m_texts.back().text, number);
    return number;
}

int TextPool::Find(const std::string& text) const
{
    const auto found = m_numbers.find(text);
    return found == m_numbers.end() ? 0 : found->second;
}

TextUse TextPool::Before(int text, int end) const
{
    const std::vector<int>& beams = m_texts[static_cast<std::size_t>(text)].beams;
    const auto to = beams.empty() || beams.back() < end ? beams.end()
                                                        : std::lower_bound(beams.begin(), beams.end(), end);
    return {static_cast<int>(to - beams.begin()), to == beams.begin() ? -1 : *(to - 1)};
}

TextUse TextPool::UseOf(int text, const UsesKnown& known) const
{
    TextUse use = Before(text, known.end);
    const std::vector<int>& beams = m_texts[static_cast<std::size_t>(text)].beams;
    const std::vector<int>& own = Of(known.beam);
    if (known.beam < known.end) {
        const auto [from, to] = std::equal_range(beams.begin(), beams.end(), known.beam);
        use.uses -= static_cast<int>(to - from);
        if (use.last == known.beam) {
            use.last = from == beams.begin() ? -1 : *(from - 1);
        }
    }
    for (std::size_t i = 0; i < known.ofBeam; ++i) {
        if (own[i] == text) {
            ++use.uses;
            use.last = std::max(use.last, known.beam);
        }
    }
    return use;
}

bool TextPool::IsBefore(int a, const TextUse& useOfA, int b, const TextUse& useOfB) const
{
    if (useOfA.uses != useOfB.uses) {
        return useOfA.uses > useOfB.uses;
    }
    if (useOfA.last != useOfB.last) {
        return useOfA.last > useOfB.last;
    }
    return a != b && Text(a) < Text(b);
}

void TextPool::Place(Order& order, int text, int end) const
{
    const TextUse use = Before(text, end);
    if (use.uses > 0 && IsReadable(text)) {
        order.texts.insert(
            std::partition_point(order.texts.begin(), order.texts.end(),
                                 [&](int other) { return IsBefore(text, use, other, Before(other, end)); }),
            text);
    }
}

void TextPool::TakeOut(Order& order, int text, int end) const
{
    std::vector<int>& texts = order.texts;
    const TextUse use = Before(text, end);
    const auto at = std::partition_point(texts.begin(), texts.end(), [&](int other) {
        return IsBefore(text, use, other, Before(other, end));
    });
    if (at != texts.end() && *at == text) {
        texts.erase(at);
    }
}

void TextPool::Set(std::size_t beam, std::vector<int> texts)
{
    std::vector<int>& own = m_ofBeam[beam];
    if (own == texts) {
        return;
    }
    const int count = static_cast<int>(m_ofBeam.size());
    std::vector<int> changed = own;
    changed.insert(changed.end(), texts.begin(), texts.end());
    std::sort(changed.begin(), changed.end());
    changed.erase(std::unique(changed.begin(), changed.end()), changed.end());
    for (const int text : changed) {
        if (text == 0) {
            continue;
        }
        if (m_all.end == count) {
            TakeOut(m_all, text, count);
        }
        std::vector<int>& beams = m_texts[static_cast<std::size_t>(text)].beams;
        const auto [from, to] = std::equal_range(beams.begin(), beams.end(), static_cast<int>(beam));
        beams.insert(beams.erase(from, to),
                     static_cast<std::size_t>(std::count(texts.begin(), texts.end(), text)),
                     static_cast<int>(beam));
        if (m_all.end == count) {
            Place(m_all, text, count);
        }
    }
    own = std::move(texts);
    m_before.end = -1;
}

const TextPool::Order& TextPool::OrderAt(int end) const
{
    if (end == static_cast<int>(m_ofBeam.size())) {
        if (m_all.end != end) {
            m_all = {end, {}};
            for (int text = 1; text < static_cast<int>(m_texts.size()); ++text) {
                if (IsReadable(text) && Before(text, end).uses > 0) {
                    m_all.texts.push_back(text);
                }
            }
            std::sort(m_all.texts.begin(), m_all.texts.end(),
                      [&](int a, int b) { return IsBefore(b, Before(b, end), a, Before(a, end)); });
        }
        return m_all;
    }
    if (m_before.end < 0 || m_before.end > end) {
        m_before = {0, {}};
    }
    // A use at the next beam counts from there on; the text is taken out as it was before.
    for (; m_before.end < end; ++m_before.end) {
        std::vector<int> texts = Of(m_before.end);
        std::sort(texts.begin(), texts.end());
        texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
        for (const int text : texts) {
            if (text != 0) {
                TakeOut(m_before, text, m_before.end);
            }
        }
        for (const int text : texts) {
            if (text != 0) {
                Place(m_before, text, m_before.end + 1);
            }
        }
    }
    return m_before;
}

std::vector<int> TextPool::Apart(const UsesKnown& known) const
{
    const std::vector<int>& own = Of(known.beam);
    std::vector<int> apart(own.begin(), known.beam < known.end
                                            ? own.end()
                                            : own.begin() + static_cast<std::ptrdiff_t>(known.ofBeam));
    std::sort(apart.begin(), apart.end());
    apart.erase(std::unique(apart.begin(), apart.end()), apart.end());
    if (!apart.empty() && apart.front() == 0) {
        apart.erase(apart.begin());
    }
    std::sort(apart.begin(), apart.end(),
              [&](int a, int b) { return IsBefore(a, UseOf(a, known), b, UseOf(b, known)); });
    return apart;
}

std::size_t TextPool::CountBefore(int text, const UsesKnown& known) const
{
    const TextUse use = UseOf(text, known);
    const std::vector<int>& texts = OrderAt(known.end).texts;
    const auto at = std::partition_point(texts.begin(), texts.end(), [&](int other) {
        return !IsBefore(other, Before(other, known.end), text, use);
    });
    auto count = static_cast<std::size_t>(texts.end() - at);
    for (const int other : Apart(known)) {
        if (other == text || !IsReadable(other)) {
            continue;
        }
        const TextUse counted = Before(other, known.end);
        const TextUse asked = UseOf(other, known);
        count -= counted.uses > 0 && IsBefore(other, counted, text, use) ? 1U : 0U;
        count += asked.uses > 0 && IsBefore(other, asked, text, use) ? 1U : 0U;
    }
    // The order counts the text itself as it counts its uses, which may put it before.
    return count - (IsBefore(text, Before(text, known.end), text, use) ? 1U : 0U);
}

}  // namespace Desk
