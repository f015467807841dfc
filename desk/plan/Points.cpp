#include "desk/plan/Points.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

#include "desk/project/Making.h"

namespace Desk {

namespace {

double Apart(const PlanPoint& a, const PlanPoint& b) { return std::hypot(a.x - b.x, a.y - b.y); }

struct CatchLine {
    PlanPoint at;
    PlanPoint along;  // of length 1

    [[nodiscard]] PlanPoint Nearest(const PlanPoint& to) const
    {
        const double u = (to.x - at.x) * along.x + (to.y - at.y) * along.y;
        return {at.x + u * along.x, at.y + u * along.y};
    }
    [[nodiscard]] std::optional<PlanPoint> Crossing(const CatchLine& other) const
    {
        constexpr double Parallel = 1e-6;
        const double turn = along.x * other.along.y - along.y * other.along.x;
        if (std::abs(turn) < Parallel) {
            return std::nullopt;
        }
        const double u = ((other.at.x - at.x) * other.along.y - (other.at.y - at.y) * other.along.x) / turn;
        return PlanPoint{at.x + u * along.x, at.y + u * along.y};
    }
};

// What is within reach of a position.
class Around {
public:
    Around(const PlanPoint& at, double reach) : m_at(at), m_best(at), m_least(reach) {}

    void AddEnds(const PlanPoint& start, const PlanPoint& end)
    {
        const double length = Apart(start, end);
        // Far from both ends and from the line between them: most of a floor.
        if (Apart(start, m_at) + Apart(end, m_at) > length + 2.0 * m_reach) {
            return;
        }
        Take(start);
        Take(end);
        if (length > 0.0) {
            AddLine({start, {(end.x - start.x) / length, (end.y - start.y) / length}});
        }
    }
    void AddLine(const CatchLine& line)
    {
        if (Apart(line.Nearest(m_at), m_at) <= m_reach) {
            m_lines.push_back(line);
        }
    }

    [[nodiscard]] PlanPoint Best()
    {
        for (std::size_t i = 0; i < m_lines.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                if (const std::optional<PlanPoint> crossing = m_lines[i].Crossing(m_lines[j])) {
                    Take(*crossing);
                }
            }
        }
        for (const CatchLine& line : m_isCaught ? std::vector<CatchLine>() : m_lines) {
            Take(line.Nearest(m_at));
        }
        return m_isCaught ? m_best : PlanPoint{std::round(m_at.x), std::round(m_at.y)};
    }

private:
    void Take(const PlanPoint& point)
    {
        if (const double apart = Apart(point, m_at); apart <= m_least) {
            m_least = apart;
            m_best = point;
            m_isCaught = true;
        }
    }

    PlanPoint m_at;
    PlanPoint m_best;
    double m_least;
    double m_reach = m_least;
    bool m_isCaught = false;
    std::vector<CatchLine> m_lines;
};

bool TakeReal(std::string_view& text, double& number)
{
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || !std::isfinite(number)) {
        return false;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
    return true;
}

// Sines of right angles are not quite 0.
double Whole(double number)
{
    const double rounded = std::round(number * 1000.0) / 1000.0;
    return rounded == 0.0 ? 0.0 : rounded;
}

}  // namespace

PlanPoint Caught(const Project& project, const PlanPoint& at, double reach,
                 const std::optional<PlanPoint>& from)
{
    Around around(at, reach);
    for (const Beam& beam : project.beams) {
        around.AddEnds(beam.start, beam.end);
    }
    for (const Wall& wall : project.walls) {
        around.AddEnds(wall.start, wall.end);
    }
    for (const Axis& axis : project.axesAcross) {
        around.AddLine({{axis.at, 0.0}, {0.0, 1.0}});
    }
    for (const Axis& axis : project.axesUp) {
        around.AddLine({{0.0, axis.at}, {1.0, 0.0}});
    }
    if (from) {
        around.AddLine({*from, {1.0, 0.0}});
        around.AddLine({*from, {0.0, 1.0}});
    }
    return around.Best();
}

std::optional<PlanPoint> TypedPoint(std::string_view text, const std::optional<PlanPoint>& from,
                                    const PlanPoint& towards)
{
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
    const bool isRelative = text.starts_with('@');
    text.remove_prefix(isRelative ? 1 : 0);
    PlanPoint at;
    double first = 0.0;
    double second = 0.0;
    if ((isRelative && !from) || !TakeReal(text, first)) {
        return std::nullopt;
    }
    if (text.empty() && from && !isRelative) {
        const double apart = Apart(*from, towards);
        if (!(apart > 0.0)) {
            return std::nullopt;
        }
        at = {from->x + Whole(first * (towards.x - from->x) / apart),
              from->y + Whole(first * (towards.y - from->y) / apart)};
    } else {
        const bool isPolar = text.starts_with('<');
        if (!isPolar && !text.starts_with(',')) {
            return std::nullopt;
        }
        text.remove_prefix(1);
        if (!TakeReal(text, second) || (isPolar && !from)) {
            return std::nullopt;
        }
        const double turn = second * std::numbers::pi / 180.0;
        at = isPolar ? PlanPoint{Whole(first * std::cos(turn)), Whole(first * std::sin(turn))}
                     : PlanPoint{first, second};
        if (isRelative || isPolar) {
            at = Shifted(at, *from);
        }
    }
    return text.empty() && IsInRange(at) ? std::optional(at) : std::nullopt;
}

}  // namespace Desk
