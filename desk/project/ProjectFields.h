// The fields of a project file: keys, members and ranges, once for reading and writing.
#pragma once

#include <cmath>

#include "desk/project/Fields.h"
#include "desk/project/JsonText.h"

namespace Desk {

inline constexpr int FormatVersion = 1;
inline constexpr int PlanLimit = 1'000'000'000;  // mm, a thousand kilometres
inline constexpr int MaxSpans = 200;             // of a beam

struct FileObject {
    Json json = Json::object();
};

// A text that does not go to the module; annotations are those of the table of fields.
template <class Owner>
struct TextField {
    const char* key;
    std::string Owner::*member;
};

// A whole number, a number or a position with the range of its numbers.
template <class Owner, class Value>
struct DataField {
    const char* key;
    Value Owner::*member;
    int least;
    int most;
};

inline constexpr TextField<Project> ProjectTexts[] = {{"title", &Project::title}};
inline constexpr TextField<Beam> BeamTexts[] = {{"floor", &Beam::floor}};
inline constexpr DataField<Beam, int> BeamNumbers[] = {
    {"concreteGrade", &Beam::concreteGrade, 10, 100},
    {"seismicClass", &Beam::seismicClass, 1, 4},
};
inline constexpr DataField<SteelArea, int> AreaNumbers[] = {
    {"top", &SteelArea::top, 0, 1'000'000},
    {"bottom", &SteelArea::bottom, 0, 1'000'000},
    {"leftEnd", &SteelArea::leftEnd, 0, 1'000'000},
    {"rightEnd", &SteelArea::rightEnd, 0, 1'000'000},
};
inline constexpr DataField<Beam, PlanPoint> BeamPoints[] = {
    {"start", &Beam::start, -PlanLimit, PlanLimit},
    {"end", &Beam::end, -PlanLimit, PlanLimit},
    {"textsAt", &Beam::textsAt, -PlanLimit, PlanLimit},
    {"leftEndBy", &Beam::leftEndBy, -PlanLimit, PlanLimit},
    {"rightEndBy", &Beam::rightEndBy, -PlanLimit, PlanLimit},
};
inline constexpr DataField<Beam, double> BeamLengths[] = {{"drawnWidth", &Beam::drawnWidth, 0, PlanLimit}};
inline constexpr DataField<InPlace, PlanPoint> InPlacePoints[] = {
    {"movedBy", &InPlace::movedBy, -PlanLimit, PlanLimit}};
inline constexpr DataField<TextPlace, PlanPoint> PlacePoints[] = {
    {"at", &TextPlace::at, -PlanLimit, PlanLimit}};
inline constexpr DataField<TextPlace, double> PlaceNumbers[] = {
    {"angle", &TextPlace::angle, -PlanLimit, PlanLimit},
    {"height", &TextPlace::height, 0, PlanLimit},
};

inline constexpr DataField<Wall, int> WallNumbers[] = {{"thickness", &Wall::thickness, 0, 10'000}};
inline constexpr DataField<Wall, PlanPoint> WallPoints[] = {
    {"start", &Wall::start, -PlanLimit, PlanLimit},
    {"end", &Wall::end, -PlanLimit, PlanLimit},
    {"textsAt", &Wall::textsAt, -PlanLimit, PlanLimit},
};

// The number of a text in place: of a support, of which a beam has one more than spans, or of a span.
[[nodiscard]] constexpr DataField<InPlace, int> NumberOf(Role role)
{
    return role == Role::TopSupport ? DataField<InPlace, int>{"support", &InPlace::number, 1, MaxSpans + 1}
                                    : DataField<InPlace, int>{"span", &InPlace::number, 1, MaxSpans};
}

// Takes a value of a field's kind whose numbers are in the range; false, and nothing taken, for anything
// else. A whole number may be written as 300.0.
[[nodiscard]] inline bool TakeValue(const Json& value, int least, int most, double& to)
{
    double number = 0.0;
    if (!JsonNumber(value, number) || !(number >= least && number <= most)) {
        return false;
    }
    to = number;
    return true;
}
[[nodiscard]] inline bool TakeValue(const Json& value, int least, int most, int& to)
{
    double number = 0.0;
    if (!TakeValue(value, least, most, number) || std::trunc(number) != number) {
        return false;
    }
    to = static_cast<int>(number);
    return true;
}
[[nodiscard]] inline bool TakeValue(const Json& value, int least, int most, PlanPoint& to)
{
    PlanPoint point;
    if (!value.is_array() || value.size() != 2 || !TakeValue(value[0], least, most, point.x) ||
        !TakeValue(value[1], least, most, point.y)) {
        return false;
    }
    to = point;
    return true;
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
