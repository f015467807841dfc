// Where an annotation stands in a project: which beam or wall, and which of its texts.
#pragma once

#include <compare>
#include <cstddef>
#include <span>
#include <string>

#include "desk/project/Project.h"

namespace Desk {

// In the order in which a person reads them; the last two and Name are a wall's.
enum class Field {
    Name,
    Section,
    Elevation,
    Stirrup,
    TopBars,
    BottomBars,
    LeftEnd,
    RightEnd,
    Erection,
    Torsion,
    Side,
    HorizontalBars,
    VerticalBars,
};

struct FieldRef {
    bool isWall = false;
    std::size_t index = 0;  // in the project's beams or walls
    Field field = Field::Name;

    auto operator<=>(const FieldRef&) const = default;
};

[[nodiscard]] std::span<const Field> BeamFields();
[[nodiscard]] std::span<const Field> WallFields();

// The index is in range and the field is one of a beam or a wall.
[[nodiscard]] bool Exists(const Project& project, const FieldRef& place);

// The annotation text in UTF-8, empty where there is none. The place must exist.
[[nodiscard]] const std::string& TextAt(const Project& project, const FieldRef& place);
[[nodiscard]] std::string& TextAt(Project& project, const FieldRef& place);

}  // namespace Desk
