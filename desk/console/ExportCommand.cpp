// beamdesk export: a project as a drawing, or a plan as PDF or SVG.
#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/ImportReport.h"
#include "desk/console/Options.h"
#include "desk/drawing/Drawing.h"
#include "desk/drawing/Export.h"
#include "desk/plan/PlanFile.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

namespace fs = std::filesystem;

struct ExportOptions {
    std::string file;
    std::string target;
    double scale = 100.0;
    bool force = false;
};

void RequireFree(const fs::path& target, const ExportOptions& options)
{
    std::error_code error;
    if (!options.file.empty() && fs::equivalent(PathOf(options.file), target, error)) {
        throw Failure(target.string() + ": the export would replace what is exported");
    }
    if (fs::is_directory(target, error)) {
        throw Failure(target.string() + ": a folder; -o needs a file name");
    }
    if (fs::exists(target, error) && !options.force) {
        throw Failure(target.string() + ": already exists; --force replaces it");
    }
}

// An old companion would go with the new drawing.
void WriteDrawing(const Project& project, const ExportOptions& options, std::ostream& out)
{
    const fs::path companion = CompanionFile(PathOf(options.target));
    RequireFree(companion, options);
    const bool hasCompanion = ExportDrawing(project, PathOf(options.target));
    out << "written to " << options.target << ": " << Plural(project.beams.size(), "beam") << ", "
        << Plural(project.walls.size(), "wall") << '\n';
    if (hasCompanion) {
        out << "what a drawing cannot hold is in " << companion.string() << '\n';
    }
}

void RunExport(const ExportOptions& options, std::ostream& out)
{
    RequireFree(PathOf(options.target), options);
    const Opened opened = OpenInput(options.file);
    const std::string kind = LowerCaseExtension(options.target);
    if (kind == ".dxf" && opened.drawing) {
        throw Failure(options.file + ": a drawing already; copy the file");
    }
    if (kind == ".dxf") {
        WriteDrawing(opened.project, options, out);
    } else {
        const std::optional<Backdrop> behind =
            opened.drawing ? std::optional(opened.drawing->BehindWithOpenTexts()) : std::nullopt;
        WritePlan(opened.project, behind ? &*behind : nullptr, PathOf(options.target), options.scale);
        out << "written to " << options.target << '\n';
    }
}

std::string CheckTarget(const std::string& target)
{
    const std::string kind = LowerCaseExtension(target);
    const bool isKnown = kind == ".dxf" || kind == ".pdf" || kind == ".svg";
    return isKnown ? "" : "\"" + target + "\" does not end in .dxf, .pdf or .svg";
}

}  // namespace

void AddExportCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command =
        program.add_subcommand("export", "Write a project as a drawing, or a plan as PDF or SVG");
    const auto options = std::make_shared<ExportOptions>();
    command
        ->add_option("FILE", options->file,
                     "Project or drawing (.json, .dxf), - for standard input. Default: the embedded sample")
        ->type_name("");
    command->add_option("-o,--output", options->target, "File to write: .dxf, .pdf or .svg")
        ->required()
        ->type_name("FILE")
        ->check(CheckTarget);
    command->add_option("--scale", options->scale, "Scale 1:N of a PDF or SVG. Default 100")
        ->type_name("N")
        ->check(Decimal(1, 10'000));
    command->add_flag("--force", options->force, "Replace an existing file");
    command->footer(
        "A drawing is an ASCII DXF that other programs open: labels with their leaders, texts in place,\n"
        "outlines, walls and axes. Required areas, concrete grades and the like go to a companion file\n"
        "beside it. PDF and SVG take the smallest paper that the plan fits on.\n\n"
        "Examples:\n  beamdesk export tower.json -o tower.dxf\n"
        "  beamdesk export floor.dxf -o floor.pdf --scale 150");
    command->callback([options, &out] { RunExport(*options, out); });
}

}  // namespace Desk
