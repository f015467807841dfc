#include "desk/checks/Station.h"

#include <algorithm>
#include <set>

#include "desk/reading/BeamName.h"

namespace Desk {

namespace {

constexpr Field OfSpans[] = {Field::Section,    Field::Elevation, Field::Stirrup, Field::TopBars,
                             Field::BottomBars, Field::Torsion,   Field::Side};

std::size_t At(Field field) { return static_cast<std::size_t>(field); }

Station OwnStation(const Beam& beam, BeamKind kind)
{
    Station station{beam, kind, {}, {}, {}, {}, {}, {}, {}, beam.area};
    station.inPlace.fill(-1);
    for (const Field field : BeamFields()) {
        station.texts[At(field)] = &(beam.*RowOf(field).ofBeam);
    }
    return station;
}

void Put(Station& station, Field field, const InPlace& text)
{
    station.texts[At(field)] = &text.text;
    station.inPlace[At(field)] = static_cast<int>(&text - station.beam.inPlace.data());
}

// Texts in place along a span instead of the beam's own.
void PutSpan(Station& station, int span)
{
    for (const InPlace& text : station.beam.inPlace) {
        if (text.role != Role::TopSupport && text.number == span && !text.text.empty()) {
            Put(station, RowOf(text.role).field, text);
        }
    }
}

void Read(Station& station)
{
    station.section = ReadSection(station.Text(Field::Section));
    station.stirrup = ReadStirrup(station.Text(Field::Stirrup));
    for (const Field field : BeamFields()) {
        if (RowOf(field).ranker == Ranker::Bars && !station.Text(field).empty()) {
            station.bars[At(field)] = ReadBars(station.Text(field));
        }
    }
}

Station AlongAll(const Beam& beam, BeamKind kind)
{
    Station station = OwnStation(beam, kind);
    bool hasTexts = false;
    for (const Field field : BeamFields()) {
        station.looked[At(field)] = true;
        station.missing[At(field)] = station.Text(field).empty();
        hasTexts = hasTexts || (field != Field::Name && !station.Text(field).empty());
    }
    // A beam that is a name alone is written out at another label, or nobody has begun with it.
    if (!hasTexts) {
        station.missing.fill(false);
    }
    for (const InPlace& text : beam.inPlace) {
        bool& isMissing = station.missing[At(FieldAt(beam, text))];
        isMissing = isMissing && text.text.empty();
    }
    return station;
}

Station AtSupport(const Beam& beam, BeamKind kind, const InPlace& text)
{
    Station station = OwnStation(beam, kind);
    const Field end = FieldAt(beam, text);
    PutSpan(station, end == Field::RightEnd ? text.number - 1 : text.number);
    Put(station, end, text);
    station.looked[At(end)] = true;
    if (end == Field::LeftEnd && text.number > 1) {
        station.required.leftEnd = 0;  // between spans none is known
    }
    return station;
}

}  // namespace

BeamKind KindOf(const std::string& name)
{
    const std::string type = ReadNameInAnyCase(name).value_or(BeamName()).type;
    std::string plain = type.substr(type.rfind('-') + 1);
    std::transform(plain.begin(), plain.end(), plain.begin(),
                   [](char ch) { return ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 'a' + 'A') : ch; });
    if (plain.ends_with("KL") || plain == "KZL" || plain == "LLK") {
        return BeamKind::Frame;
    }
    return plain == "LL" ? BeamKind::Coupling : BeamKind::Other;
}

Station SpanOf(const Beam& beam, int span)
{
    Station station = OwnStation(beam, KindOf(beam.name));
    PutSpan(station, span);
    Read(station);
    return station;
}

std::vector<Station> StationsOf(const Beam& beam)
{
    const BeamKind kind = KindOf(beam.name);
    std::vector<Station> stations{AlongAll(beam, kind)};
    std::set<int> spans;
    for (const InPlace& text : beam.inPlace) {
        if (text.text.empty()) {
            continue;
        }
        if (text.role == Role::TopSupport) {
            stations.push_back(AtSupport(beam, kind, text));
        } else if (spans.insert(text.number).second) {
            Station& station = stations.emplace_back(OwnStation(beam, kind));
            PutSpan(station, text.number);
            for (const Field field : OfSpans) {
                station.looked[At(field)] = true;
            }
        }
    }
    std::for_each(stations.begin(), stations.end(), Read);
    return stations;
}

}  // namespace Desk
