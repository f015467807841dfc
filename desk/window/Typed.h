// What a person types is read before it is taken: a text that is none of its annotation's is asked about,
// with a way to keep it.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "desk/Toolkit.h"
#include "desk/project/Fields.h"

namespace Desk {

// The texts to set for what was typed: one for its annotation or another, or several. Nothing when the
// person took it back. The annotation must exist.
[[nodiscard]] std::optional<std::vector<std::pair<FieldRef, QString>>>
AskTyped(const Project& project, const FieldRef& at, const QString& text, QWidget* over);

// The same for texts that come from elsewhere, one or more: of several, those that are none of their
// annotations' are kept or left out together.
[[nodiscard]] std::optional<std::vector<std::pair<FieldRef, QString>>>
AskGiven(const Project& project, const std::vector<std::pair<FieldRef, QString>>& texts, QWidget* over);

}  // namespace Desk
