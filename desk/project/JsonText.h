// JSON texts with the place of every fault: reading, finding a value's place, writing.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include <nlohmann/json.hpp>

#include "desk/project/Failure.h"

namespace Desk {

using Json = nlohmann::ordered_json;

// What is wrong, and the byte of the text where it stands.
class JsonFault : public Failure {
public:
    JsonFault(std::size_t byte, Message what) : Failure(std::move(what)), m_byte(byte) {}
    [[nodiscard]] std::size_t Byte() const noexcept { return m_byte; }

private:
    std::size_t m_byte;
};

// "LINE:COLUMN" of a byte of a text, both from 1; a column is a character, not a byte.
[[nodiscard]] std::string LineAndColumn(std::string_view text, std::size_t byte);

// Throws JsonFault for a text that is empty, not UTF-8, no JSON, nested deeper than 64 levels, or that has
// a key twice in one object. A number that would not be written again as it stands here (0.850, or more
// digits than a double holds) is kept as its text, in a binary value: see JsonNumber.
[[nodiscard]] Json ReadJson(std::string_view text);

// True for any number; the value is then in number. Numbers kept as text are numbers too.
[[nodiscard]] bool JsonNumber(const Json& value, double& number);

// The byte where the value of a path begins in a text that ReadJson took; the byte of the last value on
// the path that exists when the path leads nowhere.
[[nodiscard]] std::size_t PlaceInJson(std::string_view text, const Json::json_pointer& path);

// The value as text that ends with a line feed: short lists on one line, everything else a line a member.
// Throws std::runtime_error for a text that is not UTF-8.
[[nodiscard]] std::string WriteJson(const Json& value);

}  // namespace Desk
