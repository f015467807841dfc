// What the commands print: texts in columns on a terminal, JSON.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "desk/project/Project.h"

namespace Desk {

// Cells that a text takes: two for a wide character as in Chinese, one for any other.
[[nodiscard]] int DisplayWidth(std::string_view utf8);

// The text filled up with blanks on its right or left to the width in cells; a longer text as it is.
[[nodiscard]] std::string PadRight(std::string_view text, int width);
[[nodiscard]] std::string PadLeft(std::string_view text, int width);

[[nodiscard]] std::string Quoted(const std::string& text);
// In quotes where it could not be seen otherwise: a text that is empty or begins or ends with a blank.
[[nodiscard]] std::string Visible(const std::string& text);

// The items' names in a row.
template <class Items, class Name>
[[nodiscard]] std::string Joined(const Items& items, Name&& name, const char* separator = ", ")
{
    std::string joined;
    for (const auto& item : items) {
        joined.append(joined.empty() ? "" : separator).append(name(item));
    }
    return joined;
}

// Columns as wide as what they hold.
void PrintRows(const std::vector<std::vector<std::string>>& rows, std::ostream& out);

// "8400,-1200": to the millimetre.
[[nodiscard]] std::string Position(const PlanPoint& at);

// For programs. Bytes that are no UTF-8 are replaced.
void PrintJson(const nlohmann::ordered_json& json, std::ostream& out);

// "once", "twice", "3 times".
[[nodiscard]] std::string Times(int count);

}  // namespace Desk
