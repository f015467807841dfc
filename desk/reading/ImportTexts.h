// Makes a project out of the texts of a file, with an account of every one of them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "desk/project/Project.h"
#include "desk/reading/Annotation.h"
#include "desk/reading/ReadText.h"
#include "desk/reading/TextsFile.h"

namespace Desk {

struct ImportedText {
    DrawnText drawn;
    Kind kind = Kind::None;
    Reading reading;
};

[[nodiscard]] std::vector<ImportedText> ReadTexts(const TextsFile& file, const Choices& choices);

// Each text that is read becomes one beam that holds its annotations and nothing else, or, for spaced bars
// of walls, one wall with horizontal bars. A drawing's loose texts do not say which belong together, so a
// beam of a loose text has no name and no other annotation. Each beam and wall keeps its text as drawn and
// the line under the keys "drawn" and "line".
[[nodiscard]] Project ProjectOf(const std::vector<ImportedText>& texts, const std::string& title);

// The name of the texts' file where it can be a project's title.
[[nodiscard]] std::string TitleFor(const std::filesystem::path& texts);

}  // namespace Desk
