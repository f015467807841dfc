#include "tests/drawing/Maker.h"

#include <cmath>
#include <cstdio>
#include <utility>

#include "desk/project/Encoding.h"

namespace Desk {

namespace {

constexpr PlanPoint Base{100, 50};  // of every block

PlanPoint Turned(const PlanPoint& point, double degrees, double scale)
{
    const double angle = degrees * std::acos(-1.0) / 180;
    return {scale * (point.x * std::cos(angle) - point.y * std::sin(angle)),
            scale * (point.x * std::sin(angle) + point.y * std::cos(angle))};
}

template <class... Values>
std::string Printed(const char* format, Values... values)
{
    char text[64];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }

std::string Sign(Spelling spelling, int grade)
{
    // Private characters have three bytes in UTF-8.
    const auto character = [grade](char second, int third) {
        return std::string{'\xEE', second, static_cast<char>(third + grade)};
    };
    const auto letter = static_cast<unsigned>(grade);
    switch (spelling) {
    case Spelling::Escape82: return Printed("\\U+%04X", 0x82U + letter);
    case Spelling::EscapeE000: return Printed("\\U+%04X", 0xE000U + letter);
    case Spelling::EscapeE530: return Printed("\\U+%04X", 0xE530U + letter);
    case Spelling::PrivateE000: return character('\x80', 0x80);
    case Spelling::PrivateE530: return character('\x94', 0xB0);
    case Spelling::Multibyte: return Printed("\\M+5A2%02X", 0x4AU + letter);
    default: return Printed("%%%%%d", 130 + grade);
    }
}

}  // namespace

DrawingMaker::DrawingMaker(const Shape& shape) : m_shape(shape) {}

bool DrawingMaker::IsModern() const { return std::string_view(m_shape.version) > "AC1009"; }

void DrawingMaker::Pair(int code, std::string_view value)
{
    m_pairs += Printed(m_shape.hasPaddedCodes ? "%3d" : "%d", code);
    m_pairs += m_shape.lineEnd;
    m_pairs += value;
    m_pairs += m_shape.lineEnd;
}

void DrawingMaker::Number(int code, double value) { Pair(code, Printed("%.9g", value)); }

double DrawingMaker::Turn() const
{
    double turn = 0.0;
    for (const Block& block : m_open) {
        turn += block.frame.angle;
    }
    return turn;
}

double DrawingMaker::Scale() const
{
    double scale = 1 / m_shape.scale;
    for (const Block& block : m_open) {
        scale *= block.frame.scale;
    }
    return scale;
}

void DrawingMaker::Point(int code, const PlanPoint& point)
{
    PlanPoint at{(point.x + m_shift.x) * m_shape.scale, (point.y + m_shift.y) * m_shape.scale};
    for (const auto& [name, frame, content] : m_open) {
        at = Turned({at.x - frame.at.x, at.y - frame.at.y}, -frame.angle, 1 / frame.scale);
        at = {at.x + Base.x, at.y + Base.y};
    }
    Number(code, std::round(at.x * 1e6) / 1e6);
    Number(code + 10, std::round(at.y * 1e6) / 1e6);
}

void DrawingMaker::Entity(const char* type, const std::string& layer, const char* subclass)
{
    Pair(0, type);
    ++m_handle;
    if (m_shape.hasHandles) {
        Pair(5, Handle());
    }
    if (IsModern()) {
        Pair(100, "AcDbEntity");
    }
    Pair(8, Encoded(layer));
    if (IsModern()) {
        Pair(100, subclass);
    }
}

std::string DrawingMaker::Handle() const { return Printed("%X", m_handle); }

std::string DrawingMaker::Spelled(const std::string& text)
{
    Spelling spelling = m_shape.spelling;
    if (spelling == Spelling::Mixed) {
        spelling = static_cast<Spelling>(m_texts % static_cast<unsigned>(Spelling::Mixed));
    }
    ++m_texts;
    std::string spelled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool follows = i == 0 || IsDigit(text[i - 1]) || text[i - 1] == ' ';
        const bool isGrade =
            text[i] >= 'A' && text[i] <= 'D' && follows && i + 1 < text.size() && IsDigit(text[i + 1]);
        spelled += isGrade ? Sign(spelling, text[i] - 'A') : text.substr(i, 1);
    }
    return spelled;
}

