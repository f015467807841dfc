#include "desk/drawing/Drawing.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <system_error>
#include <utility>

#include "desk/drawing/Parts.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"
#include "desk/reading/DrawingText.h"

namespace Desk {

namespace {

constexpr std::size_t LongestDrawing = std::size_t{1} << 30;  // bytes

// What the file beside a drawing holds; empty where there is none.
std::string CompanionText(const std::filesystem::path& file)
{
    const std::filesystem::path companion = CompanionFile(file);
    std::error_code unknown;
    return std::filesystem::exists(companion, unknown) ? ReadWholeFile(companion) : std::string();
}

}  // namespace

Drawing::Drawing(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}
Drawing::Drawing(Drawing&&) noexcept = default;
Drawing& Drawing::operator=(Drawing&&) noexcept = default;
Drawing::~Drawing() = default;

Drawing Drawing::Read(const std::filesystem::path& file)
{
    return Parse(ReadWholeFile(file, LongestDrawing), file.string(), CompanionText(file));
}

Drawing Drawing::Parse(std::string bytes, const std::string& name, std::string_view companion)
{
    return Drawing(ReadParts(std::move(bytes), name, companion));
}

const Project& Drawing::Get() const { return m_parts->project; }
const Backdrop& Drawing::Behind() const { return m_parts->behind; }

Backdrop Drawing::BehindWithOpenTexts() const
{
    Backdrop behind = Behind();
    for (const AnnotationText& text : Texts()) {
        if (text.open && text.inPlace) {
            behind.texts.push_back({ShowPlain(PlainText(text.text)), text.place});
        }
    }
    return behind;
}

const std::vector<AnnotationText>& Drawing::Texts() const { return m_parts->texts; }
std::string Drawing::Written(const Project& edited) const
{
    std::string bytes;
    bytes.reserve(m_parts->file.bytes.size());
    WriteEdited(*m_parts, edited, [&bytes](std::span<const std::string_view> pieces) {
        for (const std::string_view piece : pieces) {
            bytes += piece;
        }
    });
    return bytes;
}

std::string Drawing::CompanionOf(const Project& edited)
{
    Project kept;
    kept.title = edited.title;
    kept.walls = edited.walls;
    kept.axesAcross = edited.axesAcross;
    kept.axesUp = edited.axesUp;
    kept.pointed = edited.pointed;
    kept.checksOff = edited.checksOff;
    kept.inFile = edited.inFile;
    const Beam usual;
    const auto isUsual = [&usual](const Beam& beam) {
        const SteelArea& area = beam.area;
        return area.top == 0 && area.bottom == 0 && area.leftEnd == 0 && area.rightEnd == 0 &&
               beam.concreteGrade == usual.concreteGrade && beam.seismicClass == usual.seismicClass &&
               beam.floor.empty();
    };
    std::map<std::string, std::size_t> ofName;  // how many entries a name needs, so that each finds its own
    for (const Beam& beam : edited.beams) {
        ofName[beam.name] += isUsual(beam) ? 0 : 1;
    }
    for (const Beam& beam : edited.beams) {
        if (ofName[beam.name] == 0) {
            continue;
        }
        Beam& each = kept.beams.emplace_back();
        each.name = beam.name;
        each.area = beam.area;
        each.concreteGrade = beam.concreteGrade;
        each.seismicClass = beam.seismicClass;
        each.floor = beam.floor;
    }
    const bool isEmpty = kept.title.empty() && kept.walls.empty() && kept.axesAcross.empty() &&
                         kept.axesUp.empty() && kept.pointed.empty() && kept.checksOff.empty() &&
                         kept.beams.empty();
    return isEmpty ? std::string() : FormatProject(kept);
}

void Drawing::Save(const Project& edited, const std::filesystem::path& file) const
{
    WriteEdited(*m_parts, edited, [&](std::span<const std::string_view> pieces) {
        std::string companion = CompanionOf(edited);
        std::error_code error;
        const std::filesystem::path beside = CompanionFile(file);
        if (companion.empty() && std::filesystem::exists(beside, error)) {
            companion = FormatProject(Project());  // what it held is no longer so
        }
        if (!companion.empty()) {
            ReplaceFile(beside, companion);
        }
        const std::filesystem::path old = std::filesystem::canonical(file, error);
        if (!error) {
            KeepCopy(old, PathOf(old.string() + ".bak"));
        }
        ReplaceFile(file, pieces);
    });
}

std::optional<Drawing::Pointed> Drawing::PointTo(const Project& project, std::size_t text,
                                                 const PlanPoint& at) const
{
    const std::size_t line = m_parts->lineOf.at(text);
    if (m_parts->texts[text].inPlace) {
        std::map<std::size_t, PlanPoint> labels;
        for (std::size_t i = 0; i < m_parts->texts.size(); ++i) {
            const auto label = project.pointed.find(m_parts->texts[i].handle);
            for (std::size_t j = 0; label != project.pointed.end() && j < m_parts->found.labels.size();
                 ++j) {
                if (m_parts->found.labels[j].lines.front() == m_parts->lineOf[i]) {
                    labels.emplace(j, label->second);
                }
            }
        }
        const std::optional<OwnerText> owner = m_parts->owners->TextAt(line, at, labels);
        if (!owner) {
            return std::nullopt;
        }
        Pointed pointed{*owner->beam, project.beams.at(*owner->beam), {}};
        pointed.ref = {false, pointed.beam, RowOf(owner->roles.front().role).field,
                       static_cast<int>(pointed.as.inPlace.size())};
        for (InPlace& each : InPlaceOf(*m_parts, text, *owner)) {
            pointed.as.inPlace.push_back(std::move(each));
        }
        return pointed;
    }
    for (std::size_t i = 0; i < m_parts->found.labels.size(); ++i) {
        if (m_parts->found.labels[i].lines.front() == line) {
            const std::optional<OwnerBeam> owner = m_parts->owners->BeamAt(i, at);
            if (!owner) {
                return std::nullopt;
            }
            Pointed pointed{i, project.beams.at(i), {false, i, Field::Name}};
            SetAxis(pointed.as, *owner, m_parts->file.unitScale);
            return pointed;
        }
    }
    return std::nullopt;
}

std::optional<Source> Drawing::Parts::SourceOf(const InPlace& text) const
{
    if (text.drawn < 0 || static_cast<std::size_t>(text.drawn) >= lineOf.size()) {
        return std::nullopt;
    }
    const std::size_t line = lineOf[static_cast<std::size_t>(text.drawn)];
    const std::vector<Annotation>& annotations = found.lines[line].annotations;
    const Field field = text.role == Role::TopSupport ? Field::TopBars : RowOf(text.role).field;
    // Bars below a beam are plain ones. Of several in one text it is the one that says the same.
    std::optional<Source> source;
    for (std::size_t i = 0; i < annotations.size(); ++i) {
        const bool isPlain = annotations[i].field == Field::TopBars && text.role == Role::Bottom;
        if (annotations[i].field != field && !isPlain) {
            continue;
        }
        if (annotations[i].text == text.text) {
            return Source{line, i};
        }
        source = source ? source : Source{line, i};
    }
    return source;
}

bool IsDrawing(std::string_view bytes)
{
    const std::size_t first = bytes.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    if (first == std::string_view::npos) {
        return false;
    }
    const std::string_view rest = bytes.substr(first);
    const auto isDigit = [](char ch) { return ch >= '0' && ch <= '9'; };
    const std::size_t digits =
        static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), isDigit) - rest.begin());
    const std::size_t code = rest.find_first_not_of(" \t", digits);
    const bool isPair = digits > 0 && digits <= 4 && code != std::string_view::npos &&
                        (rest[code] == '\n' || rest[code] == '\r');
    return isPair || rest.starts_with("AutoCAD Binary DXF") || rest.starts_with("AC10");
}

