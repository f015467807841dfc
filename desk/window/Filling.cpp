#include "desk/window/Filling.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <vector>

namespace Desk {

namespace {

constexpr Field AlwaysWanted[] = {Field::Section, Field::Stirrup, Field::TopBars, Field::BottomBars};

std::string_view TypeOf(const Beam& beam)
{
    const std::size_t length = beam.name.find_first_of("0123456789");
    return std::string_view(beam.name).substr(0, length);
}

bool HasNameAlone(const Beam& beam)
{
    const auto& fields = BeamFields();
    return std::all_of(fields.begin(), fields.end(), [&beam](Field field) {
        return field == Field::Name || (beam.*RowOf(field).ofBeam).empty();
    });
}

bool LacksWhatAllHave(const Beam& beam)
{
    return std::any_of(std::begin(AlwaysWanted), std::end(AlwaysWanted),
                       [&beam](Field field) { return (beam.*RowOf(field).ofBeam).empty(); });
}

// How many of the beams with bars that are most like a beam have each field.
struct Alikes {
    int all = 0;
    std::array<int, static_cast<std::size_t>(Field::Side) + 1> having{};
};

Alikes AlikesOf(const Project& project, std::size_t number)
{
    const Beam& beam = project.beams[number];
    std::array<Alikes, 3> alike;  // of the same type and section, section, type
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        const Beam& other = project.beams[i];
        const bool sameSection = other.section == beam.section;
        const bool sameType = TypeOf(other) == TypeOf(beam);
        if (i == number || other.bottomBars.empty() || !(sameSection || sameType)) {
            continue;
        }
        Alikes& group = alike[sameSection ? (sameType ? 0 : 1) : 2];
        ++group.all;
        for (const Field field : BeamFields()) {
            group.having[static_cast<std::size_t>(field)] += (other.*RowOf(field).ofBeam).empty() ? 0 : 1;
        }
    }
    return alike[0].all > 0 ? alike[0] : alike[1].all > 0 ? alike[1] : alike[2];
}

// The annotations that a beam lacks and a text is wanted for, in reading order.
std::vector<Field> Unfilled(const Project& project, std::size_t number)
{
    std::vector<Field> open;
    std::optional<Alikes> alikes;
    for (const Field field : BeamFields()) {
        if (!(project.beams[number].*RowOf(field).ofBeam).empty()) {
            continue;
        }
        if (std::count(std::begin(AlwaysWanted), std::end(AlwaysWanted), field) == 0) {
            alikes = alikes ? alikes : AlikesOf(project, number);
            if (alikes->all == 0 || 2 * alikes->having[static_cast<std::size_t>(field)] < alikes->all) {
                continue;
            }
        }
        open.push_back(field);
    }
    return open;
}

}  // namespace

std::optional<FieldRef> StepToFill(const Project& project, const std::optional<FieldRef>& from,
                                   bool namesSuffice)
{
    const std::size_t count = project.beams.size();
    const bool isAtBeam = from && !from->isWall;
    const std::size_t start = isAtBeam ? from->index : 0;
    if (isAtBeam) {
        const std::vector<Field> open = Unfilled(project, start);
        const auto after = std::find_if(open.begin(), open.end(), [&](Field field) {
            return from->inPlace < 0 && field > from->field;
        });
        if (after != open.end()) {
            return FieldRef{false, start, *after};
        }
        if (!open.empty() && !TextAt(project, *from).empty()) {
            return FieldRef{false, start, open.front()};
        }
    }
    for (std::size_t i = isAtBeam ? 1 : 0; i < count + (isAtBeam ? 1 : 0); ++i) {
        const std::size_t beam = (start + i) % count;
        if (LacksWhatAllHave(project.beams[beam]) && !(namesSuffice && HasNameAlone(project.beams[beam]))) {
            return FieldRef{false, beam, Unfilled(project, beam).front()};
        }
    }
    return std::nullopt;
}

}  // namespace Desk
