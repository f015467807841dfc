// Lays a value out for people and for line-by-line comparison: what is short and flat stays on one line.
#include "desk/project/JsonText.h"

#include <algorithm>

namespace Desk {

namespace {

constexpr std::size_t LineLength = 108;
constexpr std::size_t Step = 2;

std::string Scalar(const Json& value)
{
    if (value.is_binary()) {  // a number as it was written
        const auto& written = value.get_binary();
        return {written.begin(), written.end()};
    }
    return value.dump();
}

std::string Key(const std::string& key) { return Json(key).dump() + ": "; }

bool IsFlat(const Json& value)
{
    return std::none_of(value.begin(), value.end(), [](const Json& item) { return item.is_structured(); });
}

std::string OnOneLine(const Json& value)
{
    std::string line(1, value.is_object() ? '{' : '[');
    for (auto item = value.begin(); item != value.end(); ++item) {
        line += item == value.begin() ? "" : ", ";
        line += value.is_object() ? Key(item.key()) : "";
        line += Scalar(*item);
    }
    return line + (value.is_object() ? '}' : ']');
}

// The text behind `used` characters of a line that is indented by `indent`.
void Write(const Json& value, std::size_t indent, std::size_t used, std::string& out)
{
    if (!value.is_structured()) {
        out += Scalar(value);
        return;
    }
    if (IsFlat(value)) {
        const std::string line = OnOneLine(value);
        if (value.empty() || used + line.size() < LineLength) {
            out += line;
            return;
        }
    }
    out += value.is_object() ? '{' : '[';
    for (auto item = value.begin(); item != value.end(); ++item) {
        out += item == value.begin() ? "\n" : ",\n";
        out.append(indent + Step, ' ');
        const std::string key = value.is_object() ? Key(item.key()) : std::string();
        out += key;
        Write(*item, indent + Step, indent + Step + key.size(), out);
    }
    out += '\n';
    out.append(indent, ' ');
    out += value.is_object() ? '}' : ']';
}

}  // namespace

std::string WriteJson(const Json& value)
{
    std::string out;
    Write(value, 0, 0, out);
    out += '\n';
    return out;
}

}  // namespace Desk
