// Rules of longitudinal bars.
#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <utility>
#include <vector>

#include "desk/checks/Rules.h"

namespace Desk {

namespace {

constexpr Field Ends[] = {Field::LeftEnd, Field::RightEnd};
constexpr Field BarsWithArea[] = {Field::TopBars, Field::BottomBars, Field::LeftEnd, Field::RightEnd};

std::string Mm(double number) { return std::to_string(std::lround(number)); }

bool IsEnd(Field field) { return field == Field::LeftEnd || field == Field::RightEnd; }

// Of each bar, the thickest first.
std::vector<int> Diameters(const Bars& bars)
{
    std::vector<int> diameters;
    ForEachTerm(bars, [&](const BarTerm& term) {
        diameters.insert(diameters.end(), static_cast<std::size_t>(term.count), term.diameter);
    });
    std::sort(diameters.rbegin(), diameters.rend());
    return diameters;
}

// How many bars there are of each grade and diameter.
std::map<std::pair<char, int>, int> Kinds(const Bars& bars)
{
    std::map<std::pair<char, int>, int> kinds;
    ForEachTerm(bars, [&](const BarTerm& term) { kinds[{term.grade, term.diameter}] += term.count; });
    return kinds;
}

// Clear distance that bars of a row must have between them. In the third row from the bottom and those
// above it the distance from centre to centre is twice that of the two rows below.
double ClearOf(Field field, int thickest, std::size_t rowFromBottom)
{
    if (field != Field::BottomBars) {
        return std::max(30.0, 1.5 * thickest);
    }
    const double clear = std::max(25, thickest);
    return rowFromBottom < 2 ? clear : 2.0 * (clear + thickest) - thickest;
}

void CheckRow(const std::vector<int>& row, double inner, double clear, Field field, const Tell& tell)
{
    const double gaps = static_cast<double>(row.size()) - 1.0;
    const double left = inner - std::accumulate(row.begin(), row.end(), 0);
    if (gaps >= 1.0 && left < gaps * clear) {
        tell(field, {Phrase("Desk", "%1 bars in a row leave %2 mm clear between them, %3 mm required"),
                     std::to_string(row.size()), Mm(std::floor(left / gaps)), Mm(std::ceil(clear))});
    }
}

}  // namespace

// The bars give the required area, to the mm²: rule of practice. Ends without bars of their own have the
// through bars.
void CheckSteelArea(const Station& at, const Tell& tell)
{
    for (const Field field : BarsWithArea) {
        const int required = at.required.*RowOf(field).requiredSteel;
        if (!at.Looks(field) || required == 0) {
            continue;
        }
        const bool isThrough = IsEnd(field) && at.IsMissing(field);
        if (at.IsMissing(field) && !isThrough) {
            tell(field, {Phrase("Desk", "none, %1 mm² required"), std::to_string(required)});
            continue;
        }
        const std::optional<Bars>& bars = at.BarsOf(isThrough ? Field::TopBars : field);
        if (!bars || std::lround(bars->Area()) >= required) {
            continue;
        }
        const Phrase phrase = isThrough ? Phrase("Desk", "the through bars have %1 mm², %2 mm² required")
                                        : Phrase("Desk", "%1 mm², %2 mm² required");
        tell(field, {phrase, Mm(bars->Area()), std::to_string(required)});
    }
}

// GB 50010-2010 (2015), 9.2.1: top bars 30 mm and 1.5 d apart, bottom bars 25 mm and d, d that of the
// thickest bar; row by row. Erection bars lie in the first row of the through bars.
void CheckBarSpacing(const Station& at, const Tell& tell)
{
    if (!at.section || at.section->width == 0) {
        return;
    }
    const int inner = InnerWidth(*at.section, at.stirrup, at.beam.concreteGrade);
    for (const Field field : BarsWithArea) {
        if (!at.Looks(field) || !at.BarsOf(field)) {
            continue;
        }
        BarRows rows = at.BarsOf(field)->RowsFromTop();
        if (field == Field::TopBars && at.BarsOf(Field::Erection) && !rows.empty()) {
            ForEachTerm(*at.BarsOf(Field::Erection), [&](const BarTerm& term) {
                rows.front().insert(rows.front().end(), static_cast<std::size_t>(term.count),
                                    term.diameter);
            });
        }
        int thickest = 0;
        for (const std::vector<int>& row : rows) {
            thickest = std::max(thickest, row.empty() ? 0 : *std::max_element(row.begin(), row.end()));
        }
        for (std::size_t i = 0; i < rows.size(); ++i) {
            CheckRow(rows[i], inner, ClearOf(field, thickest, rows.size() - 1 - i), field, tell);
        }
    }
}

// 16G101-1, 4.2.4: the top bars written at a support are all of them, the through bars among them.
void CheckEndBars(const Station& at, const Tell& tell)
{
    const std::optional<Bars>& through = at.BarsOf(Field::TopBars);
    for (const Field end : Ends) {
        if (!at.Looks(end) || !at.BarsOf(end) || !through) {
            continue;
        }
        const auto here = Kinds(*at.BarsOf(end));
        for (const auto& [kind, count] : Kinds(*through)) {
            const auto found = here.find(kind);
            if (found == here.end() || found->second < count) {
                tell(end,
                     {Phrase("Desk", "the through bars %1 are not among them"), at.Text(Field::TopBars)});
                break;
            }
        }
    }
}

// GB 50010-2010 (2015), 11.3.7: frame beams have two through bars at least on top and bottom, of 14 mm in
// seismic classes 1 and 2, of 12 mm in 3 and 4; in classes 1 and 2 the top ones have a quarter of the end
// bars' area as well. Bottom bars may be written in place alone, so they may be missing.
void CheckThroughBars(const Station& at, const Tell& tell)
{
    if (at.kind != BeamKind::Frame) {
        return;
    }
    const bool isStrict = at.beam.seismicClass <= 2;
    const int thinnest = isStrict ? 14 : 12;
    if (at.IsMissing(Field::TopBars)) {
        tell(Field::TopBars, Phrase("Desk", "none; a frame beam has two at least"));
    }
    for (const Field field : {Field::TopBars, Field::BottomBars}) {
        if (!at.Looks(field) || !at.BarsOf(field)) {
            continue;
        }
        const std::vector<int> diameters = Diameters(*at.BarsOf(field));
        if (diameters.size() < 2) {
            tell(field, Phrase("Desk", "only one; a frame beam has two at least"));
        } else if (diameters[1] < thinnest) {  // more bars than two may be thinner
            tell(field, {Phrase("Desk", "%1 mm thick, %2 mm at least in seismic class %3"),
                         std::to_string(diameters[1]), std::to_string(thinnest),
                         std::to_string(at.beam.seismicClass)});
        }
    }
    double most = 0.0;
    for (const Field end : Ends) {
        most = at.BarsOf(end) ? std::max(most, at.BarsOf(end)->Area()) : most;
    }
    const std::optional<Bars>& top = at.BarsOf(Field::TopBars);
    if (isStrict && at.Looks(Field::TopBars) && top && top->Area() < most / 4.0) {
        tell(Field::TopBars, {Phrase("Desk", "%1 mm², a quarter of the bars at the end is %2 mm²"),
                              Mm(top->Area()), Mm(std::ceil(most / 4.0))});
    }
}

// One support has one text, or the same one on both sides: bars that change over a support are anchored in
// it for nothing. Rule of practice.
void CheckSupportBars(const Beam& beam, const TellAt& tell)
{
    std::map<int, const std::string*> at;
    if (!beam.spans.empty()) {
        at[static_cast<int>(beam.spans.size()) + 1] = &beam.rightEnd;
    }
    at[1] = &beam.leftEnd;
    for (std::size_t i = 0; i < beam.inPlace.size(); ++i) {
        const InPlace& text = beam.inPlace[i];
        if (text.role != Role::TopSupport || text.text.empty()) {
            continue;
        }
        const std::string*& other = at[text.number];
        if (other == nullptr || other->empty()) {
            other = &text.text;
            continue;
        }
        const std::optional<Bars> bars = ReadBars(text.text);
        const std::optional<Bars> others = ReadBars(*other);
        if (bars && others && Kinds(*bars) != Kinds(*others)) {
            tell({false, 0, Field::LeftEnd, static_cast<int>(i)},
                 {Phrase("Desk", "the same support has %1 as well"), *other});
        }
    }
}

}  // namespace Desk
