// A subcommand for each panel.
#include "desk/console/panel/Driving.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>

#include <CLI/CLI.hpp>

#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"
#include "desk/project/SafeFile.h"

namespace Desk::Panels {

namespace {

struct PanelForm {
    PanelKind kind;
    const char* title;
    const char* name;
    const char* about;
    const char* example;  // what follows "beamdesk panel " or "beamdesk events "
};

constexpr PanelForm PanelForms[] = {
    {PanelKind::Name, "Beam name panel", "name", "Beam name: type, serial, span count, cantilever mark",
     "name --do \"click 552 KL; click 1062 3; type 1654 2; click 549 A; right\""},
    {PanelKind::Section, "Section panel", "section", "Section: width and height",
     "section --text 300x600 --do \"click 1317 350; double 1062 700\""},
    {PanelKind::Elevation, "Elevation panel", "elevation", "Elevation: a keypad",
     "elevation --do \"click 0; click .; click 3; click -; right\""},
    {PanelKind::Stirrup, "Stirrup panel", "stirrup", "Stirrup: grade, diameter, spacings, legs",
     "stirrup --text \"A8@200(2)\" --do \"click 1356 100; right\""},
    {PanelKind::Bars, "Bar panel", "bars", "Longitudinal bars: pieces composed by mouse alone",
     "bars --kind 0 --to parent --do \"click 1338 2; click 1340 25; right\""},
    {PanelKind::HorizontalBars, "Horizontal wall bar picker", "hbars",
     "Horizontal bars of a wall: grade, diameter, spacings",
     "hbars --text \"A10@100/200\" --do \"click 1112 12; right\""},
    {PanelKind::VerticalBars, "Vertical wall bar picker", "vbars",
     "Vertical bars of a wall: grade and diameter", "vbars --do \"click 1306 B; click 1307 28; right\""},
};

std::string ReadAll(const std::string& file)
{
    if (file == "-") {
        return {std::istreambuf_iterator<char>(std::cin), {}};
    }
    std::ifstream in(PathOf(file), std::ios::binary);
    std::ostringstream text;
    if (in.peek() != std::ifstream::traits_type::eof()) {
        text << in.rdbuf();
    } else if (!in.is_open() || in.bad()) {
        throw Failure(file + ": this script cannot be read");
    }
    return text.str();
}

std::vector<Step> StepsOf(const DriveOptions& options)
{
    const std::string& file = options.script;
    return file.empty() ? ReadSteps(options.steps)
                        : ReadSteps(ReadAll(file), file == "-" ? "standard input" : file);
}

void Drive(const Driving& driving, const PanelForm& form, DriveOptions& options, std::ostream& out)
{
    constexpr const char* Routes[] = {", to the property item", ", to the parent window", ", to the host"};
    Setup& setup = options.setup;
    if (!options.text.empty()) {
        setup.use.text = GbkFromUtf8(options.text);
        if (!setup.use.text) {
            throw Failure("--text " + options.text + ": a character that GBK lacks, or no UTF-8");
        }
    }
    const std::string kind = ", kind " + std::to_string(setup.use.barKind);
    const std::string heading = form.title + (form.kind == PanelKind::Bars ? kind : std::string()) +
                                Routes[static_cast<std::size_t>(setup.to)];
    const std::vector<Step> steps = StepsOf(options);
    Run run(setup);
    if (!options.json) {
        driving.print(heading, run, steps, options, out);
        return;
    }
    nlohmann::ordered_json json = {
        {"what", heading}, {"start", JsonOf(run.Now())}, {"steps", nlohmann::ordered_json::array()}};
    for (const Step& step : steps) {
        json["steps"].push_back(JsonOf(run.Do(step), driving.withEvents));
    }
    PrintJson(json, out);
}

// The name panel delivers to no host data.
void AddRoute(CLI::App& command, const std::shared_ptr<DriveOptions>& options)
{
    const bool isName = options->setup.kind == PanelKind::Name;
    const auto take = [options, isName](const std::string& word) {
        using Route = Receiver::Route;
        const std::map<std::string, Route> routes = {
            {"item", Route::Item}, {"parent", Route::Parent}, {"host", Route::HostData}};
        const auto route = routes.find(word);
        if (route == routes.end() || (isName && route->second == Route::HostData)) {
            throw CLI::ValidationError("--to", (isName ? "item or parent" : "item, parent or host") +
                                                   std::string(" is required, not ") + Quoted(word));
        }
        options->setup.to = route->second;
    };
    command.add_option_function<std::string>("--to", take, "Where a confirmed text goes. Default item")
        ->type_name(isName ? "item|parent" : "item|parent|host");
}

void AddForm(CLI::App& parent, const Driving& driving, const PanelForm& form, std::ostream& out)
{
    const auto options = std::make_shared<DriveOptions>();
    options->setup.kind = form.kind;
    CLI::App& command = *parent.add_subcommand(form.name, form.about);
    if (form.kind == PanelKind::Bars) {
        command.alias("bar");
        command
            .add_option("--kind", options->setup.use.barKind,
                        "What it is open for: -1 all groups, 0 to 4 one group, 5 and 6 end bars, 7 and 8 a "
                        "whole annotation. Default -1")
            ->type_name("N")
            ->check(Whole(-1, 8));
    } else {
        command.add_option("--text", options->text, "The text that it opens with")->type_name("TEXT");
    }
    if (form.kind != PanelKind::HorizontalBars && form.kind != PanelKind::VerticalBars) {
        AddRoute(command, options);
    }
    CLI::Option* const steps = command.add_option("--do", options->steps, "The steps")->type_name("STEPS");
    command.add_option("--script", options->script, "A file with the steps, - for standard input")
        ->type_name("FILE")
        ->excludes(steps);
    command.add_flag("--json", options->json, "Print JSON for programs");
    driving.addOptions(command, *options);
    command.callback([&driving, &form, options, &out] { Drive(driving, form, *options, out); });
    command.footer(std::string("Examples:\n  beamdesk ") + driving.name + " " + form.example + "\n\n" +
                   StepHelp());
}

}  // namespace

void AddDriving(CLI::App& program, const Driving& driving, std::ostream& out)
{
    CLI::App& command = *program.add_subcommand(driving.name, driving.about);
    command.require_subcommand(1);
    std::string examples = "Examples:";
    for (const PanelForm& form : PanelForms) {
        AddForm(command, driving, form, out);
        examples += std::string("\n  beamdesk ") + driving.name + " " + form.example;
    }
    command.footer(examples);
}

}  // namespace Desk::Panels
