#include "desk/ranking/Choices.h"

#include <algorithm>
#include <map>

#include "desk/project/Failure.h"
#include "desk/ranking/BarKinds.h"

namespace Desk {

namespace {

// The bar ranker's kind for a field. End bars go by the through bars that they stand on, where there are.
std::string KindOf(const Beam& beam, Field field)
{
    switch (field) {
    case Field::TopBars: return "1";
    case Field::Erection: return "4";
    case Field::BottomBars: return "5.1";
    case Field::LeftEnd:
    case Field::RightEnd: break;
    default: return "5.2";
    }
    try {
        RequireBars(beam.topBars);
        return beam.topBars;
    } catch (const Failure&) {
        return field == Field::LeftEnd ? "2" : "3";
    }
}

int AreaOf(const Beam& beam, Field field)
{
    switch (field) {
    case Field::LeftEnd: return beam.area.leftEnd;
    case Field::RightEnd: return beam.area.rightEnd;
    case Field::BottomBars: return beam.area.bottom;
    default: return beam.area.top;
    }
}

// The ranker's texts carry no head character; the field has its own, and its uses are those written so.
void DressWithHead(Ranking& ranking, const std::string& heads)
{
    for (Candidate& candidate : ranking.candidates) {
        std::string best = heads.front() + candidate.text;
        int bestUses = 0;
        candidate.uses = 0;
        for (const Writing& writing : candidate.writings) {
            if (!writing.text.empty() && heads.find(writing.text.front()) != std::string::npos) {
                candidate.uses += writing.uses;
                if (writing.uses > bestUses) {
                    best = writing.text;
                    bestUses = writing.uses;
                }
            }
        }
        candidate.text = best;
        if (candidate.source == Source::Project && candidate.uses == 0) {
            candidate.source = Source::Guess;  // the project has them with the other head alone
        }
    }
}

Ranking BarChoices(const Project& project, const Beam& beam, Field field, bool withTable)
{
    BarQuery query;
    query.kind = KindOf(beam, field);
    query.width = WidthOf(beam).value_or(0);
    query.area = AreaOf(beam, field);
    const bool hasRows = field != Field::Erection && field != Field::Side && field != Field::Torsion;
    query.table = withTable && hasRows && query.width > 0;
    Ranking ranking = RankBars(project, query);
    if (field == Field::Side) {
        DressWithHead(ranking, "G");
    } else if (field == Field::Torsion) {
        DressWithHead(ranking, "N*");
    }
    return ranking;
}

Ranking StirrupChoices(const Project& project, const Beam& beam, bool withTable)
{
    StirrupQuery query;
    query.width = WidthOf(beam).value_or(0);
    query.grade = beam.concreteGrade;
    query.seismicClass = beam.seismicClass;
    query.table = withTable && query.width > 0;
    return RankStirrups(project, query);
}

Ranking WallChoices(const Project& project, std::string Wall::*member)
{
    std::map<std::string, int> uses;
    for (const Wall& wall : project.walls) {
        if (!(wall.*member).empty()) {
            ++uses[wall.*member];
        }
    }
    Ranking ranking;
    for (const auto& [text, count] : uses) {
        ranking.candidates.push_back({text, count, Source::Project, count, {}});
    }
    std::stable_sort(ranking.candidates.begin(), ranking.candidates.end(),
                     [](const Candidate& a, const Candidate& b) { return a.uses > b.uses; });
    return ranking;
}

}  // namespace

Ranking ChoicesFor(const Project& project, const FieldRef& place, bool withTable)
{
    if (place.isWall) {
        switch (place.field) {
        case Field::HorizontalBars: return WallChoices(project, &Wall::horizontalBars);
        case Field::VerticalBars: return WallChoices(project, &Wall::verticalBars);
        default: return {};
        }
    }
    const Beam& beam = project.beams.at(place.index);
    switch (place.field) {
    case Field::Name: return RankNames(project);
    case Field::Section: return RankSections(project);
    case Field::Elevation: return RankElevations(project);
    case Field::Stirrup: return StirrupChoices(project, beam, withTable);
    default: return BarChoices(project, beam, place.field, withTable);
    }
}

}  // namespace Desk
