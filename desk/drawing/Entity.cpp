#include "desk/drawing/Entity.h"

#include <cmath>
#include <numbers>
#include <unordered_map>

namespace Desk {

namespace {

constexpr double ArcStep = 22.5;  // degrees of an arc that one line stands for

// The points after the first one; the last one is exactly the next vertex.
void AppendBulge(std::vector<PlanPoint>& points, const Vertex& from, const PlanPoint& to)
{
    const double angle = 4.0 * std::atan(from.bulge);
    const int steps = 1 + static_cast<int>(std::abs(angle) / Radians(ArcStep));
    const double lean = (1.0 - from.bulge * from.bulge) / (4.0 * from.bulge);
    const PlanPoint center{(from.at.x + to.x) / 2.0 - (to.y - from.at.y) * lean,
                           (from.at.y + to.y) / 2.0 + (to.x - from.at.x) * lean};
    const double dx = from.at.x - center.x;
    const double dy = from.at.y - center.y;
    for (int i = 1; i < steps; ++i) {
        const double turn = angle * i / steps;
        points.push_back({center.x + dx * std::cos(turn) - dy * std::sin(turn),
                          center.y + dx * std::sin(turn) + dy * std::cos(turn)});
    }
    points.push_back(to);
}

}  // namespace

bool IsOnPlan(const PlanPoint& point)
{
    return std::abs(point.x) <= FarthestOut && std::abs(point.y) <= FarthestOut;
}

double Radians(double degrees) { return degrees * std::numbers::pi / 180.0; }

EntityType TypeOf(std::string_view type)
{
    static const std::unordered_map<std::string_view, EntityType> kinds = {
        {"TEXT", EntityType::Text},
        {"MTEXT", EntityType::MText},
        {"ATTRIB", EntityType::Attrib},
        {"LINE", EntityType::Line},
        {"LWPOLYLINE", EntityType::LwPolyline},
        {"POLYLINE", EntityType::Polyline},
        {"VERTEX", EntityType::Vertex},
        {"SEQEND", EntityType::SeqEnd},
        {"CIRCLE", EntityType::Circle},
        {"ARC", EntityType::Arc},
        {"INSERT", EntityType::Insert},
        {"DIMENSION", EntityType::Dimension},
    };
    const auto found = kinds.find(type);
    return found == kinds.end() ? EntityType::Other : found->second;
}

void Entity::Take(const Pair& pair)
{
    const auto number = [&pair] { return RealOf(pair.value); };
    const auto whole = [&pair] { return WholeOf(pair.value); };
    const Stretch here{pair.valueAt, pair.valueAt + pair.value.size()};
    switch (pair.code) {
    case 1:
        value = here;
        hasValue = true;
        break;
    case 2: name = pair.value; break;
    case 3: pieces.push_back(here); break;
    case 5: handle = Trimmed(pair.value); break;
    case 8: layer = pair.value; break;
    case 10:
        at.x = number();
        if (kind == EntityType::LwPolyline) {
            vertices.push_back({{at.x, 0.0}, 0.0});
        }
        break;
    case 20:
        at.y = number();
        if (!vertices.empty()) {
            vertices.back().at.y = at.y;
        }
        break;
    case 11:
        other.x = number();
        hasOther = true;
        break;
    case 21: other.y = number(); break;
    case 40: number40 = number(); break;
    case 41: scale41 = number(); break;
    case 42:
        scale42 = number();
        if (!vertices.empty()) {
            vertices.back().bulge = scale42;
        }
        break;
    case 44: number44 = number(); break;
    case 45: number45 = number(); break;
    case 50: angle50 = number(); break;
    case 51: angle51 = number(); break;
    case 60: whole60 = whole(); break;
    case 62: whole62 = whole(); break;
    case 67: whole67 = whole(); break;
    case 70: whole70 = whole(); break;
    case 71: whole71 = whole(); break;
    case 72: whole72 = whole(); break;
    case 73: whole73 = whole(); break;
    case 74: whole74 = whole(); break;
    case 230: extrusion = number(); break;
    default: break;
    }
}

std::vector<PlanPoint> ArcPoints(const PlanPoint& center, double radius, double from, double to)
{
    double span = std::fmod(to - from, 360.0);
    span = span <= 0.0 ? span + 360.0 : span;
    const int steps = 1 + static_cast<int>(span / ArcStep);
    std::vector<PlanPoint> points;
    for (int i = 0; i <= steps; ++i) {
        const double angle = Radians(from + span * i / steps);
        points.push_back({center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
    }
    return points;
}

std::vector<PlanPoint> PolylinePoints(const std::vector<Vertex>& vertices, bool isClosed)
{
    std::vector<PlanPoint> points;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        if (points.empty()) {
            points.push_back(vertices[i].at);
        }
        if (i + 1 < vertices.size() || isClosed) {
            const PlanPoint to = vertices[(i + 1) % vertices.size()].at;
            constexpr double Straight = 1e-9;
            std::abs(vertices[i].bulge) < Straight ? points.push_back(to)
                                                   : AppendBulge(points, vertices[i], to);
        }
    }
    return points;
}

}  // namespace Desk
