#include "desk/drawing/ExportFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

#include "desk/project/Encoding.h"

namespace Desk {

namespace {

struct ExportLayer {
    const char* name;
    int colour;
    const char* lineType;
};
constexpr ExportLayer ExportLayers[] = {
    {"0", 7, "CONTINUOUS"},           {"BEAM", 3, "CONTINUOUS"}, {"BEAM_TEXT_X", 7, "CONTINUOUS"},
    {"BEAM_TEXT_Y", 7, "CONTINUOUS"}, {"AXIS", 1, "CENTER"},     {"WALL", 8, "CONTINUOUS"},
};
constexpr double TextWidth = 0.7;

void WritePair(std::string& out, int code, std::string_view value)
{
    const std::string number = std::to_string(code);
    out.append(number.size() < 3 ? 3 - number.size() : 0, ' ').append(number) += "\r\n";
    out.append(value) += "\r\n";
}

void WritePair(std::string& out, int code, int value) { WritePair(out, code, std::to_string(value)); }

// To a tenth of a micrometre, without zeros at the end but with one decimal at least.
void WritePair(std::string& out, int code, double value)
{
    char buffer[64];
    const auto [end, error] =
        std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::fixed, 4);
    std::string_view text(buffer, error == std::errc() ? static_cast<std::size_t>(end - buffer) : 0);
    while (text.ends_with('0') && !text.ends_with(".0")) {
        text.remove_suffix(1);
    }
    WritePair(out, code, text.empty() || text == "-0.0" ? "0.0" : text);
}

std::string Hexadecimal(unsigned number)
{
    char buffer[16];
    const auto [end, error] = std::to_chars(std::begin(buffer), std::end(buffer), number, 16);
    std::string text(buffer, end);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char ch) { return ch >= 'a' ? static_cast<char>(ch - 'a' + 'A') : ch; });
    return text;
}

std::uint32_t CodePoint(std::string_view character)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(character[i]); };
    constexpr std::uint32_t Lead[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    std::uint32_t code = byte(0) & Lead[character.size()];
    for (std::size_t i = 1; i < character.size(); ++i) {
        code = code << 6U | (byte(i) & 0x3FU);
    }
    return code;
}

// GBK bytes; what GBK lacks is escaped, as two halves where it needs more than four digits.
std::string DxfBytes(std::string_view text)
{
    std::string bytes;
    const auto escape = [&](std::uint32_t code) {
        std::string digits = Hexadecimal(code);
        bytes += "\\U+" + std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits;
    };
    while (!text.empty()) {
        const std::size_t length = Utf8Length(text);
        const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
        const bool isControl = static_cast<unsigned char>(character.front()) < 0x20;
        if (length == 0 || isControl) {
            bytes += length == 0 ? '?' : ' ';
        } else if (const std::optional<CString> gbk = GbkFromUtf8(character)) {
            bytes += static_cast<const char*>(*gbk);
        } else if (const std::uint32_t code = CodePoint(character); code < 0x10000) {
            escape(code);
        } else {
            escape(0xD800 + ((code - 0x10000) >> 10U));
            escape(0xDC00 + ((code - 0x10000) & 0x3FFU));
        }
        text.remove_prefix(character.size());
    }
    return bytes;
}

void Table(std::string& out, const char* name, int rows)
{
    WritePair(out, 0, "TABLE");
    WritePair(out, 2, name);
    WritePair(out, 70, rows);
}

void AddLineTypes(std::string& out)
{
    Table(out, "LTYPE", 2);
    const auto add = [&](const char* name, const char* shown, std::initializer_list<double> strokes) {
        WritePair(out, 0, "LTYPE");
        WritePair(out, 2, name);
        WritePair(out, 70, 0);
        WritePair(out, 3, shown);
        WritePair(out, 72, 65);
        WritePair(out, 73, static_cast<int>(strokes.size()));
        double length = 0.0;
        for (const double stroke : strokes) {
            length += std::abs(stroke);
        }
        WritePair(out, 40, length);
        for (const double stroke : strokes) {
            WritePair(out, 49, stroke);
        }
    };
    add("CONTINUOUS", "Solid line", {});
    add("CENTER", "____ _ ____", {1250.0, -250.0, 250.0, -250.0});
    WritePair(out, 0, "ENDTAB");
}

