// Writes a project so that only what was changed looks changed.
#include "desk/project/ProjectFile.h"

#include <algorithm>
#include <optional>
#include <type_traits>

#include "desk/project/Failure.h"
#include "desk/project/Progress.h"
#include "desk/project/ProjectFields.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

// Writers put a value into its place in the source; what is the same already stays as it was written,
// and what the source lacks is added only when it is not what a missing key stands for anyway.
void WriteText(const std::string& text, const char* key, Json& source)
{
    if (!text.empty() || source.contains(key)) {
        source[key] = text;
    }
}

template <class Owner>
void WriteAnnotations(const Owner& owner, Json& source)
{
    source["name"] = owner.name;  // also an empty one: every item has the key
    for (const Field field : FieldsOf(owner)) {
        const FieldRow& row = RowOf(field);
        WriteText(Annotation(owner, row), row.key, source);
    }
}

Json AsJson(int value) { return value; }
Json AsJson(double value)
{
    const bool whole = std::trunc(value) == value && std::abs(value) <= PlanLimit;
    return whole ? Json(static_cast<std::int64_t>(value)) : Json(value);
}
Json AsJson(const PlanPoint& point) { return Json::array({AsJson(point.x), AsJson(point.y)}); }

// Always written where nothing says what a missing key stands for.
template <class Value>
void WriteValue(const Value& value, const char* key, std::optional<Value> told, Json& source)
{
    if (const Json* const present = Member(source, key)) {
        told.emplace();
        static_cast<void>(TakeValue(*present, -PlanLimit, PlanLimit, *told));
    }
    if (!told || AsJson(*told) != AsJson(value)) {
        source[key] = AsJson(value);
    }
}

template <class Owner, class Value, std::size_t Count>
void WriteData(const Owner& owner, const DataField<Owner, Value> (&fields)[Count], Json& source)
{
    for (const DataField<Owner, Value>& field : fields) {
        WriteValue(owner.*field.member, field.key, std::optional(Owner().*field.member), source);
    }
}

// The lengths that the source has already; a beam without the key has none.
std::vector<double> SpansIn(const Json& source)
{
    std::vector<double> spans;
    if (const Json* const list = Member(source, "spans"); list != nullptr && list->is_array()) {
        for (const Json& length : *list) {
            static_cast<void>(JsonNumber(length, spans.emplace_back()));
        }
    }
    return spans;
}

Json Kept(const InFile& inFile) { return inFile != nullptr ? inFile->json : Json::object(); }

template <class Item>
void WriteList(const std::vector<Item>& items, Json& list);

Json Written(const InPlace& text)
{
    Json source = Kept(text.inFile);
    source["role"] = RowOf(text.role).key;
    WriteValue(text.number, NumberOf(text.role).key, {}, source);
    source["text"] = text.text;
    WriteData(text, InPlacePoints, source);
    WriteData(text.place, PlacePoints, source);
    WriteData(text.place, PlaceNumbers, source);
    return source;
}

Json Written(const Beam& beam)
{
    Json source = Kept(beam.inFile);
    WriteAnnotations(beam, source);
    for (const TextField<Beam>& field : BeamTexts) {
        WriteText(beam.*field.member, field.key, source);
    }
    WriteData(beam, BeamNumbers, source);
    Json area = source.value("area", Json::object());
    WriteData(beam.area, AreaNumbers, area);
    if (!area.empty()) {
        source["area"] = std::move(area);
    }
    WriteData(beam, BeamPoints, source);
    WriteData(beam, BeamLengths, source);
    if (SpansIn(source) != beam.spans) {
        source["spans"] = Json::array();
        std::transform(beam.spans.begin(), beam.spans.end(), std::back_inserter(source["spans"]),
                       [](double length) { return AsJson(length); });
    }
    if (!beam.inPlace.empty() || source.contains("inPlace")) {
        WriteList(beam.inPlace, source["inPlace"]);
    }
    return source;
}

Json Written(const Wall& wall)
{
    Json source = Kept(wall.inFile);
    WriteAnnotations(wall, source);
    WriteData(wall, WallNumbers, source);
    WriteData(wall, WallPoints, source);
    return source;
}

template <class Item>
void WriteList(const std::vector<Item>& items, Json& list)
{
    list = Json::array();
    for (const Item& item : items) {
        if constexpr (std::is_same_v<Item, Beam>) {
            TellProgress(list.size(), items.size());
        }
        list.push_back(Written(item));
    }
}

void WritePointed(const std::map<std::string, PlanPoint>& pointed, Json& source)
{
    if (pointed.empty() && !source.contains("pointed")) {
        return;
    }
    Json kept = Json::object();
    source["pointed"].swap(kept);
    Json& now = source["pointed"] = Json::object();
    for (const auto& [handle, at] : kept.items()) {
        if (pointed.contains(handle)) {
            now[handle] = at;
        }
    }
    for (const auto& [handle, at] : pointed) {
        WriteValue(at, handle.c_str(), {}, now);
    }
}

// Axes are made with the project and kept by the file afterwards.
void WriteAxes(const Project& project, Json& source)
{
    if (source.contains("axes")) {
        return;
    }
    const std::pair<const char*, const std::vector<Axis>*> all[] = {{"x", &project.axesAcross},
                                                                    {"y", &project.axesUp}};
    for (const auto& [direction, axes] : all) {
        for (const Axis& axis : *axes) {
            source["axes"][direction][axis.label] = AsJson(axis.at);
        }
    }
}

}  // namespace

InFile DrawnInFile(const std::string& drawn, std::size_t line)
{
    Json json = {{"name", ""}, {"drawn", drawn}, {"line", line}};
    return std::make_shared<const FileObject>(FileObject{std::move(json)});
}

std::string FormatProject(const Project& project)
{
    Json source = Kept(project.inFile);
    if (!source.contains("version")) {
        source["version"] = FormatVersion;
    }
    for (const TextField<Project>& field : ProjectTexts) {
        WriteText(project.*field.member, field.key, source);
    }
    WriteAxes(project, source);
    WriteList(project.beams, source["beams"]);
    WriteList(project.walls, source["walls"]);
    WritePointed(project.pointed, source);
    if (!project.checksOff.empty() || source.contains("checksOff")) {
        source["checksOff"] = project.checksOff;
    }
    try {
        return WriteJson(source);
    } catch (const nlohmann::json::exception&) {
        throw Failure(Phrase("Desk", "a text of the project is not UTF-8"));
    }
}

void SaveProject(const Project& project, const std::filesystem::path& file)
{
    const std::string text = FormatProject(project);
    // What could not be read again must not take the place of a good file.
    if (text.size() > MaxFileSize) {
        throw Failure(Phrase("Desk", "%1: cannot be saved: the project is longer than the %2 MiB that are "
                                     "read again"),
                      file.string(), std::to_string(MaxFileSize >> 20U));
    }
    static_cast<void>(ParseProject(text, "the project that is to become " + file.string()));
    ReplaceFile(file, text);
}

}  // namespace Desk
