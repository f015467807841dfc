// A ranking as a table for people or as JSON for programs.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "desk/ranking/Ranking.h"

namespace Desk {

struct RankingView {
    std::string heading;               // what was asked for
    std::string beam;                  // the beam in work, empty for none
    std::vector<std::string> present;  // the texts that it has now, marked in the list
    std::string tableRemark;           // why the table added nothing, else empty
    int limit = 0;                     // candidates to show at most, 0 for all
    nlohmann::ordered_json question = nlohmann::ordered_json::object();  // the parameters, for programs
};

void PrintRanking(const Ranking& ranking, const RankingView& view, std::ostream& out);
void PrintRankingJson(const Ranking& ranking, const RankingView& view, std::ostream& out);

// Whether the candidate is one of the texts. Side bars are in the list without their "G"; blanks mean no
// text.
[[nodiscard]] bool IsAmong(const Candidate& candidate, const std::vector<std::string>& texts);

// Where a candidate comes from, in a few words.
[[nodiscard]] std::string OriginOf(const Candidate& candidate);

}  // namespace Desk
