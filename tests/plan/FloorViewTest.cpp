// The floor plan: every annotation is found where it shows, and only the changed one changes.
#include <QtTest/QtTest>

#include <gtest/gtest.h>

#include "desk/plan/FloorView.h"
#include "desk/project/ProjectFile.h"

namespace {

using namespace Desk;

std::vector<FieldRef> AllRefs(const Project& project)
{
    std::vector<FieldRef> refs;
    for (const bool wall : {false, true}) {
        for (std::size_t i = 0; i < (wall ? project.walls.size() : project.beams.size()); ++i) {
            for (const Field field : wall ? WallFields() : BeamFields()) {
                if (!TextAt(project, {wall, i, field}).empty()) {
                    refs.push_back({wall, i, field});
                }
            }
        }
    }
    return refs;
}

struct View : FloorView {
    explicit View(const Project& project)
    {
        resize(1200, 800);
        SetProject(&project);
        show();
        connect(this, &FloorView::Picked, [this](const FieldRef& ref) { picked.push_back(ref); });
        connect(this, &FloorView::NothingPicked, [this] { ++nothing; });
        connect(this, &FloorView::PanelAsked, [this](const FieldRef& ref) { panel = ref; });
    }
    [[nodiscard]] QPoint Middle(const FieldRef& ref) const
    {
        return viewport()->mapFromGlobal(OnScreen(ref).center());
    }
    std::vector<FieldRef> picked;
    int nothing = 0;
    std::optional<FieldRef> panel;
};

TEST(FloorView, APressOnEachAnnotationOfTheSamplePicksIt)
{
    const Project project = SampleProject();
    View view(project);
    EXPECT_LE(view.CoveringBlocks(), static_cast<int>(project.beams.size() + project.walls.size()) / 6);
    int others = 0;
    for (const double zoom : {1.0, 3.0}) {
        view.Fit();
        view.ZoomBy(zoom);
        for (const FieldRef& ref : AllRefs(project)) {
            view.SetChosen(ref);
            view.picked.clear();
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.Middle(ref));
            ASSERT_EQ(view.picked.size(), 1U);
            others += view.picked.front() == ref ? 0 : 1;
        }
    }
    EXPECT_LE(others, 2 * static_cast<int>(AllRefs(project).size()) / 50) << "covered by another text";
    const FieldRef ref{false, 3, Field::Section};
    view.SetChosen(ref);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.Middle(ref));
    EXPECT_EQ(view.panel, ref);
}

TEST(FloorView, BareGroundPansOrPicksNothing)
{
    const Project project = SampleProject();
    View view(project);
    const FieldRef ref{false, 0, Field::Name};
    const QPoint before = view.Middle(ref);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(view.nothing, 1);
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(view.viewport(), QPoint(45, 35));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, QPoint(45, 35));
    EXPECT_EQ(view.nothing, 1);
    EXPECT_EQ(view.Middle(ref) - before, QPoint(40, 30));
    EXPECT_TRUE(view.picked.empty());
}

TEST(FloorView, TextsThatAreTooSmallToBeDrawnArePickedByNobody)
{
    const Project project = SampleProject();
    View view(project);
    view.ZoomBy(0.4);
    for (const FieldRef& ref : AllRefs(project)) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.Middle(ref));
    }
    for (const FieldRef& picked : view.picked) {
        EXPECT_EQ(picked.field, Field::Name) << "a beam itself";
    }
    EXPECT_GT(view.nothing, 0);
}

TEST(FloorView, ArrowKeysMoveTheFloorAndOtherKeysAreTheWindows)
{
    const Project project = SampleProject();
    View view(project);
    view.ZoomBy(4.0);
    const FieldRef ref{false, 0, Field::Name};
    const QPoint before = view.Middle(ref);
    QTest::keyClick(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_LT(view.Middle(ref).x(), before.x());
    EXPECT_LT(view.Middle(ref).y(), before.y());
    QTest::keyClick(&view, Qt::Key_Left);
    QTest::keyClick(&view, Qt::Key_PageUp);
    EXPECT_EQ(view.Middle(ref).x(), before.x());
    EXPECT_GT(view.Middle(ref).y(), before.y());
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    QApplication::sendEvent(&view, &letter);
    EXPECT_FALSE(letter.isAccepted());
}

TEST(FloorView, ZoomsAboutTheChosenAnnotation)
{
    const Project project = SampleProject();
    View view(project);
    const FieldRef chosen{false, 20, Field::Name};
    view.SetChosen(chosen);
    const QPoint before = view.Middle(chosen);
    view.ZoomBy(3.0);
    EXPECT_LE((view.Middle(chosen) - before).manhattanLength(), 4);
}

TEST(FloorView, RefreshMovesNoOtherText)
{
    Project project = SampleProject();
    View view(project);
    const auto boxes = [&](std::size_t except) {
        std::vector<QRect> rects;
        for (const FieldRef& ref : AllRefs(project)) {
            if (ref.isWall || ref.index != except) {
                rects.push_back(view.OnScreen(ref));
            }
        }
        return rects;
    };
    const std::vector<QRect> before = boxes(2);
    const QRect own = view.OnScreen({false, 2, Field::Section});
    project.beams[2].section = "1000x2000";
    view.Refresh({false, 2, Field::Section});
    EXPECT_EQ(boxes(2), before);
    EXPECT_GT(view.OnScreen({false, 2, Field::Section}).width(), own.width());
}

TEST(FloorView, TakesWhateverAProjectFileMayHold)
{
    for (
        const char* const text :
        {R"({"version": 1})", R"({"version": 1, "axes": 7, "beams": [{"name": ""}]})",
         R"({"version": 1, "axes": {"x": [1], "y": {"A": "x", "B": 3}},
              "beams": [{"name": "L1", "section": "wide", "start": [5, 5], "end": [5, 5]}],
              "walls": [{"name": "Q1", "start": [-1e9, 0], "end": [1e9, 0]}]})",
         R"({"version": 1, "beams": [{"name": "L1", "section": "300x600", "start": [0, 0], "end": [1e9, 1e9]},
              {"name": "L2", "section": "1x1", "start": [-1e9, 1e9], "end": [1e9, -1e9]}]})"}) {
        const Project project = ParseProject(text, "test");
        View view(project);
        view.SetDark(true);
        view.ZoomBy(4);
        EXPECT_FALSE(view.grab().isNull());
        EXPECT_EQ(view.OnScreen({false, 9, Field::Name}), QRect());
        view.SetProject(nullptr);
    }
}

}  // namespace
