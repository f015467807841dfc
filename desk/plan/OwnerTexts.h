// The annotation texts of one beam or wall on the plan: which text is in which line, and where.
#pragma once

#include <vector>

#include "desk/Toolkit.h"
#include "desk/project/Fields.h"

namespace Desk {

inline constexpr double TextHeight = 320.0;  // mm on the plan: 3.2 mm on a sheet of scale 1 to 100
inline constexpr double LineStep = 430.0;    // mm from line to line

// How wide a text of TextHeight is, in mm.
[[nodiscard]] double TextWidth(const QString& text);
[[nodiscard]] const QFont& PlanFont();

struct Label {
    Field field = Field::Name;
    QString text;  // as it is drawn, with what joins it to its neighbours
    QRectF box;    // in its block
};

// The concentrated block: name and section, stirrups, through bars, side bars, elevation; its upper left
// corner at 0, 0. For a wall its name with the thickness and its bars. Empty texts have a label of a
// nominal width after or below the others, in which nothing is drawn.
[[nodiscard]] std::vector<Label> BlockOf(const Beam& beam);
[[nodiscard]] std::vector<Label> BlockOf(const Wall& wall);
// The height that the block's lines with texts take, and the width of the longest.
[[nodiscard]] QSizeF SizeOf(const std::vector<Label>& block);

}  // namespace Desk
