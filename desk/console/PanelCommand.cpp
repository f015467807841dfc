// beamdesk panel: a panel driven from the command line, printed after each step.
#include <ostream>

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/panel/Driving.h"

namespace Desk {

namespace {

using namespace Panels;

void AddOptions(CLI::App& form, DriveOptions& options)
{
    form.add_flag("--ids", options.withIds, "Show the controls' ids; also without steps");
    form.add_flag("--quiet", options.quiet, "Print what was delivered and the panel at the end");
}

void PrintPanel(const std::string& heading, Run& run, const std::vector<Step>& steps,
                const DriveOptions& options, std::ostream& out)
{
    Picture last = run.Now();
    const bool withIds = options.withIds || steps.empty();
    const bool isQuiet = options.quiet && !steps.empty();
    if (!isQuiet) {
        PrintStart(heading, last, withIds, out);
    }
    int number = 0;
    for (const Step& step : steps) {
        out.flush();
        Done done = run.Do(step);
        ++number;
        if (isQuiet) {
            PrintOutcome(number, done, out);
        } else {
            PrintStep(number, done, last, withIds, out);
        }
        last = std::move(done.picture);
    }
    if (isQuiet) {
        PrintPicture(last, withIds, out);
    }
}

constexpr Driving PanelDriving = {
    "panel", "Drive a pop-up panel or picker by mouse and keys and print it after each step", false,
    &AddOptions, &PrintPanel};

}  // namespace

void AddPanelCommand(CLI::App& program, std::ostream& out) { AddDriving(program, PanelDriving, out); }

}  // namespace Desk