std::filesystem::path CompanionFile(const std::filesystem::path& file)
{
    return std::filesystem::path(file).replace_extension(".beamdesk.json");
}

Opened OpenFile(const std::filesystem::path& file)
{
    std::string bytes = ReadWholeFile(file, LongestDrawing);
    if (!IsDrawing(bytes)) {
        if (bytes.size() > MaxFileSize) {
            bytes = ReadWholeFile(file);  // says that it is too long
        }
        return {ParseProject(bytes, file.string()), std::nullopt};
    }
    Drawing drawing = Drawing::Parse(std::move(bytes), file.string(), CompanionText(file));
    Project project = drawing.Get();
    return {std::move(project), std::move(drawing)};
}

Opened OpenInput(const std::string& file)
{
    if (file.empty()) {
        return {SampleProject(), std::nullopt};
    }
    if (file != "-") {
        return OpenFile(PathOf(file));
    }
    const std::string name = "standard input";
    std::string bytes(std::istreambuf_iterator<char>(std::cin), {});
    if (!IsDrawing(bytes)) {
        return {ParseProject(bytes, name), std::nullopt};
    }
    Drawing drawing = Drawing::Parse(std::move(bytes), name);
    Project project = drawing.Get();
    return {std::move(project), std::move(drawing)};
}

Project OpenProject(const std::string& file) { return OpenInput(file).project; }

}  // namespace Desk
