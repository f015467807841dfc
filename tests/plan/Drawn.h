// Two beams as a drawing far from the plan's origin has them, drawn in mm or another unit.
#pragma once

#include "desk/project/Backdrop.h"

namespace Desk {

inline PlanPoint Far(double x, double y, double unit = 1.0)
{
    return {(x - 4769956.0) * unit, (y + 1234567.0) * unit};
}

// A level beam with a label of three lines, and an upright one with a name alone.
inline Project DrawnProject(double unit)
{
    const auto place = [unit](double x, double y, double angle = 0.0) {
        return TextPlace{Far(x, y, unit), angle, 300.0 * unit};
    };
    Project project;
    Beam level;
    level.name = "KL1(1)";
    level.section = "250x500";
    level.stirrup = "A8@200(2)";
    level.topBars = "2B25";
    level.bottomBars = "3B20";
    level.start = Far(0, 0, unit);
    level.end = Far(8000, 0, unit);
    // In the order of BeamFields().
    level.places = {place(1000, 2000),
                    place(3000, 2000),
                    {},
                    place(1000, 1700),
                    place(1000, 1400),
                    place(2500, 1400),
                    {},
                    {},
                    {},
                    {},
                    {}};
    level.inPlace = {{Role::TopSupport, 1, "4B25", place(100, 300), -1, {}},
                     {Role::Bottom, 1, "4B20", place(4000, -500), -1, {}}};
    Beam upright;
    upright.name = "L2(1)";
    upright.start = Far(8500, 0, unit);
    upright.end = Far(8500, 6000, unit);
    upright.places.resize(level.places.size());
    upright.places[0] = place(9000, 1000, 90.0);
    project.beams = {level, upright};
    return project;
}

// Their outlines.
inline Backdrop DrawnBackdrop(double unit)
{
    Backdrop behind;
    for (const double side : {-125.0, 125.0}) {
        behind.lines.push_back({Far(0, side, unit), Far(8000, side, unit)});
        behind.lines.push_back({Far(8500 + side, 0, unit), Far(8500 + side, 6000, unit)});
    }
    return behind;
}

}  // namespace Desk
