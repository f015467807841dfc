// The order of the texts: those with votes, then by use. Where the steel is known, what gives it comes
// first.
#include "desk/ranking/Proposals.h"

#include <algorithm>

#include "desk/ranking/KnownTexts.h"
#include "desk/ranking/NewBars.h"

namespace Desk {

namespace {

constexpr std::size_t MostNew = 2;     // composed texts in an order
constexpr std::size_t MostByUse = 64;  // texts without a vote that the steel is asked of

// A text of the order: of the pool, or composed.
struct Ordered {
    int text = 0;
    const VotedText* voted = nullptr;
    const NewBars* composed = nullptr;
};

// Where one annotation is asked for.
class Order {
public:
    Order(const Project& project, const KnownTexts& texts, const FieldRef& ref, int end)
        : m_pool(texts.PoolOf(texts.FieldOf(ref))), m_uses(texts.UsesFor(ref, end)),
          m_votes(texts.VotesFor(ref, end)), m_need(BarNeedOf(project, ref))
    {
        if (m_need.steel > 0) {
            Compose();
        }
    }

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

void Order::Compose()
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
    m_pool.Walk(true, m_uses, [&](int text) {
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

template <class Visit>
bool Order::WalkBySteel(Visit visit) const
{
    const auto voted = [&](bool suits, bool isClose) {
        for (const VotedText& each : m_votes.texts) {
            if (m_pool.IsReadable(each.text) && Suits(m_need, m_pool.FactsOf(each.text)) == suits &&
                (!suits || IsClose(each) == isClose) && !visit(Ordered{each.text, &each, nullptr})) {
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
void Order::Walk(Visit visit) const
{
    if (m_need.steel > 0 && !WalkBySteel(visit)) {
        return;
    }
    const auto isTold = [&](int text) {
        return IsVoted(text) || std::find(m_byUse.begin(), m_byUse.end(), text) != m_byUse.end() ||
               std::find(m_composedTexts.begin(), m_composedTexts.end(), text) != m_composedTexts.end();
    };
    for (const bool readable : {true, false}) {
        for (const VotedText& each : m_votes.texts) {
            if (m_pool.IsReadable(each.text) == readable && !(readable && m_need.steel > 0) &&
                !visit(Ordered{each.text, &each, nullptr})) {
                return;
            }
        }
        if (!m_pool.Walk(readable, m_uses, [&](int text) {
                return isTold(text) || visit(Ordered{text, nullptr, nullptr});
            })) {
            return;
        }
    }
}

std::size_t Order::PlaceOf(const std::string& wanted) const
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
            if (m_pool.IsReadable(each.text) && !visit(Ordered{each.text, &each, nullptr})) {
                break;
            }
        }
    }
    if (isFound || UsesOf(text) == 0) {
        return isFound ? place : 0;
    }
    if (!m_pool.IsReadable(text)) {
        place = 0;
        Walk(visit);
        return isFound ? place : 0;
    }
    const TextUse use = m_pool.UseOf(text, m_uses);
    const auto isBefore = [&](int other) {
        return other != 0 && m_pool.IsReadable(other) &&
               m_pool.IsBefore(other, m_pool.UseOf(other, m_uses), text, use);
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

}  // namespace

struct Proposer::Kept {
    explicit Kept(const Project& of) : project(of), texts(of) {}

    [[nodiscard]] int End(std::size_t beam, Known known) const
    {
        return static_cast<int>(known == Known::All ? project.beams.size() : beam);
    }
    // "as L22: same section, next to it"
    [[nodiscard]] Message AsBeam(std::size_t asked, int end, KnownTraits known, int voter) const
    {
        const Message shared = texts.Alike().Shared(static_cast<int>(asked), end, known, voter);
        const std::string& name = project.beams[static_cast<std::size_t>(voter)].name;
        const Message called =
            name.empty() ? Message(Phrase("Desk", "a beam without a name")) : Message(name);
        return shared.English().empty() ? Message(Phrase("Desk", "as %1"), called)
                                        : Message(Phrase("Desk", "as %1: %2"), called, shared);
    }
    [[nodiscard]] Message ReasonFor(const FieldRef& ref, int end, const VotedText& voted) const
    {
        switch (voted.first) {
        case VoteOf::OtherEnd: return Phrase("Desk", "as the other end of its span");
        case VoteOf::NextSpan: return Phrase("Desk", "as the span next to it");
        case VoteOf::OwnText: return Phrase("Desk", "as the whole beam");
        case VoteOf::BeamAlike: break;
        }
        return AsBeam(ref.index, end, KnownTexts::TraitsFor(ref), voted.beam);
    }
    [[nodiscard]] std::vector<NextName> NamesFor(const FieldRef& ref, int end) const
    {
        return texts.Names().For(project.beams[ref.index], static_cast<int>(ref.index), end, texts.Alike());
    }

    const Project& project;
    KnownTexts texts;
};

Proposer::Proposer(const Project& project) : m_kept(std::make_unique<Kept>(project)) {}
Proposer::~Proposer() = default;

void Proposer::Update(std::size_t beam) { m_kept->texts.Set(beam); }

std::vector<Proposal> Proposer::For(const FieldRef& ref, std::size_t most, Known known) const
{
    std::vector<Proposal> proposals;
    if (ref.isWall || most == 0) {
        return proposals;
    }
    const int end = m_kept->End(ref.index, known);
    if (ref.field == Field::Name) {
        for (NextName& name : m_kept->NamesFor(ref, end)) {
            if (proposals.size() < most) {
                proposals.push_back(
                    {std::move(name.text), name.share,
                     m_kept->texts.Names().UsesOf(name.form, static_cast<int>(ref.index), end),
                     name.reason});
            }
        }
        return proposals;
    }
    const Order order(m_kept->project, m_kept->texts, ref, end);
    const std::string required = std::to_string(order.Need().steel);
    order.Walk([&](const Ordered& each) {
        Proposal& to = proposals.emplace_back();
        if (each.text != 0) {
            to.text = order.Pool().Text(each.text);
            to.uses = order.UsesOf(each.text);
        }
        if (each.voted != nullptr) {
            to.share = std::max(1, static_cast<int>(each.voted->votes * 100 / order.AllVotes().all));
            to.reason = m_kept->ReasonFor(ref, end, *each.voted);
        } else if (each.composed != nullptr) {
            to.text = each.composed->text;
            to.reason = {to.uses > 0 ? Phrase("Desk", "gives %1 of %2 mm²")
                                     : Phrase("Desk", "new, gives %1 of %2 mm²"),
                         std::to_string(each.composed->steel), required};
        }
        return proposals.size() < most;
    });
    return proposals;
}

std::size_t Proposer::PlaceOf(const FieldRef& ref, Known known) const
{
    const std::string& wanted = TextAt(m_kept->project, ref);
    if (ref.isWall || wanted.empty()) {
        return 0;
    }
    const int end = m_kept->End(ref.index, known);
    if (ref.field == Field::Name) {
        const std::vector<NextName> names = m_kept->NamesFor(ref, end);
        const auto found = std::find_if(names.begin(), names.end(),
                                        [&wanted](const NextName& name) { return name.text == wanted; });
        return found == names.end() ? 0 : static_cast<std::size_t>(found - names.begin()) + 1;
    }
    const Order order(m_kept->project, m_kept->texts, ref, end);
    return order.PlaceOf(wanted);
}

std::vector<BeamProposal> Proposer::ForBeam(std::size_t beam, std::size_t most, Known known) const
{
    std::vector<BeamProposal> proposals;
    const KnownTexts& texts = m_kept->texts;
    const int end = m_kept->End(beam, known);
    const Beam& asked = m_kept->project.beams[beam];
    if (asked.name.empty() && asked.section.empty()) {
        return proposals;
    }
    std::vector<VotedSet> sets = texts.SetVotesFor(static_cast<int>(beam), end);
    // Sets in which each text suits the steel that is known come first.
    std::stable_partition(sets.begin(), sets.end(), [&](const VotedSet& set) {
        for (std::size_t i = 0; i < SetFields.size(); ++i) {
            const BarNeed need = BarNeedOf(m_kept->project, {false, beam, SetFields[i]});
            if (set.texts[i] != 0 && need.steel > 0 &&
                !Suits(need, texts.PoolOf(SetFields[i]).FactsOf(set.texts[i]))) {
                return false;
            }
        }
        return true;
    });
    std::int64_t all = 0;
    for (const VotedSet& set : sets) {
        all += set.votes;
    }
    for (const VotedSet& set : sets) {
        BeamProposal proposal;
        for (std::size_t i = 0; i < SetFields.size(); ++i) {
            if (set.texts[i] != 0) {
                proposal.texts.emplace_back(FieldRef{false, beam, SetFields[i]},
                                            texts.PoolOf(SetFields[i]).Text(set.texts[i]));
            }
        }
        if (proposal.texts.size() >= 2 && proposals.size() < most) {
            proposal.share = std::max(1, static_cast<int>(set.votes * 100 / all));
            proposal.reason =
                m_kept->AsBeam(beam, end, texts.TraitsForSet(static_cast<int>(beam)), set.beam);
            proposals.push_back(std::move(proposal));
        }
    }
    return proposals;
}

}  // namespace Desk
