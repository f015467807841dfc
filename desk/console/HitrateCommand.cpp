// beamdesk hitrate: the tallies as a table or as JSON.
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
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
    bool json = false;
};

struct Column {
    const char* head;
    std::size_t Tally::*count;
};
constexpr Column Columns[] = {
    {"at place 1", &Tally::first},   {"within 3", &Tally::within3},    {"within 5", &Tally::within5},
    {"within 10", &Tally::within10}, {"not in list", &Tally::missing},
};
constexpr int CountWidth = 7;
constexpr int PercentWidth = 5;

std::string Percent(std::size_t count, std::size_t uses)
{
    return std::to_string(uses == 0 ? 0 : (200 * count + uses) / (2 * uses)) + "%";
}

void PrintOrder(std::ostream& out, std::string_view kind, std::string_view uses, std::string_view order,
                const Tally& tally)
{
    out << PadRight(kind, 14) << PadLeft(uses, 6) << "  " << PadRight(order, 13);
    for (const Column& column : Columns) {
        const std::size_t count = tally.*column.count;
        out << PadLeft(std::to_string(count), CountWidth)
            << PadLeft(Percent(count, tally.uses), PercentWidth);
    }
    out << '\n';
}

void PrintKind(std::ostream& out, const KindTally& kind)
{
    PrintOrder(out, kind.kind, std::to_string(kind.ranker.uses), "ranker", kind.ranker);
    PrintOrder(out, "", "", "alphabetical", kind.alphabetical);
    PrintOrder(out, "", "", "frequency", kind.frequency);
}

void PrintTable(std::ostream& out, const std::string& title, const std::vector<KindTally>& kinds)
{
    out << title << '\n'
        << "The place of each text in the list made from the other texts; of a name, from the names before "
           "it.\n\n"
        << PadRight("kind", 14) << PadLeft("uses", 6) << "  " << PadRight("order", 13);
    for (const Column& column : Columns) {
        out << PadLeft(column.head, CountWidth + PercentWidth);
    }
    out << '\n';
    KindTally sum{"all but names", {}, {}, {}};
    for (const KindTally& kind : kinds) {
        if (kind.ranker.uses == 0) {
            continue;
        }
        PrintKind(out, kind);
        if (kind.kind != "name") {
            sum.ranker += kind.ranker;
            sum.alphabetical += kind.alphabetical;
            sum.frequency += kind.frequency;
        }
    }
    PrintKind(out, sum);
}

Json JsonOf(const Tally& tally)
{
    return Json{{"place1", tally.first},
                {"within3", tally.within3},
                {"within5", tally.within5},
                {"within10", tally.within10},
                {"notInList", tally.missing}};
}

void PrintTalliesJson(std::ostream& out, const Project& project, const std::vector<KindTally>& kinds)
{
    Json list = Json::array();
    for (const KindTally& kind : kinds) {
        list.push_back(Json{{"kind", kind.kind},
                            {"uses", kind.ranker.uses},
                            {"ranker", JsonOf(kind.ranker)},
                            {"alphabetical", JsonOf(kind.alphabetical)},
                            {"frequency", JsonOf(kind.frequency)}});
    }
    PrintJson({{"title", project.title}, {"beams", project.beams.size()}, {"kinds", list}}, out);
}

}  // namespace

void AddHitrateCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command = program.add_subcommand(
        "hitrate", "Measure the ranking: at which place each text of a project is proposed");
    const auto options = std::make_shared<HitrateOptions>();
    AddProjectOption(*command, options->project);
    command->add_flag("--json", options->json, "Print JSON for programs");
    command->footer(
        "Each text is hidden in turn, its ranker runs on the other texts, and the place of the hidden\n"
        "text is counted; a name is searched among the proposals from the names before it. For\n"
        "comparison, the other texts are also ordered by alphabet and by frequency.\n\n"
        "Examples:\n  beamdesk hitrate\n  beamdesk hitrate --project tower.json --json");
    command->callback([options, &out] {
        const Project project = OpenProject(options->project);
        const std::vector<KindTally> kinds = ReplayProject(project);
        if (options->json) {
            PrintTalliesJson(out, project, kinds);
        } else {
            PrintTable(out,
                       TitleOf(project, options->project) + ": " + std::to_string(project.beams.size()) +
                           " beams",
                       kinds);
        }
    });
}

}  // namespace Desk
