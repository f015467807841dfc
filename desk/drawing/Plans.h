// The plans that are side by side in one drawing: what is connected by beams is one plan.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "desk/drawing/Outlines.h"

namespace Desk {

class Plans {
public:
    // unit as for FindRuns.
    Plans(const std::vector<BeamRun>& runs, double unit);

    [[nodiscard]] int Count() const { return m_count; }
    // Plans are numbered from 1 in the order of their first runs; 0 where no beam is near.
    [[nodiscard]] int At(const PlanPoint& at) const;

    // How far b is from a when both show the same beams; nothing when they do not.
    [[nodiscard]] std::optional<PlanPoint> ShiftBetween(int a, int b) const;
    // The run of a plan that is where one of another plan is, shifted back; the runs are those that were
    // given.
    [[nodiscard]] std::optional<std::size_t> Same(std::size_t run, const PlanPoint& shift) const;
    [[nodiscard]] int Of(std::size_t run) const { return m_ofRun[run]; }
    [[nodiscard]] std::size_t Runs() const { return m_ofRun.size(); }

private:
    using Cell = std::pair<long long, long long>;
    // What two runs that show the same beam share: direction, width and length, and where it begins.
    struct Shape {
        long long direction, width, length;
        auto operator<=>(const Shape&) const = default;
    };

    [[nodiscard]] Cell CellOf(const PlanPoint& at) const;
    [[nodiscard]] Shape ShapeOf(const BeamRun& run) const;
    [[nodiscard]] Cell Begin(const BeamRun& run, const PlanPoint& shift) const;

    const std::vector<BeamRun>& m_runs;
    double m_unit;
    int m_count = 0;
    std::map<Cell, int> m_ofCell;
    std::vector<int> m_ofRun;
    std::map<int, std::multimap<Shape, std::size_t>> m_shapes;  // by plan
};

}  // namespace Desk
