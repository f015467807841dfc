// Numbers the distinct texts of a list in the order in which they first occur.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

// An open-addressing hash over views; the texts must stay where they are while it is in use.
class TextIndex {
public:
    TextIndex() : m_slots(InitialSlots, Free) {}

    // The text's number, from 0; a text not seen before gets the next one.
    std::uint32_t NumberOf(std::string_view text)
    {
        const auto hash = static_cast<std::uint32_t>(std::hash<std::string_view>{}(text));
        std::size_t place = PlaceOf(text, hash);
        if (m_slots[place] != Free) {
            return m_slots[place];
        }
        if (2 * (m_texts.size() + 1) > m_slots.size()) {
            Grow();
            place = PlaceOf(text, hash);
        }
        const auto number = static_cast<std::uint32_t>(m_texts.size());
        m_slots[place] = number;
        m_texts.push_back(text);
        m_hashes.push_back(hash);
        return number;
    }

    // True when the text was not seen before.
    bool Add(std::string_view text)
    {
        const std::size_t before = m_texts.size();
        return NumberOf(text) == before;
    }

    [[nodiscard]] const std::vector<std::string_view>& Texts() const { return m_texts; }

private:
    static constexpr std::size_t InitialSlots = 64;  // a power of two, as after each growth
    static constexpr std::uint32_t Free = UINT32_MAX;

    // The slot that holds the text, or the free one where it belongs.
    [[nodiscard]] std::size_t PlaceOf(std::string_view text, std::uint32_t hash) const
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t place = hash & mask;
        while (m_slots[place] != Free &&
               (m_hashes[m_slots[place]] != hash || m_texts[m_slots[place]] != text)) {
            place = (place + 1) & mask;
        }
        return place;
    }

    void Grow()
    {
        m_slots.assign(2 * m_slots.size(), Free);
        const std::size_t mask = m_slots.size() - 1;
        for (std::uint32_t number = 0; number < m_hashes.size(); ++number) {
            std::size_t place = m_hashes[number] & mask;
            while (m_slots[place] != Free) {
                place = (place + 1) & mask;
            }
            m_slots[place] = number;
        }
    }

    std::vector<std::uint32_t> m_slots;
    std::vector<std::string_view> m_texts;
    std::vector<std::uint32_t> m_hashes;  // parallel to m_texts
};
