// Beams and walls of a few words.
#pragma once

#include "desk/project/Project.h"

namespace Desk {

inline Beam MadeBeam(const char* name, const PlanPoint& start, const PlanPoint& end)
{
    Beam beam;
    beam.name = name;
    beam.start = start;
    beam.end = end;
    return beam;
}

inline Wall MadeWall(const char* name, const PlanPoint& start, const PlanPoint& end)
{
    Wall wall;
    wall.name = name;
    wall.start = start;
    wall.end = end;
    return wall;
}

}  // namespace Desk
