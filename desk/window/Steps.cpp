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

std::optional<FoundText> FindText(const Project& project, const std::optional<FieldRef>& from, int by,
                                  const QString& wanted)
{
    const bool whole =
        wanted.size() > 2 && wanted.startsWith(QLatin1Char('"')) && wanted.endsWith(QLatin1Char('"'));
    const QString part = whole ? wanted.mid(1, wanted.size() - 2) : wanted;
    std::vector<FieldRef> found;
    std::size_t before = 0;  // how many of them are in front of the one to start from
    std::size_t upTo = 0;    // and with it
    for (std::size_t number = 0; number < OwnerCount(project); ++number) {
        for (const FieldRef& ref : RefsOf(project, OwnerAt(project, number))) {
            const bool isStart = from == ref;
            before = isStart ? found.size() : before;
            const QString text = QString::fromStdString(TextAt(project, ref));
            if (whole ? text == part : text.contains(part, Qt::CaseInsensitive)) {
                found.push_back(ref);
            }
            upTo = isStart ? found.size() : upTo;
        }
    }
    if (found.empty()) {
        return std::nullopt;
    }
    const std::size_t at = by > 0 ? upTo % found.size() : (before + found.size() - 1) % found.size();
    return FoundText{found[at], static_cast<int>(at) + 1, static_cast<int>(found.size())};
}

}  // namespace Desk
