// The lengths that a quantity list is made of, in mm.
#pragma once

#include <vector>

#include "desk/checks/Station.h"

namespace Desk {

// Of the spans; those of a beam that does not say are of one length, as many as its name says.
[[nodiscard]] std::vector<double> SpanLengths(const Beam& beam);

// Anchorage of a bar in the beam: GB 50010-2010 (2015), 8.3.1 and 8.3.2, and 11.1.7 for frame and coupling
// beams.
[[nodiscard]] double AnchorageOf(char grade, int diameter, BeamKind kind, const Beam& beam);

// Half way along a beam that tapers.
[[nodiscard]] double MeanHeight(const Section& section);

// One stirrup: a closed one around all bars, for every two legs more a closed one inside it, for an odd leg
// a tie; each with two hooks of 10 d, 75 mm at least, and their bends.
[[nodiscard]] double StirrupLength(const Section& section, int concreteGrade, int diameter, int legs);

}  // namespace Desk
