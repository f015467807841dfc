// Says in words what a text is that is no annotation of a beam or a wall, and why a text cannot be read.
#pragma once

#include <string>
#include <string_view>

#include "desk/reading/ReadText.h"

namespace Desk {

// What a text is that is understood and belongs to no beam: a grade sign alone, a concrete or steel grade.
// Empty for every other text.
[[nodiscard]] std::string WhatElse(std::string_view drawn, std::string_view plain);

// Why nothing in a plain text could be read; never empty.
[[nodiscard]] std::string WhyUnread(std::string_view plain, Kind kind);

}  // namespace Desk
