// Writes a project so that only what was changed looks changed.
#include "desk/project/ProjectFile.h"

#include "desk/project/Failure.h"
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

template <class Owner, std::size_t Count>
void WriteNumbers(const Owner& owner, const NumberField<Owner> (&fields)[Count], Json& source)
{
    for (const NumberField<Owner>& field : fields) {
        const int number = owner.*field.member;
        const Json* const present = Member(source, field.key);
        const int told = present != nullptr ? WholeNumber(*present).value_or(0) : Owner().*field.member;
        if (told != number) {
            source[field.key] = number;
        }
    }
}

Json Coordinate(double value)
{
    const bool whole = std::trunc(value) == value && std::abs(value) <= PlanLimit;
    return whole ? Json(static_cast<std::int64_t>(value)) : Json(value);
}

template <class Owner, std::size_t Count>
void WritePoints(const Owner& owner, const PointField<Owner> (&fields)[Count], Json& source)
{
    for (const PointField<Owner>& field : fields) {
        const PlanPoint& point = owner.*field.member;
        const Json* const present = Member(source, field.key);
        const PlanPoint told = present != nullptr ? Point(*present).value_or(PlanPoint()) : PlanPoint();
        if (told.x != point.x || told.y != point.y) {
            source[field.key] = Json::array({Coordinate(point.x), Coordinate(point.y)});
        }
    }
}

Json Kept(const InFile& inFile) { return inFile != nullptr ? inFile->json : Json::object(); }

Json Written(const Beam& beam)
{
    Json source = Kept(beam.inFile);
    WriteAnnotations(beam, source);
    for (const TextField<Beam>& field : BeamTexts) {
        WriteText(beam.*field.member, field.key, source);
    }
    WriteNumbers(beam, BeamNumbers, source);
    Json area = source.value("area", Json::object());
    WriteNumbers(beam.area, AreaNumbers, area);
    if (!area.empty()) {
        source["area"] = std::move(area);
    }
    WritePoints(beam, BeamPoints, source);
    return source;
}

Json Written(const Wall& wall)
{
    Json source = Kept(wall.inFile);
    WriteAnnotations(wall, source);
    WriteNumbers(wall, WallNumbers, source);
    WritePoints(wall, WallPoints, source);
    return source;
}

template <class Item>
void WriteList(const std::vector<Item>& items, Json& list)
{
    list = Json::array();
    for (const Item& item : items) {
        list.push_back(Written(item));
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
    WriteList(project.beams, source["beams"]);
    WriteList(project.walls, source["walls"]);
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
