// What a driven panel did, for people and for programs.
#pragma once

#include <iosfwd>
#include <string>

#include <nlohmann/json.hpp>

#include "desk/console/panel/Run.h"

namespace Desk::Panels {

// The panel as it opens, under its title.
void PrintStart(const std::string& title, const Picture& picture, bool withIds, std::ostream& out);
// A step with what came of it; the panel only where it is not as it was.
void PrintStep(int number, const Done& done, const Picture& before, bool withIds, std::ostream& out);
// The step alone, and only when a text or a message came of it.
void PrintOutcome(int number, const Done& done, std::ostream& out);
void PrintPicture(const Picture& picture, bool withIds, std::ostream& out);
// A step with its events, each with who finished it and what it set off.
void PrintEvents(int number, const Done& done, std::ostream& out);

[[nodiscard]] nlohmann::ordered_json JsonOf(const Picture& picture);
[[nodiscard]] nlohmann::ordered_json JsonOf(const Done& done, bool withEvents);

}  // namespace Desk::Panels