std::string DrawingMaker::Encoded(const std::string& text) const
{
    if (m_shape.isUtf8) {
        return text;
    }
    std::string bytes;
    for (std::size_t i = 0; i < text.size();) {
        const std::string one = text.substr(i, Utf8Length(std::string_view(text).substr(i)));
        i += one.size();
        if (one.size() == 3 && one[0] == '\xEE') {
            // Where GBK keeps these characters is no part of its table.
            const bool isFirst = one[1] == '\x80';
            bytes += isFirst ? '\xAA' : '\xA2';
            bytes += static_cast<char>(one[2] + (isFirst ? 0x21 : -0x66));
        } else {
            bytes += GbkFromUtf8(one).value().View();
        }
    }
    return bytes;
}

void DrawingMaker::TextValues(const TextPlace& place, const std::string& value)
{
    Point(10, place.at);
    Number(40, place.height / Scale());
    Pair(1, value);
    Number(50, std::round((place.angle - Turn()) * 1e6) / 1e6);
}

void DrawingMaker::Text(const TextPlace& place, const std::string& text, const std::string& layer)
{
    const std::string value = Encoded(Spelled(text));
    if (text.empty()) {
        ++m_handle;
        return;
    }
    Entity("TEXT", layer, "AcDbText");
    TextValues(place, value);
    if (IsModern()) {
        Pair(100, "AcDbText");
    }
}

void DrawingMaker::MText(const TextPlace& place, const std::vector<std::string>& lines,
                         const std::string& layer)
{
    constexpr std::size_t Longest = 250;
    Entity("MTEXT", layer, "AcDbMText");
    const PlanPoint up = Turned({0, place.height}, place.angle, 1);
    Point(10, {place.at.x + up.x, place.at.y + up.y});
    Number(40, place.height / Scale());
    Number(41, 0);
    Pair(71, "1");
    const bool hasCodes = m_shape.labels == LabelAs::MTextWithCodes;
    std::string value;
    for (const std::string& line : lines) {
        const std::string one = Encoded(Spelled(line));
        if (!line.empty()) {
            value += value.empty() ? "" : "\\P";
            value += hasCodes ? "{\\fSimSun|b0|i0|c134|p2;\\H1x;" + one + "}" : one;
        }
    }
    for (; value.size() > Longest; value.erase(0, Longest)) {
        Pair(3, value.substr(0, Longest));
    }
    Pair(1, value);
    Number(50, place.angle - Turn());
    Number(44, 0.65);
}

void DrawingMaker::Attributes(const std::vector<TextPlace>& places, const std::vector<std::string>& texts,
                              const std::string& layer)
{
    BeginBlock({});
    EndBlock();
    // The insert has been written without attributes: it gets the flag that they follow.
    Pair(66, "1");
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string value = Encoded(Spelled(texts[i]));
        if (texts[i].empty()) {
            ++m_handle;
            continue;
        }
        Entity("ATTRIB", layer, "AcDbText");
        TextValues(places[i], value);
        if (IsModern()) {
            Pair(100, "AcDbAttribute");
        }
        Pair(2, "LINE" + std::to_string(i));
        Pair(70, "0");
    }
    Pair(0, "SEQEND");
    ++m_handle;
    if (m_shape.hasHandles) {
        Pair(5, Handle());
    }
    if (IsModern()) {
        Pair(100, "AcDbEntity");
    }
    Pair(8, layer);
}

void DrawingMaker::Line(const PlanPoint& from, const PlanPoint& to, const std::string& layer)
{
    Entity("LINE", layer, "AcDbLine");
    Point(10, from);
    Point(11, to);
}

