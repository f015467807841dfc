// Projects in words, so that a test compares and prints them whole.
#pragma once

#include <cmath>
#include <set>
#include <string>
#include <tuple>

#include "desk/drawing/Drawing.h"

namespace Desk {

inline Drawing Parsed(const std::string& bytes) { return Drawing::Parse(bytes, "floor.dxf"); }

inline std::string Told(const PlanPoint& at)
{
    return std::to_string(std::lround(at.x)) + "," + std::to_string(std::lround(at.y));
}

// "KL1(2) 0,0 to 8000,0 (8000): section 300x600, stirrup A8@100(2); topSupport 2 4B25", the texts in place
// in the order of their roles.
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
    std::multiset<std::tuple<Role, int, std::string>> inPlace;
    for (const InPlace& text : beam.inPlace) {
        inPlace.emplace(text.role, text.number, text.text);
    }
    for (const auto& [role, number, text] : inPlace) {
        told.append("; ").append(RowOf(role).key).append(" " + std::to_string(number) + " " + text);
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
