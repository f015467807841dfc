// beamdesk: the commands, and what is printed for wrong usage and failures.
#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#if defined(_WIN32)
#include <cstdio>
#include <filesystem>
#include <vector>

#include <fcntl.h>
#include <io.h>
extern "C" __declspec(dllimport) int __stdcall SetConsoleOutputCP(unsigned codePage);
#endif

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/Print.h"
#include "desk/project/Failure.h"

#if BEAMDESK_WINDOW
#define IN_A_WINDOW "in a window, or "
#define WINDOW_EXAMPLE "  beamdesk window\n"
#else
#define IN_A_WINDOW ""
#define WINDOW_EXAMPLE ""
#endif

namespace {

constexpr int WrongUse = 2;  // exit status for wrong usage and every failure

// The command that was being read when the command line went wrong.
const CLI::App& Deepest(const CLI::App& program)
{
    const CLI::App* command = &program;
    while (!command->get_subcommands().empty()) {
        command = command->get_subcommands().front();
    }
    return *command;
}

std::string FullName(const CLI::App& command)
{
    const CLI::App* const parent = command.get_parent();
    return parent == nullptr ? command.get_name() : FullName(*parent) + " " + command.get_name();
}

// "name, section, elevation", empty for a command without subcommands.
std::string Subcommands(const CLI::App& command)
{
    return Desk::Joined(command.get_subcommands([](const CLI::App*) { return true; }),
                        [](const CLI::App* one) { return one->get_name(); });
}

// The parser's message, in other words where the parser's own are hard to understand.
std::string PlainMessage(const CLI::App& program, const CLI::App& command, const CLI::ParseError& error)
{
    const auto code = static_cast<CLI::ExitCodes>(error.get_exit_code());
    const std::vector<std::string> rest = program.remaining(true);
    const bool needsSubcommand = code == CLI::ExitCodes::RequiredError && !Subcommands(command).empty();
    if (!rest.empty() && (needsSubcommand || code == CLI::ExitCodes::ExtrasError)) {
        const auto option = std::find_if(rest.begin(), rest.end(),
                                         [](const std::string& word) { return word.starts_with('-'); });
        return option != rest.end() ? "unknown option " + *option
                                    : "unknown argument " + Desk::Quoted(rest.front());
    }
    if (needsSubcommand) {
        return "a subcommand is required";
    }
    const std::string what = error.what();
    if (code == CLI::ExitCodes::ArgumentMismatch) {
        return what.substr(0, what.find(':')) +
               (what.ends_with("missing") ? " needs a value" : " is given more than once");
    }
    return what;
}

// What is wrong, the subcommands, and an example.
void ExplainWrongUse(const CLI::App& program, const CLI::ParseError& error, std::ostream& err)
{
    const CLI::App& command = Deepest(program);
    const std::string name = FullName(command);
    err << name << ": " << PlainMessage(program, command, error) << '\n';
    if (const std::string subcommands = Subcommands(command); !subcommands.empty()) {
        err << "  subcommands: " << subcommands << '\n';
    }
    const std::string footer = command.get_footer();
    if (const std::size_t example = footer.find("  beamdesk "); example != std::string::npos) {
        err << "  example: " << footer.substr(example + 2, footer.find('\n', example) - example - 2)
            << '\n';
    }
    err << "  help: " << name << " --help\n";
}

int RunDesk(int argc, const char* const* argv)
{
    CLI::App program(
        "Annotations of reinforced-concrete beams and walls, picked instead of typed: " IN_A_WINDOW
        "ranked on the command line by what a project already holds.",
        "beamdesk");
    program.set_version_flag("--version", "beamdesk " BEAMDESK_VERSION);
    program.set_help_all_flag("--help-all", "Print the help of all commands and exit");
    program.require_subcommand(0, 1);
    program.footer("Without a command it prints the tour.\n\nExamples:\n"
                   "  beamdesk\n" WINDOW_EXAMPLE
                   "  beamdesk rank bars --kind 1 --width 300 --area 1000 --table\n"
                   "  beamdesk rank name --project tower.json\n"
                   "  beamdesk set --project floor.dxf --beam KL2 topBars 2B25\n"
                   "  beamdesk table bars --width 300 --area 1000\n\n"
                   "Exit status: 0 on success, 1 for a check that finds problems, 2 for wrong usage and "
                   "every failure.");

    Desk::AddTourCommand(program, std::cout);
    Desk::AddRankCommand(program, std::cout);
    Desk::AddProposeCommand(program, std::cout);
    Desk::AddTableCommand(program, std::cout);
    Desk::AddImportCommand(program, std::cout);
    Desk::AddSetCommand(program, std::cout);
    Desk::AddLabelsCommand(program, std::cout);
    Desk::AddExportCommand(program, std::cout);
    int status = 0;
    Desk::AddCheckCommand(program, std::cout, status);
    Desk::AddQuantitiesCommand(program, std::cout);
    Desk::AddHitrateCommand(program, std::cout);
    Desk::AddPanelCommand(program, std::cout);
    Desk::AddEventsCommand(program, std::cout);
    Desk::AddGenerateCommand(program, std::cout);
#if BEAMDESK_WINDOW
    Desk::AddWindowCommand(program);
    Desk::AddShotCommand(program);
#endif

    try {
        program.parse(argc, argv);
        if (program.get_subcommands().empty()) {
            Desk::PrintTour({}, {}, std::cout);
        }
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
            program.exit(error);  // help or version
        } else {
            ExplainWrongUse(program, error, std::cerr);
            return WrongUse;
        }
    }
    if (!std::cout.flush()) {
        throw Desk::Failure("the output could not be written");
    }
    return status;
}

int RunAndReport(int argc, const char* const* argv)
{
    try {
        return RunDesk(argc, argv);
    } catch (const Desk::Failure& failure) {
        std::cerr << failure.what() << '\n';
    } catch (const std::exception& failure) {
        std::cerr << "beamdesk: " << failure.what() << '\n';
    }
    return WrongUse;
}

}  // namespace

#if defined(_WIN32)
// UTF-8 in and out, and the same bytes as elsewhere.
int wmain(int argc, wchar_t** argv)
{
    constexpr unsigned Utf8 = 65001;
    SetConsoleOutputCP(Utf8);
    for (std::FILE* const stream : {stdin, stdout, stderr}) {
        _setmode(_fileno(stream), _O_BINARY);
    }
    std::vector<std::string> words;
    std::vector<const char*> starts;
    for (int i = 0; i < argc; ++i) {
        words.push_back(std::filesystem::path(argv[i]).string());  // UTF-8, whatever the code page
    }
    for (const std::string& word : words) {
        starts.push_back(word.c_str());
    }
    return RunAndReport(argc, starts.data());
}
#else
int main(int argc, char** argv) { return RunAndReport(argc, argv); }
#endif
