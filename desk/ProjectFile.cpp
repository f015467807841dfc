// The fields of the project's file, once for reading and writing.
#include "desk/ProjectFile.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "desk/Encoding.h"
#include "desk/Failure.h"
#include "desk/JsonText.h"
#include "desk/SafeFile.h"

namespace Desk {

namespace {

using Path = Json::json_pointer;

constexpr int FormatVersion = 1;
constexpr double PlanLimit = 1e9;  // mm, a thousand kilometres

// A text of the project: whether it goes to the module, which holds GBK, and must then have a GBK form.
template <class Owner>
struct TextField {
    const char* key;
    std::string Owner::*member;
    bool isAnnotation = true;
};

template <class Owner>
struct NumberField {
    const char* key;
    int Owner::*member;
    int least;
    int most;
};

template <class Owner>
struct PointField {
    const char* key;
    PlanPoint Owner::*member;
};

constexpr TextField<Project> ProjectTexts[] = {{"title", &Project::title, false}};

constexpr TextField<Beam> BeamTexts[] = {
    {"name", &Beam::name},       {"section", &Beam::section},   {"elevation", &Beam::elevation},
    {"stirrup", &Beam::stirrup}, {"topBars", &Beam::topBars},   {"bottomBars", &Beam::bottomBars},
    {"leftEnd", &Beam::leftEnd}, {"rightEnd", &Beam::rightEnd}, {"erection", &Beam::erection},
    {"torsion", &Beam::torsion}, {"side", &Beam::side},         {"floor", &Beam::floor, false},
};
constexpr NumberField<Beam> BeamNumbers[] = {
    {"concreteGrade", &Beam::concreteGrade, 10, 100},
    {"seismicClass", &Beam::seismicClass, 1, 4},
};
constexpr NumberField<SteelArea> AreaNumbers[] = {
    {"top", &SteelArea::top, 0, 1'000'000},
    {"bottom", &SteelArea::bottom, 0, 1'000'000},
    {"leftEnd", &SteelArea::leftEnd, 0, 1'000'000},
    {"rightEnd", &SteelArea::rightEnd, 0, 1'000'000},
};
constexpr PointField<Beam> BeamPoints[] = {{"start", &Beam::start}, {"end", &Beam::end}};

constexpr TextField<Wall> WallTexts[] = {
    {"name", &Wall::name},
    {"horizontalBars", &Wall::horizontalBars},
    {"verticalBars", &Wall::verticalBars},
};
constexpr NumberField<Wall> WallNumbers[] = {{"thickness", &Wall::thickness, 0, 10'000}};
constexpr PointField<Wall> WallPoints[] = {{"start", &Wall::start}, {"end", &Wall::end}};

std::string Kind(const Json& value)
{
    double number = 0.0;
    return JsonNumber(value, number) ? "a number"
           : value.is_string()       ? "a text"
           : value.is_array()        ? "a list"
           : value.is_object()       ? "an object"
           : value.is_null()         ? "null"
                                     : value.dump();
}

std::optional<int> WholeNumber(const Json& value)
{
    double number = 0.0;
    if (!JsonNumber(value, number) || std::trunc(number) != number || std::abs(number) > 1e9) {
        return std::nullopt;
    }
    return static_cast<int>(number);
}

std::optional<PlanPoint> Point(const Json& value)
{
    PlanPoint point;
    const bool good = value.is_array() && value.size() == 2 && JsonNumber(value[0], point.x) &&
                      JsonNumber(value[1], point.y) && std::abs(point.x) <= PlanLimit &&
                      std::abs(point.y) <= PlanLimit;
    return good ? std::optional(point) : std::nullopt;
}

const Json* Member(const Json& object, const char* key)
{
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

class Reader {
public:
    Reader(std::string_view text, const std::string& name) : m_text(text), m_name(name) {}

    Project Read()
    {
        Project project;
        try {
            project.source = ReadJson(m_text);
        } catch (const JsonFault& fault) {
            Fail(fault.Byte(), fault.what());
        }
        const Path root;
        RequireObject(project.source, root, "a project");
        ReadVersion(project.source);
        ReadTexts(project.source, root, ProjectTexts, project);
        ReadList(project.source, "beams", project.beams);
        ReadList(project.source, "walls", project.walls);
        return project;
    }

private:
    [[noreturn]] void Fail(std::size_t byte, const std::string& what) const
    {
        throw Failure(m_name + ":" + LineAndColumn(m_text, byte) + ": " + what);
    }
    [[noreturn]] void FailAt(const Path& path, const std::string& what) const
    {
        Fail(PlaceInJson(m_text, path), what);
    }
    [[noreturn]] void FailType(const Path& path, const char* wanted, const Json& found) const
    {
        FailAt(path, "\"" + path.back() + "\" must be " + wanted + ", here stands " + Kind(found));
    }

    void RequireObject(const Json& value, const Path& path, const char* what) const
    {
        if (!value.is_object()) {
            FailAt(path, std::string(what) + " must be an object, here stands " + Kind(value));
        }
    }

    void ReadVersion(const Json& source) const
    {
        const Json* const version = Member(source, "version");
        if (version == nullptr) {
            FailAt(Path(), "no \"version\" of the file format; this program reads version 1");
        }
        const std::optional<int> number = WholeNumber(*version);
        if (number != FormatVersion) {
            FailAt(Path() / "version", "this program reads \"version\" 1 of the file format, not " +
                                           (number ? std::to_string(*number) : Kind(*version)));
        }
    }

    template <class Item>
    void ReadList(Json& source, const char* key, std::vector<Item>& items) const
    {
        const auto list = source.find(key);
        if (list == source.end()) {
            return;
        }
        const Path path = Path() / key;
        if (!list->is_array()) {
            FailType(path, "a list", *list);
        }
        items.reserve(list->size());
        for (std::size_t i = 0; i < list->size(); ++i) {
            items.push_back(ReadItem<Item>(std::move((*list)[i]), path / i));
        }
        *list = Json::array();  // the items carry their own source
    }

    template <class Item>
    Item ReadItem(Json&& source, const Path& path) const;

    template <class Owner, std::size_t Count>
    void ReadTexts(const Json& source, const Path& path, const TextField<Owner> (&fields)[Count],
                   Owner& owner) const
    {
        for (const TextField<Owner>& field : fields) {
            if (const Json* const value = Member(source, field.key)) {
                owner.*field.member = ReadText(*value, path / field.key, field.isAnnotation);
            }
        }
    }

    std::string ReadText(const Json& value, const Path& path, bool isAnnotation) const
    {
        if (!value.is_string()) {
            FailType(path, "a text", value);
        }
        const auto& text = value.get_ref<const std::string&>();
        const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < 0x20 || ch == 0x7F; };
        if (std::any_of(text.begin(), text.end(), isControl)) {
            FailAt(path, "\"" + path.back() + "\" holds a control character");
        }
        if (isAnnotation && !GbkFromUtf8(text)) {
            FailAt(path, "\"" + path.back() + "\" holds a character that GBK does not have");
        }
        return text;
    }

    template <class Owner, std::size_t Count>
    void ReadNumbers(const Json& source, const Path& path, const NumberField<Owner> (&fields)[Count],
                     Owner& owner) const
    {
        for (const NumberField<Owner>& field : fields) {
            const Json* const value = Member(source, field.key);
            if (value == nullptr) {
                continue;
            }
            double number = 0.0;
            if (!JsonNumber(*value, number)) {
                FailType(path / field.key, "a whole number", *value);
            }
            const std::optional<int> whole = WholeNumber(*value);
            if (!whole || *whole < field.least || *whole > field.most) {
                FailAt(path / field.key, std::string("\"") + field.key + "\" must be a whole number from " +
                                             std::to_string(field.least) + " to " +
                                             std::to_string(field.most));
            }
            owner.*field.member = *whole;
        }
    }

    template <class Owner, std::size_t Count>
    void ReadPoints(const Json& source, const Path& path, const PointField<Owner> (&fields)[Count],
                    Owner& owner) const
    {
        for (const PointField<Owner>& field : fields) {
            const Json* const value = Member(source, field.key);
            if (value == nullptr) {
                continue;
            }
            const std::optional<PlanPoint> point = Point(*value);
            if (!point) {
                FailAt(path / field.key, std::string("\"") + field.key +
                                             "\" must be two coordinates in mm up to 1000000000, as in "
                                             "[0, 8400]");
            }
            owner.*field.member = *point;
        }
    }

    void RequireName(const Json& source, const Path& path, const char* what) const
    {
        RequireObject(source, path, what);
        if (Member(source, "name") == nullptr) {
            FailAt(path, std::string(what) + " without a \"name\"");
        }
    }

    std::string_view m_text;
    const std::string& m_name;
};

template <>
Beam Reader::ReadItem(Json&& source, const Path& path) const
{
    Beam beam;
    RequireName(source, path, "a beam");
    ReadTexts(source, path, BeamTexts, beam);
    ReadNumbers(source, path, BeamNumbers, beam);
    if (const Json* const area = Member(source, "area")) {
        RequireObject(*area, path / "area", "\"area\"");
        ReadNumbers(*area, path / "area", AreaNumbers, beam.area);
    }
    ReadPoints(source, path, BeamPoints, beam);
    beam.source = std::move(source);
    return beam;
}

template <>
Wall Reader::ReadItem(Json&& source, const Path& path) const
{
    Wall wall;
    RequireName(source, path, "a wall");
    ReadTexts(source, path, WallTexts, wall);
    ReadNumbers(source, path, WallNumbers, wall);
    ReadPoints(source, path, WallPoints, wall);
    wall.source = std::move(source);
    return wall;
}

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

Project ParseProject(std::string_view text, const std::string& name) { return Reader(text, name).Read(); }

Project ReadProject(const std::filesystem::path& file)
{
    return ParseProject(ReadWholeFile(file), file.string());
}

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
        throw Failure("a text of the project is not UTF-8");
    }
}

void SaveProject(const Project& project, const std::filesystem::path& file)
{
    const std::string text = FormatProject(project);
    // What could not be read again must not take the place of a good file.
    static_cast<void>(ParseProject(text, "the project that is to become " + file.string()));
    ReplaceFile(file, text);
}

}  // namespace Desk
