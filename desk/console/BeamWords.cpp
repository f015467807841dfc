#include "desk/console/BeamWords.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "desk/console/Print.h"
#include "desk/project/Failure.h"
#include "desk/project/FindBeam.h"

namespace Desk {

namespace {

std::size_t TextsOf(const Project& project, std::size_t beam)
{
    const std::vector<FieldRef> refs = RefsOf(project, {false, beam});
    return static_cast<std::size_t>(std::count_if(refs.begin(), refs.end(), [&](const FieldRef& ref) {
        return ref.inPlace < 0 && !TextAt(project, ref).empty();
    }));
}

double Distance(const Beam& beam, const PlanPoint& at)
{
    const PlanPoint way{beam.end.x - beam.start.x, beam.end.y - beam.start.y};
    const PlanPoint to{at.x - beam.start.x, at.y - beam.start.y};
    const double square = way.x * way.x + way.y * way.y;
    const double part = square > 0.0 ? std::clamp((way.x * to.x + way.y * to.y) / square, 0.0, 1.0) : 0.0;
    return std::hypot(to.x - part * way.x, to.y - part * way.y);
}

// On a drawing the bars at a beam's ends are texts in place at its first and last support.
FieldRef AtEnd(const Project& project, std::size_t beam, Field end)
{
    const std::vector<InPlace>& texts = project.beams[beam].inPlace;
    int last = static_cast<int>(project.beams[beam].spans.size()) + 1;
    for (const InPlace& text : texts) {
        last = text.role == Role::TopSupport ? std::max(last, text.number) : last;
    }
    const int number = end == Field::LeftEnd ? 1 : last;
    FieldRef ref{false, beam, end};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const bool isThere = texts[i].role == Role::TopSupport && texts[i].number == number;
        if (isThere && last > 1 && (ref.inPlace < 0 || TextAt(project, ref).empty())) {
            ref = {false, beam, RowOf(Role::TopSupport).field, static_cast<int>(i)};
        }
    }
    return ref;
}

}  // namespace

std::string KeysOfBeams()
{
    return Joined(BeamFields(), [](Field field) { return RowOf(field).key; });
}

const FieldRow& RequireRow(const std::string& key)
{
    for (const Field field : BeamFields()) {
        if (const FieldRow& row = RowOf(field); key == row.key) {
            return row;
        }
    }
    throw Failure(Quoted(key) + " is no annotation of a beam; those are " + KeysOfBeams());
}

std::size_t BeamNamed(const Project& project, const std::string& word, const std::optional<PlanPoint>& at)
{
    const std::string& name = FindBeam(project, word).name;
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        if (project.beams[i].name != name) {
            continue;
        }
        const bool isBetter =
            !best || (at ? Distance(project.beams[i], *at) < Distance(project.beams[*best], *at)
                         : TextsOf(project, i) > TextsOf(project, *best));
        best = isBetter ? i : best;
    }
    return *best;
}

FieldRef FieldOfBeam(const Opened& opened, std::size_t beam, Field field)
{
    if (!opened.drawing || field == Field::Name) {
        return {false, beam, field};
    }
    const bool isEnd = field == Field::LeftEnd || field == Field::RightEnd;
    return isEnd ? AtEnd(opened.project, beam, field)
                 : FieldRef{false, WrittenOut(opened.project, beam), field};
}

}  // namespace Desk
