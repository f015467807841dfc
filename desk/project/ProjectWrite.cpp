// Writes a project so that only what was changed looks changed.
#include "desk/project/ProjectFile.h"

#include "desk/project/Failure.h"
#include "desk/project/ProjectFields.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

// Writers put a value into its place in the source; what is the same already stays as it was written,
// and what the source lacks is added only when it is not what a missing key stands for anyway.
template <class Owner, std::size_t Count>
void WriteTexts(const Owner& owner, const TextField<Owner> (&fields)[Count], Json& source)
{
    for (const TextField<Owner>& field : fields) {
        const std::string& text = owner.*field.member;
        if (!text.empty() || source.contains(field.key)) {
            source[field.key] = text;
        }
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

Json Written(const Beam& beam)
{
    Json source = beam.source;
    source["name"] = beam.name;
    WriteTexts(beam, BeamTexts, source);
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
    Json source = wall.source;
    source["name"] = wall.name;
    WriteTexts(wall, WallTexts, source);
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

std::string FormatProject(const Project& project)
{
    Json source = project.source;
    if (!source.contains("version")) {
        source["version"] = FormatVersion;
    }
    WriteTexts(project, ProjectTexts, source);
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
