// The fields of a project file: keys, members and ranges, once for reading and writing.
#pragma once

#include <cmath>
#include <optional>

#include "desk/project/Fields.h"
#include "desk/project/JsonText.h"

namespace Desk {

inline constexpr int FormatVersion = 1;
inline constexpr double PlanLimit = 1e9;  // mm, a thousand kilometres

struct FileObject {
    Json json = Json::object();
};

// A text that does not go to the module; annotations are those of the table of fields.
template <class Owner>
struct TextField {
    const char* key;
    std::string Owner::*member;
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

inline constexpr TextField<Project> ProjectTexts[] = {{"title", &Project::title}};
inline constexpr TextField<Beam> BeamTexts[] = {{"floor", &Beam::floor}};
inline constexpr NumberField<Beam> BeamNumbers[] = {
    {"concreteGrade", &Beam::concreteGrade, 10, 100},
    {"seismicClass", &Beam::seismicClass, 1, 4},
};
inline constexpr NumberField<SteelArea> AreaNumbers[] = {
    {"top", &SteelArea::top, 0, 1'000'000},
    {"bottom", &SteelArea::bottom, 0, 1'000'000},
    {"leftEnd", &SteelArea::leftEnd, 0, 1'000'000},
    {"rightEnd", &SteelArea::rightEnd, 0, 1'000'000},
};
inline constexpr PointField<Beam> BeamPoints[] = {{"start", &Beam::start}, {"end", &Beam::end}};

inline constexpr NumberField<Wall> WallNumbers[] = {{"thickness", &Wall::thickness, 0, 10'000}};
inline constexpr PointField<Wall> WallPoints[] = {{"start", &Wall::start}, {"end", &Wall::end}};

// A whole number however it is written, 300.0 too; nothing for anything else.
[[nodiscard]] inline std::optional<int> WholeNumber(const Json& value)
{
    double number = 0.0;
    if (!JsonNumber(value, number) || std::trunc(number) != number || std::abs(number) > 1e9) {
        return std::nullopt;
    }
    return static_cast<int>(number);
}

// The two coordinates of a position; nothing for anything else.
[[nodiscard]] inline std::optional<PlanPoint> Point(const Json& value)
{
    PlanPoint point;
    const bool good = value.is_array() && value.size() == 2 && JsonNumber(value[0], point.x) &&
                      JsonNumber(value[1], point.y) && std::abs(point.x) <= PlanLimit &&
                      std::abs(point.y) <= PlanLimit;
    return good ? std::optional(point) : std::nullopt;
}

// Where the table of fields keeps an annotation of a beam or a wall.
template <class Owner>
[[nodiscard]] auto& Annotation(Owner& owner, const FieldRow& row)
{
    if constexpr (requires { owner.*row.ofBeam; }) {
        return owner.*row.ofBeam;
    } else {
        return owner.*row.ofWall;
    }
}
[[nodiscard]] inline std::span<const Field> FieldsOf(const Beam& /*beam*/) { return BeamFields(); }
[[nodiscard]] inline std::span<const Field> FieldsOf(const Wall& /*wall*/) { return WallFields(); }

// Null when the object has no such key.
[[nodiscard]] inline const Json* Member(const Json& object, const char* key)
{
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

}  // namespace Desk
