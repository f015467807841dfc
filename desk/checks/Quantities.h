// A quantity list: an estimate of steel, concrete and formwork from annotations and spans. How it counts is
// in docs/checks.md.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "desk/project/Failure.h"
#include "desk/project/Fields.h"

namespace Desk {

// What bars are counted as.
enum class BarUse { Top, Bottom, Erection, Side, Torsion, Stirrup };
inline constexpr std::size_t BarUses = 6;
// "Top bars"
[[nodiscard]] Phrase NameOf(BarUse use);

// The bars of one grade and diameter.
struct BarQuantity {
    char grade = 'B';
    int diameter = 0;                      // mm
    std::array<double, BarUses> length{};  // m, by use

    [[nodiscard]] double Length() const;  // m
    [[nodiscard]] double Mass() const;    // kg
};

// An annotation that could not be counted: what it adds is missing in the list.
struct Uncounted {
    FieldRef at;
    std::string text;
    Message why;
};

struct Quantities {
    std::vector<BarQuantity> bars;  // by grade, then diameter
    double beamLength = 0.0;        // m
    double concrete = 0.0;          // m³
    double formwork = 0.0;          // m²
    std::size_t beams = 0;          // that were counted
    std::vector<Uncounted> uncounted;

    [[nodiscard]] double Mass() const;  // kg
    void Add(const Quantities& more);
};

// Of one beam, which must exist; and of all of them. Walls are not counted: their heights are not known.
[[nodiscard]] Quantities QuantitiesOf(const Project& project, std::size_t beam);
[[nodiscard]] Quantities QuantitiesOf(const Project& project);

using Translate = std::function<std::string(const Phrase&)>;

// The list as a person reads it, in the language of translate; English without.
struct QuantityTable {
    using Row = std::vector<std::string>;

    std::vector<Row> bars;           // the first row is the headings
    std::vector<Row> sums;           // what, and how much
    std::vector<std::string> notes;  // how it was counted, a sentence each, to stand under every list
};
[[nodiscard]] QuantityTable TableOf(const Quantities& quantities, const Translate& translate = {});

// The same as comma-separated values in UTF-8 with a byte order mark, which spreadsheets look for.
[[nodiscard]] std::string CsvOf(const QuantityTable& table);

}  // namespace Desk
