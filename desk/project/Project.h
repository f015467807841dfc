// The drafting host's project: the beams and walls of a building with their annotation texts.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace Desk {

// A place on the plan in mm.
struct PlanPoint {
    double x = 0.0;
    double y = 0.0;
};

// Required steel area by place, in mm².
struct SteelArea {
    int top = 0;
    int bottom = 0;
    int leftEnd = 0;
    int rightEnd = 0;
};

// A beam with its annotation texts, in UTF-8; an empty text means that the beam has none.
struct Beam {
    std::string name;        // KL1(3)
    std::string section;     // 300x600
    std::string elevation;   // -0.050
    std::string stirrup;     // A8@100/200(2)
    std::string topBars;     // through bars, 2B25
    std::string bottomBars;  // through bars, 4B25
    std::string leftEnd;     // complete top bars at the left end, 2B25+2B22
    std::string rightEnd;
    std::string erection;  // erection bars between the through bars, 2B12
    std::string torsion;   // N4B12
    std::string side;      // G4B12
    std::string floor;
    int concreteGrade = 30;
    int seismicClass = 3;  // 1 to 4
    SteelArea area;
    PlanPoint start;
    PlanPoint end;
    // As read from the file: it keeps unknown keys and the order of keys until the next save.
    nlohmann::ordered_json source = nlohmann::ordered_json::object();
};

// A wall with its distributed bars.
struct Wall {
    std::string name;            // Q1
    int thickness = 0;           // mm
    std::string horizontalBars;  // A10@150
    std::string verticalBars;    // A10@150
    PlanPoint start;
    PlanPoint end;
    nlohmann::ordered_json source = nlohmann::ordered_json::object();
};

struct Project {
    std::string title;
    std::vector<Beam> beams;  // in project order
    std::vector<Wall> walls;
    nlohmann::ordered_json source = nlohmann::ordered_json::object();
};

}  // namespace Desk
