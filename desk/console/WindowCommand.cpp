// beamdesk window: the desk with a screen.
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/Options.h"
#include "desk/window/Window.h"

namespace Desk {

void AddWindowCommand(CLI::App& program)
{
    const auto project = std::make_shared<std::string>();
    const auto report = std::make_shared<std::string>();
    CLI::App& command = *program.add_subcommand("window", "Open the drafting desk in a window");
    AddProjectOption(command, *project);
    command.add_option("FILE", *project, "The same as --project FILE")->type_name("");
    command
        .add_option("--report", *report, "Keep a JSON file up to date with what the window shows and where")
        ->type_name("FILE");
    command.footer("Examples:\n  beamdesk window\n  beamdesk window tower.json");
    command.callback([&program, project, report] {
        RunWindow(project->c_str(), report->c_str(), program.version().c_str());
    });
}

}  // namespace Desk
