// beamdesk table: the rows of the reference tables for a beam.
#include "desk/console/Commands.h"

#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/ranking/Tables.h"

namespace Desk {

namespace {

using Json = nlohmann::ordered_json;

struct TableOptions {
    int width = 0;
    int area = 0;
    std::string top;
    int grade = 0;
    int seismicClass = 0;
    bool json = false;
};

// A titled part of an answer.
struct Section {
    std::string title;
    const char* key;
    TableAnswer answer;
};

void PrintSectionsJson(Json answer, const std::vector<Section>& sections, std::ostream& out)
{
    for (const Section& section : sections) {
        answer[section.key] = section.answer.texts;
        if (!section.answer.remark.empty()) {
            answer["remarks"][section.key] = section.answer.remark;
        }
    }
    PrintJson(answer, out);
}

// In columns, as many a line as a terminal holds; pairs stay together.
void PrintTexts(const std::vector<std::string>& texts, std::size_t step, std::ostream& out)
{
    constexpr int LineWidth = 76;
    int width = 0;
    for (const std::string& text : texts) {
        width = std::max(width, DisplayWidth(text) + 2);
    }
    const auto columns = static_cast<std::size_t>(std::max(1, LineWidth / std::max(width, 1)));
    const std::size_t perLine = std::max(step, columns / step * step);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const bool endsLine = i + 1 == texts.size() || (i + 1) % perLine == 0;
        out << (i % perLine == 0 ? "  " : "") << (endsLine ? texts[i] : PadRight(texts[i], width))
            << (endsLine ? "\n" : "");
    }
}

void PrintSections(const std::vector<Section>& sections, std::size_t step, std::ostream& out)
{
    const std::string& remark = sections.front().answer.remark;
    const auto isSame = [&remark](const Section& section) {
        return section.answer.texts.empty() && section.answer.remark == remark;
    };
    if (std::all_of(sections.begin(), sections.end(), isSame)) {
        out << '\n' << remark << '\n';
        return;
    }
    for (const Section& section : sections) {
        out << '\n' << section.title << '\n';
        PrintTexts(section.answer.texts, step, out);
        if (!section.answer.remark.empty()) {
            out << "  (" << section.answer.remark
                << (section.answer.isFromEnd ? "; these are from its nearer end" : "") << ")\n";
        }
    }
}

void PrintBars(const TableOptions& options, std::ostream& out)
{
    const int width = options.width;
    const int area = options.area;
    std::vector<Section> sections = {
        {"Top through bars", "top", BarsFor(width, area, BarColumn::Top)},
        {"Complete top bars", "complete", BarsFor(width, area, BarColumn::Complete)},
        {"Bottom bars", "bottom", BarsFor(width, area, BarColumn::Bottom)},
    };
    if (!options.top.empty()) {
        RequireBars(options.top);
        sections.push_back(
            {"Complete top bars on " + options.top, "completeOnTop", BarsOn(width, area, options.top)});
    }
    if (options.json) {
        PrintSectionsJson({{"table", "bars"}, {"width", width}, {"area", area}}, sections, out);
        return;
    }
    out << "Bar table, width " << width << " mm, area " << area << " mm²\n";
    PrintSections(sections, 1, out);
}

void PrintStirrups(const TableOptions& options, std::ostream& out)
{
    const std::vector<Section> sections = {
        {"Plain, and with a tight zone", "stirrups",
         StirrupsFor(options.width, options.grade, options.seismicClass)}};
    if (options.json) {
        PrintSectionsJson({{"table", "stirrups"},
                           {"width", options.width},
                           {"grade", options.grade},
                           {"seismic", options.seismicClass}},
                          sections, out);
        return;
    }
    out << "Stirrup table, width " << options.width << " mm, concrete grade " << options.grade
        << ", seismic class " << options.seismicClass << '\n';
    PrintSections(sections, 2, out);
}

}  // namespace

void AddTableCommand(CLI::App& program, std::ostream& out)
{
    CLI::App& table = *program.add_subcommand("table", "Look up a reference table");
    table.require_subcommand(1);
    table.footer("Examples:\n"
                 "  beamdesk table bars --width 300 --area 1000 --top 2B16\n"
                 "  beamdesk table stirrups --width 300 --grade 30 --seismic 3");

    const auto options = std::make_shared<TableOptions>();
    const auto addWidth = [&options](CLI::App& form) {
        form.add_option("--width", options->width, "Beam width in mm")
            ->type_name("MM")
            ->required()
            ->check(Whole(0, 100'000));
        form.add_flag("--json", options->json, "Print JSON for programs");
    };

    CLI::App& bars = *table.add_subcommand("bars", "Longitudinal bars by width and steel area");
    addWidth(bars);
    bars.add_option("--area", options->area, "Required steel area in mm²")
        ->type_name("MM2")
        ->required()
        ->check(Whole(0, 1'000'000));
    bars.add_option("--top", options->top, "Through bars that are already known, such as 2B16")
        ->type_name("BARS");
    bars.footer("Examples:\n"
                "  beamdesk table bars --width 300 --area 1000\n"
                "  beamdesk table bars --width 300 --area 1000 --top 2B16");
    bars.callback([options, &out] { PrintBars(*options, out); });

    CLI::App& stirrups =
        *table.add_subcommand("stirrups", "Stirrups by width, concrete grade and seismic class");
    addWidth(stirrups);
    stirrups.add_option("--grade", options->grade, "Concrete grade: 20, 25, 30, 35 or 40")
        ->type_name("N")
        ->required()
        ->check(Whole(1, 1000));
    stirrups.add_option("--seismic", options->seismicClass, "Seismic class 1 to 4; 1 requires the most")
        ->type_name("N")
        ->required()
        ->check(Whole(1, 4));
    stirrups.footer("Example:\n  beamdesk table stirrups --width 300 --grade 30 --seismic 3");
    stirrups.callback([options, &out] { PrintStirrups(*options, out); });
}

}  // namespace Desk
