// A plan as a PDF or SVG file, and on a printer's page.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "desk/project/Backdrop.h"

class QPagedPaintDevice;

namespace Desk {

// Draws a project, and what a drawing shows behind it, at 1:scale on the smallest paper from A4 to A0,
// lying, that it fits on, or else on one of its own size. Lines and texts stay such. The name's ending,
// .pdf or .svg, says which. Needs no display: without an application it makes one for itself. Throws
// Failure when the plan is too large for a paper, and when the file cannot be written; an old file is left
// then.
void WritePlan(const Project& project, const Backdrop* behind, const std::filesystem::path& file,
               double scale = 100.0);
// Draws the same plan in the middle of a page, at 1:100 or the first smaller usual scale that it fits on
// the page with. Answers the N of 1:N, 0 when the device takes nothing.
double PrintPlan(const Project& project, const Backdrop* behind, QPagedPaintDevice& device);

// Tables, whose first row is their headings where they have more than two columns, and sentences under them
// on upright A4 sheets, as PDF. Throws Failure when the file cannot be written.
void WriteTables(const std::string& title, const std::vector<std::vector<std::vector<std::string>>>& tables,
                 const std::vector<std::string>& notes, const std::filesystem::path& file);

}  // namespace Desk
