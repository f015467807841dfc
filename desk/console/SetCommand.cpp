// beamdesk set: one annotation of a project or drawing changed.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "desk/console/BeamWords.h"
#include "desk/console/Commands.h"
#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/drawing/Drawing.h"
#include "desk/project/Encoding.h"
#include "desk/project/FindBeam.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"
#include "desk/reading/Annotation.h"

namespace Desk {

namespace {

namespace fs = std::filesystem;

struct SetOptions {
    std::string project;
    std::string beam;
    std::string field;
    std::string text;
    std::string target;
    std::optional<PlanPoint> at;
    std::string handle;
};

void RequireText(const std::string& text)
{
    const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < 0x20 || ch == 0x7F; };
    if (std::any_of(text.begin(), text.end(), isControl)) {
        throw Failure("the text holds a control character");
    }
    if (!GbkFromUtf8(text)) {
        throw Failure("the text is no UTF-8 or holds a character that GBK does not have");
    }
}

// The annotation of a text in place that a word means: its role, or the field that serves it.
FieldRef RefInPlace(const AnnotationText& text, const SetOptions& options)
{
    for (std::size_t i = 0; i < text.refs.size(); ++i) {
        const bool isEnd = text.refs[i].field == Field::LeftEnd && options.field == "rightEnd";
        if (isEnd || options.field == text.roles[i] || options.field == RowOf(text.refs[i].field).key) {
            return text.refs[i];
        }
    }
    throw Failure("text " + text.handle + " " + Quoted(text.text) + " has no " + options.field +
                  "; it is " + Joined(text.roles, [](const std::string& role) { return role; }));
}

FieldRef RefByHandle(const Opened& opened, const SetOptions& options)
{
    if (!opened.drawing) {
        throw Failure(options.project + ": a project file; handles are those of a drawing");
    }
    const std::vector<AnnotationText>& texts = opened.drawing->Texts();
    const auto found = std::find_if(texts.begin(), texts.end(), [&](const AnnotationText& text) {
        return CLI::detail::to_lower(text.handle) == CLI::detail::to_lower(options.handle);
    });
    if (found == texts.end()) {
        throw Failure("no annotation has the handle " + options.handle +
                      "; \"beamdesk labels\" lists all of them");
    }
    if (found->refs.empty()) {
        throw Failure("text " + found->handle + " " + Quoted(found->text) +
                      " is open: " + (found->open ? found->open->English() : "it has no beam"));
    }
    const Beam& beam = opened.project.beams[found->refs.front().index];
    if (!options.beam.empty() && beam.name != FindBeam(opened.project, options.beam).name) {
        throw Failure("text " + found->handle + " belongs to beam " + beam.name + ", not to " +
                      options.beam);
    }
    return found->inPlace ? RefInPlace(*found, options)
                          : FieldOfBeam(opened, found->refs.front().index, RequireRow(options.field).field);
}

void RequireSameKind(const SetOptions& options, bool isDrawing)
{
    const std::string kind = LowerCaseExtension(options.target);
    if (isDrawing && kind == ".json") {
        throw Failure(options.target +
                      ": \"beamdesk import\" makes a project of a drawing; set writes a .dxf");
    }
    if (!isDrawing && kind == ".dxf") {
        throw Failure(options.target +
                      ": \"beamdesk export\" makes a drawing of a project; set writes a .json");
    }
}

void Save(const Opened& opened, const Project& project, bool isChanged, const SetOptions& options)
{
    const fs::path target = PathOf(options.target.empty() ? options.project : options.target);
    if (!isChanged && options.target.empty()) {
        return;
    }
    if (opened.drawing) {
        opened.drawing->Save(project, target);
    } else if (isChanged) {
        SaveProject(project, target);
    } else {
        ReplaceFile(target, ReadWholeFile(PathOf(options.project)));
    }
}

void RunSet(const SetOptions& options, std::ostream& out)
{
    if (options.beam.empty() && options.handle.empty()) {
        throw CLI::RequiredError("--beam NAME or --handle H");
    }
    RequireText(options.text);
    const Opened opened = OpenFile(PathOf(options.project));
    RequireSameKind(options, opened.drawing.has_value());
    const FieldRef ref = options.handle.empty()
                             ? FieldOfBeam(opened, BeamNamed(opened.project, options.beam, options.at),
                                           RequireRow(options.field).field)
                             : RefByHandle(opened, options);
    Project project = opened.project;
    const std::string before = TextAt(project, ref);
    TextAt(project, ref) = options.text;
    Save(opened, project, before != options.text, options);

    const std::string name = opened.project.beams[ref.index].name;
    out << name << ' ' << options.field << ": " << Visible(before)
        << (before == options.text ? ", as it is" : " -> " + Visible(options.text)) << '\n';
    if (!IsOfField(options.text, ref.field)) {
        out.flush();
        std::cerr << "note: " << Quoted(options.text) << " is not what " << options.field
                  << " texts look like; it was written all the same\n";
    }
}

std::optional<PlanPoint> ReadPosition(const std::string& text)
{
    PlanPoint at;
    const char* const end = text.data() + text.size();
    const auto [comma, first] = std::from_chars(text.data(), end, at.x);
    if (first != std::errc() || comma == end || *comma != ',') {
        return std::nullopt;
    }
    const auto [stop, second] = std::from_chars(comma + 1, end, at.y);
    const bool isGood = second == std::errc() && stop == end && std::isfinite(at.x) && std::isfinite(at.y);
    return isGood ? std::optional(at) : std::nullopt;
}

}  // namespace

void AddSetCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command =
        program.add_subcommand("set", "Change one annotation of a beam in a project or drawing");
    const auto options = std::make_shared<SetOptions>();
    command->add_option("--project", options->project, "Project or drawing (.json, .dxf)")
        ->required()
        ->type_name("FILE");
    command->add_option("--beam", options->beam, "Name of the beam, with or without its spans")
        ->type_name("NAME");
    command->add_option("FIELD", options->field, "Which annotation, see below")->required()->type_name("");
    command->add_option("TEXT", options->text, "The new text; empty for none")->required()->type_name("");
    command->add_option("-o,--output", options->target, "File to write; without it the file itself")
        ->type_name("FILE");
    CLI::Option* const at =
        command
            ->add_option_function<std::string>(
                "--at",
                [options](const std::string& text) {
                    options->at = ReadPosition(text);
                    if (!options->at) {
                        throw CLI::ValidationError("--at: a position such as 8400,-1200 is required, not " +
                                                   Quoted(text));
                    }
                },
                "Of several beams of the name the one nearest to this position, in mm")
            ->type_name("X,Y");
    command
        ->add_option("--handle", options->handle,
                     "The beam of the label, or the text in place, with this handle in the drawing")
        ->type_name("H")
        ->excludes(at);
    command->footer(
        "FIELD is " + KeysOfBeams() +
        ";\nwith --handle of a text in place its role as well. A beam of several with the same name is the "
        "one\n"
        "whose label is written out. In a drawing every byte outside the changed text stays as it is.\n\n"
        "Examples:\n  beamdesk set --project floor.dxf --beam KL2 topBars 2B25\n"
        "  beamdesk set --project floor.dxf --handle 1A3 bottom 4C22 -o changed.dxf");
    command->callback([options, &out] { RunSet(*options, out); });
}

}  // namespace Desk
