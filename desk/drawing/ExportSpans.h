// How the beams of an exported drawing lie, and where their outlines are broken.
#pragma once

#include <cstddef>
#include <vector>

#include "desk/drawing/ExportBoxes.h"
#include "desk/project/Project.h"

namespace Desk {

// A support, by the stretch of the beam's axis that it covers; at a free end none.
struct Break {
    double from = 0.0;
    double to = 0.0;

    [[nodiscard]] double Middle() const { return (from + to) / 2; }
};

// A beam's axis in the direction in which its texts are read: to the right, or upwards.
struct BeamLie {
    PlanPoint from;
    PlanPoint along{1.0, 0.0};  // of length 1
    double length = 0.0;
    double width = 250.0;
    bool isReversed = false;    // the beam's start is at the right, or at the top
    bool isPlaced = true;       // false: the project gives it no position
    std::vector<Break> breaks;  // by position, the two ends among them; their middles are the supports

    [[nodiscard]] PlanPoint At(double distance, double aside = 0.0) const
    {
        return Plus(Plus(from, along, distance), LeftOf(along), aside);
    }
    // Supports and spans are numbered from the beam's start.
    [[nodiscard]] std::size_t FromLeft(std::size_t index, std::size_t last) const
    {
        return isReversed ? last - index : index;
    }
};

// Parallel to the project's beams. Supports are where the beam's spans end; without known spans, where it
// crosses other beams and walls, frame beams and deep ones first, as many as its name tells.
[[nodiscard]] std::vector<BeamLie> LiesOf(const Project& project);

}  // namespace Desk
