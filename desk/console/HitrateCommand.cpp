// beamdesk hitrate: the tallies as a table or as JSON.
#include <iomanip>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "desk/console/Commands.h"
#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/drawing/Drawing.h"
#include "desk/project/ProjectFile.h"
#include "desk/ranking/Replay.h"

namespace Desk {

namespace {

using namespace Hitrate;
using Json = nlohmann::ordered_json;

struct HitrateOptions {
    std::string project;
    std::string order = "hidden";
    bool json = false;
};

struct Column {
    const char* head;
    const char* key;  // in JSON
    std::size_t Tally::*count;
};
constexpr Column Columns[] = {
    {"at place 1", "place1", &Tally::first},  {"within 3", "within3", &Tally::within3},
    {"within 5", "within5", &Tally::within5}, {"within 10", "within10", &Tally::within10},
    {"seen", "seen", &Tally::seen},
};
constexpr int CountWidth = 7;
constexpr int PercentWidth = 5;

std::string Percent(std::size_t count, std::size_t uses)
{
    return std::to_string(uses == 0 ? 0 : (200 * count + uses) / (2 * uses)) + "%";
}

std::string Fixed(double number, int digits)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(digits) << number;
    return text.str();
}

std::string ABeam(std::size_t count, std::size_t beams)
{
    return Fixed(beams == 0 ? 0.0 : static_cast<double>(count) / static_cast<double>(beams), 1);
}

void PrintKind(std::ostream& out, const KindTally& kind, std::size_t beams)
{
    const bool areAll = kind.kind == "all";
    std::string name = areAll ? "all but names" : kind.kind;
    std::string uses = std::to_string(kind.tallies.front().uses);
    for (std::size_t i = 0; i < OrderNames.size(); ++i) {
        const Tally& tally = kind.tallies[i];
        out << PadRight(name, 14) << PadLeft(uses, 6) << "  " << PadRight(OrderNames[i], 13);
        for (const Column& column : Columns) {
            const std::size_t count = tally.*column.count;
            out << PadLeft(std::to_string(count), CountWidth)
                << PadLeft(Percent(count, tally.uses), PercentWidth);
        }
        out << PadLeft(Fixed(tally.MeanReciprocalRank(), 2), 6)
            << PadLeft(ABeam(tally.within3, beams) + " of " + ABeam(tally.uses, beams), 14) << '\n';
        name.clear();
        uses.clear();
    }
}

void PrintTable(std::ostream& out, const std::vector<KindTally>& kinds, std::size_t beams)
{
    out << PadRight("kind", 14) << PadLeft("uses", 6) << "  " << PadRight("order", 13);
    for (const Column& column : Columns) {
        out << PadLeft(column.head, CountWidth + PercentWidth);
    }
    out << PadLeft("mrr", 6) << PadLeft("picks a beam", 14) << '\n';
    for (std::size_t i = 1; i < kinds.size(); ++i) {
        if (kinds[i].tallies.front().uses > 0) {
            PrintKind(out, kinds[i], beams);
        }
    }
    PrintKind(out, kinds.front(), beams);
}

Json JsonOf(const Tally& tally)
{
    Json json{{"uses", tally.uses}};
    for (const Column& column : Columns) {
        json[column.key] = tally.*column.count;
    }
    json["mrr"] = tally.MeanReciprocalRank();
    return json;
}

void PrintTalliesJson(std::ostream& out, const Project& project, const std::vector<KindTally>& kinds)
{
    Json orders;
    for (std::size_t i = 0; i < OrderNames.size(); ++i) {
        for (const KindTally& kind : kinds) {
            orders[OrderNames[i]][kind.kind] = JsonOf(kind.tallies[i]);
        }
    }
    PrintJson({{"title", project.title}, {"beams", project.beams.size()}, {"orders", orders}}, out);
}

}  // namespace

void AddHitrateCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command = program.add_subcommand(
        "hitrate", "Measure the ranking: at which place each text of a project is proposed");
    const auto options = std::make_shared<HitrateOptions>();
    AddProjectOption(*command, options->project);
    command
        ->add_option("--order", options->order,
                     "What is known when a text is asked for: with \"hidden\" all but the one text, with "
                     "\"drawn\" what comes before it")
        ->check(CLI::IsMember({"hidden", "drawn"}))
        ->capture_default_str();
    command->add_flag("--json", options->json, "Print JSON for programs");
    command->footer(
        "Each text is hidden in turn and looked for among the proposals and in the ranker's list that are\n"
        "made without it. For comparison, the texts that the ranker gets are also ordered by frequency "
        "and\n"
        "by alphabet. With the drawn order, known are the beams before in project order and of the beam\n"
        "itself the texts that are entered before; a name is looked for so in either order.\n\n"
        "Examples:\n  beamdesk hitrate\n  beamdesk hitrate --project tower.json --order drawn --json");
    command->callback([options, &out] {
        const Project project = OpenProject(options->project);
        const bool isDrawn = options->order == "drawn";
        const std::vector<KindTally> kinds = ReplayProject(project, isDrawn ? Known::Before : Known::All);
        if (options->json) {
            PrintTalliesJson(out, project, kinds);
            return;
        }
        out << TitleOf(project, options->project) << ": " << project.beams.size() << " beams\n"
            << (isDrawn ? "The place of each text in the lists made from what comes before it.\n\n"
                        : "The place of each text in the lists made from the other texts; of a name, from "
                          "the names before it.\n\n");
        PrintTable(out, kinds, project.beams.size());
    });
}

}  // namespace Desk
