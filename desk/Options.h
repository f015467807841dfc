// What several commands of beamdesk share: the project option, beams by name, checked numbers.
#pragma once

#include <optional>
#include <string>

#include "desk/Project.h"

namespace CLI {
class App;
class Validator;
}  // namespace CLI

namespace Desk {

// The project of a file, the sample for an empty name.
[[nodiscard]] Project LoadProject(const std::string& file);

// "Office building, third floor (embedded sample)", or with the file's name.
[[nodiscard]] std::string TitleOf(const Project& project, const std::string& file);

// A beam by its full name, or by its name without the span suffix. The first one when several have it.
// Throws Failure that names beams like it when there is none.
[[nodiscard]] const Beam& FindBeam(const Project& project, const std::string& name);

// The width of a beam's section in mm, nothing when it has none.
[[nodiscard]] std::optional<int> WidthOf(const Beam& beam);

void AddProjectOption(CLI::App& command, std::string& file);

// Lets only a whole number inside the range through and says so otherwise.
[[nodiscard]] CLI::Validator Whole(int least, int most);

}  // namespace Desk
