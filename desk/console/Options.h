// What several commands of beamdesk share: the project option, checked numbers.
#pragma once

#include <string>

namespace CLI {
class App;
class Validator;
}  // namespace CLI

namespace Desk {

void AddProjectOption(CLI::App& command, std::string& file);

// Accepts whole numbers inside the range only.
[[nodiscard]] CLI::Validator Whole(int least, int most);

// Accepts numbers inside the range only, with decimals or without.
[[nodiscard]] CLI::Validator Decimal(int least, int most);

// ".dxf" of "Floor.DXF".
[[nodiscard]] std::string LowerCaseExtension(const std::string& file);

// Throws Failure for a text that is no bars such as 2B25.
void RequireBars(const std::string& text);

}  // namespace Desk
