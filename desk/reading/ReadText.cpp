// Decides what a text's annotations are for, and says in words what is wrong with the others.
#include "desk/reading/ReadText.h"

#include <algorithm>
#include <string>
#include <vector>

#include "desk/reading/DrawingText.h"
#include "desk/reading/LineReader.h"
#include "desk/reading/Unread.h"

namespace Desk {

namespace {

std::string Quoted(std::string_view text) { return std::string("\"").append(ShowPlain(text)).append("\""); }

// Gathers the annotations of a line and what is left out.
class Gatherer {
public:
    Gatherer(const Choices& choices, Reading& reading) : m_choices(choices), m_reading(reading) {}

    void Take(const Line& line, Kind kind)
    {
        m_reading.filled = line.filled;
        TakeField(Field::Name, line.name, line.nameAt);
        TakeField(Field::Section, line.section, line.sectionAt);
        if (line.stirrup) {
            TakeSpaced(line, kind);
        }
        TakeBars(line.bars, line.beginsWithBottom);
        TakeField(Field::Elevation, line.elevation, line.elevationAt);
        if (!line.spans.empty()) {
            LeaveOut(line.spans, "span lengths");
        }
        for (const std::string& text : line.repeated) {
            LeaveOut(text, "a second one of its kind");
        }
        for (const std::string& text : line.notUnderstood) {
            LeaveOut(text, "not understood");
        }
    }

    [[nodiscard]] const std::string& LeftOut() const { return m_leftOut; }

private:
    void LeaveOut(std::string_view text, std::string_view why)
    {
        m_leftOut.append(m_leftOut.empty() ? "" : ", ").append(Quoted(text));
        m_leftOut.append(" (").append(why).append(")");
    }

    bool Holds(Field field) const
    {
        return std::any_of(m_reading.annotations.begin(), m_reading.annotations.end(),
                           [field](const Annotation& a) { return a.field == field; });
    }

    void Add(Field field, std::string text, const Stretch& at)
    {
        if (Holds(field)) {
            LeaveOut(text, std::string("more than one for ").append(PlainFieldName(field)));
        } else {
            m_reading.annotations.push_back({field, std::move(text), at});
        }
    }

    template <class Value>
    void TakeField(Field field, const std::optional<Value>& value, const Stretch& at)
    {
        if (value) {
            Add(field, value->Text(), at);
        }
    }

    // Spaced bars without legs are a wall's unless something says that they are stirrups.
    void TakeSpaced(const Line& line, Kind kind)
    {
        Stirrup bars = *line.stirrup;
        const bool isAlone = !line.name && !line.section && !line.elevation && line.bars.empty();
        const bool isPlain = bars.tightSpacing == 0 && line.filled.count(Filled::LostGrade) == 0;
        const bool isBeams = kind == Kind::Stirrup || kind == Kind::Combined;
        if (line.isCutOff) {
            LeaveOut(bars.Text(), "the text ends in an open bracket: the legs are cut off");
        } else if (bars.legs == 0 && isAlone && (kind == Kind::Distributed || (isPlain && !isBeams))) {
            Add(Field::HorizontalBars, bars.Text(), line.stirrupAt);
        } else if (bars.legs == 0 && m_choices.legs == 0) {
            LeaveOut(bars.Text(), "a stirrup without legs");
        } else {
            if (bars.legs == 0) {
                bars.legs = m_choices.legs;
                m_reading.filled.insert(Filled::Legs);
            }
            Add(Field::Stirrup, bars.Text(), line.stirrupAt);
        }
    }

    void TakeBars(const std::vector<DrawnBars>& all, bool beginsWithBottom)
    {
        const auto isOpen = [](const DrawnBars& drawn) {
            return drawn.label == '\0' && drawn.bars.head == '\0' && !drawn.bars.IsEmpty();
        };
        const auto open = std::count_if(all.begin(), all.end(), isOpen);
        for (const DrawnBars& drawn : all) {
            if (isOpen(drawn)) {
                const bool isBottom =
                    beginsWithBottom || Holds(Field::TopBars) || (open == 1 && drawn.endsShort);
                Add(isBottom ? Field::BottomBars : Field::TopBars, drawn.bars.Text(), drawn.at);
            } else if (!drawn.bars.IsEmpty()) {
                Add(FieldOf(drawn), drawn.bars.Text(), drawn.at);
            }
            if (!drawn.erection.IsEmpty()) {
                Add(Field::Erection, drawn.erection.Text(), drawn.erectionAt);
            }
            if (!drawn.leftOut.empty()) {
                LeaveOut(drawn.leftOut, drawn.endsShort ? "bars that stop before the supports"
                                                        : "brackets that the grammar has no meaning for");
            }
        }
    }

