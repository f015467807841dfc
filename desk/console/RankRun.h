// One run of a ranker as the rank command was asked for it.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "desk/console/RankingPrint.h"
#include "desk/project/Project.h"
#include "desk/ranking/Tables.h"

namespace Desk {

// The options of the five subcommands; each uses a part of them.
struct RankOptions {
    std::string project;
    std::string beam;
    bool json = false;
    bool table = false;
    std::optional<int> limit;
    int projectKind = 2;
    std::optional<std::string> kind;
    std::optional<std::string> top;  // through bars, in place of a kind
    std::optional<int> width;
    std::optional<int> area;
    std::optional<int> grade;
    std::optional<int> seismicClass;
};

// Loads the project, finds the beam if one was named, and prints one answer. Throws CLI::ValidationError
// for wrong combinations of options and Failure for everything else.
class RankRun {
public:
    RankRun(const RankOptions& options, std::ostream& out);

    void Names();
    void Sections();
    void Elevations();
    void Bars();
    void Stirrups();

private:
    // The number that was typed, else the beam's; nothing where there is neither and no table needs it.
    [[nodiscard]] std::optional<int> Number(const std::optional<int>& typed, const char* option,
                                            const std::optional<int>& ofBeam) const;
    [[nodiscard]] Question BarQuestion() const;
    void Head(const char* what, const std::string& heading);
    void Say(const char* key, const std::optional<int>& number, const char* before, const char* after);
    void RemarkOnTable(const Ranking& ranking, const TableAnswer& rows);
    void Print(const Question& question, std::string Beam::*member = nullptr);
    void Print(const Ranking& ranking);

    const RankOptions& m_options;
    std::ostream& m_out;
    Project m_project;
    const Beam* m_beam;  // of the project, null without one
    RankingView m_view;
};

}  // namespace Desk
