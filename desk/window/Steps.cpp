#include "desk/window/Steps.h"

#include <algorithm>

namespace Desk {

namespace {

std::size_t OwnerCount(const Project& project) { return project.beams.size() + project.walls.size(); }

FieldRef OwnerAt(const Project& project, std::size_t number)
{
    const bool wall = number >= project.beams.size();
    return {wall, wall ? number - project.beams.size() : number, Field::Name};
}

std::size_t NumberOf(const Project& project, const FieldRef& ref)
{
    return ref.index + (ref.isWall ? project.beams.size() : 0);
}

std::size_t Around(std::size_t from, int by, std::size_t count)
{
    return by > 0 ? (from + 1) % count : (from + count - 1) % count;
}

// What a first step starts from: the last owner forwards, the first one backwards. Not for an empty
// project.
FieldRef Start(const Project& project, int by)
{
    return OwnerAt(project, by > 0 ? OwnerCount(project) - 1 : 0);
}

// Of all annotations of its beam or wall.
std::size_t PlaceOf(const std::vector<FieldRef>& refs, const FieldRef& ref)
{
    return static_cast<std::size_t>(std::find(refs.begin(), refs.end(), ref) - refs.begin());
}

}  // namespace

FieldRef Alike(const Project& project, FieldRef owner, const FieldRef& from)
{
    owner.field = from.field;
    if (from.inPlace < 0) {
        return owner;
    }
    const InPlace& text = project.beams[from.index].inPlace[static_cast<std::size_t>(from.inPlace)];
    const auto& there = project.beams[owner.index].inPlace;
    const auto found = std::find_if(there.begin(), there.end(), [&text](const InPlace& other) {
        return other.role == text.role && other.number == text.number;
    });
    owner.inPlace = found == there.end() ? -1 : static_cast<int>(found - there.begin());
    return owner;
}

std::optional<FieldRef> StepField(const Project& project, const std::optional<FieldRef>& from, int by)
{
    if (!from) {
        return StepOwner(project, from, by);
    }
    const std::vector<FieldRef> refs = RefsOf(project, *from);
    return refs[Around(PlaceOf(refs, *from), by, refs.size())];
}

std::optional<FieldRef> StepOwner(const Project& project, const std::optional<FieldRef>& from, int by)
{
    const std::size_t count = OwnerCount(project);
    if (count == 0) {
        return std::nullopt;
    }
    const FieldRef next =
        OwnerAt(project, Around(NumberOf(project, from.value_or(Start(project, by))), by, count));
    return from && from->isWall == next.isWall ? Alike(project, next, *from) : next;
}

std::optional<FieldRef> FindText(const Project& project, const std::optional<FieldRef>& from, int by,
                                 const QString& wanted)
{
    const std::size_t count = OwnerCount(project);
    if (count == 0) {
        return std::nullopt;
    }
    FieldRef ref = from.value_or(Start(project, by));
    std::vector<FieldRef> refs = RefsOf(project, ref);
    std::size_t place = from ? PlaceOf(refs, ref) : by > 0 ? refs.size() - 1 : 0;
    const FieldRef start = refs[place];
    do {
        if (place == (by > 0 ? refs.size() - 1 : 0)) {
            refs = RefsOf(project, OwnerAt(project, Around(NumberOf(project, ref), by, count)));
            place = by > 0 ? 0 : refs.size() - 1;
        } else {
            place = Around(place, by, refs.size());
        }
        ref = refs[place];
        if (QString::fromStdString(TextAt(project, ref)).contains(wanted, Qt::CaseInsensitive)) {
            return ref;
        }
    } while (ref != start);
    return std::nullopt;
}

}  // namespace Desk
