// The report of an import: what was read, what was filled in, and every text that was not read.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "desk/reading/ImportTexts.h"

namespace Desk {

// name is that of the texts' file. With all true every text is listed with what it was read as.
void PrintReport(std::ostream& out, const std::string& name, const TextsFile& file,
                 const std::vector<ImportedText>& texts, const Choices& choices, bool all);

// "1 beam", "2 beams".
[[nodiscard]] std::string Plural(std::size_t count, const std::string& word);

// "12, 40-57": numbers that rise, runs of three and more as a range.
[[nodiscard]] std::string Ranges(const std::vector<std::size_t>& numbers);

}  // namespace Desk
