// The whole order of the texts for one annotation, none that cannot be read: those with votes, then by use.
// Where the steel is known, what gives it comes first, composed texts among it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "desk/ranking/KnownTexts.h"
#include "desk/ranking/NewBars.h"

namespace Desk {

// A text of the order: of the pool, or composed.
struct Ordered {
    int text = 0;
    const VotedText* voted = nullptr;
    const NewBars* composed = nullptr;
};

// Where one annotation is asked for.
class TextOrder {
public:
    TextOrder(const Project& project, const KnownTexts& texts, const FieldRef& ref, int end);

    // Calls visit(Ordered) in order until it answers false.
    template <class Visit>
    void Walk(Visit visit) const;
    // The place of a text in the order, from 1; 0 for none.
    [[nodiscard]] std::size_t PlaceOf(const std::string& wanted) const;

    [[nodiscard]] const TextPool& Pool() const { return m_pool; }
    [[nodiscard]] const Votes& AllVotes() const { return m_votes; }
    [[nodiscard]] const BarNeed& Need() const { return m_need; }
    [[nodiscard]] int UsesOf(int text) const { return m_pool.UseOf(text, m_uses).uses; }

private:
    void Compose();
    template <class Visit>
    bool WalkBySteel(Visit visit) const;
    [[nodiscard]] bool IsVoted(int text) const
    {
        return std::any_of(m_votes.texts.begin(), m_votes.texts.end(),
                           [text](const VotedText& each) { return each.text == text; });
    }
    // A fifth more than what is required is no waste; half as much again where most beams alike have it.
    [[nodiscard]] bool IsClose(const VotedText& voted) const
    {
        return m_pool.FactsOf(voted.text).steel <=
               m_need.steel + m_need.steel / (voted.votes * 2 > m_votes.all ? 2 : 5);
    }

    const TextPool& m_pool;
    UsesKnown m_uses;
    Votes m_votes;
    BarNeed m_need;
    std::vector<int> m_byUse;  // the most used without a vote, where the steel is known
    std::vector<NewBars> m_composed;
    std::vector<int> m_composedTexts;  // their numbers where the project has them, else 0
};

template <class Visit>
bool TextOrder::WalkBySteel(Visit visit) const
{
    const auto voted = [&](bool suits, bool isClose) {
        for (const VotedText& each : m_votes.texts) {
            if (Suits(m_need, m_pool.FactsOf(each.text)) == suits && (!suits || IsClose(each) == isClose) &&
                !visit(Ordered{each.text, &each, nullptr})) {
                return false;
            }
        }
        return true;
    };
    const auto byUse = [&](bool suits) {
        for (const int text : m_byUse) {
            const bool isTold =
                std::find(m_composedTexts.begin(), m_composedTexts.end(), text) != m_composedTexts.end();
            if (!isTold && Suits(m_need, m_pool.FactsOf(text)) == suits &&
                !visit(Ordered{text, nullptr, nullptr})) {
                return false;
            }
        }
        return true;
    };
    if (!voted(true, true)) {
        return false;
    }
    for (std::size_t i = 0; i < m_composed.size(); ++i) {
        if (!(m_composedTexts[i] > 0 && IsVoted(m_composedTexts[i])) &&
            !visit(Ordered{m_composedTexts[i], nullptr, &m_composed[i]})) {
            return false;
        }
    }
    return voted(true, false) && byUse(true) && voted(false, false) && byUse(false);
}

template <class Visit>
void TextOrder::Walk(Visit visit) const
{
    if (m_need.steel > 0 && !WalkBySteel(visit)) {
        return;
    }
    const auto isTold = [&](int text) {
        return IsVoted(text) || std::find(m_byUse.begin(), m_byUse.end(), text) != m_byUse.end() ||
               std::find(m_composedTexts.begin(), m_composedTexts.end(), text) != m_composedTexts.end();
    };
    if (m_need.steel <= 0) {
        for (const VotedText& each : m_votes.texts) {
            if (!visit(Ordered{each.text, &each, nullptr})) {
                return;
            }
        }
    }
    m_pool.Walk(m_uses, [&](int text) { return isTold(text) || visit(Ordered{text, nullptr, nullptr}); });
}

}  // namespace Desk
