// Beams found by the names that people type.
#include "desk/project/FindBeam.h"

#include <algorithm>

#include "desk/project/Failure.h"
#include "desk/project/Fields.h"

namespace Desk {

namespace {

std::string WithoutSuffix(const std::string& name) { return name.substr(0, name.find('(')); }

// Names of the same type, or the first ones of the project; a few are enough to see what is meant.
std::string NamesLike(const Project& project, const std::string& name)
{
    constexpr int Enough = 8;
    const std::string type = name.substr(0, name.find_first_of("0123456789("));
    std::string names;
    for (const bool sameType : {true, false}) {
        int count = 0;
        for (const Beam& beam : project.beams) {
            if (!beam.name.empty() && (!sameType || beam.name.starts_with(type)) && count < Enough) {
                names += (count++ == 0 ? "" : ", ") + beam.name;
            }
        }
        if (count > 0) {
            return names + (count == Enough ? ", ..." : "");
        }
    }
    return names;
}

std::ptrdiff_t TextsBesideName(const Beam& beam)
{
    return std::count_if(BeamFields().begin(), BeamFields().end(), [&beam](Field field) {
        return field != Field::Name && !(beam.*RowOf(field).ofBeam).empty();
    });
}

}  // namespace

const Beam& FindBeam(const Project& project, const std::string& name)
{
    for (const auto& nameOf : {+[](const std::string& full) { return full; }, +&WithoutSuffix}) {
        const auto found = std::find_if(project.beams.begin(), project.beams.end(), [&](const Beam& beam) {
            return !beam.name.empty() && nameOf(beam.name) == name;
        });
        if (found != project.beams.end()) {
            return project
                .beams[WrittenOut(project, static_cast<std::size_t>(found - project.beams.begin()))];
        }
    }
    const std::string names = NamesLike(project, name);
    throw Failure("no beam " + name + " in the project; " +
                  (names.empty() ? "it has no beams with a name" : "it has " + names));
}

std::size_t WrittenOut(const Project& project, std::size_t beam)
{
    const std::string& name = project.beams.at(beam).name;
    std::size_t best = beam;
    if (TextsBesideName(project.beams[beam]) > 0 || name.empty()) {
        return beam;
    }
    std::pair<bool, std::ptrdiff_t> most(false, 0);
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        if (project.beams[i].name != name) {
            continue;
        }
        // Another floor of the drawing may have a beam of that name too.
        const std::ptrdiff_t count = TextsBesideName(project.beams[i]);
        const std::pair<bool, std::ptrdiff_t> own(project.beams[i].plan == project.beams[beam].plan, count);
        if (count > 0 && own > most) {
            best = i;
            most = own;
        }
    }
    return best;
}

}  // namespace Desk
