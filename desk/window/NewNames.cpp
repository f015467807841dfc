#include "desk/window/NewNames.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "desk/ranking/Proposals.h"
#include "desk/reading/BeamName.h"

namespace Desk {

namespace {

constexpr const char* FirstBeam = "KL1(1)";
constexpr const char* FirstWall = "Q1";
constexpr int MostSerial = 999;

bool HasBeam(const Project& project, const std::string& name)
{
    return std::any_of(project.beams.begin(), project.beams.end(),
                       [&](const Beam& beam) { return beam.name == name; });
}

// "Q" and 12 of "Q12".
std::optional<std::pair<std::string, int>> WallName(const std::string& name)
{
    const std::size_t end = name.find_last_not_of("0123456789") + 1;
    int number = 0;
    const auto [rest, error] = std::from_chars(name.data() + end, name.data() + name.size(), number);
    return error == std::errc() ? std::optional(std::pair(name.substr(0, end), number)) : std::nullopt;
}

}  // namespace

std::string NewBeamName(const Project& project)
{
    constexpr std::size_t Enough = 8;
    const std::vector<Proposal> proposals =
        Proposer(project).For({false, project.beams.size() - 1, Field::Name}, Enough);
    for (const Proposal& proposal : proposals) {
        if (!HasBeam(project, proposal.text)) {
            return proposal.text;
        }
    }
    for (auto beam = project.beams.rbegin(); beam != project.beams.rend(); ++beam) {
        if (std::string next = NextBeamName(project, beam->name); !next.empty()) {
            return next;
        }
    }
    return FirstBeam;
}

std::string NextBeamName(const Project& project, const std::string& like)
{
    std::optional<BeamName> name = ReadName(like);
    if (!name) {
        return {};
    }
    int serial = 0;
    for (const Beam& beam : project.beams) {
        const std::optional<BeamName> other = ReadName(beam.name);
        serial = other && other->type == name->type ? std::max(serial, other->serial) : serial;
    }
    name->serial = serial + 1;
    name->letter = '\0';
    return serial < MostSerial ? name->Text() : std::string();
}

std::string NextWallName(const Project& project, const std::string& like)
{
    const auto name = WallName(like.empty() ? FirstWall : like);
    if (!name) {
        return {};
    }
    int serial = 0;
    for (const Wall& wall : project.walls) {
        const auto other = WallName(wall.name);
        serial = other && other->first == name->first ? std::max(serial, other->second) : serial;
    }
    return name->first + std::to_string(serial + 1);
}

int SpansOf(const Beam& beam)
{
    const std::optional<BeamName> name = ReadName(beam.name);
    const int cantilevers = !name || name->cantilever == '\0' ? 0 : name->cantilever == 'A' ? 1 : 2;
    const int told = name ? std::max(1, name->spans + cantilevers) : 1;
    return beam.spans.empty() ? told : static_cast<int>(beam.spans.size());
}

}  // namespace Desk
