// Turns the fuzzer's bytes into texts: lines, so that a corpus can be read and written by hand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/yardstick/Agree.h"

namespace Yardstick {

// A text ends at a zero byte, which none can hold.
inline List Lines(const std::uint8_t* data, std::size_t size, std::size_t most)
{
    List lines{""};
    for (std::size_t i = 0; i < size && lines.size() <= most; ++i) {
        if (data[i] == '\n') {
            lines.emplace_back();
        } else if (data[i] != 0) {
            lines.back() += static_cast<char>(data[i]);
        }
    }
    lines.resize(std::min(lines.size(), most));
    return lines;
}

// First line the kind text, second the four numbers, third the steps, then the texts of the project.
inline Case CaseOf(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t head = 3;
    List lines = Lines(data, size, head + 40);
    lines.resize(std::max(lines.size(), head));
    Case c;
    c.kind = lines[0];
    const char* number = lines[1].c_str();
    for (int& value : c.numbers) {
        char* end = nullptr;
        value = static_cast<int>(std::strtol(number, &end, 10));
        number = end;
    }
    c.steps = lines[2].substr(0, 8);
    c.texts.assign(lines.begin() + head, lines.end());
    return c;
}

inline void RequireAgreement(const std::string& difference)
{
    if (!difference.empty()) {
        std::fprintf(stderr, "%s\n", difference.c_str());
        std::abort();
    }
}

}  // namespace Yardstick
