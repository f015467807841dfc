// What a driven panel did, for people and for programs.
#pragma once

#include <iosfwd>
#include <string>

#include "desk/console/panel/Run.h"

namespace Desk::Panels {

// The panel as it opens, under its title.
void PrintStart(const std::string& title, const Picture& picture, bool withIds, std::ostream& out);
// A step with its outcome, and the panel where it has changed.
void PrintStep(int number, const Done& done, const Picture& before, bool withIds, std::ostream& out);
// The step alone, and only when a text was delivered or a message box shown.
void PrintOutcome(int number, const Done& done, std::ostream& out);
void PrintPicture(const Picture& picture, bool withIds, std::ostream& out);
// A step with its events, each with what finished it and what it caused.
void PrintEvents(int number, const Done& done, std::ostream& out);

[[nodiscard]] nlohmann::ordered_json JsonOf(const Picture& picture);
[[nodiscard]] nlohmann::ordered_json JsonOf(const Done& done, bool withEvents);

// The texts delivered and the message boxes of a step.
[[nodiscard]] std::vector<Effect> OutcomesOf(const Done& done);

}  // namespace Desk::Panels
