// beamdesk window and beamdesk shot.
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/Options.h"
#include "desk/window/Shots.h"
#include "desk/window/Window.h"

namespace Desk {

void AddWindowCommand(CLI::App& program)
{
    const auto project = std::make_shared<std::string>();
    const auto report = std::make_shared<std::string>();
    CLI::App& command = *program.add_subcommand("window", "The drafting desk in a window");
    AddProjectOption(command, *project);
    command.add_option("file", *project, "The same without the option's name")->type_name("FILE");
    command.add_option("--report", *report, "Keep a JSON file that tells what the window shows and where")
        ->type_name("FILE");
    command.footer("Examples:\n  beamdesk window\n  beamdesk window tower.json");
    command.callback([project, report] { RunWindow(project->c_str(), report->c_str()); });
}

void AddShotCommand(CLI::App& program)
{
    const auto folder = std::make_shared<std::string>();
    const auto options = std::make_shared<ShotOptions>();
    CLI::App& command =
        *program.add_subcommand("shot", "Pictures of the window, the panels and the pickers, as PNG files");
    command.add_option("folder", *folder, "Where the pictures go; it is made if need be")
        ->type_name("DIR")
        ->required();
    AddProjectOption(command, options->project);
    command.add_option("--scale", options->scale, "Device pixels a pixel")
        ->check(CLI::Range(1.0, 4.0))
        ->capture_default_str();
    command.add_flag("--dark", options->dark, "In dark colours");
    command.add_flag("--chinese", options->chinese, "With the Chinese interface");
    command.footer("Examples:\n  beamdesk shot pictures\n  beamdesk shot pictures --scale 2 --dark");
    command.callback([folder, options] { TakeShots(*folder, *options); });
}

}  // namespace Desk
