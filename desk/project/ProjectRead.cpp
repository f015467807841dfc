// Reads a project and tells the place of the first thing that is not as the fields say.
#include "desk/project/ProjectFile.h"

#include <algorithm>
#include <optional>

#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"
#include "desk/project/Progress.h"
#include "desk/project/ProjectFields.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

using Path = Json::json_pointer;

Message Kind(const Json& value)
{
    double number = 0.0;
    return JsonNumber(value, number) ? Message(Phrase("Desk", "a number"))
           : value.is_string()       ? Message(Phrase("Desk", "a text"))
           : value.is_array()        ? Message(Phrase("Desk", "a list"))
           : value.is_object()       ? Message(Phrase("Desk", "an object"))
                                     : Message(value.dump());
}

class Reader {
public:
    Reader(std::string_view text, const std::string& name) : m_text(text), m_name(name) {}

    Project Read()
    {
        Project project;
        Json source;
        try {
            source = ReadJson(m_text);
        } catch (const JsonFault& fault) {
            Fail(fault.Byte(), fault.Told());
        }
        const Path root;
        RequireObject(source, root, Phrase("Desk", "a project"));
        ReadVersion(source);
        ReadTexts(source, root, ProjectTexts, project);
        ReadList(source, root, "beams", project.beams);
        ReadList(source, root, "walls", project.walls);
        project.axesAcross = ReadAxes(source, "x");
        project.axesUp = ReadAxes(source, "y");
        ReadPointed(source, project.pointed);
        ReadChecksOff(source, project.checksOff);
        project.inFile = Keep(std::move(source));
        return project;
    }

private:
    [[noreturn]] void Fail(std::size_t byte, const Message& what) const
    {
        throw Failure(Phrase("Desk", "%1:%2: %3"), m_name, LineAndColumn(m_text, byte), what);
    }
    [[noreturn]] void FailAt(const Path& path, const Message& what) const
    {
        Fail(PlaceInJson(m_text, path), what);
    }
    [[noreturn]] void FailType(const Path& path, const Phrase& wanted, const Json& found) const
    {
        FailAt(path,
               {Phrase("Desk", "\"%1\" must be %2, here stands %3"), path.back(), wanted, Kind(found)});
    }

    void RequireObject(const Json& value, const Path& path, const Message& what) const
    {
        if (!value.is_object()) {
            FailAt(path, {Phrase("Desk", "%1 must be an object, here stands %2"), what, Kind(value)});
        }
    }

    void ReadVersion(const Json& source) const
    {
        const Json* const version = Member(source, "version");
        if (version == nullptr) {
            FailAt(Path(),
                   Phrase("Desk", "no \"version\" of the file format; this program reads version 1"));
        }
        int number = 0;
        const bool isNumber = TakeValue(*version, -PlanLimit, PlanLimit, number);
        if (number != FormatVersion) {
            FailAt(Path() / "version",
                   {Phrase("Desk", "this program reads \"version\" 1 of the file format, not %1"),
                    isNumber ? Message(std::to_string(number)) : Kind(*version)});
        }
    }

    template <class Item>
    void ReadList(Json& source, const Path& owner, const char* key, std::vector<Item>& items) const
    {
        const auto list = source.find(key);
        if (list == source.end()) {
            return;
        }
        const Path path = owner / key;
        if (!list->is_array()) {
            FailType(path, Phrase("Desk", "a list"), *list);
        }
        items.reserve(list->size());
        for (std::size_t i = 0; i < list->size(); ++i) {
            if constexpr (std::is_same_v<Item, Beam>) {
                TellProgress(i, list->size());
            }
            items.push_back(ReadItem<Item>(std::move((*list)[i]), path / i));
        }
        *list = Json::array();  // each item keeps its own
    }

    // The axes are only drawn: what is not of their form is left out, and stays in the file.
    static std::vector<Axis> ReadAxes(const Json& source, const char* direction)
    {
        std::vector<Axis> axes;
        const Json* const all = Member(source, "axes");
        const Json* const named = all != nullptr && all->is_object() ? Member(*all, direction) : nullptr;
        if (named != nullptr && named->is_object()) {
            for (const auto& [label, position] : named->items()) {
                if (Axis axis{label, 0.0}; JsonNumber(position, axis.at)) {
                    axes.push_back(std::move(axis));
                }
            }
        }
        std::sort(axes.begin(), axes.end(), [](const Axis& a, const Axis& b) { return a.at < b.at; });
        return axes;
    }