    static Field FieldOf(const DrawnBars& drawn)
    {
        if (drawn.label != '\0') {
            return drawn.label == 'T' ? Field::TopBars : Field::BottomBars;
        }
        return drawn.bars.head == 'G' ? Field::Side : Field::Torsion;
    }

    const Choices& m_choices;
    Reading& m_reading;
    std::string m_leftOut;
};

// True when a text of the kind may hold an annotation for the field.
bool Fits(Kind kind, Field field)
{
    switch (kind) {
    case Kind::Name: return field == Field::Name;
    case Kind::Section:
    case Kind::SectionColumn: return field == Field::Section;
    case Kind::Elevation: return field == Field::Elevation;
    case Kind::Bars: return RowOf(field).ranker == Ranker::Bars;
    case Kind::Stirrup: return field == Field::Stirrup;
    case Kind::Distributed: return field == Field::HorizontalBars;
    case Kind::GlyphCode: return false;
    case Kind::Combined: return field != Field::HorizontalBars;
    case Kind::NameTrap: return field != Field::Name;
    case Kind::Other:
    case Kind::None: break;
    }
    return true;
}

void FindContradiction(Reading& reading, Kind kind)
{
    const auto fits = [kind](const Annotation& a) { return Fits(kind, a.field); };
    const std::vector<Annotation>& all = reading.annotations;
    const auto misfit = std::find_if_not(all.begin(), all.end(), fits);
    if (misfit != all.end()) {
        reading.contradiction = std::string("given as ").append(KindWord(kind)).append(", reads as ");
        reading.contradiction.append(PlainFieldName(misfit->field)).append(" ").append(misfit->text);
    }
}

void Refuse(Reading& reading, Outcome outcome, std::string why)
{
    reading = Reading{};
    reading.outcome = outcome;
    reading.why = std::move(why);
}

}  // namespace

Reading ReadText(std::string_view drawn, Kind kind, const Choices& choices)
{
    Reading reading;
    std::string plain = PlainText(drawn);
    if (std::string what = WhatElse(drawn, plain); !what.empty()) {
        Refuse(reading, Outcome::NoBeam, std::move(what));
        return reading;
    }
    Line line = ReadLine(plain, choices);
    bool isRewritten = false;
    const bool mayBeBars = kind == Kind::Bars || plain.find('+') != std::string::npos;
    if (line.IsEmpty() && mayBeBars) {
        if (const std::optional<std::string> signs = WithLostGrades(plain)) {
            line = ReadLine(*signs, choices);
            isRewritten = true;
            if (line.filled.erase(Filled::Grade) > 0) {
                line.filled.insert(Filled::LostGrade);
            }
        }
    }
    Gatherer gatherer(choices, reading);
    gatherer.Take(line, kind);
    if (isRewritten) {
        for (Annotation& annotation : reading.annotations) {
            annotation.at = {};
        }
    }
    if (reading.annotations.empty() || line.notUnderstood.size() > reading.annotations.size()) {
        std::string why = line.IsEmpty() ? WhyUnread(plain, kind) : gatherer.LeftOut();
        Refuse(reading, kind == Kind::NameTrap ? Outcome::NoBeam : Outcome::Unread, std::move(why));
        return reading;
    }
    if (kind == Kind::SectionColumn && line.section && reading.annotations.size() == 1) {
        Refuse(reading, Outcome::NoBeam, "a column's section, as the file says");
        return reading;
    }
    if (kind == Kind::NameTrap && line.name && reading.annotations.size() == 1) {
        Refuse(reading, Outcome::NoBeam, "looks like a beam name and is none, as the file says");
        return reading;
    }
    reading.outcome = gatherer.LeftOut().empty() ? Outcome::Read : Outcome::InPart;
    reading.why = gatherer.LeftOut().empty() ? "" : "left out: " + gatherer.LeftOut();
    FindContradiction(reading, kind);
    return reading;
}

}  // namespace Desk
