#include "desk/window/Offers.h"

#include <utility>
#include <vector>

namespace Desk {

Offers::Offers(const Document& document, QObject* parent) : QObject(parent), m_document(document)
{
    connect(&document, &Document::Replaced, this, &Offers::Renew);
    connect(&document, &Document::TextChanged, this,
            [this](const FieldRef& ref) { m_changed.insert(ref); });
    connect(&document, &Document::OwnersChanged, this, &Offers::Follow);
    Renew();
}

// What is kept of the project is made when it is asked for again.
void Offers::Renew()
{
    emit Renewed();
    m_changed.clear();
    m_rankings.reset();
    m_proposer.reset();
}

void Offers::Follow(const Exchanged& exchanged)
{
    if (exchanged.Renumbers()) {
        Renew();
        return;
    }
    for (const std::size_t index : exchanged.beams.in) {
        m_changed.insert({false, index, Field::Name});
    }
    for (const std::size_t index : exchanged.walls.in) {
        m_changed.insert({true, index, Field::Name});
    }
}

void Offers::CatchUp()
{
    if (!m_rankings) {
        m_rankings.emplace(m_document.Get());
        m_proposer.emplace(m_document.Get());
    }
    for (const FieldRef& ref : std::exchange(m_changed, {})) {
        if (ref.isWall) {
            m_rankings->UpdateWall(ref.index);
        } else {
            m_rankings->Update(ref.index);
            m_proposer->Update(ref.index);
        }
    }
}

const Ranking& Offers::RankingFor(const FieldRef& ref, bool wantsTable)
{
    CatchUp();
    return m_rankings->For(ref, wantsTable);
}

Proposed Offers::ProposedFor(const FieldRef& chosen)
{
    CatchUp();
    const FieldRef ref = m_document.Target(chosen);
    Proposed proposed;
    if (!ref.isWall) {
        proposed.texts = m_proposer->For(ref, Proposed::Most);
        proposed.haveKeys = ref.field != Field::Name || TextAt(m_document.Get(), ref).empty();
        std::vector<BeamProposal> forBeam = m_proposer->ForBeam(ref.index, 1);
        if (!forBeam.empty()) {
            proposed.beam = std::move(forBeam.front());
        }
    }
    return proposed;
}

}  // namespace Desk
