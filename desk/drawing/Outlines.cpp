// A sweep along each direction: of the lines that are side by side at a position, each two neighbours are
// the edges of a strip.
#include "desk/drawing/Outlines.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <numeric>
#include <set>
#include <tuple>

namespace Desk {

namespace {

constexpr double LeastWidth = 90.0;   // mm
constexpr double MostWidth = 1250.0;  // mm
constexpr double LeastLength = 150.0;
constexpr double MostGap = 1500.0;  // mm, the largest support that a run goes through
constexpr double SameAxis = 3.0;    // mm
constexpr double SamePosition = 1.0;

struct Edge {
    double v = 0.0;
    double from = 0.0;
    double to = 0.0;
};

struct Strip {
    std::size_t below = 0;  // edges
    std::size_t above = 0;
    double from = 0.0;
    double to = 0.0;
};

class Sweep {
public:
    Sweep(std::vector<Edge> edges, double unit) : m_edges(std::move(edges)), m_unit(unit) {}

    std::vector<Strip> Run()
    {
        struct Event {
            double at;
            bool isBegin;
            std::size_t edge;
        };
        std::vector<Event> events;
        events.reserve(2 * m_edges.size());
        for (std::size_t i = 0; i < m_edges.size(); ++i) {
            events.push_back({m_edges[i].from, true, i});
            events.push_back({m_edges[i].to, false, i});
        }
        // Ends before beginnings at the same position, so that two beams end to end stay two.
        std::sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
            return a.at != b.at ? a.at < b.at : a.isBegin != b.isBegin ? !a.isBegin : a.edge < b.edge;
        });
        for (const Event& event : events) {
            event.isBegin ? Insert(event.edge, event.at) : Erase(event.edge, event.at);
        }
        return std::move(m_strips);
    }

private:
    using Active = std::set<std::pair<double, std::size_t>>;

    void Open(std::size_t below, std::size_t above, double at)
    {
        const double width = m_edges[above].v - m_edges[below].v;
        if (width >= LeastWidth * m_unit && width <= MostWidth * m_unit) {
            m_open[below] = {above, at};
        }
    }
    void Close(std::size_t below, double at)
    {
        const auto found = m_open.find(below);
        if (found == m_open.end()) {
            return;
        }
        if (at - found->second.second >= SamePosition) {
            m_strips.push_back({below, found->second.first, found->second.second, at});
        }
        m_open.erase(found);
    }

    void Insert(std::size_t edge, double at)
    {
        const auto place = m_active.emplace(m_edges[edge].v, edge).first;
        const auto above = std::next(place);
        if (place != m_active.begin()) {
            Close(std::prev(place)->second, at);
            Open(std::prev(place)->second, edge, at);
        }
        if (above != m_active.end()) {
            Open(edge, above->second, at);
        }
    }
    void Erase(std::size_t edge, double at)
    {
        const auto place = m_active.find({m_edges[edge].v, edge});
        Close(edge, at);
        const auto above = m_active.erase(place);
        if (above != m_active.begin()) {
            const std::size_t below = std::prev(above)->second;
            Close(below, at);
            if (above != m_active.end()) {
                Open(below, above->second, at);
            }
        }
    }

    std::vector<Edge> m_edges;
    double m_unit;
    Active m_active;
    std::map<std::size_t, std::pair<std::size_t, double>> m_open;  // by the lower edge
    std::vector<Strip> m_strips;
};

// The room between two beams has a narrower strip on the far side of both its edges.
void DropRooms(std::vector<Strip>& strips, const std::vector<Edge>& edges)
{
    const auto widthOf = [&edges](const Strip& strip) {
        return edges[strip.above].v - edges[strip.below].v;
    };
    std::multimap<std::size_t, const Strip*> byBelow;
    std::multimap<std::size_t, const Strip*> byAbove;
    for (const Strip& strip : strips) {
        byBelow.emplace(strip.below, &strip);
        byAbove.emplace(strip.above, &strip);
    }
    const auto hasNarrower = [&](const Strip& strip, const auto& others, std::size_t edge) {
        const auto [first, last] = others.equal_range(edge);
        return std::any_of(first, last, [&](const auto& other) {
            return other.second->from < strip.to && other.second->to > strip.from &&
                   widthOf(*other.second) < widthOf(strip);
        });
    };
    std::vector<Strip> kept;
    for (const Strip& strip : strips) {
        if (!hasNarrower(strip, byAbove, strip.below) || !hasNarrower(strip, byBelow, strip.above)) {
            kept.push_back(strip);
        }
    }
    strips = std::move(kept);
}

// A number for each run; runs whose values differ by no more than the tolerance from neighbour to neighbour
// share one.
std::vector<std::size_t> Alike(const std::vector<BeamRun>& runs, double BeamRun::*value, double tolerance)
{
    std::vector<std::size_t> order(runs.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return runs[a].*value < runs[b].*value; });
    std::vector<std::size_t> numbers(runs.size());
    for (std::size_t i = 1; i < order.size(); ++i) {
        const bool isAlike = runs[order[i]].*value - runs[order[i - 1]].*value <= tolerance;
        numbers[order[i]] = numbers[order[i - 1]] + (isAlike ? 0 : 1);
    }
    return numbers;
}

