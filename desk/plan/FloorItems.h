// The items of a floor: for the view, and for plans that are written to files.
#pragma once

#include <vector>

#include "desk/plan/OwnerItem.h"
#include "desk/project/Backdrop.h"

namespace Desk {

struct FloorItems {
    std::vector<PlanItem*> all;
    std::vector<OwnerItem*> owners;  // beams, then walls
    QRectF shown;                    // where the annotations are, with what is drawn near them
    double textHeight = TextHeight;  // mm, the usual one
    int covering = 0;                // blocks of texts that lie on another text for want of room
};

// Puts a project's items, and what a drawing shows behind them, into a scene, which owns them then.
FloorItems AddFloor(QGraphicsScene& scene, const Project& project, const Backdrop* behind,
                    const PlanColors& colors);

}  // namespace Desk
