// beamdesk import: its options, and the order in which faults are found.
#include <algorithm>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "desk/Commands.h"
#include "desk/Encoding.h"
#include "desk/Failure.h"
#include "desk/ProjectFile.h"
#include "desk/import/ImportTexts.h"
#include "desk/import/Report.h"

namespace Desk {

namespace {

namespace fs = std::filesystem;
using namespace Import;

struct Options {
    std::string texts;
    std::string project;
    std::string encoding = "utf-8";
    std::string grade;
    int legs = Choices().legs;
    bool force = false;
    bool all = false;
};

// Faults of the target that can be found before any work is done.
void CheckTarget(const Options& options)
{
    const fs::path target = options.project;
    std::error_code error;
    if (fs::equivalent(options.texts, target, error)) {
        throw Failure(options.project + ": the project would take the place of the texts");
    }
    if (fs::is_directory(target, error)) {
        throw Failure(options.project + ": a folder; -o takes the project's file");
    }
    if (fs::exists(target, error) && !options.force) {
        throw Failure(options.project + ": stands there already; --force writes over it");
    }
}

// The name of the texts' file, where a project can hold it.
std::string TitleOf(const fs::path& texts)
{
    const std::string title = texts.stem().string();
    const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < 0x20 || ch == 0x7F; };
    const bool isShowable = GbkFromUtf8(title) && std::none_of(title.begin(), title.end(), isControl);
    return isShowable ? title : "import";
}

void Run(const Options& options, std::ostream& out)
{
    Choices choices;
    if (!options.grade.empty()) {
        choices.barGrade = options.grade.front();
        choices.stirrupGrade = options.grade.front();
    }
    choices.legs = options.legs;
    CheckTarget(options);
    const TextsFile file =
        ReadTextsFile(options.texts, options.encoding == "gbk" ? Encoding::Gbk : Encoding::Utf8);
    const std::vector<ImportedText> texts = ReadTexts(file, choices);
    PrintReport(out, options.texts, file, texts, choices, options.all);
    const Project project = ProjectOf(texts, TitleOf(options.texts));
    if (project.beams.empty() && project.walls.empty()) {
        out.flush();
        throw Failure(options.texts + ": holds no annotation that could be read; no project is written");
    }
    SaveProject(project, options.project);
    out << "\nwritten to " << options.project << ": " << project.beams.size() << " beams, "
        << project.walls.size() << " walls\n";
}

}  // namespace

void AddImportCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command = program.add_subcommand(
        "import", "Make a project out of annotation texts as drawings hold them, one a line");
    const auto options = std::make_shared<Options>();
    command
        ->add_option(
            "TEXTS", options->texts,
            "The texts: plain lines, or lines of kind, tab and text under\nthe heading kind<TAB>text")
        ->required();
    command->add_option("-o,--output", options->project, "The project to write")
        ->required()
        ->type_name("PROJECT");
    command->add_option("--encoding", options->encoding, "The texts' encoding")
        ->check(CLI::IsMember({"utf-8", "gbk"}))
        ->capture_default_str();
    command
        ->add_option("--grade", options->grade,
                     "Grade for signs that do not say one; without the option B for bars\n"
                     "and A for stirrups and wall bars, as in the tables")
        ->check(CLI::IsMember({"A", "B", "C", "D"}));
    command
        ->add_option("--legs", options->legs,
                     "Legs of stirrups that are written without; 0 leaves those unread")
        ->check(CLI::Range(0, 9))
        ->capture_default_str();
    command->add_flag("--force", options->force, "Write over a project that stands there already");
    command->add_flag("--all", options->all, "List every text with what became of it");
    command->callback([options, &out] { Run(*options, out); });
}

}  // namespace Desk
