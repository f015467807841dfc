// beamdesk shot: pictures for the documents.
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/Options.h"
#include "desk/window/Shots.h"

namespace Desk {

void AddShotCommand(CLI::App& program)
{
    const auto folder = std::make_shared<std::string>();
    const auto options = std::make_shared<ShotOptions>();
    CLI::App& command = *program.add_subcommand(
        "shot", "Save pictures of the window, the panels and the pickers as PNG files");
    command.add_option("FOLDER", *folder, "Folder for the pictures; it is made if missing")
        ->type_name("")
        ->required();
    AddProjectOption(command, options->project);
    command.add_option("--width", options->width, "Width of the window in pixels")
        ->check(Whole(640, 4000))
        ->capture_default_str();
    command.add_option("--height", options->height, "Height of the window in pixels")
        ->check(Whole(420, 4000))
        ->capture_default_str();
    command.add_option("--scale", options->scale, "Device pixels per pixel")
        ->check(Decimal(1, 4))
        ->capture_default_str();
    command.add_flag("--dark", options->dark, "In dark colours");
    command.add_flag("--chinese", options->chinese, "With the Chinese interface");
    command.footer("Examples:\n  beamdesk shot pictures\n  beamdesk shot pictures --scale 2 --dark");
    command.callback([folder, options] { TakeShots(*folder, *options); });
}

}  // namespace Desk
