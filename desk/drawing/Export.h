// A project as a drawing: labels with leaders, texts in place, outlines, axes.
#pragma once

#include <filesystem>
#include <string>

#include "desk/project/Project.h"

namespace Desk {

// An ASCII DXF of version AC1009 in GBK, with handles; grade letters become %%130 to %%133. Layers: BEAM
// (outlines, broken at the supports), BEAM_TEXT_X and BEAM_TEXT_Y (labels with their leaders and texts in
// place, by the direction of the beam), AXIS (axes with their bubbles), WALL (outlines). Beams without a
// position are laid out in rows below the others. What it cannot hold is the companion's.
[[nodiscard]] std::string FormatDrawing(const Project& project);
// Writes that drawing and its companion file; an old companion goes where the drawing needs none. Answers
// whether there is one. Throws Failure when it cannot be done.
bool ExportDrawing(const Project& project, const std::filesystem::path& file);

}  // namespace Desk