// Strips of the same width along the same axis, joined where no more than a support parts them.
void AddRuns(const Frame& frame, const std::vector<Strip>& strips, const std::vector<Edge>& edges,
             double unit, std::vector<BeamRun>& runs)
{
    std::vector<BeamRun> pieces;
    for (const Strip& strip : strips) {
        if (strip.to - strip.from >= LeastLength * unit) {
            const double below = edges[strip.below].v;
            const double above = edges[strip.above].v;
            pieces.push_back({frame, (below + above) / 2.0, above - below, {{strip.from, strip.to}}});
        }
    }
    const std::vector<std::size_t> axes = Alike(pieces, &BeamRun::axis, SameAxis * unit);
    const std::vector<std::size_t> widths = Alike(pieces, &BeamRun::width, SameAxis * unit);
    std::vector<std::size_t> order(pieces.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return std::tuple(axes[a], widths[a], pieces[a].From(), a) <
               std::tuple(axes[b], widths[b], pieces[b].From(), b);
    });
    for (std::size_t i = 0; i < order.size(); ++i) {
        BeamRun& piece = pieces[order[i]];
        const bool goesOn = i > 0 && axes[order[i]] == axes[order[i - 1]] &&
                            widths[order[i]] == widths[order[i - 1]] &&
                            piece.From() >= runs.back().To() - SamePosition &&
                            piece.From() - runs.back().To() <= MostGap * unit;
        if (goesOn) {
            runs.back().pieces.push_back(piece.pieces.front());
        } else {
            runs.push_back(std::move(piece));
        }
    }
}

}  // namespace

Frame Frame::Reading(double degrees)
{
    double angle = std::remainder(degrees, 180.0);  // -90 to 90
    constexpr double Nearly = 0.01;
    if (angle <= -90.0 + Nearly) {
        angle = 90.0;
    }
    if (std::abs(angle) < Nearly) {
        return {1.0, 0.0};
    }
    if (std::abs(angle - 90.0) < Nearly) {
        return {0.0, 1.0};
    }
    return {std::cos(angle * std::numbers::pi / 180.0), std::sin(angle * std::numbers::pi / 180.0)};
}

bool Frame::IsParallel(const Frame& other) const
{
    constexpr double SineOfTwoDegrees = 0.035;
    return std::abs(cosine * other.sine - sine * other.cosine) < SineOfTwoDegrees;
}

std::vector<BeamRun> FindRuns(const std::vector<PlanLine>& outlines, double unit)
{
    std::map<int, std::vector<Edge>> byDirection;  // in tenths of a degree
    for (const PlanLine& line : outlines) {
        const double dx = line.to.x - line.from.x;
        const double dy = line.to.y - line.from.y;
        if (std::hypot(dx, dy) < LeastLength * unit) {
            continue;
        }
        const double degrees = std::atan2(dy, dx) * 180.0 / std::numbers::pi;
        const int direction = static_cast<int>(std::lround(degrees * 10.0) + 3600) % 1800;
        const Frame frame = Frame::Reading(direction / 10.0);
        const double a = frame.U(line.from);
        const double b = frame.U(line.to);
        byDirection[direction].push_back(
            {(frame.V(line.from) + frame.V(line.to)) / 2.0, std::min(a, b), std::max(a, b)});
    }
    std::vector<BeamRun> runs;
    for (auto& [direction, edges] : byDirection) {
        std::vector<Strip> strips = Sweep(edges, unit).Run();
        DropRooms(strips, edges);
        AddRuns(Frame::Reading(direction / 10.0), strips, edges, unit, runs);
    }
    return runs;
}

OutlineKind OutlineKindOf(std::string_view layer)
{
    std::string upper(layer);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char ch) { return ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 32) : ch; });
    const auto holds = [&upper](std::string_view word) { return upper.find(word) != std::string::npos; };
    constexpr std::string_view OfTexts[] = {"TEXT", "DIM", "HATCH", "文字", "标注", "集中", "原位", "填充"};
    constexpr std::string_view OfBeams[] = {"BEAM", "梁"};
    constexpr std::string_view OfCarriers[] = {"WALL", "COLU", "墙", "柱"};
    if (std::any_of(std::begin(OfTexts), std::end(OfTexts), holds)) {
        return OutlineKind::None;
    }
    return std::any_of(std::begin(OfBeams), std::end(OfBeams), holds)         ? OutlineKind::Beam
           : std::any_of(std::begin(OfCarriers), std::end(OfCarriers), holds) ? OutlineKind::Carrier
                                                                              : OutlineKind::None;
}

}  // namespace Desk
