// Projects as JSON files: reading with the place of every fault, and saving that never leaves half a file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "desk/project/Project.h"

namespace Desk {

// Reads a project. Throws Failure "FILE:LINE:COLUMN: what is wrong" for a damaged or wrong file; the
// file is only read.
[[nodiscard]] Project ReadProject(const std::filesystem::path& file);

// The same for a text in memory; name stands for the file in messages.
[[nodiscard]] Project ParseProject(std::string_view text, const std::string& name);

// The project as file text: unknown keys and the order of keys are those of the file it came from.
[[nodiscard]] std::string FormatProject(const Project& project);

// For a beam or wall made of a drawing's text: the file keeps the text as drawn, in UTF-8, and its line in
// the drawing's list, under the keys "drawn" and "line".
[[nodiscard]] InFile DrawnInFile(const std::string& drawn, std::size_t line);

// Writes a new file beside the old one, syncs it and renames it over the old one, so that whoever looks
// finds the old or the new file whole. Throws Failure and leaves the old file when that cannot be done.
void SaveProject(const Project& project, const std::filesystem::path& file);

// The embedded sample project: one floor of a building.
[[nodiscard]] Project SampleProject();

// "Office building, third floor (embedded sample)", or with the file's name.
[[nodiscard]] std::string TitleOf(const Project& project, const std::string& file);

}  // namespace Desk
