// Project files: whatever the bytes, reading gives a project or a failure with its place, and a project
// that was read is written and read again as the same one.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <tuple>

#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"

namespace {

void Require(bool holds, const char* what, const std::string& text)
{
    if (!holds) {
        std::fprintf(stderr, "%s:\n%s\n", what, text.c_str());
        std::abort();
    }
}

auto TextsOf(const Desk::Beam& b)
{
    return std::tie(b.name, b.section, b.elevation, b.stirrup, b.topBars, b.bottomBars, b.leftEnd,
                    b.rightEnd, b.erection, b.torsion, b.side, b.floor);
}

auto NumbersOf(const Desk::Beam& b)
{
    return std::tie(b.concreteGrade, b.seismicClass, b.area.top, b.area.bottom, b.area.leftEnd,
                    b.area.rightEnd, b.start.x, b.start.y, b.end.x, b.end.y);
}

auto FieldsOf(const Desk::Wall& w)
{
    return std::tie(w.name, w.thickness, w.horizontalBars, w.verticalBars, w.start.x, w.start.y, w.end.x,
                    w.end.y);
}

auto FieldsOf(const Desk::InPlace& t)
{
    return std::tie(t.role, t.number, t.text, t.place.at.x, t.place.at.y, t.place.angle, t.place.height);
}

bool AreSame(const Desk::Beam& a, const Desk::Beam& b)
{
    bool same = TextsOf(a) == TextsOf(b) && NumbersOf(a) == NumbersOf(b) && a.spans == b.spans &&
                a.inPlace.size() == b.inPlace.size();
    for (std::size_t i = 0; same && i < a.inPlace.size(); ++i) {
        same = FieldsOf(a.inPlace[i]) == FieldsOf(b.inPlace[i]);
    }
    return same;
}

bool AreSame(const Desk::Project& a, const Desk::Project& b)
{
    bool same = a.title == b.title && a.beams.size() == b.beams.size() &&
                a.walls.size() == b.walls.size() && a.pointed.size() == b.pointed.size();
    for (std::size_t i = 0; same && i < a.beams.size(); ++i) {
        same = AreSame(a.beams[i], b.beams[i]);
    }
    for (std::size_t i = 0; same && i < a.walls.size(); ++i) {
        same = FieldsOf(a.walls[i]) == FieldsOf(b.walls[i]);
    }
    return same;
}

// FILE:LINE:COLUMN: what is wrong.
bool TellsPlace(const std::string& message)
{
    int line = 0;
    int column = 0;
    int length = 0;
    return std::sscanf(message.c_str(), "fuzz.json:%d:%d: %n", &line, &column, &length) == 2 && line > 0 &&
           column > 0 && length > 0 && static_cast<std::size_t>(length) < message.size();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    Desk::Project project;
    try {
        project = Desk::ParseProject(text, "fuzz.json");
    } catch (const Desk::Failure& failure) {
        Require(TellsPlace(failure.what()), "a failure without its place", failure.what());
        return 0;
    }
    const std::string written = Desk::FormatProject(project);
    const Desk::Project again = Desk::ParseProject(written, "fuzz.json");
    Require(AreSame(project, again), "another project was read back", written);
    Require(Desk::FormatProject(again) == written, "written differently the second time", written);
    return 0;
}