    static InFile Keep(Json&& source)
    {
        return std::make_shared<const FileObject>(FileObject{std::move(source)});
    }

    template <class Item>
    Item ReadItem(Json&& source, const Path& path) const;

    template <class Owner, std::size_t Count>
    void ReadTexts(const Json& source, const Path& path, const TextField<Owner> (&fields)[Count],
                   Owner& owner) const
    {
        for (const TextField<Owner>& field : fields) {
            if (const Json* const value = Member(source, field.key)) {
                owner.*field.member = ReadText(*value, path / field.key, false);
            }
        }
    }

    template <class Owner>
    void ReadAnnotations(const Json& source, const Path& path, Owner& owner) const
    {
        for (const Field field : FieldsOf(owner)) {
            const FieldRow& row = RowOf(field);
            if (const Json* const value = Member(source, row.key)) {
                Annotation(owner, row) = ReadText(*value, path / row.key, true);
            }
        }
    }

    std::string ReadText(const Json& value, const Path& path, bool isAnnotation) const
    {
        if (!value.is_string()) {
            FailType(path, Phrase("Desk", "a text"), value);
        }
        const auto& text = value.get_ref<const std::string&>();
        const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < 0x20 || ch == 0x7F; };
        if (std::any_of(text.begin(), text.end(), isControl)) {
            FailAt(path, {Phrase("Desk", "\"%1\" holds a control character"), path.back()});
        }
        if (isAnnotation && !GbkFromUtf8(text)) {
            FailAt(path, {Phrase("Desk", "\"%1\" holds a character that GBK does not have"), path.back()});
        }
        return text;
    }

    static Message Wanted(int /*value*/, const char* key, int least, int most)
    {
        return {Phrase("Desk", "\"%1\" must be a whole number from %2 to %3"), key, std::to_string(least),
                std::to_string(most)};
    }
    static Message Wanted(double /*value*/, const char* key, int least, int most)
    {
        return {Phrase("Desk", "\"%1\" must be a number from %2 to %3"), key, std::to_string(least),
                std::to_string(most)};
    }
    static Message Wanted(const PlanPoint& /*value*/, const char* key, int /*least*/, int most)
    {
        return {Phrase("Desk", "\"%1\" must be two coordinates in mm up to %2, as in [0, 8400]"), key,
                std::to_string(most)};
    }

    template <class Owner, class Value>
    void ReadValue(const Json& value, const Path& path, const DataField<Owner, Value>& field,
                   Owner& owner) const
    {
        if (!TakeValue(value, field.least, field.most, owner.*field.member)) {
            FailAt(path, Wanted(Value(), field.key, field.least, field.most));
        }
    }

    template <class Owner, class Value, std::size_t Count>
    void ReadData(const Json& source, const Path& path, const DataField<Owner, Value> (&fields)[Count],
                  Owner& owner) const
    {
        for (const DataField<Owner, Value>& field : fields) {
            if (const Json* const value = Member(source, field.key)) {
                ReadValue(*value, path / field.key, field, owner);
            }
        }
    }

    void ReadSpans(const Json& source, const Path& path, std::vector<double>& spans) const
    {
        const Json* const list = Member(source, "spans");
        if (list == nullptr) {
            return;
        }
        if (!list->is_array() || list->size() > MaxSpans) {
            FailAt(path / "spans", {Phrase("Desk", "\"%1\" must be a list of at most %2 lengths in mm"),
                                    "spans", std::to_string(MaxSpans)});
        }
        for (std::size_t i = 0; i < list->size(); ++i) {
            double length = 0.0;
            if (!TakeValue((*list)[i], 0, PlanLimit, length) || length <= 0.0) {
                FailAt(path / "spans" / i, {Phrase("Desk", "the length of a span must be more than 0 mm "
                                                           "and at most %1"),
                                            std::to_string(PlanLimit)});
            }
            spans.push_back(length);
        }
    }

    void ReadPointed(const Json& source, std::map<std::string, PlanPoint>& pointed) const
    {
        const Json* const all = Member(source, "pointed");
        if (all == nullptr) {
            return;
        }
        const Path path = Path() / "pointed";
        RequireObject(*all, path, {Phrase("Desk", "\"%1\""), "pointed"});
        for (const auto& [handle, at] : all->items()) {
            if (!TakeValue(at, -PlanLimit, PlanLimit, pointed[handle])) {
                FailAt(path / handle, Wanted(PlanPoint(), handle.c_str(), -PlanLimit, PlanLimit));
            }
        }
    }

    void ReadChecksOff(const Json& source, std::vector<std::string>& off) const
    {
        const Json* const list = Member(source, "checksOff");
        if (list == nullptr) {
            return;
        }
        const Path path = Path() / "checksOff";
        if (!list->is_array()) {
            FailType(path, Phrase("Desk", "a list"), *list);
        }
        for (std::size_t i = 0; i < list->size(); ++i) {
            off.push_back(ReadText((*list)[i], path / i, false));
        }
    }

    Role ReadRole(const Json& source, const Path& path) const
    {
        const Json* const value = Member(source, "role");
        const auto isNamed = [&](const RoleRow& row) { return *value == row.key; };
        if (value == nullptr) {
            FailAt(path, {Phrase("Desk", "%1 without a \"%2\""), TextInPlace(), "role"});
        }
        const auto found = std::find_if(AllRoles().begin(), AllRoles().end(), isNamed);
        if (found == AllRoles().end()) {
            std::string keys;
            for (const RoleRow& row : AllRoles()) {
                keys.append(keys.empty() ? "" : ", ").append(row.key);
            }
            FailAt(path / "role", {Phrase("Desk", "\"%1\" must be one of %2"), "role", keys});
        }
        return found->role;
    }

    static Message TextInPlace() { return Phrase("Desk", "a text in place"); }

    void RequireName(const Json& source, const Path& path, const Message& what) const
    {
        RequireObject(source, path, what);
        if (Member(source, "name") == nullptr) {
            FailAt(path, {Phrase("Desk", "%1 without a \"%2\""), what, "name"});
        }
    }

    std::string_view m_text;
    const std::string& m_name;
};

