// Widths by the blocks of wide characters, which suffices for annotation texts and titles.
#include "desk/console/Print.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <ostream>

#include <nlohmann/json.hpp>

namespace Desk {

namespace {

struct Block {
    char32_t first;
    char32_t last;
};

constexpr Block WideBlocks[] = {
    {0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x3FFFD},
};

bool IsWide(char32_t character)
{
    return std::any_of(std::begin(WideBlocks), std::end(WideBlocks), [character](const Block& block) {
        return character >= block.first && character <= block.last;
    });
}

std::string Blanks(int count) { return std::string(static_cast<std::size_t>(std::max(count, 0)), ' '); }

}  // namespace

int DisplayWidth(std::string_view utf8)
{
    int width = 0;
    for (std::size_t at = 0; at < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[at]);
        const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
        char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
        for (std::size_t i = 1; i < length && at + i < utf8.size(); ++i) {
            character = (character << 6U) | (static_cast<unsigned char>(utf8[at + i]) & 0x3FU);
        }
        width += IsWide(character) ? 2 : 1;
        at += length;
    }
    return width;
}

std::string PadRight(std::string_view text, int width)
{
    return std::string(text) + Blanks(width - DisplayWidth(text));
}

std::string PadLeft(std::string_view text, int width)
{
    return Blanks(width - DisplayWidth(text)) + std::string(text);
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string Visible(const std::string& text)
{
    const bool seen = !text.empty() && text.front() != ' ' && text.back() != ' ';
    return seen ? text : Quoted(text);
}

void PrintJson(const nlohmann::ordered_json& json, std::ostream& out)
{
    out << json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

void PrintRows(const std::vector<std::vector<std::string>>& rows, std::ostream& out)
{
    std::vector<int> widths;
    for (const std::vector<std::string>& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], DisplayWidth(row[i]));
        }
    }
    for (const std::vector<std::string>& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += "  " + (i + 1 < row.size() ? PadRight(row[i], widths[i]) : row[i]);
        }
        out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
    }
}

std::string Position(const PlanPoint& at)
{
    return std::to_string(std::llround(at.x)) + "," + std::to_string(std::llround(at.y));
}

std::string Times(int count)
{
    return count == 1 ? "once" : count == 2 ? "twice" : std::to_string(count) + " times";
}

}  // namespace Desk
