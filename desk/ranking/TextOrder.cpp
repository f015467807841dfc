#include "desk/ranking/TextOrder.h"

namespace Desk {

namespace {

constexpr std::size_t MostNew = 2;     // composed texts in an order
constexpr std::size_t MostByUse = 64;  // texts without a vote that the steel is asked of

}  // namespace

TextOrder::TextOrder(const Project& project, const KnownTexts& texts, const FieldRef& ref, int end)
    : m_pool(texts.PoolOf(texts.FieldOf(ref))), m_uses(texts.UsesFor(ref, end)),
      m_votes(texts.VotesFor(ref, end)), m_need(BarNeedOf(project, ref))
{
    if (m_need.steel > 0) {
        Compose();
    }
}

void TextOrder::Compose()
{
    char grade = '\0';
    std::vector<int> diameters;
    const auto learn = [&](int text) {
        const BarFacts& facts = m_pool.FactsOf(text);
        grade = grade == '\0' ? facts.grade : grade;
        for (const int diameter : facts.diameters) {
            if (std::find(diameters.begin(), diameters.end(), diameter) == diameters.end()) {
                diameters.push_back(diameter);
            }
        }
    };
    for (const VotedText& each : m_votes.texts) {
        learn(each.text);
    }
    m_pool.Walk(m_uses, [&](int text) {
        if (!IsVoted(text)) {
            learn(text);
            m_byUse.push_back(text);
        }
        return m_byUse.size() < MostByUse;
    });
    for (NewBars& bars : ComposeBars(m_need, grade, diameters, MostNew)) {
        const int text = m_pool.Find(bars.text);
        m_composedTexts.push_back(text > 0 && UsesOf(text) > 0 ? text : 0);
        m_composed.push_back(std::move(bars));
    }
}

std::size_t TextOrder::PlaceOf(const std::string& wanted) const
{
    const int text = m_pool.Find(wanted);
    // Where a text has no vote, what comes before it is counted, not visited.
    std::size_t place = 0;
    bool isFound = false;
    const auto visit = [&](const Ordered& each) {
        ++place;
        isFound = each.text != 0 ? each.text == text : each.composed->text == wanted;
        return !isFound;
    };
    if (m_need.steel > 0) {
        WalkBySteel(visit);
    } else {
        for (const VotedText& each : m_votes.texts) {
            if (!visit(Ordered{each.text, &each, nullptr})) {
                break;
            }
        }
    }
    if (isFound || UsesOf(text) == 0 || !m_pool.IsReadable(text)) {
        return isFound ? place : 0;
    }
    const TextUse use = m_pool.UseOf(text, m_uses);
    const auto isBefore = [&](int other) {
        return other != 0 && m_pool.IsBefore(other, m_pool.UseOf(other, m_uses), text, use);
    };
    const auto count = [&](int other) { place -= isBefore(other) ? 1U : 0U; };
    for (const VotedText& each : m_votes.texts) {
        count(each.text);
    }
    std::for_each(m_byUse.begin(), m_byUse.end(), count);
    for (const int other : m_composedTexts) {
        if (!IsVoted(other) && std::find(m_byUse.begin(), m_byUse.end(), other) == m_byUse.end()) {
            count(other);
        }
    }
    return place + m_pool.CountBefore(text, m_uses) + 1;
}

}  // namespace Desk
