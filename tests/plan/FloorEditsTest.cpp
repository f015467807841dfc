// The floor plan while beams and walls come and go, and ends that are dragged.
#include <random>

#include <gtest/gtest.h>

#include "desk/project/ProjectFile.h"
#include "tests/plan/View.h"
#include "tests/support/Made.h"
#include "tests/support/Seed.h"

namespace {

using namespace Desk;

// Random edits of the project, shown one by one, show what a view that is made anew shows.
TEST(FloorEdits, FollowsBeamsAndWallsThatComeAndGo)
{
    Project project = SampleProject();
    project.beams.resize(12);
    View view(project);
    std::mt19937 random(FirstSeed(3));
    const auto below = [&](std::size_t count) { return static_cast<std::size_t>(random()) % count; };
    std::vector<Exchange<Beam>> done;
    std::vector<Exchange<Wall>> doneWalls;
    const auto check = [&] {
        for (const FieldRef& ref : AllRefs(project)) {
            const bool isWall = ref.isWall;
            const PlanPoint& start =
                isWall ? project.walls[ref.index].start : project.beams[ref.index].start;
            const PlanPoint& end = isWall ? project.walls[ref.index].end : project.beams[ref.index].end;
            const QRect box = view.OnScreen(ref);
            const QPoint middle = (view.OnScreen(start) + view.OnScreen(end)) / 2;
            const int length = (view.OnScreen(start) - view.OnScreen(end)).manhattanLength();
            ASSERT_FALSE(box.isEmpty());
            EXPECT_LE((box.center() - middle).manhattanLength(), length + 200);
        }
    };
    for (int step = 0; step < 40; ++step) {
        view.SetChosen(FieldRef{step % 2 == 0, 0, Field::Name});
        EditsOf<Beam> beams;
        EditsOf<Wall> walls;
        for (std::size_t i = below(4); i > 0 && project.beams.size() > 4; --i) {
            beams.removed.insert(below(project.beams.size()));
        }
        for (std::size_t i = below(4); i > 0; --i) {
            const double x = 1000.0 * static_cast<double>(below(60));
            beams.added.push_back(MadeBeam("KL99(1)", {x, 3000}, {x + 5000, 3000}));
        }
        if (const std::size_t moved = below(project.beams.size()); !beams.removed.contains(moved)) {
            beams.changed[moved] = project.beams[moved];
            beams.changed[moved].end.y += 2000;
        }
        if (below(2) == 0 && !project.walls.empty()) {
            walls.removed = {below(project.walls.size())};
        }
        done.emplace_back(std::move(beams), project.beams.size());
        doneWalls.emplace_back(std::move(walls), project.walls.size());
        const ExchangedIndices beamIndices = done.back().Do(project.beams);
        view.Exchange({beamIndices, doneWalls.back().Do(project.walls)});
        check();
    }
    while (!done.empty()) {
        const ExchangedIndices beamIndices = done.back().Do(project.beams);
        view.Exchange({beamIndices, doneWalls.back().Do(project.walls)});
        done.pop_back();
        doneWalls.pop_back();
    }
    EXPECT_EQ(project.beams.size(), 12U);
    check();
    view.ZoomBy(3.0);
    const FieldRef ref{false, 11, Field::Section};
    view.SetChosen(ref);
    view.Press(view.Middle(ref));
    EXPECT_EQ(view.picked.back(), ref);
    EXPECT_FALSE(view.grab().isNull());
}

TEST(FloorEdits, AnEndIsDraggedByItsHandle)
{
    Project project;
    project.axesAcross = {{"1", 0}, {"2", 8000}, {"3", 16000}};
    project.axesUp = {{"A", 0}};
    project.beams = {MadeBeam("KL1(1)", {0, 0}, {8000, 0})};
    View view(project);
    const auto drag = [&](const PlanPoint& from, const PlanPoint& to) {
        view.dragged.reset();
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, view.InView(from));
        QTest::mouseMove(view.viewport(), view.InView(to));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, view.InView(to));
    };
    const FieldRef name{false, 0, Field::Name};
    view.SetChosen(name);
    drag({8000, 0}, {15900, 100});
    EXPECT_FALSE(view.dragged) << "no handles yet";
    view.SetHandles(true, false);
    view.Fit();
    drag({8000, 0}, {15900, 100});
    ASSERT_TRUE(view.dragged);
    const auto& [ref, isStart, to] = *view.dragged;
    EXPECT_EQ(ref, name);
    EXPECT_FALSE(isStart);
    EXPECT_EQ(to.x, 16000) << "caught by the crossing of axes";
    EXPECT_EQ(to.y, 0);
    view.picked.clear();
    view.Press(view.InView({0, 0}));
    EXPECT_EQ(view.picked, std::vector{name}) << "a press alone picks as always";
    view.SetHandles(false, true);
    drag({8000, 0}, {15900, 100});
    EXPECT_FALSE(view.dragged);
}

}  // namespace
