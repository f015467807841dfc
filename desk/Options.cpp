// Shared options, and beams found by the names that people type.
#include "desk/Options.h"

#include <algorithm>
#include <charconv>

#include <CLI/CLI.hpp>

#include "RankerModule.h"
#include "desk/Encoding.h"
#include "desk/Failure.h"
#include "desk/ProjectFile.h"

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

}  // namespace

Project LoadProject(const std::string& file) { return file.empty() ? SampleProject() : ReadProject(file); }

std::string TitleOf(const Project& project, const std::string& file)
{
    const std::string origin = file.empty() ? "embedded sample" : file;
    return project.title.empty() ? origin : project.title + " (" + origin + ")";
}

const Beam& FindBeam(const Project& project, const std::string& name)
{
    for (const auto& nameOf : {+[](const std::string& full) { return full; }, +&WithoutSuffix}) {
        const auto found = std::find_if(project.beams.begin(), project.beams.end(), [&](const Beam& beam) {
            return !beam.name.empty() && nameOf(beam.name) == name;
        });
        if (found != project.beams.end()) {
            return *found;
        }
    }
    const std::string names = NamesLike(project, name);
    throw Failure("no beam " + name + " in the project; " +
                  (names.empty() ? "it has no beams with a name" : "it has " + names));
}

std::optional<int> WidthOf(const Beam& beam)
{
    int width = 0;
    BEAMSIZE_HITNESS_RANKER().GetBeamWidth(GbkFromUtf8(beam.section).value_or(CString()), width);
    return width > 0 ? std::optional(width) : std::nullopt;
}

void AddProjectOption(CLI::App& command, std::string& file)
{
    command.add_option("--project", file, "Project file to work on; without it the embedded sample")
        ->type_name("FILE")
        ->check([](const std::string& name) { return std::string(name.empty() ? "no file name" : ""); });
}

CLI::Validator Whole(int least, int most)
{
    const std::string range = std::to_string(least) + " to " + std::to_string(most);
    const auto check = [least, most, range](const std::string& text) {
        int number = 0;
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, number);
        const bool good = error == std::errc() && stop == end && number >= least && number <= most;
        return good ? std::string() : "a whole number from " + range + " is wanted, not \"" + text + "\"";
    };
    return CLI::Validator(check, "");
}

}  // namespace Desk
