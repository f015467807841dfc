#include "desk/drawing/ExportLayout.h"

#include <algorithm>
#include <numbers>
#include <numeric>

#include "desk/drawing/ExportBoxes.h"
#include "desk/drawing/ExportSpans.h"
#include "desk/drawing/ExportTexts.h"

namespace Desk {

namespace {

constexpr double TextHeight = 300.0;  // of all texts, mm
constexpr double LinePitch = 325.0;   // from line to line
constexpr double FromEdge = 150.0;    // between a beam's edge and a text in place
constexpr double LeaderLeast = 500;   // from the label to the axis
constexpr double LeaderMost = 2500;

// As wide as a narrow drawing font writes it.
double WidthOfText(const DrawnLine& line) { return 0.62 * TextHeight * static_cast<double>(line.columns); }

class Layout {
public:
    explicit Layout(const Project& project)
        : m_project(project), m_lies(LiesOf(project)), m_plan(m_lies.size())
    {
        for (std::size_t i = 0; i < m_lies.size(); ++i) {
            const BeamLie& lie = m_lies[i];
            m_plan[i].isUp = std::abs(lie.along.y) > std::abs(lie.along.x);
            m_strips.Add(BoxBetween(lie.At(0.0), lie.At(lie.length), lie.width), i);
        }
    }

    std::vector<BeamOnPlan> Run()
    {
        for (std::size_t i = 0; i < m_lies.size(); ++i) {
            if (!m_project.beams[i].name.empty() || m_lies[i].isPlaced) {
                m_plan[i].outline = Outline(m_lies[i]);
            }
            PutInPlace(i);
        }
        // Short beams first: they leave their labels the least choice.
        std::vector<std::size_t> order(m_lies.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
            return m_lies[a].length < m_lies[b].length;
        });
        for (const std::size_t i : order) {
            PutLabel(i);
        }
        return std::move(m_plan);
    }

private:
    static std::vector<PlanLine> Outline(const BeamLie& lie)
    {
        std::vector<PlanLine> lines;
        double from = lie.breaks.front().to;
        for (std::size_t i = 1; i < lie.breaks.size(); ++i) {
            const double to = lie.breaks[i].from;
            for (const double side : {lie.width / 2, -lie.width / 2}) {
                if (to > from) {
                    lines.push_back({lie.At(from, side), lie.At(to, side)});
                }
            }
            from = std::max(from, lie.breaks[i].to);
        }
        return lines;
    }

    [[nodiscard]] PlanBox BoxOf(const BeamLie& lie, double along, double aside, const DrawnLine& line) const
    {
        const double half = WidthOfText(line) / 2;
        return {lie.At(along + half, aside + TextHeight / 2), lie.along, half, TextHeight / 2};
    }

    PlanText Put(const BeamLie& lie, double along, double aside, const DrawnLine& line)
    {
        m_texts.Add(BoxOf(lie, along, aside, line), 0);
        const double angle = std::atan2(lie.along.y, lie.along.x) * 180.0 / std::numbers::pi;
        return {line.text, {lie.At(along, aside), angle, TextHeight}};
    }

    // Where the middle of a text in place may be along the beam, the best position first.
    struct Room {
        double best = 0.0;
        double last = 0.0;
    };

    // At a support: beside it in the span to its right, at the last one in the span to its left, and never
    // nearer to the middle of that span than to the support. All others in the middle of their span.
    static Room RoomOf(const BeamLie& lie, const InPlaceLine& text)
    {
        const double half = WidthOfText(text.line) / 2;
        const std::size_t last = lie.breaks.size() - 1;
        const auto number = static_cast<std::size_t>(std::max(text.number, 1)) - 1;
        if (text.role != Role::TopSupport) {
            const std::size_t span = lie.FromLeft(std::min(number, last - 1), last - 1);
            const double middle = (lie.breaks[span].Middle() + lie.breaks[span + 1].Middle()) / 2;
            return {middle, middle};
        }
        const std::size_t support = lie.FromLeft(std::min(number, last), last);
        const double at = lie.breaks[support].Middle();
        if (support == last) {
            const double quarter = at - (at - lie.breaks[last - 1].Middle()) / 4;
            return {std::max(lie.breaks[support].from - 100.0 - half, quarter), quarter};
        }
        const double quarter = at + (lie.breaks[support + 1].Middle() - at) / 4;
        return {std::min(lie.breaks[support].to + 100.0 + half, quarter), quarter};
    }

