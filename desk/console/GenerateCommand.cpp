// beamdesk generate: writes a large project.
#include <filesystem>
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/Options.h"
#include "desk/project/Failure.h"
#include "desk/project/Generate.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

constexpr int MaxBeams = 100'000;  // the most that a project file holds

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
        *program.add_subcommand("generate", "Write a large project that looks like a real one, for trials");
    command.add_option("BEAMS", options->beams, "Number of beams")
        ->type_name("")
        ->required()
        ->check(Whole(1, MaxBeams));
    command.add_option("--seed", options->seed, "Each number gives another project. Default 1")
        ->type_name("N")
        ->check(Whole(0, 1'000'000'000));
    command.add_option("-o,--output", options->output, "Project file to write")
        ->type_name("FILE")
        ->required();
    command.add_flag("--force", options->force, "Replace an existing file");
    command.footer("Examples:\n  beamdesk generate 20000 --output tower.json");
    command.callback([options, &out] {
        if (!options->force && std::filesystem::exists(PathOf(options->output))) {
            throw Failure(options->output + " already exists; --force replaces it");
        }
        const Project project = GenerateProject(options->beams, static_cast<unsigned>(options->seed));
        SaveProject(project, PathOf(options->output));
        out << options->output << ": " << project.beams.size() << " beams, " << project.walls.size()
            << " walls\n";
    });
}

}  // namespace Desk
