// The floor plan: every annotation is found where it shows, and only the changed one changes.
#include <gtest/gtest.h>

#include "desk/project/Generate.h"
#include "desk/project/ProjectFile.h"
#include "tests/plan/Drawn.h"
#include "tests/plan/View.h"

namespace {

using namespace Desk;

TEST(FloorView, APressOnEachAnnotationOfTheSamplePicksIt)
{
    const Project project = SampleProject();
    View view(project);
    EXPECT_EQ(view.CoveringBlocks(), 0);
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

// Rectangles of the view in which small texts show.
std::vector<QRectF> SmallTextsIn(const View& view)
{
    std::vector<QRectF> rects;
    for (const SmallTexts::Piece& piece : view.Small()->Shown()) {
        rects.push_back(view.viewportTransform().mapRect(piece.rect));
    }
    return rects;
}

TEST(FloorView, TheFirstViewShowsTextsThatCanBeReadAndNoneOnAnother)
{
    const struct {
        Project project;
        QSize size;
        std::size_t least;
    } floors[] = {{SampleProject(), {640, 620}, 40},
                  {SampleProject(), {300, 250}, 10},  // what a screen of 1024 x 768 leaves at scale 2
                  {GenerateProject(3000, 1), {640, 620}, 100},
                  {DrawnProject(1.0), {200, 150}, 2},
                  {DrawnProject(0.001), {200, 150}, 2}};
    for (const auto& [project, size, least] : floors) {
        View view(project);
        view.resize(size);
        view.Fit();
        for (const double zoom : {1.0, 0.3}) {
            SCOPED_TRACE(std::to_string(size.width()) + " pixels, zoomed by " + std::to_string(zoom));
            view.ZoomBy(zoom);
            const std::vector<QRectF> rects = SmallTextsIn(view);
            EXPECT_GE(rects.size(), zoom < 1.0 ? 1 : least);
            for (auto rect = rects.begin(); rect != rects.end(); ++rect) {
                EXPECT_GE(std::min(rect->width(), rect->height()), 9.0);
                EXPECT_TRUE(std::none_of(rect + 1, rects.end(), [&](const QRectF& other) {
                    const QRectF both = other & *rect;
                    return both.width() > 0.01 && both.height() > 0.01;
                }));
            }
        }
        // What shows is picked where it shows, and names come first.
        ASSERT_FALSE(view.Small()->Shown().empty());
        const SmallTexts::Piece piece = view.Small()->Shown().front();
        const FieldRef ref = piece.owner->RefOf(piece.owner->Labels()[piece.first]);
        EXPECT_EQ(ref.field, Field::Name);
        view.PanBy(view.viewport()->rect().center() - view.Middle(ref));
        view.Press(view.Middle(ref));
        EXPECT_EQ(view.picked, std::vector{ref});
    }
}

TEST(FloorView, TheChosenTextIsDrawnWhereThereIsNoRoomAndBroughtClose)
{
    Project project = SampleProject();
    View view(project);
    view.ZoomBy(0.2);
    const FieldRef ref{false, 20, Field::BottomBars};
    const auto shows = [&] {
        const QImage picture = view.viewport()->grab().toImage();
        bool found = false;
        for (int by = -6; by <= 6; ++by) {
            const QPointF at = (view.Middle(ref) + QPoint(by, by)) * picture.devicePixelRatio();
            found = found || picture.pixelColor(at.toPoint()) == ColorsFor(false).chosenText;
        }
        return found;
    };
    EXPECT_FALSE(shows());
    view.SetChosen(ref);
    EXPECT_TRUE(shows());
    const auto height = [&] { return std::min(view.OnScreen(ref).height(), view.OnScreen(ref).width()); };
    EXPECT_GE(height(), 9);
    view.BringClose(ref);
    EXPECT_NEAR(height(), 16, 2);
    EXPECT_TRUE(view.viewport()->rect().contains(view.Middle(ref)));
    const double scale = view.transform().m11();
    view.BringClose(ref);
    EXPECT_EQ(view.transform().m11(), scale);
    view.SetLeastTextSize(40.0);
    EXPECT_GE(height(), 40);
    project.beams[20].bottomBars = "2B25+2B22+2B20+2B18";
    view.Refresh(ref);
    EXPECT_FALSE(view.grab().isNull());
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

// The same drawn in mm far from the origin, and in metres.
TEST(FloorView, TextsOfADrawingAreWhereItHasThem)
{
    for (const double unit : {1.0, 0.001}) {
        const Project project = DrawnProject(unit);
        const Backdrop behind = DrawnBackdrop(unit);
        View view(project, &behind);
        view.SetChosen(FieldRef{false, 0, Field::Name});
        view.ZoomBy(8.0);
        const auto at = [&](double x, double y) { return view.InView(Far(x, y, unit)); };
        const struct {
            FieldRef ref;
            QPoint corner;
            bool isUpright;
        } places[] = {
            {{false, 0, Field::Name}, at(1000, 2000), false},
            {{false, 0, Field::Stirrup}, at(1000, 1700), false},
            {{false, 0, Field::BottomBars, 1}, at(4000, -500), false},
            {{false, 1, Field::Name}, at(9000, 1000), true},
        };
        for (const auto& [ref, corner, isUpright] : places) {
            SCOPED_TRACE(TextAt(project, ref) + " at " + std::to_string(unit));
            const QRect box(view.viewport()->mapFromGlobal(view.OnScreen(ref).topLeft()),
                            view.OnScreen(ref).size());
            EXPECT_LE((box.bottomLeft() - (isUpright ? corner - QPoint(box.width(), 0) : corner))
                          .manhattanLength(),
                      5);
            const int height = std::abs((at(0, 300) - at(0, 0)).y());
            EXPECT_NEAR(isUpright ? box.width() : box.height(), height, 3);
            EXPECT_EQ(box.width() < box.height(), isUpright);
            view.picked.clear();
            view.Press(box.center());
            EXPECT_EQ(view.picked, std::vector{ref});
        }
        // Beside a turned text is nothing, though a level rectangle around all texts would hold it.
        view.picked.clear();
        view.Press(at(9400, 2000));
        EXPECT_TRUE(view.picked.empty());
    }
}

TEST(FloorView, TextsThatADrawingLacksFindAPositionAtTheirBeam)
{
    Project project = DrawnProject(1.0);
    View view(project);
    const auto corner = [&](const FieldRef& ref) { return view.OnScreen(ref).bottomLeft(); };
    const FieldRef top{false, 0, Field::TopBars};
    const FieldRef bottom{false, 0, Field::BottomBars};
    const FieldRef side{false, 0, Field::Side};
    const int before = corner(bottom).x();
    project.beams[0].topBars = "2B25+2B22+2B20";
    project.beams[0].side = "G4B12";
    view.Refresh(top);
    EXPECT_GT(corner(bottom).x(), before) << "pushed on in its line";
    EXPECT_GT(corner(side).y(), corner(top).y()) << "below the label's last line";
    EXPECT_EQ(corner(side).x(), corner({false, 0, Field::Name}).x());

    project = SampleProject();
    Beam& beam = project.beams[0];
    beam.spans = {8000, 8000, 8000};
    beam.inPlace = {{Role::TopSupport, 2, "4B25", {}, -1, {}},
                    {Role::Bottom, 3, "4B20", {}, -1, {}},
                    {Role::Stirrup, 3, "A8@100(2)", {}, -1, {}},
                    {Role::TopSupport, 99, "3B25", {}, -1, {}}};
    view.SetProject(&project);
    const FieldRef refs[] = {{false, 0, Field::LeftEnd, 0},
                             {false, 0, Field::BottomBars, 1},
                             {false, 0, Field::Stirrup, 2},
                             {false, 0, Field::LeftEnd, 3}};
    EXPECT_LT(view.OnScreen(refs[0]).center().x(), view.OnScreen(refs[1]).center().x());
    EXPECT_LT(view.OnScreen(refs[0]).bottom(), view.OnScreen(refs[1]).top());
    EXPECT_LT(view.OnScreen(refs[1]).bottom(), view.OnScreen(refs[2]).bottom()) << "the next line";
    EXPECT_LT(view.OnScreen(refs[1]).center().x(), view.OnScreen(refs[3]).center().x());
}

TEST(FloorView, TheBackdropIsQuietAndWhatIsLostFarOffDoesNotShrinkTheFloor)
{
    const Project project = DrawnProject(1.0);
    Backdrop behind = DrawnBackdrop(1.0);
    behind.texts.push_back({"lost", {{0.0, 9e8}, 0.0, 300.0}});
    View view(project, &behind);
    const QPoint left = view.InView(Far(0, 0));
    EXPECT_GT(view.InView(Far(8000, 0)).x() - left.x(), 400);
    for (const bool dark : {false, true}) {
        view.SetDark(dark);
        const QImage picture = view.viewport()->grab().toImage();
        const QPoint on = (QPointF(view.InView(Far(3000, 125))) * picture.devicePixelRatio()).toPoint();
        bool found = false;
        for (int by = -3; by <= 3; ++by) {
            found = found || picture.pixelColor(on + QPoint(0, by)) == ColorsFor(dark).backdrop;
        }
        EXPECT_TRUE(found) << "the outline of the first beam";
    }
}

TEST(FloorView, MarksComeBeforeBeamsAndAskedPositionsBeforeAll)
{
    const Project project = DrawnProject(1.0);
    View view(project);
    view.ZoomBy(2.0);
    view.SetMarks({{{"2B20", {Far(6000, 0), 0.0, 300.0}}}, {{"4B20", {Far(90000, 0), 90.0, 300.0}}}});
    const QPoint on = view.InView(Far(6400, 100));
    view.Press(on);
    EXPECT_EQ(view.mark, 0U);
    view.LightMark(1);
    EXPECT_TRUE(view.viewport()->rect().contains(view.InView(Far(90000, 0)))) << "brought into view";
    std::optional<PlanPoint> pointed;
    view.StartPointing([&](const PlanPoint& at) { pointed = at; });
    view.Press(view.InView(Far(90100, 50)));
    ASSERT_TRUE(pointed);
    EXPECT_NEAR(pointed->x, Far(90100, 0).x, 40);
    EXPECT_NEAR(pointed->y, Far(0, 50).y, 40);
    view.SetMarks({});
    view.EndPointing();
    view.SetChosen(FieldRef{false, 0, Field::Name});
    view.Press(view.Middle({false, 0, Field::Name}));
    EXPECT_EQ(view.picked.size(), 1U);
}

}  // namespace
