// The texts that an annotation is likely to be, as the module ranks them for the chosen place.
#pragma once

#include "desk/project/Fields.h"
#include "desk/ranking/Ranking.h"

namespace Desk {

// Best first, in the form in which the project writes the field: side bars "G4B12", torsion bars
// "N4B12". A wall's bars, which the module does not rank, are those of the other walls, the most used
// first. The table's rows stand behind all others when they are wanted and the beam says what the
// table asks for; a place without rows in it has none.
[[nodiscard]] Ranking ChoicesFor(const Project& project, const FieldRef& place, bool withTable);

}  // namespace Desk
