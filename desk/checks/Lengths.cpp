#include "desk/checks/Lengths.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/reading/BeamName.h"

namespace Desk {

namespace {

// Design strength of the grades A to D, and tensile strength of concrete, in N/mm²: GB 50010-2010 (2015),
// tables 4.2.3-1 and 4.1.4-2. Concrete over C60 anchors like C60.
constexpr double StrengthOfSteel[] = {270.0, 300.0, 360.0, 435.0};
constexpr std::pair<int, double> StrengthOfConcrete[] = {{15, 0.91}, {20, 1.10}, {25, 1.27}, {30, 1.43},
                                                         {35, 1.57}, {40, 1.71}, {45, 1.80}, {50, 1.89},
                                                         {55, 1.96}, {60, 2.04}};

double TensileStrength(int concreteGrade)
{
    double strength = StrengthOfConcrete[0].second;
    for (const auto& [grade, tensile] : StrengthOfConcrete) {
        strength = grade <= concreteGrade ? tensile : strength;
    }
    return strength;
}

}  // namespace

std::vector<double> SpanLengths(const Beam& beam)
{
    if (!beam.spans.empty()) {
        return beam.spans;
    }
    const double length = std::hypot(beam.end.x - beam.start.x, beam.end.y - beam.start.y);
    const BeamName name = ReadNameInAnyCase(beam.name).value_or(BeamName());
    const int cantilevers = name.cantilever == 'B' ? 2 : name.cantilever == 'A' ? 1 : 0;
    const int count = std::max(1, name.spans) + (name.spans > 0 ? cantilevers : 0);
    return std::vector<double>(static_cast<std::size_t>(count), length / count);
}

double AnchorageOf(char grade, int diameter, BeamKind kind, const Beam& beam)
{
    constexpr double Plain = 0.16;
    constexpr double Ribbed = 0.14;
    const double seismic = kind == BeamKind::Other  ? 1.0
                           : beam.seismicClass <= 2 ? 1.15
                           : beam.seismicClass == 3 ? 1.05
                                                    : 1.0;
    constexpr double Least = 200.0;
    const double steel = StrengthOfSteel[static_cast<std::size_t>(std::clamp(grade - 'A', 0, 3))];
    const double anchorage =
        (grade == 'A' ? Plain : Ribbed) * steel / TensileStrength(beam.concreteGrade) * diameter;
    return seismic * std::max(Least, anchorage);
}

double MeanHeight(const Section& section)
{
    return section.otherHeight > 0 ? (section.height + section.otherHeight) / 2.0 : section.height;
}

double StirrupLength(const Section& section, int concreteGrade, int diameter, int legs)
{
    const double cover = CoverOf(concreteGrade);
    const double width = section.width - 2.0 * cover;
    const double height = MeanHeight(section) - 2.0 * cover;
    const double hooks = 2.0 * (std::max(10.0 * diameter, 75.0) + 1.9 * diameter);
    double length = 2.0 * (width + height) + hooks;
    for (int more = legs - 2; more > 0; more -= 2) {
        length += more == 1 ? height + hooks : 2.0 * (width / (legs - 1) + height) + hooks;
    }
    return length;
}

}  // namespace Desk
