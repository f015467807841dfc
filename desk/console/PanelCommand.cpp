// beamdesk panel and beamdesk events: a panel driven from the command line.
#include "desk/console/Commands.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <string>

#include <CLI/CLI.hpp>

#include "desk/console/Options.h"
#include "desk/console/panel/Report.h"
#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"

namespace Desk {

namespace {

using namespace Panels;
using Json = nlohmann::ordered_json;

struct DriveOptions {
    Setup setup;
    std::string text;
    std::string steps;
    std::string script;
    bool withIds = false;
    bool quiet = false;
    bool json = false;
};

// Whether the events are asked for or the panel itself.
enum class View { Panel, Events };

std::string ReadAll(const std::string& file)
{
    if (file == "-") {
        return {std::istreambuf_iterator<char>(std::cin), {}};
    }
    std::ifstream in(file, std::ios::binary);
    const bool isEmpty = in.peek() == std::ifstream::traits_type::eof();
    if (!in.is_open() || in.bad()) {
        throw Failure(file + ": this script cannot be read");
    }
    std::ostringstream text;
    if (!isEmpty) {
        text << in.rdbuf();
    }
    return text.str();
}

std::vector<Step> StepsOf(const DriveOptions& options)
{
    return options.script.empty() ? ReadSteps(options.steps)
                                  : ReadSteps(ReadAll(options.script),
                                              options.script == "-" ? "standard input" : options.script);
}

std::string HeadingOf(const Setup& setup)
{
    constexpr const char* Routes[] = {"to the property item", "to the parent window", "to the host"};
    std::string heading = TitleOf(setup.kind);
    if (setup.kind == PanelKind::Bars) {
        heading += ", kind " + std::to_string(setup.barKind);
    }
    return heading + ", " + Routes[static_cast<std::size_t>(setup.to)];
}

void DriveForPeople(const DriveOptions& options, View view, std::ostream& out)
{
    const std::vector<Step> steps = StepsOf(options);
    Run run(options.setup);
    Picture last = run.Now();
    const std::string heading = HeadingOf(options.setup);
    const bool withIds = options.withIds || steps.empty();
    if (view == View::Events) {
        out << heading << '\n';
    } else if (!options.quiet || steps.empty()) {
        PrintStart(heading, last, withIds, out);
    }
    int number = 0;
    for (const Step& step : steps) {
        out.flush();
        Done done = run.Do(step);
        ++number;
        if (view == View::Events) {
            PrintEvents(number, done, out);
        } else if (options.quiet) {
            PrintOutcome(number, done, out);
        } else {
            PrintStep(number, done, last, withIds, out);
        }
        last = std::move(done.picture);
    }
    if (view == View::Panel && options.quiet && !steps.empty()) {
        PrintPicture(last, withIds, out);
    }
}

void DriveForPrograms(const DriveOptions& options, View view, std::ostream& out)
{
    const std::vector<Step> steps = StepsOf(options);
    Run run(options.setup);
    Json json = {
        {"what", HeadingOf(options.setup)}, {"start", JsonOf(run.Now())}, {"steps", Json::array()}};
    for (const Step& step : steps) {
        json["steps"].push_back(JsonOf(run.Do(step), view == View::Events));
    }
    out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

void Drive(DriveOptions& options, View view, std::ostream& out)
{
    if (!options.text.empty()) {
        options.setup.text = GbkFromUtf8(options.text);
        if (!options.setup.text) {
            throw Failure("--text " + options.text + ": a character that GBK lacks, or no UTF-8");
        }
    }
    (options.json ? DriveForPrograms : DriveForPeople)(options, view, out);
}

struct Form {
    PanelKind kind;
    const char* name;
    const char* about;
    const char* example;  // behind "beamdesk panel " or "beamdesk events "
};

constexpr Form Forms[] = {
    {PanelKind::Name, "name", "Beam name: type, serial, span count, cantilever mark",
     "name --do \"click 552 KL; click 1062 3; type 1654 2; click 549 A; right\""},
    {PanelKind::Section, "section", "Section: width and height",
     "section --text 300x600 --do \"click 1317 350; double 1062 700\""},
    {PanelKind::Elevation, "elevation", "Elevation: a keypad",
     "elevation --do \"click 0; click .; click 3; click -; right\""},
    {PanelKind::Stirrup, "stirrup", "Stirrup: grade, diameter, spacings, legs",
     "stirrup --text \"A8@200(2)\" --do \"click 1356 100; right\""},
    {PanelKind::Bars, "bars", "Longitudinal bars: pieces composed by mouse alone",
     "bars --kind 0 --to parent --do \"click 1338 2; click 1340 25; right\""},
    {PanelKind::HorizontalBars, "hbars", "Horizontal bars of a wall: grade, diameter, spacings",
     "hbars --text \"A10@100/200\" --do \"click 1112 12; right\""},
    {PanelKind::VerticalBars, "vbars", "Vertical bars of a wall: grade and diameter",
     "vbars --do \"click 1306 B; click 1307 28; right\""},
};

// The name panel knows no host data.
void AddRoute(CLI::App& form, const std::shared_ptr<DriveOptions>& options)
{
    const bool isName = options->setup.kind == PanelKind::Name;
    const auto take = [options, isName](const std::string& word) {
        const std::map<std::string, Route> routes = {
            {"item", Route::Item}, {"parent", Route::Parent}, {"host", Route::Host}};
        const auto route = routes.find(word);
        if (route == routes.end() || (isName && route->second == Route::Host)) {
            throw CLI::ValidationError("--to", (isName ? "item or parent" : "item, parent or host") +
                                                   std::string(" is wanted, not ") + Quoted(word));
        }
        options->setup.to = route->second;
    };
    form.add_option_function<std::string>("--to", take, "Where a confirmed text goes. Default item")
        ->type_name(isName ? "item|parent" : "item|parent|host");
}

void AddForm(CLI::App& command, const Form& row, View view, std::ostream& out)
{
    const auto options = std::make_shared<DriveOptions>();
    options->setup.kind = row.kind;
    CLI::App& form = *command.add_subcommand(row.name, row.about);
    if (row.kind == PanelKind::Bars) {
        form.alias("bar");
        form.add_option(
                "--kind", options->setup.barKind,
                "What it is open for: -1 all groups, 0 to 4 one group, 5 and 6 end bars, 7 and 8 a whole "
                "annotation. Default -1")
            ->type_name("N")
            ->check(Whole(-1, 8));
    } else {
        form.add_option("--text", options->text, "The text that it opens with")->type_name("TEXT");
    }
    if (!IsPicker(row.kind)) {
        AddRoute(form, options);
    }
    CLI::Option* const steps = form.add_option("--do", options->steps, "The steps")->type_name("STEPS");
    form.add_option("--script", options->script, "A file with the steps, - for standard input")
        ->type_name("FILE")
        ->excludes(steps);
    form.add_flag("--json", options->json, "Print JSON for programs");
    if (view == View::Panel) {
        form.add_flag("--ids", options->withIds, "Show the controls' ids; also without steps");
        form.add_flag("--quiet", options->quiet, "Print what was delivered and the panel at the end");
    }
    form.callback([options, view, &out] { Drive(*options, view, out); });
    form.footer("Examples:\n  beamdesk " + command.get_name() + " " + row.example + "\n\n" + StepHelp());
}

void AddDriving(CLI::App& program, const char* name, const char* about, View view, std::ostream& out)
{
    CLI::App& command = *program.add_subcommand(name, about);
    command.require_subcommand(1);
    std::string examples = "Examples:";
    for (const Form& row : Forms) {
        AddForm(command, row, view, out);
        examples += std::string("\n  beamdesk ") + name + " " + row.example;
    }
    command.footer(examples);
}

}  // namespace

void AddPanelCommand(CLI::App& program, std::ostream& out)
{
    AddDriving(program, "panel",
               "Drive a pop-up panel or picker by mouse and keys and see it after each step", View::Panel,
               out);
}

void AddEventsCommand(CLI::App& program, std::ostream& out)
{
    AddDriving(program, "events", "The same, and see each event, who finished it and what it set off",
               View::Events, out);
}

}  // namespace Desk
