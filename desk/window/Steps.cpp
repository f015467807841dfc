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

std::ptrdiff_t PlaceOf(const FieldRef& ref)
{
    const std::span<const Field> fields = FieldsOf(ref);
    return std::find(fields.begin(), fields.end(), ref.field) - fields.begin();
}

}  // namespace

std::optional<FieldRef> StepField(const Project& project, const std::optional<FieldRef>& from, int by)
{
    if (!from) {
        return StepOwner(project, from, by);
    }
    const std::span<const Field> fields = FieldsOf(*from);
    const std::size_t next = Around(static_cast<std::size_t>(PlaceOf(*from)), by, fields.size());
    return FieldRef{from->isWall, from->index, fields[next]};
}

std::optional<FieldRef> StepOwner(const Project& project, const std::optional<FieldRef>& from, int by)
{
    const std::size_t count = OwnerCount(project);
    if (count == 0) {
        return std::nullopt;
    }
    FieldRef next =
        OwnerAt(project, Around(NumberOf(project, from.value_or(Start(project, by))), by, count));
    if (from && from->isWall == next.isWall) {
        next.field = from->field;
    }
    return next;
}

std::optional<FieldRef> FindText(const Project& project, const std::optional<FieldRef>& from, int by,
                                 const QString& wanted)
{
    const std::size_t count = OwnerCount(project);
    if (count == 0) {
        return std::nullopt;
    }
    const auto edge = [](const FieldRef& owner, bool last) {
        return last ? FieldsOf(owner).back() : FieldsOf(owner).front();
    };
    FieldRef ref = from.value_or(Start(project, by));
    if (!from) {
        ref.field = edge(ref, by > 0);
    }
    const FieldRef start = ref;
    do {
        const std::span<const Field> fields = FieldsOf(ref);
        const std::ptrdiff_t place = PlaceOf(ref) + by;
        if (place >= 0 && place < std::ssize(fields)) {
            ref.field = fields[static_cast<std::size_t>(place)];
        } else {
            ref = OwnerAt(project, Around(NumberOf(project, ref), by, count));
            ref.field = edge(ref, by < 0);
        }
        if (QString::fromStdString(TextAt(project, ref)).contains(wanted, Qt::CaseInsensitive)) {
            return ref;
        }
    } while (ref != start);
    return std::nullopt;
}

}  // namespace Desk
