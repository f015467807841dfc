#include "desk/reading/Bars.h"

#include <algorithm>
#include <numbers>
#include <numeric>
#include <utility>

#include "desk/reading/Cursor.h"

namespace Desk {

namespace {

// Half of the new bars on either side would tear pairs apart: the later terms go to the middle.
void InsertInTheMiddle(std::vector<int>& row, int count, int diameter)
{
    row.insert(row.begin() + static_cast<std::ptrdiff_t>((row.size() + 1) / 2),
               static_cast<std::size_t>(count), diameter);
}

// "(-3)" after a number of bars: so many stop before the supports. "(2)" has no meaning.
void LeaveOutBracket(Cursor& at, DrawnBars& drawn)
{
    Cursor cursor = at;
    cursor.SkipBlank();
    const Cursor start = cursor;
    const bool isOpen = cursor.Eat('(');
    const bool isShort = cursor.Eat('-');
    if (isOpen && cursor.Number(1, 2) && cursor.Eat(')')) {
        drawn.leftOut.append(drawn.leftOut.empty() ? "" : " ").append(cursor.Since(start));
        drawn.endsShort = drawn.endsShort || isShort;
        at = cursor;
    }
}

// Two counts or more, after a blank, in brackets, or glued to the diameter. A number that a grade follows
// is the next layer's: "6C25 4/2/2C20".
std::vector<int> ReadRows(Cursor& at, bool isGlued, DrawnBars& drawn)
{
    Cursor cursor = at;
    cursor.SkipBlank();
    const bool inBrackets = cursor.Eat('(');
    if (cursor.At() == at.At() && !isGlued) {
        return {};
    }
    DrawnBars found = drawn;
    std::vector<int> rows;
    for (Cursor next = cursor; rows.empty() || next.Eat('/'); next = cursor) {
        const std::optional<int> count = next.Number(1, 2);
        if (!count) {
            break;
        }
        if (next.Rest().starts_with("(-")) {
            LeaveOutBracket(next, found);
        }
        Cursor after = next;
        after.SkipBlank();
        if (after.EatGrade('B') != '\0') {
            break;
        }
        rows.push_back(*count);
        cursor = next;
    }
    if (rows.size() < 2 || (inBrackets && !cursor.Eat(')'))) {
        return {};
    }
    at = cursor;
    drawn = std::move(found);
    return rows;
}

std::optional<BarTerm> ReadTerm(Cursor& at, DrawnBars& drawn)
{
    constexpr int Thinnest = 6, Thickest = 50;  // mm
    Cursor cursor = at;
    BarTerm term;
    term.count = cursor.Number(1, 2).value_or(0);
    cursor.SkipBlank();
    term.grade = cursor.EatGrade(cursor.Chosen().barGrade);
    cursor.SkipBlank();
    Cursor after = cursor;
    std::string_view digits = after.Digits();
    // "6C254/2": a blank was lost.
    const bool isGlued = digits.size() == 3 && after.Eat('/') && Cursor::IsDigit(after.Peek());
    if (isGlued) {
        digits.remove_suffix(1);
        cursor.Mark(Filled::LostBlank);
    }
    term.diameter = digits.size() <= 2 && !digits.starts_with('0') ? NumberValue(digits) : 0;
    if (term.count == 0 || term.grade == '\0' || term.diameter < Thinnest || term.diameter > Thickest) {
        return std::nullopt;
    }
    cursor.Skip(digits.size());
    term.rows = ReadRows(cursor, isGlued, drawn);
    LeaveOutBracket(cursor, drawn);
    at = cursor;
    return term;
}

// Terms joined by "+"; a "+" that no term follows stays.
std::vector<BarTerm> ReadLayer(Cursor& at, DrawnBars& drawn)
{
    std::vector<BarTerm> layer;
    Cursor cursor = at;
    while (std::optional<BarTerm> term = ReadTerm(cursor, drawn)) {
        layer.push_back(std::move(*term));
        at = cursor;
        if (!cursor.EatJoint('+')) {
            break;
        }
    }
    return layer;
}

// "+(2C12+2C14)"; without bars before it the "+" may be missing.
bool ReadErection(Cursor& at, DrawnBars& drawn)
{
    Cursor cursor = at;
    const bool isJoined = cursor.EatJoint('+') || drawn.bars.IsEmpty();
    if (!isJoined || !drawn.erection.IsEmpty() || !cursor.EatJoint('(')) {
        return false;
    }
    DrawnBars found = drawn;
    found.erectionAt.begin = cursor.At();
    found.erection.layers.push_back(ReadLayer(cursor, found));
    found.erectionAt.end = cursor.At();
    cursor.SkipBlank();
    if (found.erection.layers.front().empty() || !cursor.Eat(')')) {
        return false;
    }
    drawn = std::move(found);
    at = cursor;
    return true;
}

void ReadHead(Cursor& at, DrawnBars& drawn)
{
    drawn.at.begin = at.At();
    switch (const char ch = at.EatOneOf("GgNn*TB")) {
    case 'g': drawn.bars.head = 'G'; break;
    case 'n': drawn.bars.head = 'N'; break;
    case 'T':
    case 'B':
        drawn.label = ch;
        static_cast<void>(at.Eat(':'));
        at.SkipBlank();
        drawn.at.begin = at.At();
        break;
    default: drawn.bars.head = ch; break;
    }
    at.SkipBlank();
}

}  // namespace

double Bars::Area() const
{
    double area = 0.0;
    for (const std::vector<BarTerm>& layer : layers) {
        for (const BarTerm& term : layer) {
            area += term.count * std::numbers::pi * term.diameter * term.diameter / 4.0;
        }
    }
    return area;
}

BarRows Bars::RowsFromTop() const
{
    BarRows rows;
    for (const std::vector<BarTerm>& layer : layers) {
        const std::size_t first = rows.size();
        rows.emplace_back();
        for (const BarTerm& term : layer) {
            const int sum = std::accumulate(term.rows.begin(), term.rows.end(), 0);
            if (sum == term.count) {
                rows.resize(std::max(rows.size(), first + term.rows.size()));
                for (std::size_t i = 0; i < term.rows.size(); ++i) {
                    InsertInTheMiddle(rows[first + i], term.rows[i], term.diameter);
                }
                continue;
            }
            InsertInTheMiddle(rows[first], term.count, term.diameter);
            if (term.rows.empty()) {
                continue;
            }
            if (rows.size() != first + 1 || static_cast<std::size_t>(sum) != rows[first].size()) {
                return {};
            }
            const std::vector<int> all = std::move(rows.back());
            rows.pop_back();
            auto next = all.begin();
            for (const int count : term.rows) {
                rows.emplace_back(next, next + count);
                next += count;
            }
        }
    }
    return rows;
}

std::string Bars::Text() const
{
    std::string text;
    for (const std::vector<BarTerm>& layer : layers) {
        text += text.empty() ? "" : "/";
        for (const BarTerm& term : layer) {
            text += &term == &layer.front() ? "" : "+";
            text += std::to_string(term.count) + term.grade + std::to_string(term.diameter);
            for (std::size_t i = 0; i < term.rows.size(); ++i) {
                text += i == 0 ? ' ' : '/';
                text += std::to_string(term.rows[i]);
            }
        }
    }
    return head != '\0' ? head + text : text;
}

std::optional<DrawnBars> ReadDrawnBars(Cursor& at)
{
    Cursor cursor = at;
    DrawnBars drawn;
    cursor.SkipBlank();
    if (ReadErection(cursor, drawn)) {
        at = cursor;
        return drawn;
    }
    ReadHead(cursor, drawn);
    do {
        std::vector<BarTerm> layer = ReadLayer(cursor, drawn);
        if (layer.empty()) {
            break;
        }
        drawn.bars.layers.push_back(std::move(layer));
        drawn.at.end = cursor.At();
        ReadErection(cursor, drawn);
        at = cursor;
    } while (cursor.EatJoint('/'));
    if (drawn.bars.IsEmpty()) {
        return std::nullopt;
    }
    if (drawn.bars.RowsFromTop().empty()) {
        at.Mark(Filled::RowSum);
    }
    return drawn;
}

std::optional<Bars> ReadBars(std::string_view text)
{
    Cursor at(text.substr(0, text.find(';')));
    const std::optional<DrawnBars> drawn = ReadDrawnBars(at);
    static_cast<void>(at.EatJoint(','));
    at.SkipBlank();
    const bool isWhole = drawn && drawn->label == '\0' && drawn->leftOut.empty() && at.AtEnd() &&
                         at.Marks().empty() && drawn->bars.IsEmpty() != drawn->erection.IsEmpty();
    if (!isWhole) {
        return std::nullopt;
    }
    return drawn->bars.IsEmpty() ? drawn->erection : drawn->bars;
}

std::vector<std::string> BarPieces(std::string_view text)
{
    if (text.starts_with("+(")) {
        text = text.substr(2, text.rfind(')') - 2);
    }
    std::vector<std::string> pieces;
    while (!text.empty()) {
        const std::string_view piece = text.substr(0, text.find('+'));
        text.remove_prefix(std::min(piece.size() + 1, text.size()));
        if (!piece.empty()) {
            pieces.emplace_back(piece);
        }
    }
    return pieces;
}

double ClearDistance(bool isBottom, int thickest, std::size_t rowFromBottom)
{
    if (!isBottom) {
        return std::max(30.0, 1.5 * thickest);
    }
    const double clear = std::max(25, thickest);
    return rowFromBottom < 2 ? clear : 2.0 * (clear + thickest) - thickest;
}

}  // namespace Desk
