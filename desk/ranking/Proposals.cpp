// The order of the texts: those with votes, then by use. Where the steel is known, what gives it comes
// first.
#include "desk/ranking/Proposals.h"

#include <algorithm>

#include "desk/ranking/KnownTexts.h"
#include "desk/ranking/NewBars.h"
#include "desk/ranking/TextOrder.h"

namespace Desk {

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
    const TextOrder order(m_kept->project, m_kept->texts, ref, end);
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
    const TextOrder order(m_kept->project, m_kept->texts, ref, end);
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
