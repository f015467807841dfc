#include "desk/drawing/Export.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "desk/drawing/Drawing.h"
#include "desk/drawing/ExportBoxes.h"
#include "desk/drawing/ExportFile.h"
#include "desk/drawing/ExportLayout.h"
#include "desk/project/Progress.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

struct Extent {
    PlanPoint least;
    PlanPoint most;
};

std::optional<Extent> ExtentOf(const Project& project)
{
    std::optional<Extent> extent;
    const auto add = [&](const PlanPoint& at) {
        if (!extent) {
            extent = {at, at};
        }
        extent->least = {std::min(extent->least.x, at.x), std::min(extent->least.y, at.y)};
        extent->most = {std::max(extent->most.x, at.x), std::max(extent->most.y, at.y)};
    };
    for (const Beam& beam : project.beams) {
        add(beam.start);
        add(beam.end);
    }
    for (const Wall& wall : project.walls) {
        add(wall.start);
        add(wall.end);
    }
    return extent;
}

void AddBubble(ExportFile& file, const PlanPoint& at, const std::string& label)
{
    constexpr double Radius = 500.0;
    file.Circle("AXIS", at, Radius);
    file.Text("AXIS", {label, {at, 0.0, Radius}}, Anchor::Middle);
}

// Each axis runs past the beams on both sides and ends there in bubbles.
void AddAxes(ExportFile& file, const Project& project, const Extent& extent)
{
    constexpr double Beyond = 4000.0;
    constexpr double Radius = 500.0;
    const auto add = [&](const std::string& label, const PlanPoint& from, const PlanPoint& to) {
        const PlanBox box = BoxBetween(from, to, 0.0);
        file.Line("AXIS", {from, to});
        AddBubble(file, Plus(from, box.along, -Radius), label);
        AddBubble(file, Plus(to, box.along, Radius), label);
    };
    for (const Axis& axis : project.axesAcross) {
        add(axis.label, {axis.at, extent.least.y - Beyond}, {axis.at, extent.most.y + Beyond});
    }
    for (const Axis& axis : project.axesUp) {
        add(axis.label, {extent.least.x - Beyond, axis.at}, {extent.most.x + Beyond, axis.at});
    }
}

void AddWall(ExportFile& file, const Wall& wall)
{
    constexpr double Thinnest = 100.0;
    const PlanBox box = BoxBetween(wall.start, wall.end, std::max<double>(wall.thickness, Thinnest));
    const auto corner = [&](double along, double aside) {
        return Plus(Plus(box.middle, box.along, along * box.halfLength), LeftOf(box.along),
                    aside * box.halfWidth);
    };
    const PlanPoint corners[] = {corner(-1, -1), corner(1, -1), corner(1, 1), corner(-1, 1)};
    for (std::size_t i = 0; i < std::size(corners); ++i) {
        file.Line("WALL", {corners[i], corners[(i + 1) % std::size(corners)]});
    }
}

}  // namespace

std::string FormatDrawing(const Project& project)
{
    ExportFile file;
    if (const std::optional<Extent> extent = ExtentOf(project)) {
        AddAxes(file, project, *extent);
    }
    for (const Wall& wall : project.walls) {
        if (wall.start.x != wall.end.x || wall.start.y != wall.end.y) {
            AddWall(file, wall);
        }
    }
    const std::vector<BeamOnPlan> beams = LayOutBeams(project);
    for (const BeamOnPlan& beam : beams) {
        for (const PlanLine& line : beam.outline) {
            file.Line("BEAM", line);
        }
    }
    for (const BeamOnPlan& beam : beams) {
        TellProgress(static_cast<std::size_t>(&beam - beams.data()), beams.size());
        const char* const layer = beam.isUp ? "BEAM_TEXT_Y" : "BEAM_TEXT_X";
        if (beam.leader) {
            file.Line(layer, *beam.leader);
        }
        for (const std::vector<PlanText>* const texts : {&beam.label, &beam.inPlace}) {
            for (const PlanText& text : *texts) {
                file.Text(layer, text);
            }
        }
    }
    return file.Finish();
}

bool ExportDrawing(const Project& project, const std::filesystem::path& file)
{
    const std::string companion = Drawing::CompanionOf(project);
    ReplaceFile(file, FormatDrawing(project));
    if (!companion.empty()) {
        ReplaceFile(CompanionFile(file), companion);
    } else {
        std::error_code isNone;
        std::filesystem::remove(CompanionFile(file), isNone);
    }
    return !companion.empty();
}

}  // namespace Desk
