// What the commands panel and events share: opening a panel, reading and doing steps.
#pragma once

#include "desk/console/panel/Report.h"

namespace CLI {
class App;
}

namespace Desk::Panels {

struct DriveOptions {
    Setup setup;
    std::string text;
    std::string steps;
    std::string script;
    bool withIds = false;
    bool quiet = false;
    bool json = false;
};

// One of the two commands.
struct Driving {
    const char* name;
    const char* about;
    bool withEvents;                                    // in its JSON
    void (*addOptions)(CLI::App& form, DriveOptions&);  // its own ones
    // Does the steps and prints them for a person.
    void (*print)(const std::string& heading, Run& run, const std::vector<Step>& steps,
                  const DriveOptions& options, std::ostream& out);
};

// Adds the command with a subcommand for each panel.
void AddDriving(CLI::App& program, const Driving& driving, std::ostream& out);

}  // namespace Desk::Panels
