// The words for fields, kinds and what was filled in.
#include "desk/reading/Annotation.h"

#include "desk/reading/Bars.h"
#include "desk/reading/BeamName.h"
#include "desk/reading/ReadText.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"

namespace Desk {

std::string PlainFieldName(Field field)
{
    switch (field) {
    case Field::Stirrup: return "stirrup";
    case Field::TopBars: return "top bars";
    case Field::HorizontalBars: return "wall bars";
    default: break;
    }
    std::string name = RowOf(field).english;
    name.front() = static_cast<char>(name.front() - 'A' + 'a');
    return name;
}

bool IsOfField(std::string_view text, Field field)
{
    const FieldRow& row = RowOf(field);
    if (text.empty()) {
        return true;
    }
    switch (row.ranker) {
    case Ranker::Names: return ReadNameInAnyCase(text).has_value();
    case Ranker::Sections: return ReadSection(text).has_value();
    case Ranker::Elevations: return ReadElevation(text).has_value();
    case Ranker::Stirrups: return ReadStirrup(text).has_value();
    case Ranker::Bars: {
        const std::optional<Bars> bars = ReadBars(text);
        return bars && (*row.heads == '\0' ? bars->head == '\0' : !HeadOf(text, row.heads).empty());
    }
    case Ranker::OtherWalls:  // a picker composes vertical bars without spacing: B28
        return ReadStirrup(text).has_value() || ReadBars("1" + std::string(text)).has_value();
    case Ranker::None: break;
    }
    return true;
}

const char* ExampleOf(Field field)
{
    switch (field) {
    case Field::Name: return "KL1(3)";
    case Field::Section: return "300x600";
    case Field::Elevation: return "-0.050";
    case Field::Stirrup: return "A8@100/200(2)";
    case Field::Torsion: return "N4B12";
    case Field::Side: return "G4B12";
    case Field::HorizontalBars:
    case Field::VerticalBars: return "B10@150";
    default: return "2B25";
    }
}

std::string FilledWords(Filled filled, const Choices& choices)
{
    const std::string bars(1, choices.barGrade);
    const std::string stirrups(1, choices.stirrupGrade);
    switch (filled) {
    case Filled::Grade:
        return "a grade sign without its grade: " + bars + " for bars, " + stirrups +
               " for stirrups and wall bars (--grade)";
    case Filled::LostGrade:
        return "no grade sign where one belongs: " + bars + " for bars, " + stirrups +
               " for stirrups (--grade)";
    case Filled::Legs: return "a stirrup without legs: (" + std::to_string(choices.legs) + ") (--legs)";
    case Filled::LostMark: return "no \"@\" in front of the spacing: put back";
    case Filled::LostBlank: return "no blank in front of a row part: put back";
    case Filled::Bracket: return "legs without their closing bracket: closed";
    case Filled::NameHyphen: return "a hyphen in front of the serial: taken out";
    case Filled::NameCase:
        return "lower case in a name: kept, though the module's name rules do not know it";
    case Filled::RowSum: return "rows that do not add up to the bars: kept as written";
    }
    return {};
}

std::string_view KindWord(Kind kind)
{
    switch (kind) {
    case Kind::Name: return "name";
    case Kind::Section: return "section";
    case Kind::Elevation: return "elevation";
    case Kind::Bars: return "bars";
    case Kind::Stirrup: return "stirrup";
    case Kind::Combined: return "combined";
    case Kind::Distributed: return "distributed";
    case Kind::GlyphCode: return "glyph_code";
    case Kind::NameTrap: return "name_trap";
    case Kind::SectionColumn: return "section_column";
    case Kind::Other: return "another kind";
    case Kind::None: break;
    }
    return "no kind";
}

Kind KindOf(std::string_view word)
{
    for (const Kind kind : AllKinds) {
        if (word == KindWord(kind) && kind != Kind::None && kind != Kind::Other) {
            return kind;
        }
    }
    return word.empty() ? Kind::None : Kind::Other;
}

}  // namespace Desk
