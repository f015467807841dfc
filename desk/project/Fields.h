// The annotations of beams and walls: what each is called, where it is kept, and what serves it. The one
// table that the file, the rankings, the panels and the window read.
#pragma once

#include <compare>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

// What ranks the texts of a field. The module ranks no wall bars: those are the other walls' texts.
enum class Ranker { Names, Sections, Elevations, Stirrups, Bars, OtherWalls, None };

// The panel or picker that composes a text, by the id of its template in the module.
enum class PanelKind {
    None = 0,
    Name = 540,
    Section = 364,
    Elevation = 542,
    Stirrup = 367,
    Bars = 543,
    HorizontalBars = 363,
    VerticalBars = 365
};

struct FieldRow {
    Field field;
    const char* key;                // in a project file
    std::string Beam::*ofBeam;      // null for a field that beams do not have
    std::string Wall::*ofWall;      // null for a field that walls do not have
    Ranker ranker;                  // of a beam's field; a wall's name has none
    const char* barKind;            // the bar ranker's kind text; empty for no bars
    bool isOnThroughBars;           // the beam's through bars, where it has some, are the kind text
    int SteelArea::*requiredSteel;  // null where none is required
    bool hasTableRows;              // the reference tables list texts for it
    const char* heads;              // head characters of its texts, the usual one first; empty for none
    PanelKind panel;                // of a beam; a wall's name has none
    int panelBars;                  // what the bar panel is open for (its m_nSteelKind), else -1
    int pieceType;                  // the bar panel's type of pieces without a head of their own, else -1
    const char* english;
    const char* chinese;
};

[[nodiscard]] const FieldRow& RowOf(Field field);

// What a role is called, and the field that serves its texts: ranker, panel and piece type are that
// field's.
struct RoleRow {
    Role role;
    const char* key;  // in a project file
    Field field;
    const char* english;  // with %1 for the number of the support or span
    const char* chinese;
};

[[nodiscard]] const RoleRow& RowOf(Role role);
[[nodiscard]] std::span<const RoleRow> AllRoles();
[[nodiscard]] std::span<const Field> BeamFields();
[[nodiscard]] std::span<const Field> WallFields();

// The field that a text in place of a beam is instead of: its role's, at the last support the right end.
[[nodiscard]] Field FieldAt(const Beam& beam, const InPlace& text);
// The beam as it is at a text in place: the texts in place along its span instead of the beam's own, for a
// support along the span after it, and the text itself. Between spans no area of end bars is known: it is
// 0.
[[nodiscard]] Beam BeamAt(const Beam& beam, const InPlace& text);

// "G" of "G4B12" where heads has it, else empty.
[[nodiscard]] std::string_view HeadOf(std::string_view text, std::string_view heads = "GN*");

// Which beam or wall of a project, and which of its annotations.
struct FieldRef {
    bool isWall = false;
    std::size_t index = 0;  // in the project's beams or walls
    Field field = Field::Name;
    int inPlace =
        -1;  // index in the beam's texts in place, whose role the field serves; -1 for its own text

    auto operator<=>(const FieldRef&) const = default;
};

[[nodiscard]] std::span<const Field> FieldsOf(const FieldRef& owner);
// All annotations of a beam or wall, which must exist: its own, then those in place.
[[nodiscard]] std::vector<FieldRef> RefsOf(const Project& project, const FieldRef& owner);
[[nodiscard]] PanelKind PanelOf(const FieldRef& ref);

// The index is in range and the field is one of a beam or a wall.
[[nodiscard]] bool Exists(const Project& project, const FieldRef& ref);

// The annotation text in UTF-8, empty where there is none. The beam or wall must exist and have the field.
[[nodiscard]] const std::string& TextAt(const Project& project, const FieldRef& ref);
[[nodiscard]] std::string& TextAt(Project& project, const FieldRef& ref);

}  // namespace Desk
