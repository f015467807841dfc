// beamdesk hitrate: the tallies as a table or as JSON.
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "desk/Commands.h"
#include "desk/ProjectFile.h"
#include "desk/hitrate/Replay.h"

namespace Desk {

namespace {

using namespace Hitrate;
using Json = nlohmann::ordered_json;

struct Options {
    std::string project;
    bool json = false;
};

// "37  46%" in a column.
std::string Share(std::size_t count, std::size_t uses)
{
    const double percent = uses == 0 ? 0.0 : 100.0 * static_cast<double>(count) / static_cast<double>(uses);
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%7zu %3.0f%%", count, percent);
    return text.data();
}

void PrintOrder(std::ostream& out, const char* order, const Tally& tally)
{
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "%-13s", order);
    out << name.data();
    for (const std::size_t count :
         {tally.first, tally.within3, tally.within5, tally.within10, tally.missing}) {
        out << Share(count, tally.uses);
    }
    out << "\n";
}

void PrintKind(std::ostream& out, const KindTally& kind)
{
    std::array<char, 64> head{};
    std::snprintf(head.data(), head.size(), "%-14s%6zu  ", kind.kind.c_str(), kind.ranker.uses);
    const std::string indent(22, ' ');
    PrintOrder(out << head.data(), "ranker", kind.ranker);
    PrintOrder(out << indent, "alphabetical", kind.alphabetical);
    PrintOrder(out << indent, "frequency", kind.frequency);
}

void PrintTable(std::ostream& out, const Project& project, const std::vector<KindTally>& kinds)
{
    out << project.title << ": " << project.beams.size() << " beams\n"
        << "How often each text stood at which place of the list made from the others; a name: from the "
           "names "
           "before it.\n\n"
        << "kind            uses  order          at place 1    within 3    within 5   within 10 not in "
           "list\n";
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

Json Told(const Tally& tally)
{
    return Json{{"place1", tally.first},
                {"within3", tally.within3},
                {"within5", tally.within5},
                {"within10", tally.within10},
                {"notInList", tally.missing}};
}

void PrintJson(std::ostream& out, const Project& project, const std::vector<KindTally>& kinds)
{
    Json list = Json::array();
    for (const KindTally& kind : kinds) {
        list.push_back(Json{{"kind", kind.kind},
                            {"uses", kind.ranker.uses},
                            {"ranker", Told(kind.ranker)},
                            {"alphabetical", Told(kind.alphabetical)},
                            {"frequency", Told(kind.frequency)}});
    }
    out << Json{{"title", project.title}, {"beams", project.beams.size()}, {"kinds", list}}.dump(2) << "\n";
}

}  // namespace

void AddHitrateCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command =
        program.add_subcommand("hitrate", "Tell at which place the rankers put the texts of a project");
    const auto options = std::make_shared<Options>();
    command->add_option("--project", options->project, "The project; without it the sample")
        ->type_name("FILE");
    command->add_flag("--json", options->json, "Print JSON for programs");
    command->callback([options, &out] {
        const Project project = options->project.empty() ? SampleProject() : ReadProject(options->project);
        const std::vector<KindTally> kinds = ReplayProject(project);
        options->json ? PrintJson(out, project, kinds) : PrintTable(out, project, kinds);
    });
}

}  // namespace Desk
