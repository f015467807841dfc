#include "desk/ranking/NewBars.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

#include "desk/ranking/Question.h"
#include "desk/reading/Bars.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"

namespace Desk {

namespace {

constexpr int DiameterStep = 5;  // two diameters of a text are no further apart, mm
constexpr int MostBars = 16;

bool HasRoom(const BarNeed& need, const BarRow& row, int thickest, std::size_t rowFromBottom = 0)
{
    return row.sum + (row.count - 1) * ClearDistance(need.isBottom, thickest, rowFromBottom) <= need.width;
}

int SteelOf(const Bars& bars) { return static_cast<int>(std::lround(std::min(bars.Area(), 1e9))); }

// Bars of one diameter, the corners among them, and of another between them.
struct Choice {
    int corners = 0;
    int diameter = 0;
    int others = 0;
    int otherDiameter = 0;
    int outerRow = 0;  // of two rows of one diameter; 0 for one row

    [[nodiscard]] int Squares() const
    {
        return corners * diameter * diameter + others * otherDiameter * otherDiameter;
    }
    [[nodiscard]] auto Order() const
    {
        return std::tuple(Squares(), others > 0, outerRow > 0, corners + others, diameter);
    }
};

Bars BarsOf(const Choice& choice, char grade, bool isBottom)
{
    BarTerm first = {choice.corners, grade, choice.diameter, {}};
    if (choice.outerRow > 0) {
        const int inner = choice.corners - choice.outerRow;
        first.rows = isBottom ? std::vector{inner, choice.outerRow} : std::vector{choice.outerRow, inner};
    }
    Bars bars;
    bars.layers = {{first}};
    if (choice.others > 0) {
        bars.layers.front().push_back({choice.others, grade, choice.otherDiameter, {}});
    }
    return bars;
}

// Of one diameter: in a row as long as there is room, else the fuller row outside.
void AddAlike(const BarNeed& need, int corners, int diameter, std::vector<Choice>& choices)
{
    int inARow = 0;
    while (inARow < MostBars && HasRoom(need, {inARow + 1, (inARow + 1) * diameter}, diameter)) {
        ++inARow;
    }
    for (int count = corners; count <= std::min(MostBars, 2 * inARow); ++count) {
        const int outer = count <= inARow ? 0 : std::max((count + 1) / 2, std::min(inARow, count - 2));
        choices.push_back({count, diameter, 0, 0, outer});
    }
}

}  // namespace

BarNeed BarNeedOf(const Project& project, const FieldRef& ref)
{
    const Beam& beam = project.beams[ref.index];
    const Field field =
        ref.inPlace >= 0 ? FieldAt(beam, beam.inPlace[static_cast<std::size_t>(ref.inPlace)]) : ref.field;
    const FieldRow& row = RowOf(field);
    BarNeed need;
    if (row.requiredSteel == nullptr || beam.area.*row.requiredSteel <= 0) {
        return need;
    }
    const Question question = QuestionFor(project, ref, false);
    need.steel = std::max(0, question.area.value_or(0));
    need.width =
        question.width ? InnerWidth(*question.width, ReadStirrup(beam.stirrup), beam.concreteGrade) : 0;
    need.isBottom = field == Field::BottomBars;
    if (const std::optional<Bars> through = ReadBars(beam.topBars);
        row.isOnThroughBars && through && !through->IsEmpty()) {
        need.cornerDiameter = through->layers.front().front().diameter;
        need.corners = through->layers.front().front().count;
    }
    return need;
}

BarFacts BarFactsOf(const std::string& text)
{
    BarFacts facts;
    const std::optional<Bars> bars = ReadBars(text);
    if (!bars || bars->IsEmpty()) {
        return facts;
    }
    facts.steel = SteelOf(*bars);
    facts.grade = bars->layers.front().front().grade;
    for (const std::vector<BarTerm>& layer : bars->layers) {
        for (const BarTerm& term : layer) {
            facts.diameters.push_back(term.diameter);
            facts.thickest = std::max(facts.thickest, term.diameter);
        }
    }
    for (const std::vector<int>& row : bars->RowsFromTop()) {
        BarRow& to = facts.rows.emplace_back();
        for (const int diameter : row) {
            to = {to.count + 1, to.sum + diameter};
        }
    }
    return facts;
}

bool Suits(const BarNeed& need, const BarFacts& bars)
{
    if (bars.steel < need.steel) {
        return false;
    }
    for (std::size_t i = 0; need.width > 0 && i < bars.rows.size(); ++i) {
        if (!HasRoom(need, bars.rows[i], bars.thickest, bars.rows.size() - 1 - i)) {
            return false;
        }
    }
    return true;
}

std::vector<NewBars> ComposeBars(const BarNeed& need, char grade, const std::vector<int>& diameters,
                                 std::size_t most)
{
    std::vector<NewBars> texts;
    if (need.steel <= 0 || need.width <= 0) {
        return texts;
    }
    const int corners = std::max(2, need.corners);
    std::vector<Choice> choices;
    for (const int corner : diameters) {
        if (need.cornerDiameter > 0 && corner != need.cornerDiameter) {
            continue;
        }
        AddAlike(need, corners, corner, choices);
        for (const int other : diameters) {
            // Bars that lie on through bars may be the thicker ones.
            const bool isNext = std::abs(corner - other) <= DiameterStep &&
                                (other < corner || (other > corner && need.cornerDiameter > 0));
            for (int others = 1; isNext && corners + others <= MostBars; ++others) {
                if (!HasRoom(need, {corners + others, corners * corner + others * other},
                             std::max(corner, other))) {
                    break;
                }
                choices.push_back({corners, corner, others, other, 0});
            }
        }
    }
    std::sort(choices.begin(), choices.end(),
              [](const Choice& a, const Choice& b) { return a.Order() < b.Order(); });
    for (const Choice& choice : choices) {
        // Steel is rounded as it is shown, from 0.785 of the square of the diameter.
        if (choice.Squares() < need.steel || texts.size() == most) {
            continue;
        }
        const Bars bars = BarsOf(choice, grade, need.isBottom);
        const int steel = SteelOf(bars);
        if (steel > need.steel + need.steel / 2) {
            break;
        }
        if (steel >= need.steel) {
            texts.push_back({bars.Text(), steel});
        }
    }
    return texts;
}

}  // namespace Desk
