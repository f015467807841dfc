#include "desk/ranking/Proposals.h"

#include <algorithm>
#include <map>

namespace Desk {

struct Proposer::Kept {
    const Project& project;
};

Proposer::Proposer(const Project& project) : m_kept(std::make_unique<Kept>(Kept{project})) {}
Proposer::~Proposer() = default;

void Proposer::Update(std::size_t /*beam*/) {}

std::vector<Proposal> Proposer::For(const FieldRef& ref, std::size_t most, Known /*known*/) const
{
    std::map<std::string, int> uses;
    for (std::size_t i = 0; i < m_kept->project.beams.size(); ++i) {
        for (const FieldRef& other : RefsOf(m_kept->project, {false, i})) {
            if (other.field == ref.field && other != ref && !TextAt(m_kept->project, other).empty()) {
                ++uses[TextAt(m_kept->project, other)];
            }
        }
    }
    std::vector<Proposal> proposals;
    for (const auto& [text, count] : uses) {
        proposals.push_back({text, 0, count});
    }
    std::stable_sort(proposals.begin(), proposals.end(),
                     [](const Proposal& a, const Proposal& b) { return a.uses > b.uses; });
    proposals.resize(std::min(most, proposals.size()));
    return proposals;
}

std::vector<BeamProposal> Proposer::ForBeam(std::size_t /*beam*/, std::size_t /*most*/,
                                            Known /*known*/) const
{
    return {};
}

}  // namespace Desk
