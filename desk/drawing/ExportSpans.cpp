#include "desk/drawing/ExportSpans.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "desk/reading/BeamName.h"
#include "desk/reading/Section.h"

namespace Desk {

namespace {

constexpr double SupportWidth = 300.0;  // where no beam shows how wide a support is

// A beam or wall that another one may rest on.
struct Member {
    PlanPoint from;
    PlanPoint to;
    double width = 0.0;
    bool isFrame = false;  // on columns, or a wall
    int height = 0;
};

struct Crossing {
    double at = 0.0;  // along the beam
    const Member* member = nullptr;
};

BeamLie LieBetween(const PlanPoint& start, const PlanPoint& end, double width)
{
    BeamLie lie;
    const PlanPoint way = WayBetween(start, end);
    lie.length = std::hypot(way.x, way.y);
    lie.along = {way.x / lie.length, way.y / lie.length};
    constexpr double Upright = 0.02;  // about a degree
    lie.isReversed = lie.along.x < -Upright || (lie.along.x <= Upright && lie.along.y < 0.0);
    if (lie.isReversed) {
        lie.along = {-lie.along.x, -lie.along.y};
    }
    lie.from = lie.isReversed ? end : start;
    lie.width = width;
    return lie;
}

double WidthOfBeam(const Beam& beam)
{
    const int width = WidthOf(beam.section);
    return width > 0 ? width : BeamLie().width;
}

bool IsFrameBeam(const Beam& beam)
{
    return beam.name.substr(0, beam.name.find_first_of("0123456789")).find('K') != std::string::npos;
}

bool HasPosition(const Beam& beam)
{
    return std::hypot(beam.end.x - beam.start.x, beam.end.y - beam.start.y) >= 1.0;
}

std::vector<Member> MembersOf(const Project& project)
{
    std::vector<Member> members;
    for (const Beam& beam : project.beams) {
        const std::optional<Section> section = ReadSection(beam.section);
        members.push_back(
            {beam.start, beam.end, WidthOfBeam(beam), IsFrameBeam(beam), section ? section->height : 0});
    }
    for (const Wall& wall : project.walls) {
        members.push_back(
            {wall.start, wall.end, std::max(100.0, static_cast<double>(wall.thickness)), true, 0});
    }
    return members;
}

// Where a beam meets a member that does not run in its direction.
std::optional<double> MeetingPoint(const BeamLie& lie, const Member& member)
{
    const PlanPoint way = WayBetween(member.from, member.to);
    const double length = std::hypot(way.x, way.y);
    const double slope = Dot(LeftOf(lie.along), way);
    constexpr double LeastAngle = 0.3;  // sine
    if (std::abs(slope) < LeastAngle * length || length < 1.0) {
        return std::nullopt;
    }
    const PlanPoint to = WayBetween(lie.from, member.from);
    const double onMember = -Dot(LeftOf(lie.along), to) / slope;
    const double at = Dot(lie.along, to) + Dot(lie.along, way) * onMember;
    constexpr double Near = 50.0;
    const double beside = (lie.width / 2 + Near) / length;
    const double beyond = member.width / 2 + Near;
    const bool meets =
        onMember >= -beside && onMember <= 1.0 + beside && at >= -beyond && at <= lie.length + beyond;
    return meets ? std::optional(at) : std::nullopt;
}

// Of interior crossings those that support the beam, as many as its name says when it says so.
std::vector<double> Supports(const Beam& beam, const BeamLie& lie, std::vector<Crossing> crossings)
{
    constexpr double LeastSpan = 500.0;
    std::erase_if(crossings, [&](const Crossing& crossing) {
        return crossing.at < LeastSpan || crossing.at > lie.length - LeastSpan;
    });
    std::stable_sort(crossings.begin(), crossings.end(), [](const Crossing& a, const Crossing& b) {
        return a.member->isFrame != b.member->isFrame ? a.member->isFrame
                                                      : a.member->height > b.member->height;
    });
    std::vector<Crossing> apart;
    for (const Crossing& crossing : crossings) {
        if (std::none_of(apart.begin(), apart.end(), [&](const Crossing& other) {
                return std::abs(other.at - crossing.at) < LeastSpan;
            })) {
            apart.push_back(crossing);
        }
    }
    const std::optional<BeamName> name = ReadName(beam.name);
    auto count = static_cast<std::size_t>(std::count_if(
        apart.begin(), apart.end(), [](const Crossing& crossing) { return crossing.member->isFrame; }));
    if (name && name->spans > 0) {
        const int cantilevers = name->cantilever == 'A' ? 1 : name->cantilever == 'B' ? 2 : 0;
        count = static_cast<std::size_t>(name->spans - 1 + cantilevers);
    }
    std::vector<double> supports;
    for (std::size_t i = 0; i < std::min(count, apart.size()); ++i) {
        supports.push_back(apart[i].at);
    }
    return supports;
}

std::vector<double> Supports(const Beam& beam, const BeamLie& lie)
{
    std::vector<double> supports;
    double at = 0.0;
    // The plan can have another scale than the spans.
    const double all = std::accumulate(beam.spans.begin(), beam.spans.end(), 0.0);
    for (std::size_t i = 0; i + 1 < beam.spans.size() && all > 0.0; ++i) {
        at += beam.spans[i] * lie.length / all;
        if (at > 0.0 && at < lie.length) {
            supports.push_back(lie.isReversed ? lie.length - at : at);
        }
    }
    return supports;
}

// As wide as the widest member there.
void AddBreaks(BeamLie& lie, std::vector<double> supports, const std::vector<Crossing>& crossings)
{
    supports.push_back(0.0);
    supports.push_back(lie.length);
    std::sort(supports.begin(), supports.end());
    for (const double at : supports) {
        const bool isEnd = at <= 0.0 || at >= lie.length;
        double half = 0.0;
        for (const Crossing& crossing : crossings) {
            if (std::abs(crossing.at - at) < SupportWidth / 2) {
                half = std::max(half, crossing.member->width / 2);
            }
        }
        half = half > 0.0 || isEnd ? half : SupportWidth / 2;
        lie.breaks.push_back({at - half, at + half});
    }
}

// Beams without a position stand below the others, in rows that make about a square.
void PlaceRest(const Project& project, std::vector<BeamLie>& lies)
{
    constexpr double Pitch = 5000.0;
    constexpr double Gap = 6000.0;
    PlanPoint corner;
    bool isFirst = true;
    double step = 0.0;
    std::vector<std::size_t> rest;
    for (std::size_t i = 0; i < lies.size(); ++i) {
        if (lies[i].isPlaced) {
            for (const PlanPoint& end : {lies[i].At(0.0), lies[i].At(lies[i].length)}) {
                corner = isFirst ? end : PlanPoint{std::min(corner.x, end.x), std::min(corner.y, end.y)};
                isFirst = false;
            }
        } else {
            rest.push_back(i);
            step = std::max(step, lies[i].length + Gap);
        }
    }
    const auto perRow = static_cast<std::size_t>(
        std::ceil(std::sqrt(static_cast<double>(rest.size()) * Pitch / std::max(step, 1.0))));
    for (std::size_t i = 0; i < rest.size(); ++i) {
        lies[rest[i]].from = {corner.x + step * static_cast<double>(i % perRow),
                              corner.y - Gap - Pitch * static_cast<double>(i / perRow)};
        AddBreaks(lies[rest[i]], Supports(project.beams[rest[i]], lies[rest[i]]), {});
    }
}

}  // namespace

std::vector<BeamLie> LiesOf(const Project& project)
{
    const std::vector<Member> members = MembersOf(project);
    PlanBoxes boxes;
    for (const Member& member : members) {
        boxes.Add(BoxBetween(member.from, member.to, member.width),
                  static_cast<std::size_t>(&member - members.data()));
    }
    std::vector<BeamLie> lies;
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        const Beam& beam = project.beams[i];
        if (!HasPosition(beam)) {
            const double length = std::accumulate(beam.spans.begin(), beam.spans.end(), 0.0);
            constexpr double Usual = 6000.0;
            lies.push_back(LieBetween({}, {length > 0.0 ? length : Usual, 0.0}, WidthOfBeam(beam)));
            lies.back().isPlaced = false;
            continue;
        }
        BeamLie lie = LieBetween(beam.start, beam.end, WidthOfBeam(beam));
        std::vector<Crossing> crossings;
        std::vector<std::size_t> met;
        boxes.ForMet(BoxBetween(lie.At(-100.0), lie.At(lie.length + 100.0), lie.width + 200.0),
                     [&](std::size_t member) { met.push_back(member); });
        std::sort(met.begin(), met.end());
        met.erase(std::unique(met.begin(), met.end()), met.end());
        for (const std::size_t member : met) {
            if (const std::optional<double> at = MeetingPoint(lie, members[member]); at && member != i) {
                crossings.push_back({*at, &members[member]});
            }
        }
        AddBreaks(lie, beam.spans.empty() ? Supports(beam, lie, crossings) : Supports(beam, lie),
                  crossings);
        lies.push_back(std::move(lie));
    }
    PlaceRest(project, lies);
    return lies;
}

}  // namespace Desk
