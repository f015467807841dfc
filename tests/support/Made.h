// Beams and walls of a few words.
#pragma once

#include "desk/project/Project.h"

namespace Desk {

template <class Owner>
Owner Made(const char* name, const PlanPoint& start, const PlanPoint& end)
{
    Owner owner;
    owner.name = name;
    owner.start = start;
    owner.end = end;
    return owner;
}

inline constexpr auto MadeBeam = &Made<Beam>;
inline constexpr auto MadeWall = &Made<Wall>;

}  // namespace Desk
