// beamdesk events: a panel driven from the command line, with each event and what it set off.
#include <ostream>

#include "desk/console/Commands.h"
#include "desk/console/panel/Driving.h"

namespace Desk {

namespace {

using namespace Panels;

void AddNoOptions(CLI::App& /*form*/, DriveOptions& /*options*/) {}

void Print(const std::string& heading, Run& run, const std::vector<Step>& steps,
           const DriveOptions& /*options*/, std::ostream& out)
{
    out << heading << '\n';
    int number = 0;
    for (const Step& step : steps) {
        out.flush();
        PrintEvents(++number, run.Do(step), out);
    }
}

constexpr Driving Command = {"events",
                             "The same, and print each event, what finished it and what it set off", true,
                             &AddNoOptions, &Print};

}  // namespace

void AddEventsCommand(CLI::App& program, std::ostream& out) { AddDriving(program, Command, out); }

}  // namespace Desk
