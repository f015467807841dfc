// The short tour: one beam of a project, and the best candidates for each of its annotations.
#pragma once

#include <iosfwd>
#include <string>

namespace Desk {

// Both may be empty: the embedded sample, and a beam that has many annotations.
void PrintTour(const std::string& projectFile, const std::string& beamName, std::ostream& out);

}  // namespace Desk
