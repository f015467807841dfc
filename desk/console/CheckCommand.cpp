// beamdesk check: what is wrong with a project.
#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "desk/checks/Checks.h"
#include "desk/console/Commands.h"
#include "desk/console/ImportReport.h"
#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/drawing/Drawing.h"
#include "desk/project/ProjectFile.h"

namespace Desk {

namespace {

using Json = nlohmann::ordered_json;

constexpr int HasProblems = 1;  // exit status

struct CheckOptions {
    std::string project;
    std::vector<std::string> off;
    bool lists = false;
    bool json = false;
};

std::string OwnerOf(const Project& project, const FieldRef& at)
{
    const std::string& name = TextAt(project, {at.isWall, at.index, Field::Name});
    const std::string number = name.empty() ? std::to_string(at.index + 1) : name;
    return at.isWall ? "wall " + number : name.empty() ? "beam " + number : number;
}

// As `beamdesk set` takes it; of a text in place its role and number.
std::string FieldOf(const Project& project, const FieldRef& at)
{
    if (at.inPlace < 0) {
        return RowOf(at.field).key;
    }
    const InPlace& text = project.beams[at.index].inPlace[static_cast<std::size_t>(at.inPlace)];
    return RowOf(text.role).key + std::string(" ") + std::to_string(text.number);
}

void PrintRules(bool json, std::ostream& out)
{
    if (json) {
        Json rules = Json::array();
        for (const Rule& rule : AllRules()) {
            rules.push_back(
                Json{{"rule", rule.key}, {"title", rule.title.english}, {"source", rule.source.English()}});
        }
        PrintJson({{"rules", rules}}, out);
        return;
    }
    std::vector<std::vector<std::string>> rows = {{"rule", "what it finds", "source"}};
    for (const Rule& rule : AllRules()) {
        rows.push_back({rule.key, rule.title.english, rule.source.English()});
    }
    PrintRows(rows, out);
}

void PrintProblemsJson(const Project& project, const std::vector<Problem>& problems, std::ostream& out)
{
    Json list = Json::array();
    for (const Problem& problem : problems) {
        list.push_back(Json{{"beam", TextAt(project, {problem.at.isWall, problem.at.index, Field::Name})},
                            {"field", FieldOf(project, problem.at)},
                            {"rule", problem.rule->key},
                            {"text", problem.text},
                            {"message", problem.message.English()}});
    }
    PrintJson({{"problems", list}}, out);
}

void PrintProblems(const Project& project, const std::vector<Problem>& problems, std::ostream& out)
{
    std::vector<std::vector<std::string>> rows;
    for (const Problem& problem : problems) {
        rows.push_back({OwnerOf(project, problem.at), FieldOf(project, problem.at), Visible(problem.text),
                        problem.rule->key, problem.message.English()});
    }
    PrintRows(rows, out);
    out << (rows.empty() ? "" : "\n") << Plural(project.beams.size(), "beam") << ", "
        << Plural(project.walls.size(), "wall") << ": "
        << (problems.empty() ? "no problems" : Plural(problems.size(), "problem")) << '\n';
}

void RunCheck(const CheckOptions& options, std::ostream& out, int& status)
{
    if (options.lists) {
        PrintRules(options.json, out);
        return;
    }
    Project project = OpenProject(options.project);
    project.checksOff.insert(project.checksOff.end(), options.off.begin(), options.off.end());
    const std::vector<Problem> problems = CheckProject(project);
    (options.json ? PrintProblemsJson : PrintProblems)(project, problems, out);
    status = problems.empty() ? 0 : HasProblems;
}

}  // namespace

void AddCheckCommand(CLI::App& program, std::ostream& out, int& status)
{
    CLI::App* const command =
        program.add_subcommand("check", "List what is wrong with a project or drawing");
    const auto options = std::make_shared<CheckOptions>();
    AddProjectOption(*command, options->project);
    command->add_option("--off", options->off, "Leave a rule out; may be given for several")
        ->type_name("RULE")
        ->check([](const std::string& key) {
            return RuleOf(key) != nullptr ? std::string() : Quoted(key) + " is no rule; --rules lists them";
        });
    command->add_flag("--rules", options->lists, "List the rules with their sources, and check nothing");
    command->add_flag("--json", options->json, "Print JSON for programs");
    command->footer(
        "Rules of the concrete code, of drawings and of practice. A project leaves out for good what its\n"
        "key \"checksOff\" lists, such as [\"name-gap\"]; for a drawing it is in the companion file.\n\n"
        "Exit status: 0 without problems, 1 with problems, 2 for wrong usage and every failure.\n\n"
        "Examples:\n  beamdesk check --project tower.json\n"
        "  beamdesk check --project floor.dxf --off name-gap --json");
    command->callback([options, &out, &status] { RunCheck(*options, out, status); });
}

}  // namespace Desk
