// Floors, beams and walls as a person makes and moves them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/project/Fields.h"

namespace Desk {

// A floor with axes and nothing else.
[[nodiscard]] Project NewFloor(std::string title, std::vector<Axis> across, std::vector<Axis> up);
// Distances between axes as people write them: "7x8000", "6000 2700 6000", "2x6000+2700". Axes across are
// 1, 2, 3, those up A, B, C without I, O and Z. Without a distance there is one axis. Nothing for a text
// that is no distances, and for more than 500 of them.
[[nodiscard]] std::optional<std::vector<Axis>> AxesFrom(std::string_view distances, bool up);

// Within the coordinates that a project file takes.
[[nodiscard]] bool IsInRange(const PlanPoint& at);
[[nodiscard]] inline bool IsSame(const PlanPoint& a, const PlanPoint& b)
{
    return a.x == b.x && a.y == b.y;
}
[[nodiscard]] inline PlanPoint Shifted(const PlanPoint& at, const PlanPoint& by)
{
    return {at.x + by.x, at.y + by.y};
}

// Other ends. Spans that are known take the change of length at the end that moved, or all in proportion
// where nothing would be left of that one.
void SetEnds(Beam& beam, const PlanPoint& start, const PlanPoint& end);
void SetEnds(Wall& wall, const PlanPoint& start, const PlanPoint& end);

// Elsewhere, with the texts in place that have a position of their own.
void Shift(Beam& beam, const PlanPoint& by);
void Shift(Wall& wall, const PlanPoint& by);

// What a drag of a text changes: the position of its block, or how far it is moved from where it would be;
// of a text in place with a position of its own that position, on the plan.
[[nodiscard]] PlanPoint& DraggedTo(Beam& beam, const FieldRef& text);

// The end becomes the start, and with it all that is told from the start: bars and required areas at the
// ends, spans, texts in place. The number of spans stands for spans that are not known.
void TurnRound(Beam& beam, int spans);
void TurnRound(Wall& wall);

}  // namespace Desk
