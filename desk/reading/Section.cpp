#include "desk/reading/ReadSection.h"

#include <algorithm>
#include <charconv>
#include <numbers>
#include <numeric>

namespace Desk {

namespace {

constexpr int MaxBars = 99;        // of one term; more is a slip of the pen
constexpr int MaxDiameter = 60;    // mm
constexpr int MaxLength = 20'000;  // mm, of a section's side

// Steps through a text by what is expected next.
class Reader {
public:
    explicit Reader(std::string_view text) : m_rest(text) {}

    [[nodiscard]] bool IsAtEnd() const { return m_rest.find_first_not_of(' ') == std::string_view::npos; }

    // Behind a term: counts of rows, in brackets or not.
    [[nodiscard]] bool IsAtCounts() const
    {
        const std::size_t at = m_rest.find_first_not_of(' ');
        return at != std::string_view::npos &&
               (m_rest[at] == '(' || (m_rest[at] >= '0' && m_rest[at] <= '9'));
    }

    bool Take(std::string_view wanted)
    {
        SkipBlanks();
        const bool found = m_rest.starts_with(wanted);
        m_rest.remove_prefix(found ? wanted.size() : 0);
        return found;
    }
    bool TakeOneOf(std::string_view characters)
    {
        SkipBlanks();
        const bool found = !m_rest.empty() && characters.find(m_rest.front()) != std::string_view::npos;
        m_rest.remove_prefix(found ? 1 : 0);
        return found;
    }
    // A whole number from 1 to a limit.
    std::optional<int> TakeNumber(int most)
    {
        SkipBlanks();
        int number = 0;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), number);
        if (error != std::errc() || number < 1 || number > most) {
            return std::nullopt;
        }
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return number;
    }

private:
    void SkipBlanks() { m_rest.remove_prefix(std::min(m_rest.find_first_not_of(' '), m_rest.size())); }

    std::string_view m_rest;
};

// "2/4" or "(2/4)": counts of rows.
std::optional<std::vector<int>> TakeSplit(Reader& reader)
{
    const bool bracket = reader.Take("(");
    std::vector<int> counts;
    do {
        const std::optional<int> count = reader.TakeNumber(MaxBars);
        if (!count) {
            return std::nullopt;
        }
        counts.push_back(*count);
    } while (reader.Take("/"));
    return !bracket || reader.Take(")") ? std::optional(counts) : std::nullopt;
}

std::vector<std::vector<int>> InRows(const std::vector<int>& bars, const std::vector<int>& counts)
{
    std::vector<std::vector<int>> rows;
    auto next = bars.begin();
    for (const int count : counts) {
        rows.emplace_back(next, next + count);
        next += count;
    }
    return rows;
}

// Half of the new bars on either side would tear pairs apart: the later terms go to the middle.
void InsertInTheMiddle(std::vector<int>& row, int count, int diameter)
{
    row.insert(row.begin() + static_cast<std::ptrdiff_t>((row.size() + 1) / 2),
               static_cast<std::size_t>(count), diameter);
}

}  // namespace

std::optional<SectionSize> ReadSize(std::string_view text)
{
    Reader reader(text);
    const std::optional<int> width = reader.TakeNumber(MaxLength);
    if (!width || !(reader.TakeOneOf("xX*") || reader.Take("\xC3\x97"))) {
        return std::nullopt;
    }
    const std::optional<int> height = reader.TakeNumber(MaxLength);
    if (height && reader.Take("/") && !reader.TakeNumber(MaxLength)) {
        return std::nullopt;
    }
    return height && reader.IsAtEnd() ? std::optional(SectionSize{*width, *height}) : std::nullopt;
}

double BarRows::Area() const
{
    double area = 0.0;
    for (const std::vector<int>& row : rows) {
        for (const int diameter : row) {
            area += std::numbers::pi * diameter * diameter / 4.0;
        }
    }
    return area;
}

// 2B22+3B25/2B22: "+" joins bars of one row, "/" begins the row below. Counts of rows behind a term share
// out its bars, or all bars so far.
std::optional<BarRows> ReadBars(std::string_view text)
{
    Reader reader(text.substr(0, text.find(';')));
    const bool bracket = reader.Take("+(") || reader.Take("(");
    if (!bracket) {
        reader.TakeOneOf("GN*");
    }
    BarRows read;
    std::size_t row = 0;
    do {
        const std::optional<int> count = reader.TakeNumber(MaxBars);
        if (!count || !reader.TakeOneOf("ABCD")) {
            return std::nullopt;
        }
        const std::optional<int> diameter = reader.TakeNumber(MaxDiameter);
        if (!diameter) {
            return std::nullopt;
        }
        read.rows.resize(std::max(read.rows.size(), row + 1));
        if (!reader.IsAtCounts()) {
            InsertInTheMiddle(read.rows[row], *count, *diameter);
            continue;
        }
        const std::optional<std::vector<int>> counts = TakeSplit(reader);
        if (!counts) {
            return std::nullopt;
        }
        const int sum = std::accumulate(counts->begin(), counts->end(), 0);
        if (sum == *count) {
            read.rows.resize(std::max(read.rows.size(), row + counts->size()));
            for (std::size_t i = 0; i < counts->size(); ++i) {
                InsertInTheMiddle(read.rows[row + i], (*counts)[i], *diameter);
            }
            continue;
        }
        InsertInTheMiddle(read.rows[row], *count, *diameter);
        if (read.rows.size() != 1 || static_cast<std::size_t>(sum) != read.rows.front().size()) {
            return std::nullopt;
        }
        read.rows = InRows(read.rows.front(), *counts);
    } while (reader.Take("+") || (reader.Take("/") && ++row > 0));
    if (bracket && !reader.Take(")")) {
        return std::nullopt;
    }
    reader.Take(",");
    return reader.IsAtEnd() ? std::optional(read) : std::nullopt;
}

std::optional<StirrupSize> ReadStirrup(std::string_view text)
{
    Reader reader(text);
    StirrupSize size;
    if (!reader.TakeOneOf("ABCD")) {
        return std::nullopt;
    }
    const std::optional<int> diameter = reader.TakeNumber(MaxDiameter);
    if (!diameter) {
        return std::nullopt;
    }
    size.diameter = *diameter;
    if (const std::size_t bracket = text.rfind('('); bracket != std::string_view::npos) {
        const std::optional<int> legs = Reader(text.substr(bracket + 1)).TakeNumber(MaxBars);
        if (!legs) {
            return std::nullopt;
        }
        size.legs = *legs;
    }
    return size;
}

}  // namespace Desk
