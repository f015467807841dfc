#include "desk/checks/Quantities.h"

#include <algorithm>
#include <functional>
#include <numbers>
#include <numeric>
#include <tuple>

#include "desk/checks/CountBeam.h"
#include "desk/project/FindBeam.h"

namespace Desk {

Phrase NameOf(BarUse use)
{
    switch (use) {
    case BarUse::Top: return Phrase("Desk", "Top bars");
    case BarUse::Bottom: return Phrase("Desk", "Bottom bars");
    case BarUse::Erection: return Phrase("Desk", "Erection bars");
    case BarUse::Side: return Phrase("Desk", "Side bars");
    case BarUse::Torsion: return Phrase("Desk", "Torsion bars");
    case BarUse::Stirrup: break;
    }
    return Phrase("Desk", "Stirrups");
}

double BarQuantity::Length() const { return std::accumulate(length.begin(), length.end(), 0.0); }

double BarQuantity::Mass() const
{
    constexpr double SteelDensity = 7850.0;                            // kg/m³
    const double area = std::numbers::pi * diameter * diameter / 4e6;  // m²
    return Length() * area * SteelDensity;
}

double Quantities::Mass() const
{
    return std::accumulate(bars.begin(), bars.end(), 0.0,
                           [](double sum, const BarQuantity& bar) { return sum + bar.Mass(); });
}

void Quantities::Add(const Quantities& more)
{
    for (const BarQuantity& bar : more.bars) {
        const auto isBefore = [](const BarQuantity& a, const BarQuantity& b) {
            return std::tie(a.grade, a.diameter) < std::tie(b.grade, b.diameter);
        };
        const auto found = std::lower_bound(bars.begin(), bars.end(), bar, isBefore);
        if (found == bars.end() || isBefore(bar, *found)) {
            bars.insert(found, bar);
            continue;
        }
        std::transform(found->length.begin(), found->length.end(), bar.length.begin(),
                       found->length.begin(), std::plus<>());
    }
    beamLength += more.beamLength;
    concrete += more.concrete;
    formwork += more.formwork;
    beams += more.beams;
    uncounted.insert(uncounted.end(), more.uncounted.begin(), more.uncounted.end());
}

Quantities QuantitiesOf(const Project& project, std::size_t beam)
{
    const Beam& own = project.beams.at(beam);
    const std::size_t written = WrittenOut(project, beam);
    if (written == beam) {
        return CountBeam(own, beam);
    }
    // Its texts are at another label of its name.
    Beam as = project.beams[written];
    as.inPlace = own.inPlace;
    as.spans = own.spans;
    as.start = own.start;
    as.end = own.end;
    return CountBeam(as, beam);
}

Quantities QuantitiesOf(const Project& project)
{
    Quantities all;
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        all.Add(QuantitiesOf(project, i));
    }
    return all;
}

}  // namespace Desk
