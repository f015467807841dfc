#include "desk/plan/FloorItems.h"

#include <algorithm>

#include "desk/plan/Axes.h"
#include "desk/plan/BackdropItem.h"
#include "desk/plan/PlaceBlocks.h"

namespace Desk {

namespace {

// The height in the middle of all that beams' texts have.
double UsualHeight(const Project& project)
{
    std::vector<double> heights;
    heights.reserve(project.beams.size());
    for (const Beam& beam : project.beams) {
        heights.push_back(HeightOf(beam));
    }
    if (heights.empty()) {
        return TextHeight;
    }
    const auto middle = heights.begin() + std::ssize(heights) / 2;
    std::nth_element(heights.begin(), middle, heights.end());
    return *middle;
}

}  // namespace

FloorItems AddFloor(QGraphicsScene& scene, const Project& project, const Backdrop* behind,
                    const PlanColors& colors)
{
    FloorItems items;
    for (const bool wall : {false, true}) {
        const std::size_t count = wall ? project.walls.size() : project.beams.size();
        for (std::size_t i = 0; i < count; ++i) {
            items.owners.push_back(new OwnerItem(project, wall, i));
        }
    }
    items.covering = PlaceBlocks(items.owners);
    items.all.assign(items.owners.begin(), items.owners.end());
    // A drawing has its axes among its own lines.
    if (PlanItem* const axes = behind == nullptr ? MakeAxes(project) : nullptr) {
        items.all.push_back(axes);
    }
    for (PlanItem* const item : items.all) {
        items.shown |= item->sceneBoundingRect();
    }
    if (behind != nullptr && !(behind->lines.empty() && behind->texts.empty())) {
        auto* const backdrop = new BackdropItem(*behind);
        items.all.push_back(backdrop);
        // Drawings have things lost far outside the floor.
        const QRectF drawn = backdrop->sceneBoundingRect();
        const double room = std::max(items.shown.width(), items.shown.height()) / 2.0;
        items.shown |=
            items.owners.empty() ? drawn : drawn & items.shown.adjusted(-room, -room, room, room);
    }
    for (PlanItem* const item : items.all) {
        item->SetColors(&colors);
        scene.addItem(item);
    }
    items.textHeight = UsualHeight(project);
    return items;
}

}  // namespace Desk
