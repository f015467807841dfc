// beamdesk import: a project from a drawing, or from the texts of one.
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/ImportReport.h"
#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/drawing/Drawing.h"
#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"
#include "desk/reading/ImportTexts.h"

namespace Desk {

namespace {

namespace fs = std::filesystem;

struct ImportOptions {
    std::string texts;
    std::string project;
    std::string encoding = "utf-8";
    std::string grade;
    int legs = Choices().legs;
    bool force = false;
    bool all = false;
};

// Faults of the target file that can be found before the texts are read.
void CheckTarget(const ImportOptions& options)
{
    const fs::path target = PathOf(options.project);
    std::error_code error;
    if (fs::equivalent(PathOf(options.texts), target, error)) {
        throw Failure(options.project + ": the project would replace the texts");
    }
    if (fs::is_directory(target, error)) {
        throw Failure(options.project + ": a folder; -o needs a file name");
    }
    if (fs::exists(target, error) && !options.force) {
        throw Failure(options.project + ": already exists; --force replaces it");
    }
}

// Standard input is read at once, to see what it is.
struct Input {
    std::string name;  // for messages
    std::optional<std::string> bytes;
};

Input InputOf(const std::string& texts)
{
    if (texts != "-") {
        return {texts, std::nullopt};
    }
    return {"standard input", std::string(std::istreambuf_iterator<char>(std::cin), {})};
}

bool BeginsAsDrawing(std::istream& in)
{
    std::string code;
    std::string value;
    return in >> code >> value && code == "0" && value == "SECTION";
}

// By its ending, or because it begins as drawings do: with code 0 and a section.
bool IsDrawingFile(const Input& input)
{
    if (input.bytes) {
        std::istringstream in(input.bytes->substr(0, 1000));
        return BeginsAsDrawing(in);
    }
    const std::string kind = LowerCaseExtension(input.name);
    std::ifstream in(PathOf(input.name));
    return kind == ".dxf" || kind == ".dwg" || BeginsAsDrawing(in);
}

// Open texts are in no beam, so they are listed; the project has the others.
void ReportDrawing(const Drawing& drawing, const std::string& name, std::ostream& out)
{
    std::size_t open = 0;
    std::size_t inPlace = 0;
    for (const AnnotationText& text : drawing.Texts()) {
        open += text.open ? 1 : 0;
        inPlace += text.inPlace ? 1 : 0;
    }
    out << name << ": " << Plural(drawing.Texts().size(), "annotation text") << ", "
        << drawing.Texts().size() - inPlace << " in labels, " << inPlace << " in place; " << open
        << " open\n";
    for (const AnnotationText& text : drawing.Texts()) {
        if (text.open) {
            out << "  " << text.handle << " at " << Position(text.place.at) << ": " << Quoted(text.text)
                << ": " << text.open->English() << '\n';
        }
    }
}

// The report tells what was read; it comes after the project is written, and tells no success before.
void Finish(const Project& project, bool isEmpty, const char* none, const std::string& name,
            const std::function<void()>& report, const ImportOptions& options, std::ostream& out)
{
    if (isEmpty) {
        report();
        out.flush();
        throw Failure(name + ": " + none + "; no project is written");
    }
    SaveProject(project, PathOf(options.project));
    report();
    out << "\nwritten to " << options.project << ": " << Plural(project.beams.size(), "beam") << ", "
        << Plural(project.walls.size(), "wall") << "\n";
}

void ImportDrawing(const Input& input, const ImportOptions& options, std::ostream& out)
{
    const Drawing drawing =
        input.bytes ? Drawing::Parse(*input.bytes, input.name) : Drawing::Read(PathOf(input.name));
    const Project& project = drawing.Get();
    Finish(
        project, project.beams.empty(), "no beam's label could be read", input.name,
        [&] { ReportDrawing(drawing, input.name, out); }, options, out);
}

void ImportTexts(const Input& input, const ImportOptions& options, std::ostream& out)
{
    Choices choices;
    if (!options.grade.empty()) {
        choices.barGrade = options.grade.front();
        choices.stirrupGrade = options.grade.front();
    }
    choices.legs = options.legs;
    const Encoding encoding = options.encoding == "gbk" ? Encoding::Gbk : Encoding::Utf8;
    const TextsFile file = input.bytes ? ParseTexts(*input.bytes, input.name, encoding)
                                       : ReadTextsFile(PathOf(input.name), encoding);
    const std::vector<ImportedText> texts = ReadTexts(file, choices);
    const Project project = ProjectOf(texts, TitleFor(PathOf(input.bytes ? "import" : options.texts)));
    Finish(
        project, project.beams.empty() && project.walls.empty(), "no annotation could be read", input.name,
        [&] { PrintReport(out, input.name, file, texts, choices, options.all); }, options, out);
}

void RunImport(const ImportOptions& options, const std::vector<CLI::Option*>& ofTexts, std::ostream& out)
{
    CheckTarget(options);
    const Input input = InputOf(options.texts);
    if (!IsDrawingFile(input)) {
        ImportTexts(input, options, out);
        return;
    }
    for (const CLI::Option* const option : ofTexts) {
        if (option->count() > 0) {
            throw CLI::ValidationError(option->get_name() + " is for files of texts, not for drawings");
        }
    }
    ImportDrawing(input, options, out);
}

}  // namespace

void AddImportCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command = program.add_subcommand(
        "import", "Make a project from a drawing, or from the texts of one, one a line");
    const auto options = std::make_shared<ImportOptions>();
    command->add_option("TEXTS", options->texts, "Drawing (.dxf), or file of texts; - reads standard input")
        ->required()
        ->type_name("");
    command->add_option("-o,--output", options->project, "Project file to write")
        ->required()
        ->type_name("FILE");
    std::vector<CLI::Option*> ofTexts;
    ofTexts.push_back(
        command->add_option("--encoding", options->encoding, "Encoding of the texts. Default utf-8")
            ->type_name("NAME")
            ->check(CLI::IsMember({"utf-8", "gbk"})));
    ofTexts.push_back(
        command
            ->add_option("--grade", options->grade,
                         "Grade, A to D, for grade signs that name none. Default B for bars and A for\n"
                         "stirrups and wall bars, as in the module's tables")
            ->type_name("LETTER")
            ->check(CLI::IsMember({"A", "B", "C", "D"})));
    ofTexts.push_back(
        command
            ->add_option("--legs", options->legs,
                         "Legs of stirrups that are written without legs; 0 leaves those unread. Default 2")
            ->type_name("N")
            ->check(Whole(0, 9)));
    command->add_flag("--force", options->force, "Replace an existing project");
    ofTexts.push_back(command->add_flag("--all", options->all, "List every text with what it was read as"));
    command->footer(
        "Beams of a drawing keep their positions, spans and texts in place; texts of which nothing tells\n"
        "the beam are listed.\n\n"
        "A file of texts has one text a line: plain lines, or lines of kind, tab and text below the\n"
        "heading \"kind<TAB>text\". Every text that is not read is listed with its line number.\n\n"
        "Examples:\n  beamdesk import floor.dxf -o floor.json\n"
        "  beamdesk import drawing.txt -o drawing.json\n"
        "  beamdesk import drawing.txt -o drawing.json --encoding gbk --grade C --force");
    command->callback([options, ofTexts, &out] { RunImport(*options, ofTexts, out); });
}

}  // namespace Desk
