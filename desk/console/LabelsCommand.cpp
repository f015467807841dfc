// beamdesk labels: the annotations of a drawing, and which beam each belongs to.
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "desk/console/Commands.h"
#include "desk/console/ImportReport.h"
#include "desk/console/Print.h"
#include "desk/drawing/Drawing.h"

namespace Desk {

namespace {

using Json = nlohmann::ordered_json;

std::string BeamOf(const Project& project, const AnnotationText& text)
{
    return text.refs.empty() ? "" : project.beams.at(text.refs.front().index).name;
}

void PrintLabelsJson(const Drawing& drawing, std::ostream& out)
{
    Json texts = Json::array();
    for (const AnnotationText& text : drawing.Texts()) {
        texts.push_back(Json{{"handle", text.handle},
                             {"text", text.text},
                             {"inPlace", text.inPlace},
                             {"roles", text.roles},
                             {"beam", BeamOf(drawing.Get(), text)},
                             {"label", text.label},
                             {"open", text.open ? text.open->English() : ""},
                             {"at", {text.place.at.x, text.place.at.y}}});
    }
    PrintJson({{"texts", texts}}, out);
}

using Row = std::vector<std::string>;

void PrintLabels(const Drawing& drawing, std::ostream& out)
{
    std::vector<Row> rows{{"handle", "position", "role", "beam", "text"}};
    std::map<std::string, std::vector<Row>> open;  // by the reason
    std::size_t inPlace = 0;
    std::size_t count = 0;
    for (const AnnotationText& text : drawing.Texts()) {
        const Row row{text.handle, Position(text.place.at),
                      Joined(text.roles, [](auto& role) { return role; }), BeamOf(drawing.Get(), text),
                      text.text};
        inPlace += text.inPlace ? 1 : 0;
        if (text.open) {
            ++count;
            open[text.open->English()].push_back({text.handle, Position(text.place.at), text.text});
        } else {
            rows.push_back(row);
        }
    }
    PrintRows(rows, out);
    for (const auto& [reason, texts] : open) {
        out << "\nopen: " << reason << '\n';
        PrintRows(texts, out);
    }
    const std::size_t all = drawing.Texts().size();
    out << '\n'
        << Plural(drawing.Get().beams.size(), "beam") << ", " << Plural(all, "text") << ": "
        << all - inPlace << " in labels, " << inPlace << " in place; " << count << " open\n";
}

}  // namespace

void AddLabelsCommand(CLI::App& program, std::ostream& out)
{
    CLI::App* const command = program.add_subcommand(
        "labels", "List the annotations of a drawing with the beam that each belongs to");
    const auto file = std::make_shared<std::string>();
    const auto json = std::make_shared<bool>(false);
    command->add_option("FILE", *file, "The drawing; - reads standard input")->required()->type_name("");
    command->add_flag("--json", *json, "Print JSON for programs");
    command->footer(
        "Each text has its handle, its position in mm, its role and its beam. A text for which nothing\n"
        "tells for certain which beam it belongs to is open, and listed with the reason.\n\n"
        "Examples:\n  beamdesk labels floor.dxf\n  beamdesk labels floor.dxf --json");
    command->callback([file, json, &out] {
        const Opened opened = OpenInput(*file);
        if (!opened.drawing) {
            throw Failure(*file + ": a project file; labels are those of a drawing");
        }
        (*json ? PrintLabelsJson : PrintLabels)(*opened.drawing, out);
    });
}

}  // namespace Desk
