// Offers: what a document's project offers for an annotation, kept up to date with its changes.
#pragma once

#include <optional>
#include <set>

#include "desk/ranking/Proposals.h"
#include "desk/ranking/Ranking.h"
#include "desk/window/Document.h"
#include "desk/window/ProposalRows.h"

namespace Desk {

class Offers : public QObject {
    Q_OBJECT

public:
    explicit Offers(const Document& document, QObject* parent = nullptr);

    // The ranker's list. Lives until the next one, or until the project is another. Throws Failure.
    [[nodiscard]] const Ranking& RankingFor(const FieldRef& ref, bool wantsTable);
    [[nodiscard]] Proposed ProposedFor(const FieldRef& ref);

signals:
    // What was answered before is gone.
    void Renewed();

private:
    void Renew();
    void Follow(const Exchanged& exchanged);
    void CatchUp();

    const Document& m_document;
    std::optional<Rankings> m_rankings;
    std::optional<Proposer> m_proposer;
    std::set<FieldRef> m_changed;  // texts that they have not been told of
};

}  // namespace Desk
