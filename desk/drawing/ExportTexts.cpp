#include "desk/drawing/ExportTexts.h"

#include <string_view>

#include "desk/project/Encoding.h"

namespace Desk {

namespace {

bool IsDecimal(char ch) { return ch >= '0' && ch <= '9'; }

std::size_t Columns(std::string_view text)
{
    std::size_t columns = 0;
    while (!text.empty()) {
        const std::size_t length = std::max<std::size_t>(Utf8Length(text), 1);
        columns += length > 1 ? 2 : 1;
        text.remove_prefix(length);
    }
    return columns;
}

DrawnLine PlainLine(const std::string& text) { return {text, Columns(text)}; }

// A grade letter follows a count, a head or a joint, and a diameter follows it.
DrawnLine GradedLine(const std::string& text)
{
    DrawnLine line{{}, Columns(text)};
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char ch = text[i];
        const bool isGrade = ch >= 'A' && ch <= 'D' && i + 1 < text.size() && IsDecimal(text[i + 1]) &&
                             (i == 0 || IsDecimal(text[i - 1]) ||
                              std::string_view("GN*+;/( ").find(text[i - 1]) != std::string_view::npos);
        line.text += isGrade ? "%%" + std::to_string(130 + (ch - 'A')) : std::string(1, ch);
    }
    return line;
}

bool IsOfBars(Role role) { return role != Role::Section && role != Role::Elevation; }

}  // namespace

std::vector<DrawnLine> LabelLines(const Beam& beam)
{
    std::vector<DrawnLine> lines;
    const bool hasBoth = !beam.name.empty() && !beam.section.empty();
    if (const std::string first = beam.name + (hasBoth ? " " : "") + beam.section; !first.empty()) {
        lines.push_back(PlainLine(first));
    }
    const std::string erection = beam.erection.empty() ? "" : "+(" + beam.erection + ")";
    const std::string bottom = beam.bottomBars.empty() ? "" : ";" + beam.bottomBars;
    for (const std::string& text :
         {beam.stirrup, beam.topBars + erection + bottom, beam.side, beam.torsion}) {
        if (!text.empty()) {
            lines.push_back(GradedLine(text));
        }
    }
    if (!beam.elevation.empty()) {
        lines.push_back(PlainLine(beam.elevation));
    }
    return lines;
}

std::vector<InPlaceLine> TextsInPlace(const Beam& beam, std::size_t supports)
{
    std::vector<InPlaceLine> lines;
    const auto add = [&](Role role, int number, const std::string& text) {
        if (!text.empty()) {
            lines.push_back({role, number, IsOfBars(role) ? GradedLine(text) : PlainLine(text)});
        }
    };
    add(Role::TopSupport, 1, beam.leftEnd);
    add(Role::TopSupport, static_cast<int>(supports), beam.rightEnd);
    for (const InPlace& text : beam.inPlace) {
        add(text.role, text.number, text.text);
    }
    return lines;
}

}  // namespace Desk
