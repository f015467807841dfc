// What a command is told of a beam and its annotations: names of beams, keys of fields.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "desk/drawing/Drawing.h"
#include "desk/project/Fields.h"

namespace Desk {

// The keys of a beam's annotations, as a project file has them.
[[nodiscard]] std::string KeysOfBeams();
// Throws Failure for a word that is no such key.
[[nodiscard]] const FieldRow& RequireRow(const std::string& key);

// Of the beams of that name, with or without spans, the nearest to the position, without one the one with
// the most texts. Throws Failure that names beams like it when there is none.
[[nodiscard]] std::size_t BeamNamed(const Project& project, const std::string& word,
                                    const std::optional<PlanPoint>& at = std::nullopt);

// The annotation that a field of a beam is: on a drawing that of the beam that is written out, and at the
// ends the text in place.
[[nodiscard]] FieldRef FieldOfBeam(const Opened& opened, std::size_t beam, Field field);

}  // namespace Desk
