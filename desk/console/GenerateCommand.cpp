// The generate command: a large project into a file.
#include <filesystem>
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/Options.h"
#include "desk/project/Failure.h"
#include "desk/project/Generate.h"
#include "desk/project/ProjectFile.h"

namespace Desk {

namespace {

constexpr int MaxBeams = 100'000;  // what a project file may hold

struct GenerateOptions {
    int beams = 0;
    int seed = 1;
    std::string output;
    bool force = false;
};

}  // namespace

void AddGenerateCommand(CLI::App& program, std::ostream& out)
{
    const auto options = std::make_shared<GenerateOptions>();
    CLI::App& command =
        *program.add_subcommand("generate", "A large project that looks like a real one, to try things on");
    command.add_option("beams", options->beams, "How many beams")
        ->type_name("N")
        ->required()
        ->check(Whole(1, MaxBeams));
    command.add_option("--seed", options->seed, "Another number gives another project; 1 without it")
        ->type_name("N")
        ->check(Whole(0, 1'000'000'000));
    command.add_option("-o,--output", options->output, "Project file to write; needed")
        ->type_name("FILE")
        ->required();
    command.add_flag("--force", options->force, "Write over a file that stands there already");
    command.footer("Examples:\n  beamdesk generate 20000 --output tower.json");
    command.callback([options, &out] {
        if (!options->force && std::filesystem::exists(options->output)) {
            throw Failure(options->output + " stands there already; --force writes over it");
        }
        const Project project = GenerateProject(options->beams, static_cast<unsigned>(options->seed));
        SaveProject(project, options->output);
        out << options->output << ": " << project.beams.size() << " beams, " << project.walls.size()
            << " walls\n";
    });
}

}  // namespace Desk
