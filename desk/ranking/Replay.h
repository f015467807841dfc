// What the lists are worth on a project: each annotation is looked for in the lists that are made from
// what is known without it.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "desk/project/Project.h"
#include "desk/ranking/Proposals.h"
#include "desk/ranking/Tally.h"

namespace Desk::Hitrate {

// The proposals, the ranker's list, and the two simplest lists that one could offer instead.
enum class Order { Proposal, Ranker, Frequency, Alphabetical };
inline constexpr std::array OrderNames = {"proposal", "ranker", "frequency", "alphabetical"};

struct KindTally {
    std::string kind;
    std::array<Tally, OrderNames.size()> tallies;

    [[nodiscard]] Tally& Of(Order order) { return tallies[static_cast<std::size_t>(order)]; }
    [[nodiscard]] const Tally& Of(Order order) const { return tallies[static_cast<std::size_t>(order)]; }
};

// The texts but the names, all kinds in one. Then one entry a kind, names first; a kind that the project
// does not use has no uses.
//
// With all known, one use at a time is hidden. With what came before known, those are the texts of the
// beams before in project order and of the beam itself those that are entered before. Names are replayed
// in project order either way.
//
// Texts in place count like the others. The simple orders sort what the ranker gets from the project: end
// bars those of beams with the same top through bars, torsion and side bars as one. To these three orders
// head characters "G", "N" and "*" of bars do not count, since the ranker cuts them; proposals carry them.
// The row of blanks at the head of the elevations is no candidate and takes no place.
//
// Runs rankers, so no project host may live.
[[nodiscard]] std::vector<KindTally> ReplayProject(const Project& project, Known known);

}  // namespace Desk::Hitrate
