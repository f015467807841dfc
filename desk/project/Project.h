// The drafting host's project: the beams and walls of a building with their annotation texts.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Desk {

// A position on the plan in mm.
struct PlanPoint {
    double x = 0.0;
    double y = 0.0;
};

// What the project file holds of an object, all its keys in their order: what the program does not know
// stays until the next save. Null for what comes from no file. Made and read by ProjectFile.
struct FileObject;
using InFile = std::shared_ptr<const FileObject>;

// Required steel area in mm², by where it is needed.
struct SteelArea {
    int top = 0;
    int bottom = 0;
    int leftEnd = 0;
    int rightEnd = 0;
};

// Where a text is drawn: its lower left corner, the direction in which it is read, in degrees from x
// towards y, and the height of its characters in mm. Height 0 for a text that has no position of its own.
struct TextPlace {
    PlanPoint at;
    double angle = 0.0;
    double height = 0.0;
};

// What a text in place is for its beam.
enum class Role { TopSupport, TopSpan, Bottom, Stirrup, Side, Torsion, Section, Elevation };

// A text in place: what it says replaces the beam's own annotation at one support or along one span.
struct InPlace {
    Role role = Role::Bottom;
    int number = 1;  // of the support for TopSupport, else of the span, from 1 at the beam's start
    std::string text;
    TextPlace place;
    int drawn = -1;  // index in the texts of the drawing that it was read from
    InFile inFile;
    PlanPoint movedBy = {};  // as for the texts at a beam's ends; of a text without a position of its own
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
    std::vector<double> spans;     // lengths in mm from the start, one span at least; empty when not known
    std::vector<InPlace> inPlace;  // in the order in which they were read
    // Where a person dragged its texts to, in mm as they are read: x along the beam from its middle, y up.
    PlanPoint textsAt;    // upper left corner of its block of texts; 0, 0 for where there is room
    PlanPoint leftEndBy;  // from where the text would be
    PlanPoint rightEndBy;
    double drawnWidth = 0.0;        // of its outline in mm; 0 where no drawing tells
    int plan = 0;                   // of those side by side in its drawing, from 1; 0 without a drawing
    std::vector<TextPlace> places;  // of its texts, parallel to BeamFields(); empty without a drawing
    InFile inFile;
};

// A wall with its distributed bars.
struct Wall {
    std::string name;            // Q1
    int thickness = 0;           // mm
    std::string horizontalBars;  // A10@150
    std::string verticalBars;    // A10@150
    PlanPoint start;
    PlanPoint end;
    PlanPoint textsAt;  // as a beam's
    InFile inFile;
};

// An axis of the floor: its label and where it crosses the other direction, in mm.
struct Axis {
    std::string label;
    double at = 0.0;
};

struct Project {
    std::string title;
    std::vector<Beam> beams;  // in project order
    std::vector<Wall> walls;
    std::vector<Axis> axesAcross;  // those that cross x, from left to right
    std::vector<Axis> axesUp;      // those that cross y, from below
    // Texts of a drawing whose beam a person has pointed to: handle, and a position on that beam.
    std::map<std::string, PlanPoint> pointed;
    std::vector<std::string> checksOff;  // keys of the rules that are not checked, as the file has them
    InFile inFile;
};

}  // namespace Desk
