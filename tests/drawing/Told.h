// Projects in words, so that a test compares and prints them whole.
#pragma once

#include <cmath>
#include <string>

#include "desk/drawing/Drawing.h"

namespace Desk {

inline Drawing Parsed(const std::string& bytes) { return Drawing::Parse(bytes, "floor.dxf"); }

inline std::string Told(const PlanPoint& at)
{
    return std::to_string(std::lround(at.x)) + "," + std::to_string(std::lround(at.y));
}

// "KL1(2) 0,0 to 8000,0 (8000): section 300x600, stirrup A8@100(2); topSupport 2 4B25"
inline std::string Told(const Beam& beam)
{
    std::string told = beam.name + " " + Told(beam.start) + " to " + Told(beam.end) + " (";
    for (const double span : beam.spans) {
        told += (told.back() == '(' ? "" : " ") + std::to_string(std::lround(span));
    }
    told += "):";
    for (const Field field : BeamFields()) {
        const std::string& text = beam.*RowOf(field).ofBeam;
        if (field != Field::Name && !text.empty()) {
            told += (told.back() == ':' ? " " : ", ") + std::string(RowOf(field).key) + " " + text;
        }
    }
    for (const InPlace& text : beam.inPlace) {
        told +=
            std::string("; ") + RowOf(text.role).key + " " + std::to_string(text.number) + " " + text.text;
    }
    return told + "\n";
}

inline std::string Told(const Project& project)
{
    std::string told;
    for (const Beam& beam : project.beams) {
        told += Told(beam);
    }
    return told;
}

}  // namespace Desk