void AddLayers(std::string& out)
{
    Table(out, "LAYER", static_cast<int>(std::size(ExportLayers)));
    for (const ExportLayer& layer : ExportLayers) {
        WritePair(out, 0, "LAYER");
        WritePair(out, 2, layer.name);
        WritePair(out, 70, 0);
        WritePair(out, 62, layer.colour);
        WritePair(out, 6, layer.lineType);
    }
    WritePair(out, 0, "ENDTAB");
}

void AddStyles(std::string& out)
{
    Table(out, "STYLE", 1);
    WritePair(out, 0, "STYLE");
    WritePair(out, 2, "STANDARD");
    WritePair(out, 70, 0);
    WritePair(out, 40, 0.0);
    WritePair(out, 41, TextWidth);
    WritePair(out, 50, 0.0);
    WritePair(out, 71, 0);
    WritePair(out, 42, 300.0);
    WritePair(out, 3, "txt");
    WritePair(out, 4, "gbcbig");
    WritePair(out, 0, "ENDTAB");
}

}  // namespace

void ExportFile::Line(const char* layer, const PlanLine& line)
{
    Begin("LINE", layer);
    Point(0, line.from);
    Point(1, line.to);
    Span(line.from, 0.0);
    Span(line.to, 0.0);
}

void ExportFile::Circle(const char* layer, const PlanPoint& middle, double radius)
{
    Begin("CIRCLE", layer);
    Point(0, middle);
    WritePair(m_entities, 40, radius);
    Span(middle, radius);
}

void ExportFile::Text(const char* layer, const PlanText& text, Anchor anchor)
{
    Begin("TEXT", layer);
    Point(0, text.place.at);
    WritePair(m_entities, 40, text.place.height);
    WritePair(m_entities, 1, DxfBytes(text.text));
    if (text.place.angle != 0.0) {
        WritePair(m_entities, 50, text.place.angle);
    }
    WritePair(m_entities, 41, TextWidth);
    WritePair(m_entities, 7, "STANDARD");
    if (anchor == Anchor::Middle) {
        WritePair(m_entities, 72, 1);
        WritePair(m_entities, 73, 2);
        Point(1, text.place.at);
    }
    Span(text.place.at, text.place.height);
}

std::string ExportFile::Finish() const
{
    std::string out;
    const auto variable = [&](const char* name, int code, auto value) {
        WritePair(out, 9, name);
        WritePair(out, code, value);
    };
    const auto section = [&](const char* name) {
        WritePair(out, 0, "SECTION");
        WritePair(out, 2, name);
    };
    const auto corner = [&](const char* name, const PlanPoint& point) {
        variable(name, 10, point.x);
        WritePair(out, 20, point.y);
        WritePair(out, 30, 0.0);
    };
    section("HEADER");
    variable("$ACADVER", 1, "AC1009");
    variable("$DWGCODEPAGE", 3, "ANSI_936");
    corner("$EXTMIN", m_least);
    corner("$EXTMAX", m_most);
    variable("$HANDLING", 70, 1);
    variable("$HANDSEED", 5, Hexadecimal(m_handle));
    WritePair(out, 0, "ENDSEC");
    section("TABLES");
    AddLineTypes(out);
    AddLayers(out);
    AddStyles(out);
    WritePair(out, 0, "ENDSEC");
    section("BLOCKS");
    WritePair(out, 0, "ENDSEC");
    section("ENTITIES");
    out += m_entities;
    WritePair(out, 0, "ENDSEC");
    WritePair(out, 0, "EOF");
    return out;
}

void ExportFile::Begin(const char* type, const char* layer)
{
    WritePair(m_entities, 0, type);
    WritePair(m_entities, 5, Hexadecimal(m_handle++));
    WritePair(m_entities, 8, layer);
}

// Codes 10 and 20 for the first point of an entity, 11 and 21 for the second.
void ExportFile::Point(int number, const PlanPoint& point)
{
    WritePair(m_entities, 10 + number, point.x);
    WritePair(m_entities, 20 + number, point.y);
    WritePair(m_entities, 30 + number, 0.0);
}

void ExportFile::Span(const PlanPoint& point, double around)
{
    const PlanPoint least{point.x - around, point.y - around};
    const PlanPoint most{point.x + around, point.y + around};
    m_least = m_isEmpty ? least : PlanPoint{std::min(m_least.x, least.x), std::min(m_least.y, least.y)};
    m_most = m_isEmpty ? most : PlanPoint{std::max(m_most.x, most.x), std::max(m_most.y, most.y)};
    m_isEmpty = false;
}

}  // namespace Desk
