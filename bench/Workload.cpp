// Different texts are counted up like the digits of a number, then shuffled.
#include "bench/Workload.h"

#include <algorithm>
#include <cstdio>
#include <random>

namespace Bench {
namespace {

// Takes the next digit off a number, in a base.
std::size_t Digit(std::size_t& number, std::size_t base)
{
    const std::size_t digit = number % base;
    number /= base;
    return digit;
}

// printf's way of writing texts, which is enough for short ones.
template <class... Values>
std::string Written(const char* format, Values... values)
{
    char text[64];
    const int length = std::snprintf(text, sizeof text, format, values...);
    return {text, static_cast<std::size_t>(length)};
}

// Three terms of 9 counts and 9 diameters, in one or two layers: 2B22+3B25/2B20.
std::string BarText(std::size_t number)
{
    static constexpr const char* diameters[] = {"12", "14", "16", "18", "20", "22", "25", "28", "32"};
    const char joint = Digit(number, 2) == 0 ? '+' : '/';
    const std::size_t first = Digit(number, 81);
    const std::size_t second = Digit(number, 81);
    return Written("%zuB%s+%zuB%s%c%zuB%s", 1 + first / 9, diameters[first % 9], 1 + second / 9,
                   diameters[second % 9], joint, 1 + number / 9, diameters[number % 9]);
}

std::string StirrupText(std::size_t number)
{
    const std::size_t diameter = 6 + 2 * Digit(number, 6);
    const std::size_t legs = 2 + Digit(number, 8);
    const std::size_t tight = 50 + Digit(number, 150);
    return Written("A%zu@%zu/%zu(%zu)", diameter, tight, 200 + number, legs);
}

std::string SectionText(std::size_t number)
{
    const std::size_t width = 200 + Digit(number, 1000);
    return Written("%zux%zu", width, 300 + number);
}

std::string ElevationText(std::size_t number)
{
    return Written("%.3f", static_cast<double>(number) / 1000.0 - 500.0);
}

// Five types with every second serial, so that about as many serials are free as are used.
std::string NameText(std::size_t number)
{
    static constexpr const char* types[] = {"KL", "L", "WKL", "LL", "JZL"};
    static constexpr const char* suffixes[] = {"(1)", "(2A)", "(3)"};
    const std::size_t type = Digit(number, 5);
    return Written("%s%zu%s", types[type], 2 * number + 1, suffixes[number % 3]);
}

std::string MakeText(Kind kind, std::size_t number)
{
    switch (kind) {
    case Kind::Bars: return BarText(number);
    case Kind::Stirrups: return StirrupText(number);
    case Kind::Sections: return SectionText(number);
    case Kind::Elevations: return ElevationText(number);
    case Kind::Names: return NameText(number);
    }
    return {};
}

}  // namespace

const char* NameOf(Kind kind)
{
    static constexpr const char* names[] = {"bars", "stirrups", "sections", "elevations", "names"};
    return names[static_cast<std::size_t>(kind)];
}

std::vector<std::string> MakeTexts(Kind kind, std::size_t count, std::size_t distinct)
{
    // A stride without a common factor with any base spreads few texts over the whole range.
    constexpr std::size_t range = 1'000'000;
    constexpr std::size_t stride = 7'919;
    std::vector<std::string> texts;
    texts.reserve(count);
    std::mt19937 engine(20260207);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t number = i < distinct ? i : engine() % distinct;
        // Names stay close together, as serials in use do.
        texts.push_back(MakeText(kind, kind == Kind::Names ? number : number * stride % range));
    }
    std::shuffle(texts.begin(), texts.end(), engine);
    return texts;
}

}  // namespace Bench
