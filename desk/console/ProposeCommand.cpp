// beamdesk propose: the texts that an annotation of a beam, or the whole beam, most likely gets.
#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "desk/console/BeamWords.h"
#include "desk/console/Commands.h"
#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/project/ProjectFile.h"
#include "desk/ranking/Proposals.h"

namespace Desk {

namespace {

using Json = nlohmann::ordered_json;

struct ProposeOptions {
    std::string project;
    std::string beam;
    std::string field;
    int limit = 10;
    bool json = false;
};

// A row as it is printed: its text, of a whole beam all of them, and what is told of it.
struct Line {
    std::string text;
    int share = 0;
    std::string uses;
    std::string reason;
};

void PrintLines(const std::vector<Line>& lines, const std::string& present, std::ostream& out)
{
    int width = 5;
    for (const Line& line : lines) {
        width = std::max(width, DisplayWidth(line.text));
    }
    out << "   place  " << PadRight("text", width) << "  votes  uses  why\n";
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Line& line = lines[i];
        out << (line.text == present ? " * " : "   ") << PadLeft(std::to_string(i + 1), 5) << "  "
            << PadRight(line.text, width) << "  " << PadLeft(std::to_string(line.share), 3) << " %  "
            << PadLeft(line.uses, 4) << "  " << line.reason << '\n';
    }
}

std::vector<Line> LinesFor(const std::vector<Proposal>& proposals, Json& list)
{
    std::vector<Line> lines;
    for (const Proposal& proposal : proposals) {
        const std::string reason = proposal.reason.English();
        lines.push_back({proposal.text, proposal.share, std::to_string(proposal.uses), reason});
        list.push_back({{"text", proposal.text},
                        {"share", proposal.share},
                        {"uses", proposal.uses},
                        {"reason", reason}});
    }
    return lines;
}

std::vector<Line> LinesFor(const std::vector<BeamProposal>& proposals, Json& list)
{
    std::vector<Line> lines;
    for (const BeamProposal& proposal : proposals) {
        const std::string reason = proposal.reason.English();
        Json texts = Json::object();
        for (const auto& [ref, text] : proposal.texts) {
            texts[RowOf(ref.field).key] = text;
        }
        lines.push_back({Joined(proposal.texts, [](const auto& each) { return each.second; }),
                         proposal.share, "-", reason});
        list.push_back({{"texts", texts}, {"share", proposal.share}, {"reason", reason}});
    }
    return lines;
}

void RunPropose(const ProposeOptions& options, std::ostream& out)
{
    const FieldRow* const row = options.field.empty() ? nullptr : &RequireRow(options.field);
    const Opened opened = OpenInput(options.project);
    const Project& project = opened.project;
    const std::size_t beam = BeamNamed(project, options.beam);
    const std::string& name = project.beams[beam].name;
    const std::string title = TitleOf(project, options.project);
    const Proposer proposer(project);
    const std::size_t most =
        options.limit > 0 ? static_cast<std::size_t>(options.limit) : std::string::npos;

    Json answer = {{"project", title}, {"beam", name}};
    Json list = Json::array();
    std::vector<Line> lines;
    std::string present;
    if (row != nullptr) {
        const FieldRef ref = FieldOfBeam(opened, beam, row->field);
        present = TextAt(project, ref);
        answer["field"] = row->key;
        answer["present"] = present;
        lines = LinesFor(proposer.For(ref, most), list);
    } else {
        lines = LinesFor(proposer.ForBeam(beam, most), list);
    }
    answer["proposals"] = std::move(list);
    if (options.json) {
        PrintJson(answer, out);
        return;
    }
    out << (row != nullptr ? row->english : "Whole beam") << ", beam " << name << '\n' << title << "\n\n";
    if (!lines.empty()) {
        PrintLines(lines, present, out);
    } else {
        out << (row != nullptr ? "   no proposals: no other beam has such a text\n"
                               : "   no proposals: they are for two or more that a beam lacks of stirrups, "
                                 "top, bottom and side bars\n");
    }
    if (!present.empty()) {
        const bool isAmong = std::any_of(lines.begin(), lines.end(),
                                         [&present](const Line& line) { return line.text == present; });
        out << (isAmong ? "\n* what " + name + " has now\n"
                        : "\n  " + name + " has " + present + " now, which is not among them\n");
    }
}

}  // namespace

void AddProposeCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command =
        program.add_subcommand("propose", "Propose texts for a beam, as the beams most like it have them");
    const auto options = std::make_shared<ProposeOptions>();
    AddProjectOption(*command, options->project);
    command->add_option("--beam", options->beam, "Name of the beam, with or without its spans")
        ->required()
        ->type_name("NAME");
    command->add_option("FIELD", options->field, "Which annotation, see below; without it the whole beam")
        ->type_name("");
    command->add_option("--limit", options->limit, "Proposals to show at most, 0 for all. Default 10")
        ->type_name("N")
        ->check(Whole(0, 1'000'000'000));
    command->add_flag("--json", options->json, "Print JSON for programs");
    command->footer("FIELD is " + KeysOfBeams() +
                    ".\nWhat the annotation holds now does not count. A whole beam gets what it lacks of "
                    "stirrups, top,\nbottom and side bars.\n\n"
                    "Examples:\n  beamdesk propose --beam KL2 topBars\n"
                    "  beamdesk propose --project floor.dxf --beam L3 --json");
    command->callback([options, &out] { RunPropose(*options, out); });
}

}  // namespace Desk
