// The floor plan while beams and walls come and go, and ends that are dragged.
#include <random>

#include <gtest/gtest.h>

#include "desk/project/Making.h"
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

// However the beam lies, the text is where it was let go, and there again in a plan of the saved project.
TEST(FloorEdits, ATextIsDraggedWithItsBlockOrAlone)
{
    Project project;
    project.beams = {MadeBeam("KL1(1)", {0, 0}, {8000, 0}), MadeBeam("KL2(1)", {12000, 8000}, {12000, 0}),
                     MadeBeam("KL3(1)", {8000, 9000}, {0, 12000})};
    for (Beam& beam : project.beams) {
        beam.section = "300x600";
        beam.leftEnd = "4B22";
        beam.inPlace = {
            {Role::Bottom, 1, "3B25", {}, -1, nullptr},
            {Role::TopSpan, 1, "2B20", {{15000.0, beam.start.y / 2.0}, 30.0, 300.0}, -1, nullptr}};
    }
    project.walls = {{"Q1", 200, "A10@150", "A10@150", {0, 15000}, {8000, 15000}, {}, nullptr}};
    const auto drag = [](View& view, const FieldRef& ref, const QPoint& by) {
        view.text.reset();
        const QPoint from = view.Middle(ref);
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, from);
        QTest::mouseMove(view.viewport(), from + by / 2);
        QTest::mouseMove(view.viewport(), from + by);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, from + by);
    };
    const QPoint by(70, -50);
    std::vector<FieldRef> refs = {{true, 0, Field::HorizontalBars}};
    for (std::size_t beam = 0; beam < project.beams.size(); ++beam) {
        for (const FieldRef& ref : {FieldRef{false, beam, Field::Section},
                                    {false, beam, Field::LeftEnd},
                                    {false, beam, Field::BottomBars, 0},
                                    {false, beam, Field::TopBars, 1}}) {
            refs.push_back(ref);
        }
    }
    for (const FieldRef& ref : refs) {
        SCOPED_TRACE(std::string(RowOf(ref.field).key) + ' ' + std::to_string(ref.index));
        View view(project);
        drag(view, ref, by);
        EXPECT_FALSE(view.text) << "a drawing's texts stay";
        view.SetHandles(true, true);
        drag(view, ref, {1, 0});
        EXPECT_FALSE(view.text) << "a press alone";
        const QPoint before = view.Middle(ref);
        drag(view, ref, by);
        ASSERT_TRUE(view.text);
        EXPECT_EQ(view.text->first, ref);
        Project moved = project;
        (ref.isWall ? moved.walls[0].textsAt : DraggedTo(moved.beams[ref.index], ref)) = view.text->second;
        const Project saved = ParseProject(FormatProject(moved), "moved");
        View again(saved);
        const QPointF off = again.mapToScene(again.Middle(ref)) - view.mapToScene(before + by);
        EXPECT_LE(view.transform().m11() * off.manhattanLength(), 4.0) << "pixels";
    }
}

}  // namespace
