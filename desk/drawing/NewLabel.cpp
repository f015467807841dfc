// Labels that a person adds to an outline.
#include <cmath>
#include <limits>

#include "desk/drawing/Parts.h"

namespace Desk {

namespace {

constexpr double LabelFromEdge = 150.0;  // mm between the outline and the name

}  // namespace

std::vector<PlanLine> Labelled(const Project& project, std::size_t end)
{
    std::vector<PlanLine> lines;
    for (std::size_t i = 0; i < std::min(end, project.beams.size()); ++i) {
        if (!project.beams[i].name.empty()) {
            lines.push_back({project.beams[i].start, project.beams[i].end});
        }
    }
    return lines;
}

const TextLine* Drawing::Parts::LabelLike(const Frame& frame, const PlanPoint& near) const
{
    const TextLine* best = nullptr;
    double least = std::numeric_limits<double>::max();
    for (const FoundLabel& label : found.labels) {
        const TextLine& line = found.lines[label.lines.front()];
        const double apart = std::hypot(line.place.at.x - near.x, line.place.at.y - near.y);
        if (apart < least && EntityOf(line).kind == TextKind::Text &&
            Frame::Reading(line.place.angle).IsParallel(frame)) {
            least = apart;
            best = &line;
        }
    }
    return best;
}

std::optional<Beam> Drawing::LabelFor(const Project& project, const PlanPoint& at) const
{
    const std::optional<OwnerBeam> owner =
        m_parts->owners->OutlineAt(at, Labelled(project, project.beams.size()));
    const TextLine* const like = owner ? m_parts->LabelLike(owner->frame, at) : nullptr;
    if (like == nullptr) {
        return std::nullopt;
    }
    Beam beam;
    SetAxis(beam, *owner, m_parts->file.unitScale);
    beam.plan = owner->plan;
    beam.places.resize(BeamFields().size());
    const double height = like->place.height;
    const PlanPoint corner = owner->frame.At(owner->frame.U(MiddleOf(beam)),
                                             owner->axis - owner->width / 2.0 -
                                                 LabelFromEdge * m_parts->file.unitScale - height);
    beam.places[NumberOf(Field::Name)] = {corner, like->place.angle, height};
    return beam;
}

}  // namespace Desk
