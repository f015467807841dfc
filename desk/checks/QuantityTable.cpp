// A quantity list as a table for people and spreadsheets, and what is said under it.
#include <array>
#include <charconv>

#include "desk/checks/Quantities.h"

namespace Desk {

namespace {

std::string Number(double value, int decimals)
{
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    return {digits.data(), end};
}

// In quotes where a comma or a quote would be taken for the table's own.
std::string Cell(const std::string& text)
{
    if (text.find_first_of(",\"\n") == std::string::npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char ch : text) {
        quoted.append(ch == '"' ? 2 : 1, ch);
    }
    return quoted + "\"";
}

void AddRow(std::string& csv, const QuantityTable::Row& cells)
{
    for (const std::string& cell : cells) {
        csv += &cell == &cells.front() ? "" : ",";
        csv += Cell(cell);
    }
    csv += "\r\n";
}

std::vector<Message> HowCounted()
{
    return {
        Phrase("Desk", "An estimate for calculation, not for bending: spans from axis to axis, supports "
                       "not taken off."),
        Phrase("Desk", "A beam without span lengths is divided evenly by the spans of its name."),
        Phrase("Desk",
               "Anchorage as GB 50010-2010 (2015) 8.3.1, 8.3.2 and 11.1.7; bottom bars of beams that are "
               "no frame or coupling beams 12 d, side bars 15 d."),
        Phrase("Desk", "Bars over 9 m are lapped every 9 m, each lap 1.4 times the anchorage."),
        Phrase("Desk", "Bars at supports beside the through bars reach a third of the longer span, from "
                       "the second row on a quarter; cantilevers all along."),
        Phrase("Desk", "Inner supports of a beam without texts in place have the stronger of its end "
                       "bars."),
        Phrase("Desk", "Erection bars a third of the span and 150 mm at either end."),
        Phrase("Desk", "Stirrups from 50 mm off the axes, tight over 1.5 h (class 1: 2 h), 500 mm at "
                       "least; cover as the code's environment class 1, hooks 10 d."),
        Phrase("Desk", "Concrete and formwork of the whole section, slabs and crossings not taken off; "
                       "haunches, ties of side bars and walls are not counted."),
    };
}

}  // namespace

QuantityTable TableOf(const Quantities& quantities, const Translate& translate)
{
    const auto say = [&](const Message& message) {
        return translate ? message.In(translate) : message.English();
    };
    QuantityTable table;
    table.bars.push_back({say(Phrase("Desk", "Grade")), say(Phrase("Desk", "Diameter, mm"))});
    for (std::size_t use = 0; use < BarUses; ++use) {
        table.bars.front().push_back(say({Phrase("Desk", "%1, m"), NameOf(static_cast<BarUse>(use))}));
    }
    table.bars.front().push_back(say(Phrase("Desk", "Length, m")));
    table.bars.front().push_back(say(Phrase("Desk", "Mass, kg")));
    for (const BarQuantity& bar : quantities.bars) {
        QuantityTable::Row& row = table.bars.emplace_back();
        row = {std::string(1, bar.grade), std::to_string(bar.diameter)};
        for (const double length : bar.length) {
            row.push_back(Number(length, 1));
        }
        row.push_back(Number(bar.Length(), 1));
        row.push_back(Number(bar.Mass(), 1));
    }
    table.sums = {
        {say(Phrase("Desk", "Steel, kg")), Number(quantities.Mass(), 1)},
        {say(Phrase("Desk", "Concrete, m³")), Number(quantities.concrete, 2)},
        {say(Phrase("Desk", "Formwork, m²")), Number(quantities.formwork, 1)},
        {say(Phrase("Desk", "Beams")), std::to_string(quantities.beams)},
        {say(Phrase("Desk", "Length, m")), Number(quantities.beamLength, 1)},
        {say(Phrase("Desk", "Texts not counted")), std::to_string(quantities.uncounted.size())},
    };
    for (const Message& sentence : HowCounted()) {
        table.notes.push_back(say(sentence));
    }
    return table;
}

std::string CsvOf(const QuantityTable& table)
{
    std::string csv = "\xEF\xBB\xBF";
    for (const std::vector<QuantityTable::Row>* const rows : {&table.bars, &table.sums}) {
        for (const QuantityTable::Row& row : *rows) {
            AddRow(csv, row);
        }
        AddRow(csv, {});
    }
    for (const std::string& note : table.notes) {
        AddRow(csv, {note});
    }
    return csv;
}

}  // namespace Desk
