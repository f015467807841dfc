#include "desk/project/Data.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <utility>
#include <vector>

#include "desk/project/Making.h"
#include "desk/project/ProjectFields.h"

namespace Desk {

namespace {

constexpr DatumRow OfBeam[] = {
    {Datum::Floor, "Floor", "楼层"},
    {Datum::Concrete, "Concrete", "混凝土"},
    {Datum::SeismicClass, "Seismic class", "抗震等级"},
    {Datum::RequiredTop, "Required top, mm²", "上部所需, mm²"},
    {Datum::RequiredBottom, "Required bottom, mm²", "下部所需, mm²"},
    {Datum::RequiredLeft, "Required left end, mm²", "左支座所需, mm²"},
    {Datum::RequiredRight, "Required right end, mm²", "右支座所需, mm²"},
    {Datum::Spans, "Spans, mm", "跨长, mm"},
    {Datum::Start, "Start x, y, mm", "起点 x, y, mm"},
    {Datum::End, "End x, y, mm", "终点 x, y, mm"},
};
constexpr DatumRow OfWall[] = {
    {Datum::Thickness, "Thickness, mm", "厚度, mm"},
    {Datum::Start, "Start x, y, mm", "起点 x, y, mm"},
    {Datum::End, "End x, y, mm", "终点 x, y, mm"},
};

std::string TextOf(double number)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.2f", number);
    std::string shown = text;
    shown.erase(shown.find_last_not_of('0') + 1);
    if (shown.back() == '.') {
        shown.pop_back();
    }
    return shown == "-0" ? "0" : shown;
}

// Numbers with blanks, commas, plus signs and units between them; nothing for anything else.
std::optional<std::vector<double>> NumbersIn(std::string text)
{
    for (const char* const unit : {"mm²", "mm"}) {
        for (std::size_t at = 0; (at = text.find(unit)) != std::string::npos;) {
            text.replace(at, std::string(unit).size(), " ");
        }
    }
    std::vector<double> numbers;
    const char* at = text.data();
    const char* const end = at + text.size();
    for (;;) {
        at = std::find_if(
            at, end, [](char ch) { return std::string_view(" ,+;").find(ch) == std::string_view::npos; });
        if (at == end) {
            return numbers;
        }
        double number = 0.0;
        const auto [rest, error] = std::from_chars(at, end, number);
        if (error != std::errc() || !std::isfinite(number)) {
            return std::nullopt;
        }
        numbers.push_back(number);
        at = rest;
    }
}

std::optional<Message> SetWhole(int& value, const std::string& text, int least, int most)
{
    const std::optional<std::vector<double>> numbers = NumbersIn(text);
    const double number = numbers && numbers->size() == 1 ? numbers->front() : least - 1.0;
    if (number < least || number > most || std::trunc(number) != number) {
        return Message(Phrase("Desk", "A whole number from %1 to %2 is needed here, not \"%3\"."),
                       std::to_string(least), std::to_string(most), text);
    }
    value = static_cast<int>(number);
    return std::nullopt;
}

template <class Owner>
std::optional<Message> SetEnd(Owner& owner, bool isStart, const std::string& text)
{
    const std::optional<std::vector<double>> numbers = NumbersIn(text);
    const PlanPoint at = numbers && numbers->size() == 2 ? PlanPoint{numbers->front(), numbers->back()}
                                                         : PlanPoint{2.0 * PlanLimit, 0.0};
    if (!IsInRange(at)) {
        return Message(Phrase("Desk", "Two coordinates in mm are needed here, as in 8400, 0, not \"%1\"."),
                       text);
    }
    SetEnds(owner, isStart ? at : owner.start, isStart ? owner.end : at);
    return std::nullopt;
}

std::optional<Message> SetSpans(std::vector<double>& spans, const std::string& text)
{
    std::optional<std::vector<double>> numbers = NumbersIn(text);
    if (!numbers || numbers->size() > MaxSpans ||
        std::any_of(numbers->begin(), numbers->end(),
                    [](double each) { return !(each > 0.0 && each <= PlanLimit); })) {
        return Message(Phrase("Desk", "Lengths in mm are needed here, as in 6000 + 5700, not \"%1\"."),
                       text);
    }
    spans = std::move(*numbers);
    return std::nullopt;
}

template <class Owner>
const DataField<Owner, int>& FieldOf(std::span<const DataField<Owner, int>> fields, int Owner::*member)
{
    return *std::find_if(fields.begin(), fields.end(),
                         [&](const auto& field) { return field.member == member; });
}

int SteelArea::*AreaOf(Datum datum)
{
    switch (datum) {
    case Datum::RequiredTop: return &SteelArea::top;
    case Datum::RequiredBottom: return &SteelArea::bottom;
    case Datum::RequiredLeft: return &SteelArea::leftEnd;
    default: return &SteelArea::rightEnd;
    }
}

std::string PointText(const PlanPoint& at) { return TextOf(at.x) + ", " + TextOf(at.y); }

}  // namespace

std::span<const DatumRow> DataOf(const Beam& /*beam*/) { return OfBeam; }
std::span<const DatumRow> DataOf(const Wall& /*wall*/) { return OfWall; }

std::string DatumText(const Beam& beam, Datum datum)
{
    switch (datum) {
    case Datum::Floor: return beam.floor;
    case Datum::Concrete: return "C" + std::to_string(beam.concreteGrade);
    case Datum::SeismicClass: return std::to_string(beam.seismicClass);
    case Datum::Start: return PointText(beam.start);
    case Datum::End: return PointText(beam.end);
    case Datum::Spans: break;
    default: return std::to_string(beam.area.*AreaOf(datum));
    }
    std::string spans;
    for (const double length : beam.spans) {
        spans += (spans.empty() ? "" : " + ") + TextOf(length);
    }
    return spans;
}

std::string DatumText(const Wall& wall, Datum datum)
{
    return datum == Datum::Thickness ? std::to_string(wall.thickness)
                                     : PointText(datum == Datum::Start ? wall.start : wall.end);
}

std::optional<Message> SetDatum(Beam& beam, Datum datum, const std::string& text)
{
    const auto whole = [&](int Beam::*member, const std::string& typed) {
        const DataField<Beam, int>& field = FieldOf<Beam>(BeamNumbers, member);
        return SetWhole(beam.*member, typed, field.least, field.most);
    };
    switch (datum) {
    case Datum::Floor:
        if (std::any_of(text.begin(), text.end(),
                        [](char ch) { return static_cast<unsigned char>(ch) < ' '; })) {
            return Message(Phrase("Desk", "A single line is needed here."));
        }
        beam.floor = text;
        return std::nullopt;
    case Datum::Concrete: {
        const bool isGrade = text.starts_with('C') || text.starts_with('c');
        return whole(&Beam::concreteGrade, isGrade ? text.substr(1) : text);
    }
    case Datum::SeismicClass: return whole(&Beam::seismicClass, text);
    case Datum::Start:
    case Datum::End: return SetEnd(beam, datum == Datum::Start, text);
    case Datum::Spans: return SetSpans(beam.spans, text);
    default: break;
    }
    const DataField<SteelArea, int>& field = FieldOf<SteelArea>(AreaNumbers, AreaOf(datum));
    return SetWhole(beam.area.*field.member, text, field.least, field.most);
}

std::optional<Message> SetDatum(Wall& wall, Datum datum, const std::string& text)
{
    return datum == Datum::Thickness
               ? SetWhole(wall.thickness, text, WallNumbers[0].least, WallNumbers[0].most)
               : SetEnd(wall, datum == Datum::Start, text);
}

}  // namespace Desk