template <>
InPlace Reader::ReadItem(Json&& source, const Path& path) const
{
    InPlace text;
    RequireObject(source, path, TextInPlace());
    text.role = ReadRole(source, path);
    const DataField<InPlace, int> number = NumberOf(text.role);
    const Json* const value = Member(source, number.key);
    if (value == nullptr) {
        FailAt(path, {Phrase("Desk", "%1 without a \"%2\""), TextInPlace(), number.key});
    }
    ReadValue(*value, path / number.key, number, text);
    if (const Json* const written = Member(source, "text")) {
        text.text = ReadText(*written, path / "text", true);
    }
    ReadData(source, path, InPlacePoints, text);
    ReadData(source, path, PlacePoints, text.place);
    ReadData(source, path, PlaceNumbers, text.place);
    text.inFile = Keep(std::move(source));
    return text;
}

template <>
Beam Reader::ReadItem(Json&& source, const Path& path) const
{
    Beam beam;
    RequireName(source, path, Phrase("Desk", "a beam"));
    ReadAnnotations(source, path, beam);
    ReadTexts(source, path, BeamTexts, beam);
    ReadData(source, path, BeamNumbers, beam);
    if (const Json* const area = Member(source, "area")) {
        RequireObject(*area, path / "area", {Phrase("Desk", "\"%1\""), "area"});
        ReadData(*area, path / "area", AreaNumbers, beam.area);
    }
    ReadData(source, path, BeamPoints, beam);
    ReadData(source, path, BeamLengths, beam);
    ReadSpans(source, path, beam.spans);
    ReadList(source, path, "inPlace", beam.inPlace);
    beam.inFile = Keep(std::move(source));
    return beam;
}

template <>
Wall Reader::ReadItem(Json&& source, const Path& path) const
{
    Wall wall;
    RequireName(source, path, Phrase("Desk", "a wall"));
    ReadAnnotations(source, path, wall);
    ReadData(source, path, WallNumbers, wall);
    ReadData(source, path, WallPoints, wall);
    wall.inFile = Keep(std::move(source));
    return wall;
}

}  // namespace

Project ParseProject(std::string_view text, const std::string& name) { return Reader(text, name).Read(); }

Project ReadProject(const std::filesystem::path& file)
{
    return ParseProject(ReadWholeFile(file), file.string());
}

std::string TitleOf(const Project& project, const std::string& file)
{
    const std::string origin = file.empty() ? "embedded sample" : file;
    return project.title.empty() ? origin : project.title + " (" + origin + ")";
}

}  // namespace Desk
