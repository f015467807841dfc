// The plan is covered with cells; cells under the beams that touch each other are one plan.
#include "desk/drawing/Plans.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace Desk {

namespace {

constexpr double CellSize = 3000.0;    // mm
constexpr double MostSteps = 1e4;      // along a run; none that is drawn as meant is longer
constexpr double Grain = 20.0;         // mm
constexpr std::size_t MostAlike = 12;  // runs of one shape that are still compared each with each
constexpr std::size_t FewestRuns = 6;  // of a plan that can be the same as another

}  // namespace

Plans::Plans(const std::vector<BeamRun>& runs, double unit) : m_runs(runs), m_unit(unit)
{
    std::vector<std::vector<Cell>> cells(runs.size());
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const BeamRun& run = runs[i];
        const auto steps =
            static_cast<long long>(std::min((run.To() - run.From()) / (CellSize * unit), MostSteps)) + 1;
        for (long long step = 0; step <= steps; ++step) {
            const double part = static_cast<double>(step) / static_cast<double>(steps);
            cells[i].push_back(CellOf(run.frame.At(run.From() + part * (run.To() - run.From()), run.axis)));
            m_ofCell.emplace(cells[i].back(), 0);
        }
    }
    for (const std::vector<Cell>& own : cells) {
        if (m_ofCell.at(own.front()) == 0) {
            ++m_count;
            std::vector<Cell> next = {own.front()};
            m_ofCell[own.front()] = m_count;
            while (!next.empty()) {
                const Cell cell = next.back();
                next.pop_back();
                for (long long x = cell.first - 1; x <= cell.first + 1; ++x) {
                    for (long long y = cell.second - 1; y <= cell.second + 1; ++y) {
                        const auto found = m_ofCell.find({x, y});
                        if (found != m_ofCell.end() && found->second == 0) {
                            found->second = m_count;
                            next.push_back(found->first);
                        }
                    }
                }
            }
        }
        m_ofRun.push_back(m_ofCell.at(own.front()));
    }
    for (std::size_t i = 0; i < runs.size(); ++i) {
        m_shapes[m_ofRun[i]].emplace(ShapeOf(runs[i]), i);
    }
}

Plans::Cell Plans::CellOf(const PlanPoint& at) const
{
    const auto number = [this](double value) {
        return static_cast<long long>(std::floor(std::clamp(value / (CellSize * m_unit), -1e15, 1e15)));
    };
    return {number(at.x), number(at.y)};
}

int Plans::At(const PlanPoint& at) const
{
    const Cell cell = CellOf(at);
    int best = 0;
    long long bestDistance = 9;  // cells, squared
    for (long long x = -2; x <= 2; ++x) {
        for (long long y = -2; y <= 2; ++y) {
            const auto found = m_ofCell.find({cell.first + x, cell.second + y});
            if (found != m_ofCell.end() && x * x + y * y < bestDistance) {
                best = found->second;
                bestDistance = x * x + y * y;
            }
        }
    }
    return best;
}

Plans::Shape Plans::ShapeOf(const BeamRun& run) const
{
    const double step = Grain * m_unit;
    return {std::llround(std::atan2(run.frame.sine, run.frame.cosine) * 1000.0),
            std::llround(run.width / step), std::llround((run.To() - run.From()) / step)};
}

Plans::Cell Plans::Begin(const BeamRun& run, const PlanPoint& shift) const
{
    const PlanPoint at = run.frame.At(run.From(), run.axis);
    const double step = Grain * m_unit;
    return {std::llround((at.x - shift.x) / step), std::llround((at.y - shift.y) / step)};
}

std::optional<PlanPoint> Plans::ShiftBetween(int a, int b) const
{
    const auto& shapesOfA = m_shapes.at(a);
    const auto& shapesOfB = m_shapes.at(b);
    const std::size_t fewer = std::min(shapesOfA.size(), shapesOfB.size());
    if (fewer < FewestRuns || std::max(shapesOfA.size(), shapesOfB.size()) > 2 * fewer) {
        return std::nullopt;
    }
    std::map<Cell, std::pair<std::size_t, PlanPoint>> votes;
    const std::pair<std::size_t, PlanPoint>* best = nullptr;
    for (const auto& [shape, run] : shapesOfA) {
        const auto [first, last] = shapesOfB.equal_range(shape);
        if (static_cast<std::size_t>(std::distance(first, last)) > MostAlike) {
            continue;
        }
        for (auto at = first; at != last; ++at) {
            const BeamRun& other = m_runs[at->second];
            const PlanPoint from = m_runs[run].frame.At(m_runs[run].From(), m_runs[run].axis);
            const PlanPoint to = other.frame.At(other.From(), other.axis);
            auto& vote = votes[Begin(other, from)];
            vote.second = {to.x - from.x, to.y - from.y};
            ++vote.first;
            best = best == nullptr || vote.first > best->first ? &vote : best;
        }
    }
    // Three quarters of the smaller one.
    return best != nullptr && 4 * best->first >= 3 * fewer ? std::optional(best->second) : std::nullopt;
}

std::optional<std::size_t> Plans::Same(std::size_t run, const PlanPoint& shift) const
{
    const BeamRun& own = m_runs[run];
    const PlanPoint at = own.frame.At(own.From(), own.axis);
    const int plan = At({at.x - shift.x, at.y - shift.y});
    const auto shapes = m_shapes.find(plan);
    if (shapes == m_shapes.end()) {
        return std::nullopt;
    }
    const auto [first, last] = shapes->second.equal_range(ShapeOf(own));
    for (auto each = first; each != last; ++each) {
        const BeamRun& other = m_runs[each->second];
        const PlanPoint there = other.frame.At(other.From(), other.axis);
        if (std::hypot(at.x - shift.x - there.x, at.y - shift.y - there.y) <= 2.0 * Grain * m_unit) {
            return each->second;
        }
    }
    return std::nullopt;
}

}  // namespace Desk
