// beamdesk quantities: steel, concrete and formwork of a project.
#include <array>
#include <cmath>
#include <cstdio>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "desk/checks/Quantities.h"
#include "desk/console/Commands.h"
#include "desk/console/ImportReport.h"
#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/drawing/Drawing.h"
#include "desk/plan/PlanFile.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

using Json = nlohmann::ordered_json;

struct QuantitiesOptions {
    std::string project;
    std::string csv;
    std::string pdf;
    bool json = false;
};

std::string Number(double value, int decimals)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return text.data();
}

// For programs: to the millimetre, the gram and the litre.
double Rounded(double value) { return std::round(value * 1000.0) / 1000.0; }

std::string Where(const Project& project, const Uncounted& left)
{
    const std::string& name = project.beams[left.at.index].name;
    return name.empty() ? "beam " + std::to_string(left.at.index + 1) : name;
}

void PrintQuantitiesJson(const Project& project, const Quantities& all, std::ostream& out)
{
    Json bars = Json::array();
    for (const BarQuantity& bar : all.bars) {
        Json each = {{"grade", std::string(1, bar.grade)}, {"diameter", bar.diameter}};
        for (std::size_t use = 0; use < BarUses; ++use) {
            each["byUse"][NameOf(static_cast<BarUse>(use)).english] = Rounded(bar.length[use]);
        }
        each["length"] = Rounded(bar.Length());
        each["mass"] = Rounded(bar.Mass());
        bars.push_back(std::move(each));
    }
    Json left = Json::array();
    for (const Uncounted& one : all.uncounted) {
        left.push_back(Json{{"beam", project.beams[one.at.index].name},
                            {"field", RowOf(one.at.field).key},
                            {"text", one.text},
                            {"message", one.why.English()}});
    }
    PrintJson({{"bars", bars},
               {"steel", Rounded(all.Mass())},
               {"concrete", Rounded(all.concrete)},
               {"formwork", Rounded(all.formwork)},
               {"beams", all.beams},
               {"beamLength", Rounded(all.beamLength)},
               {"uncounted", left}},
              out);
}

void PrintQuantities(const std::string& title, const Project& project, const Quantities& all,
                     std::ostream& out)
{
    constexpr int Width = 13;
    out << title << ": " << Plural(all.beams, "beam") << ", " << Number(all.beamLength, 1) << " m\n\n"
        << PadRight("bars", 6);
    for (std::size_t use = 0; use < BarUses; ++use) {
        out << PadLeft(NameOf(static_cast<BarUse>(use)).english, Width + 1);
    }
    out << PadLeft("all, m", Width) << PadLeft("mass, kg", Width) << '\n';
    for (const BarQuantity& bar : all.bars) {
        out << PadRight(bar.grade + std::to_string(bar.diameter), 6);
        for (const double length : bar.length) {
            out << PadLeft(length > 0.0 ? Number(length, 1) : "-", Width + 1);
        }
        out << PadLeft(Number(bar.Length(), 1), Width) << PadLeft(Number(bar.Mass(), 1), Width) << '\n';
    }
    out << "\nsteel     " << PadLeft(Number(all.Mass(), 1), 10) << " kg\n"
        << "concrete  " << PadLeft(Number(all.concrete, 2), 10) << " m³\n"
        << "formwork  " << PadLeft(Number(all.formwork, 1), 10) << " m²\n";
    if (!all.uncounted.empty()) {
        out << "\nnot counted:\n";
        std::vector<std::vector<std::string>> rows;
        for (const Uncounted& left : all.uncounted) {
            rows.push_back(
                {Where(project, left), RowOf(left.at.field).key, Visible(left.text), left.why.English()});
        }
        PrintRows(rows, out);
    }
    out << '\n';
    for (const std::string& note : TableOf(all).notes) {
        out << note << '\n';
    }
}

void Write(const QuantitiesOptions& options, const std::string& title, const Quantities& all)
{
    const QuantityTable table = TableOf(all);
    if (!options.csv.empty()) {
        ReplaceFile(PathOf(options.csv), CsvOf(table));
    }
    if (!options.pdf.empty()) {
        WriteTables(title, {table.bars, table.sums}, table.notes, PathOf(options.pdf));
    }
}

void RunQuantities(const QuantitiesOptions& options, std::ostream& out)
{
    const Project project = OpenProject(options.project);
    const std::string title = TitleOf(project, options.project);
    const Quantities all = QuantitiesOf(project);
    Write(options, title, all);
    if (options.json) {
        PrintQuantitiesJson(project, all, out);
        return;
    }
    for (const std::string& file : {options.csv, options.pdf}) {
        if (!file.empty()) {
            out << "written to " << file << '\n';
        }
    }
    if (options.csv.empty() && options.pdf.empty()) {
        PrintQuantities(title, project, all, out);
    }
}

}  // namespace

void AddQuantitiesCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command = program.add_subcommand(
        "quantities", "Estimate the steel, concrete and formwork of a project or drawing");
    const auto options = std::make_shared<QuantitiesOptions>();
    AddProjectOption(*command, options->project);
    command->add_option("--csv", options->csv, "Write the list to this file, for spreadsheets")
        ->type_name("FILE");
    command->add_option("--pdf", options->pdf, "Write the list to this file as PDF")->type_name("FILE");
    command->add_flag("--json", options->json, "Print JSON for programs");
    command->footer(
        "Bars by grade and diameter from the annotations and the spans, with anchorage and laps. An\n"
        "estimate: how it counts is printed under the list. Walls are not counted.\n\n"
        "Examples:\n  beamdesk quantities --project tower.json\n"
        "  beamdesk quantities --project floor.dxf --csv floor.csv");
    command->callback([options, &out] { RunQuantities(*options, out); });
}

}  // namespace Desk
