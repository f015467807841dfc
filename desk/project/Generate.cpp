#include "desk/project/Generate.h"

#include <map>
#include <random>

#include "desk/project/ProjectFile.h"

namespace Desk {

namespace {

constexpr int Spans = 8;                // fields of a floor's grid, across and up
constexpr double Span = 8400.0;         // mm
constexpr double FloorStep = 90'000.0;  // mm from floor to floor
constexpr int FloorsInARow = 10;
constexpr int BeamsOfAFloor = 2 * (Spans + 1) * Spans;

std::string TypeOf(const Beam& beam) { return beam.name.substr(0, beam.name.find_first_of("0123456789")); }
std::string WidthIn(const Beam& beam) { return beam.section.substr(0, beam.section.find('x')); }

// Numbers that do not depend on a library's distributions.
class Draw {
public:
    explicit Draw(unsigned seed) : m_engine(seed) {}
    std::size_t Below(std::size_t count) { return static_cast<std::size_t>(m_engine()) % count; }
    template <class T>
    const T& From(const std::vector<T>& all)
    {
        return all[Below(all.size())];
    }

    // Of the beams with the type and the width.
    std::string Stirrup(const std::vector<Beam>& all, const Beam& beam)
    {
        std::vector<const Beam*> like;
        for (const Beam& other : all) {
            if (TypeOf(other) == TypeOf(beam) && WidthIn(other) == WidthIn(beam)) {
                like.push_back(&other);
            }
        }
        return From(like)->stirrup;
    }

private:
    std::mt19937 m_engine;
};

// One field of the floor's grid as a beam's axis: along x first, then along y.
void PlaceOnGrid(int number, PlanPoint& start, PlanPoint& end)
{
    const int floor = number / BeamsOfAFloor;
    const int onFloor = number % BeamsOfAFloor;
    const bool up = onFloor >= BeamsOfAFloor / 2;
    const int line = onFloor % (BeamsOfAFloor / 2) / Spans;
    const int field = onFloor % Spans;
    const PlanPoint corner{floor % FloorsInARow * FloorStep, floor / FloorsInARow * FloorStep};
    start = {corner.x + Span * (up ? line : field), corner.y + Span * (up ? field : line)};
    end = {start.x + (up ? 0.0 : Span), start.y + (up ? Span : 0.0)};
}

}  // namespace

Project GenerateProject(int beams, unsigned seed)
{
    const Project sample = SampleProject();
    Draw draw(seed);
    Project project;
    std::map<std::string, int> serials;  // of the floor, by type
    project.title = "Generated, " + std::to_string(beams) + " beams";
    for (int i = 0; i < beams; ++i) {
        Beam beam = draw.From(sample.beams);
        beam.inFile = nullptr;
        // Bars follow the section, stirrups its width; elevations are drawn for themselves.
        const std::string type = TypeOf(beam);
        beam.stirrup = draw.Stirrup(sample.beams, beam);
        beam.elevation = draw.From(sample.beams).elevation;
        if (i % BeamsOfAFloor == 0) {
            serials.clear();
        }
        beam.name = type + std::to_string(++serials[type]) + "(1)";
        beam.floor = std::to_string(i / BeamsOfAFloor + 1);
        PlaceOnGrid(i, beam.start, beam.end);
        project.beams.push_back(std::move(beam));
    }
    for (int i = 0; i < beams / 10 && !sample.walls.empty(); ++i) {
        Wall wall = draw.From(sample.walls);
        wall.inFile = nullptr;
        wall.name = std::string("Q").append(std::to_string(i + 1));
        PlaceOnGrid(i * 10, wall.start, wall.end);
        wall.end = {(wall.start.x + wall.end.x) / 2, (wall.start.y + wall.end.y) / 2};
        project.walls.push_back(std::move(wall));
    }
    return project;
}

}  // namespace Desk