void DrawingMaker::Polyline(const std::vector<PlanPoint>& points, bool isClosed, const std::string& layer)
{
    if (m_shape.outlines == OutlineAs::LightPolylines) {
        Entity("LWPOLYLINE", layer, "AcDbPolyline");
        Pair(90, std::to_string(points.size()));
        Pair(70, isClosed ? "1" : "0");
        for (const PlanPoint& point : points) {
            Point(10, point);
        }
        return;
    }
    Entity("POLYLINE", layer, "AcDb2dPolyline");
    Pair(66, "1");
    Pair(10, "0");
    Pair(20, "0");
    Pair(70, isClosed ? "1" : "0");
    for (const PlanPoint& point : points) {
        Entity("VERTEX", layer, "AcDbVertex");
        if (IsModern()) {
            Pair(100, "AcDb2dVertex");
        }
        Point(10, point);
    }
    Entity("SEQEND", layer, "AcDbEntity");
}

void DrawingMaker::Circle(const PlanPoint& center, double radius, const std::string& layer)
{
    Entity("CIRCLE", layer, "AcDbCircle");
    Point(10, center);
    Number(40, radius / Scale());
}

void DrawingMaker::BeginBlock(const Insertion& frame)
{
    m_names.push_back("B" + std::to_string(m_names.size() + 1));
    m_open.push_back({m_names.back(), frame, std::exchange(m_pairs, {})});
}

void DrawingMaker::EndBlock(int columns, int rows, PlanPoint step)
{
    Block block = std::move(m_open.back());
    m_open.pop_back();
    const std::string content = std::exchange(m_pairs, {});
    Entity("BLOCK", "0", "AcDbBlockBegin");
    Pair(2, block.name);
    Pair(70, "0");
    Number(10, Base.x);
    Number(20, Base.y);
    Pair(3, block.name);
    Pair(1, "");
    m_pairs += content;
    Entity("ENDBLK", "0", "AcDbBlockEnd");
    m_blocks += m_pairs;

    m_pairs = std::move(block.content);
    Entity("INSERT", "0", "AcDbBlockReference");
    Pair(2, block.name);
    // A frame's place is one of the frame around it.
    Number(10, block.frame.at.x);
    Number(20, block.frame.at.y);
    Number(41, block.frame.scale);
    Number(42, block.frame.scale);
    Number(50, block.frame.angle);
    if (columns * rows > 1) {
        Pair(70, std::to_string(columns));
        Pair(71, std::to_string(rows));
        Number(44, step.x);
        Number(45, step.y);
    }
}

std::string DrawingMaker::Bytes() const
{
    DrawingMaker file(m_shape);
    file.m_handle = 0x10;
    const auto section = [&file](const char* name) {
        file.Pair(0, "SECTION");
        file.Pair(2, name);
    };
    section("HEADER");
    file.Pair(9, "$ACADVER");
    file.Pair(1, m_shape.version);
    file.Pair(9, "$DWGCODEPAGE");
    file.Pair(3, "ANSI_936");
    file.Pair(9, "$DIMLFAC");
    file.Number(40, 1 / m_shape.scale);
    if (m_shape.hasHandles) {
        file.Pair(9, "$HANDSEED");
        file.Pair(5, Printed("%X", m_handle + 1));
    }
    file.Pair(0, "ENDSEC");
    section("TABLES");
    file.Pair(0, "TABLE");
    file.Pair(2, "LAYER");
    file.Pair(70, std::to_string(m_hidden.size()));
    for (const std::string& layer : m_hidden) {
        file.Pair(0, "LAYER");
        if (IsModern()) {
            file.Pair(5, Printed("%X", ++file.m_handle));
            file.Pair(100, "AcDbSymbolTableRecord");
            file.Pair(100, "AcDbLayerTableRecord");
        }
        file.Pair(2, Encoded(layer));
        file.Pair(70, "0");
        file.Pair(62, "-7");
        file.Pair(6, "CONTINUOUS");
    }
    file.Pair(0, "ENDTAB");
    file.Pair(0, "ENDSEC");
    section("BLOCKS");
    file.m_pairs += m_blocks;
    file.Pair(0, "ENDSEC");
    section("ENTITIES");
    file.m_pairs += m_pairs;
    file.Pair(0, "ENDSEC");
    file.Pair(0, "EOF");
    return file.m_pairs;
}

}  // namespace Desk
