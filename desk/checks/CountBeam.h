// Counts the bars, concrete and formwork of one beam.
#pragma once

#include "desk/checks/Quantities.h"

namespace Desk {

// index is that of the beam in its project, for the account of what could not be counted.
[[nodiscard]] Quantities CountBeam(const Beam& beam, std::size_t index);

}  // namespace Desk
