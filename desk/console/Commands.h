// The commands of beamdesk. Each function adds one command to the program; what the command prints goes
// to out, and a failure is thrown as Desk::Failure.
#pragma once

#include <iosfwd>
#include <string>

namespace CLI {
class App;
}

namespace Desk {

void AddTourCommand(CLI::App& program, std::ostream& out);
void AddRankCommand(CLI::App& program, std::ostream& out);
void AddProposeCommand(CLI::App& program, std::ostream& out);
void AddTableCommand(CLI::App& program, std::ostream& out);
void AddImportCommand(CLI::App& program, std::ostream& out);
void AddSetCommand(CLI::App& program, std::ostream& out);
void AddLabelsCommand(CLI::App& program, std::ostream& out);
void AddExportCommand(CLI::App& program, std::ostream& out);
// status becomes the exit status, 1 when there are problems.
void AddCheckCommand(CLI::App& program, std::ostream& out, int& status);
void AddQuantitiesCommand(CLI::App& program, std::ostream& out);
void AddHitrateCommand(CLI::App& program, std::ostream& out);
void AddPanelCommand(CLI::App& program, std::ostream& out);
void AddEventsCommand(CLI::App& program, std::ostream& out);
void AddGenerateCommand(CLI::App& program, std::ostream& out);
void AddWindowCommand(CLI::App& program);
void AddShotCommand(CLI::App& program);

// What the tour command prints. An empty file name stands for the sample, an empty beam name for the beam
// with the most annotations.
void PrintTour(const std::string& projectFile, const std::string& beamName, std::ostream& out);

}  // namespace Desk
