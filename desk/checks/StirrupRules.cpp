// Rules of stirrups.
#include <algorithm>
#include <cmath>

#include "desk/checks/Rules.h"

namespace Desk {

namespace {

bool IsSeismic(const Station& at) { return at.kind != BeamKind::Other; }

// Of a beam that tapers the lesser one, which asks for more; 0 without.
int HeightOf(const Station& at)
{
    const Section section = at.section.value_or(Section());
    return section.otherHeight > 0 ? std::min(section.height, section.otherHeight) : section.height;
}

int ThinnestBar(const Station& at)
{
    int thinnest = 0;
    for (const Field field : {Field::TopBars, Field::BottomBars}) {
        if (at.BarsOf(field)) {
            ForEachTerm(*at.BarsOf(field), [&](const BarTerm& term) {
                thinnest = thinnest == 0 ? term.diameter : std::min(thinnest, term.diameter);
            });
        }
    }
    return thinnest;
}

// GB 50010-2010 (2015), table 9.2.9, for a shear force over 0.7 ft b h0: how much there is a project does
// not know. 0 for depths that the table leaves out.
int MostByDepth(int height)
{
    return height <= 150 ? 0 : height <= 300 ? 150 : height <= 500 ? 200 : height <= 800 ? 250 : 300;
}

// The same, table 11.3.6-2: the tight zone of a frame beam.
int MostInTightZone(const Station& at)
{
    const int seismicClass = at.beam.seismicClass;
    int most = seismicClass <= 2 ? 100 : 150;
    if (const int height = HeightOf(at); height > 0) {
        most = std::min(most, height / 4);
    }
    if (const int bar = ThinnestBar(at); bar > 0) {
        most = std::min(most, (seismicClass == 1 ? 6 : 8) * bar);
    }
    return most;
}

void TellOver(int spacing, int most, const Phrase& phrase, const Tell& tell)
{
    if (most > 0 && spacing > most) {
        tell(Field::Stirrup, {phrase, std::to_string(spacing), std::to_string(most)});
    }
}

}  // namespace

// GB 50010-2010 (2015), 9.2.9 by the depth of the beam; frame beams by 11.3.6 in the tight zone and 11.3.9
// outside it, coupling beams by 11.3.6 all along, as 11.7.11 asks.
void CheckStirrupSpacing(const Station& at, const Tell& tell)
{
    if (!at.Looks(Field::Stirrup) || !at.stirrup) {
        return;
    }
    const Stirrup& stirrup = *at.stirrup;
    const int byDepth = MostByDepth(HeightOf(at));
    const int widest = std::max(stirrup.spacing, stirrup.tightSpacing);
    const Phrase anywhere = Phrase("Desk", "spacing %1 mm, at most %2 mm at this depth");
    if (!IsSeismic(at)) {
        TellOver(widest, byDepth, anywhere, tell);
        return;
    }
    const bool hasZone = stirrup.tightSpacing > 0 && at.kind == BeamKind::Frame;
    const int tight = hasZone ? stirrup.tightSpacing : widest;
    const int mostTight = MostInTightZone(at);
    const Phrase inZone = hasZone ? Phrase("Desk", "spacing %1 mm in the tight zone, at most %2 mm")
                                  : Phrase("Desk", "spacing %1 mm at the ends, at most %2 mm");
    TellOver(tight, mostTight, inZone, tell);
    if (hasZone && tight <= mostTight) {
        TellOver(stirrup.spacing, 2 * tight,
                 Phrase("Desk", "spacing %1 mm, at most twice the tight one: %2 mm"), tell);
    }
    if (hasZone && stirrup.spacing <= 2 * tight) {
        TellOver(stirrup.spacing, byDepth, anywhere, tell);
    }
}

// GB 50010-2010 (2015), 9.2.9: 6 mm, over a depth of 800 mm 8 mm; frame and coupling beams by table
// 11.3.6-2.
void CheckStirrupDiameter(const Station& at, const Tell& tell)
{
    if (!at.Looks(Field::Stirrup) || !at.stirrup) {
        return;
    }
    constexpr int BySeismicClass[] = {10, 8, 8, 6};
    int least = HeightOf(at) > 800 ? 8 : 6;
    if (IsSeismic(at)) {
        const auto seismicClass = static_cast<std::size_t>(std::clamp(at.beam.seismicClass, 1, 4));
        least = std::max(least, BySeismicClass[seismicClass - 1]);
    }
    if (at.stirrup->diameter < least) {
        tell(Field::Stirrup, {Phrase("Desk", "%1 mm thick, %2 mm at least"),
                              std::to_string(at.stirrup->diameter), std::to_string(least)});
    }
}

// GB 50010-2010 (2015), 11.3.8: legs in the tight zone of frame and coupling beams are at most 200, 250 or
// 300 mm or 20 stirrup diameters apart, by seismic class, and never over 300 mm; measured clear between the
// legs. Other beams wider than 400 mm have more than two legs: rule of practice.
void CheckStirrupLegs(const Station& at, const Tell& tell)
{
    if (!at.Looks(Field::Stirrup) || !at.stirrup) {
        return;
    }
    const Stirrup& stirrup = *at.stirrup;
    const int legs = stirrup.tightLegs > 0 ? stirrup.tightLegs : stirrup.legs;
    const int width = at.section.value_or(Section()).width;
    if (legs == 0) {
        tell(Field::Stirrup, Phrase("Desk", "the number of legs is missing"));
        return;
    }
    if (width == 0) {
        return;
    }
    if (!IsSeismic(at)) {
        if (width > 400 && legs <= 2) {
            tell(Field::Stirrup, {Phrase("Desk", "%1 legs; beams wider than %2 mm have more"),
                                  std::to_string(legs), std::to_string(400)});
        }
        return;
    }
    constexpr int BySeismicClass[] = {200, 250, 250, 300};
    const auto seismicClass = static_cast<std::size_t>(std::clamp(at.beam.seismicClass, 1, 4));
    const int most = std::min(300, std::max(BySeismicClass[seismicClass - 1], 20 * stirrup.diameter));
    const int between = width - 2 * CoverOf(at.beam.concreteGrade) - legs * stirrup.diameter;
    if (legs == 1 || between > most * (legs - 1)) {
        tell(Field::Stirrup,
             {Phrase("Desk", "%1 legs are %2 mm apart, at most %3 mm"), std::to_string(legs),
              std::to_string(legs == 1 ? width : between / (legs - 1)), std::to_string(most)});
    }
}

}  // namespace Desk
