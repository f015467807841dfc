#include "desk/project/Making.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>
#include <utility>

#include "desk/project/ProjectFields.h"

namespace Desk {

namespace {

constexpr std::string_view AxisLetters = "ABCDEFGHJKLMNPQRSTUVWXY";
constexpr std::size_t MostAxes = 500;

std::string LabelOf(std::size_t number, bool up)
{
    if (!up) {
        return std::to_string(number + 1);
    }
    const std::size_t round = number / AxisLetters.size();
    const std::string letter(1, AxisLetters[number % AxisLetters.size()]);
    return round == 0 ? letter : letter + std::to_string(round);
}

template <class Number>
bool TakeNumber(std::string_view& text, Number& number)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) {
        return false;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

// "7x8000" or "8000" at the beginning of a text.
bool TakeDistances(std::string_view& text, std::vector<double>& distances)
{
    std::size_t times = 1;
    std::string_view rest = text;
    if (TakeNumber(rest, times) && !rest.empty() && (rest.front() == 'x' || rest.front() == '*')) {
        text = rest.substr(1);
    } else {
        times = 1;
    }
    double distance = 0.0;
    if (!TakeNumber(text, distance) || !(distance > 0.0 && distance <= PlanLimit) ||
        times > MostAxes - distances.size()) {
        return false;
    }
    distances.insert(distances.end(), times, distance);
    return true;
}

}  // namespace

Project NewFloor(std::string title, std::vector<Axis> across, std::vector<Axis> up)
{
    Project project;
    project.title = std::move(title);
    project.axesAcross = std::move(across);
    project.axesUp = std::move(up);
    return project;
}

std::optional<std::vector<Axis>> AxesFrom(std::string_view text, bool up)
{
    const auto isBetween = [](char ch) { return ch == ' ' || ch == ',' || ch == '+' || ch == ';'; };
    std::vector<double> distances;
    for (;;) {
        while (!text.empty() && isBetween(text.front())) {
            text.remove_prefix(1);
        }
        if (text.empty()) {
            break;
        }
        if (!TakeDistances(text, distances) || (!text.empty() && !isBetween(text.front()))) {
            return std::nullopt;
        }
    }
    std::vector<Axis> axes = {{LabelOf(0, up), 0.0}};
    for (const double distance : distances) {
        axes.push_back({LabelOf(axes.size(), up), axes.back().at + distance});
    }
    return axes.back().at <= PlanLimit ? std::optional(std::move(axes)) : std::nullopt;
}

bool IsInRange(const PlanPoint& at) { return std::abs(at.x) <= PlanLimit && std::abs(at.y) <= PlanLimit; }

void SetEnds(Beam& beam, const PlanPoint& start, const PlanPoint& end)
{
    const double before = std::hypot(beam.end.x - beam.start.x, beam.end.y - beam.start.y);
    const double now = std::hypot(end.x - start.x, end.y - start.y);
    const bool startMoved = !IsSame(start, beam.start);
    const bool bothMoved = startMoved && !IsSame(end, beam.end);
    beam.start = start;
    beam.end = end;
    constexpr double Same = 0.01;  // mm
    if (beam.spans.empty() || std::abs(now - before) < Same) {
        return;
    }
    double& last = startMoved ? beam.spans.front() : beam.spans.back();
    if (!bothMoved && last + now - before > 0.0) {
        last += now - before;
        return;
    }
    const double all = std::accumulate(beam.spans.begin(), beam.spans.end(), 0.0);
    for (double& span : beam.spans) {
        span *= now / all;
    }
}

void SetEnds(Wall& wall, const PlanPoint& start, const PlanPoint& end)
{
    wall.start = start;
    wall.end = end;
}

void Shift(Beam& beam, const PlanPoint& by)
{
    beam.start = Shifted(beam.start, by);
    beam.end = Shifted(beam.end, by);
    for (InPlace& text : beam.inPlace) {
        text.place.at = text.place.height > 0.0 ? Shifted(text.place.at, by) : text.place.at;
    }
}

void Shift(Wall& wall, const PlanPoint& by)
{
    wall.start = Shifted(wall.start, by);
    wall.end = Shifted(wall.end, by);
}

PlanPoint& DraggedTo(Beam& beam, const FieldRef& text)
{
    if (text.inPlace >= 0) {
        InPlace& each = beam.inPlace.at(static_cast<std::size_t>(text.inPlace));
        return each.place.height > 0.0 ? each.place.at : each.movedBy;
    }
    return text.field == Field::LeftEnd    ? beam.leftEndBy
           : text.field == Field::RightEnd ? beam.rightEndBy
                                           : beam.textsAt;
}

void TurnRound(Beam& beam, int spans)
{
    std::swap(beam.start, beam.end);
    std::swap(beam.leftEnd, beam.rightEnd);
    std::swap(beam.leftEndBy, beam.rightEndBy);
    std::swap(beam.area.leftEnd, beam.area.rightEnd);
    std::reverse(beam.spans.begin(), beam.spans.end());
    int count = beam.spans.empty() ? spans : static_cast<int>(beam.spans.size());
    for (const InPlace& text : beam.inPlace) {  // a number that is there cannot become one below 1
        count = std::max(count, text.role == Role::TopSupport ? text.number - 1 : text.number);
    }
    for (InPlace& text : beam.inPlace) {
        text.number = count + (text.role == Role::TopSupport ? 2 : 1) - text.number;
    }
}

void TurnRound(Wall& wall) { std::swap(wall.start, wall.end); }

}  // namespace Desk
