// The fields of a project file: keys, members and ranges, once for reading and writing.
#pragma once

#include <cmath>
#include <optional>

#include "desk/project/JsonText.h"
#include "desk/project/Project.h"

namespace Desk {

inline constexpr int FormatVersion = 1;
inline constexpr double PlanLimit = 1e9;  // mm, a thousand kilometres

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

inline constexpr TextField<Project> ProjectTexts[] = {{"title", &Project::title, false}};

inline constexpr TextField<Beam> BeamTexts[] = {
    {"name", &Beam::name},       {"section", &Beam::section},   {"elevation", &Beam::elevation},
    {"stirrup", &Beam::stirrup}, {"topBars", &Beam::topBars},   {"bottomBars", &Beam::bottomBars},
    {"leftEnd", &Beam::leftEnd}, {"rightEnd", &Beam::rightEnd}, {"erection", &Beam::erection},
    {"torsion", &Beam::torsion}, {"side", &Beam::side},         {"floor", &Beam::floor, false},
};
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

inline constexpr TextField<Wall> WallTexts[] = {
    {"name", &Wall::name},
    {"horizontalBars", &Wall::horizontalBars},
    {"verticalBars", &Wall::verticalBars},
};
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

// The two coordinates of a place; nothing for anything else.
[[nodiscard]] inline std::optional<PlanPoint> Point(const Json& value)
{
    PlanPoint point;
    const bool good = value.is_array() && value.size() == 2 && JsonNumber(value[0], point.x) &&
                      JsonNumber(value[1], point.y) && std::abs(point.x) <= PlanLimit &&
                      std::abs(point.y) <= PlanLimit;
    return good ? std::optional(point) : std::nullopt;
}

// Null when the object has no such key.
[[nodiscard]] inline const Json* Member(const Json& object, const char* key)
{
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

}  // namespace Desk