    // The first position that is free: along the beam, then one text further from it.
    void PutInPlace(std::size_t index)
    {
        const BeamLie& lie = m_lies[index];
        for (const InPlaceLine& text : TextsInPlace(m_project.beams[index], lie.breaks.size())) {
            const bool isTop = text.role == Role::TopSupport || text.role == Role::TopSpan;
            const Room room = RoomOf(lie, text);
            const double half = WidthOfText(text.line) / 2;
            const double step = room.last < room.best ? -LinePitch : LinePitch;
            const int steps = std::min(3, static_cast<int>((room.last - room.best) / step));
            constexpr int Rows = 3;
            const auto along = [&](int number) { return room.best - half + number % (steps + 1) * step; };
            const auto aside = [&](int number) {
                const double away = lie.width / 2 + FromEdge + number / (steps + 1) * LinePitch;
                return isTop ? away : -away - TextHeight;
            };
            int number = 0;
            const int all = Rows * (steps + 1);
            while (number < all && m_texts.IsMet(BoxOf(lie, along(number), aside(number), text.line))) {
                ++number;
            }
            number %= all;
            m_plan[index].inPlace.push_back(Put(lie, along(number), aside(number), text.line));
        }
    }

    // Of a label at a position; 0 where nothing is in its way.
    [[nodiscard]] int Cost(std::size_t index, const std::vector<DrawnLine>& lines, double along,
                           double aside, int enough) const
    {
        constexpr int OnText = 20;
        constexpr int OnBeam = 1;
        constexpr int LeaderOverBeam = 8;
        constexpr int LeaderToBeam = 100;  // it would end on two
        const BeamLie& lie = m_lies[index];
        const PlanBox leader =
            BoxBetween(lie.At(along - TextHeight / 4, aside), lie.At(along - TextHeight / 4), 40.0);
        int cost = m_texts.IsMet(leader) ? OnText : 0;
        const PlanBox end =
            BoxBetween(lie.At(along - TextHeight / 4), lie.At(along - TextHeight / 4), 40.0);
        m_strips.ForMet(leader, [&](std::size_t other) { cost += other == index ? 0 : LeaderOverBeam; });
        m_strips.ForMet(end, [&](std::size_t other) { cost += other == index ? 0 : LeaderToBeam; });
        for (std::size_t i = 0; i < lines.size() && cost < enough; ++i) {
            const PlanBox box = BoxOf(lie, along, aside - static_cast<double>(i) * LinePitch, lines[i]);
            cost += m_texts.IsMet(box) ? OnText : 0;
            m_strips.ForMet(box, [&](std::size_t) { cost += OnBeam; });
            cost += along + 2 * box.halfLength > lie.length + TextHeight ? OnBeam : 0;
        }
        return cost;
    }

    // The first position along the beam and away from it where nothing is in the way, else the best one.
    void PutLabel(std::size_t index)
    {
        const std::vector<DrawnLine> lines = LabelLines(m_project.beams[index]);
        if (lines.empty()) {
            return;
        }
        const BeamLie& lie = m_lies[index];
        const double below = lie.width / 2 + FromEdge + TextHeight;
        const double above = lie.width / 2 + FromEdge + static_cast<double>(lines.size() - 1) * LinePitch;
        double bestAlong = lie.breaks.front().to + TextHeight;
        double bestAside = std::max(above, LeaderLeast);
        int best = 1'000'000;
        constexpr int Steps = 24;
        const double room = lie.length - 2 * TextHeight;
        for (double away = LeaderLeast; best > 0 && away <= LeaderMost; away += LinePitch / 2) {
            for (int step = 0; best > 0 && step < Steps && room > 0.0; ++step) {
                const double along = TextHeight + room * (step + 0.5) / Steps;
                for (const double aside : {away, -away}) {
                    if (away < (aside > 0.0 ? above : below)) {
                        continue;
                    }
                    if (const int cost = Cost(index, lines, along, aside, best); cost < best) {
                        best = cost;
                        bestAlong = along;
                        bestAside = aside;
                    }
                }
            }
        }
        if (!m_project.beams[index].name.empty()) {
            const double beside = bestAlong - TextHeight / 4;
            m_plan[index].leader = PlanLine{lie.At(beside, bestAside), lie.At(beside)};
            m_texts.Add(BoxBetween(m_plan[index].leader->from, m_plan[index].leader->to, 40.0), 0);
        }
        for (std::size_t i = 0; i < lines.size(); ++i) {
            m_plan[index].label.push_back(
                Put(lie, bestAlong, bestAside - static_cast<double>(i) * LinePitch, lines[i]));
        }
    }

    const Project& m_project;
    std::vector<BeamLie> m_lies;
    std::vector<BeamOnPlan> m_plan;
    PlanBoxes m_strips;  // the beams
    PlanBoxes m_texts;   // texts and leaders
};

}  // namespace

std::vector<BeamOnPlan> LayOutBeams(const Project& project) { return Layout(project).Run(); }

}  // namespace Desk
