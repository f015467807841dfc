// One entity while its pairs are gathered, and the lines that curves are drawn by.
#pragma once

#include <string_view>
#include <vector>

#include "desk/drawing/Pairs.h"
#include "desk/project/Project.h"
#include "desk/reading/DrawingText.h"

namespace Desk {

enum class EntityType {
    Other,
    Text,
    MText,
    Attrib,
    Line,
    LwPolyline,
    Polyline,
    Vertex,
    SeqEnd,
    Circle,
    Arc,
    Insert,
    Dimension
};
// By what code 0 says.
[[nodiscard]] EntityType TypeOf(std::string_view type);

struct Vertex {
    PlanPoint at;
    double bulge = 0.0;
};

// The pairs of one entity, by what they mean.
struct Entity {
    EntityType kind = EntityType::Other;
    Stretch record;
    std::string_view handle;
    std::string_view layer = "0";
    std::string_view name;        // code 2
    std::vector<Stretch> pieces;  // code 3
    Stretch value;                // code 1
    bool hasValue = false;
    PlanPoint at;     // 10, 20
    PlanPoint other;  // 11, 21
    bool hasOther = false;
    double number40 = 0.0;
    double scale41 = 1.0;
    double scale42 = 1.0;
    double number44 = 0.0;
    double number45 = 0.0;
    double angle50 = 0.0;
    double angle51 = 0.0;
    int whole60 = 0;
    int whole62 = 0;
    int whole67 = 0;
    int whole70 = 0;
    int whole71 = 0;
    int whole72 = 0;
    int whole73 = 0;
    int whole74 = 0;
    double extrusion = 1.0;  // 230
    std::vector<Vertex> vertices;

    void Take(const Pair& pair);
};

[[nodiscard]] double Radians(double degrees);
// False beyond FarthestOut, and for what is no number.
[[nodiscard]] bool IsOnPlan(const PlanPoint& point);

// Points along an arc, counterclockwise between two angles in degrees; equal angles are a whole circle.
[[nodiscard]] std::vector<PlanPoint> ArcPoints(const PlanPoint& center, double radius, double from,
                                               double to);
// Points along a polyline. A vertex's bulge is the tangent of a quarter of the angle of the arc that
// follows it.
[[nodiscard]] std::vector<PlanPoint> PolylinePoints(const std::vector<Vertex>& vertices, bool isClosed);

}  // namespace Desk
