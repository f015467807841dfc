// Several annotations at once, and texts that go from one to others.
#include "tests/window/MainWindow.h"

#include <set>

#include "desk/window/ReplaceDialog.h"
#include "tests/support/Made.h"

namespace {

using namespace Desk;

class GroupTest : public MainWindowTest {
protected:
    static constexpr std::size_t Beam = 22;  // that many others are like
    Document& document = window.TheDocument();

    static FieldRef Of(Field field, std::size_t beam = Beam) { return {false, beam, field}; }
    [[nodiscard]] std::set<std::string> TextsOf(Field field, const std::set<FieldRef>& owners)
    {
        std::set<std::string> texts;
        for (const FieldRef& owner : owners) {
            texts.insert(Text(Of(field, owner.index)));
        }
        return texts;
    }
    void Click(const QPoint& onScreen, Qt::KeyboardModifiers keys = {})
    {
        QWidget& view = *window.Drawing().viewport();
        QTest::mouseClick(&view, Qt::LeftButton, keys, view.mapFromGlobal(onScreen));
    }
    // Shows the beam itself.
    QPoint Middle(std::size_t beam)
    {
        const Desk::Beam& each = document.Get().beams[beam];
        return window.Drawing().OnScreen(
            PlanPoint{(each.start.x + each.end.x) / 2.0, (each.start.y + each.end.y) / 2.0});
    }
    void Drag(const QPoint& from, const QPoint& to)
    {
        QWidget& view = *window.Drawing().viewport();
        QTest::mousePress(&view, Qt::LeftButton, Qt::ShiftModifier, from);
        QTest::mouseMove(&view, to);
        QMouseEvent move(QEvent::MouseMove, to, view.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::ShiftModifier);
        QApplication::sendEvent(&view, &move);
        QTest::mouseRelease(&view, Qt::LeftButton, Qt::ShiftModifier, to);
    }
    int Steps() { return document.Changes().index(); }
};

TEST_F(GroupTest, OneTextForTenBeamsInElevenClicks)
{
    const Project before = document.Get();
    window.Choose(Of(Field::Stirrup));
    int clicks = 1;  // that one
    const std::size_t first = Beam;
    for (std::size_t beam = 0; beam < before.beams.size() && window.AllChosen().size() < 10; ++beam) {
        const std::size_t already = window.AllChosen().size();
        if (beam != first) {
            Click(Middle(beam), Qt::ControlModifier);
            clicks += window.AllChosen().size() == already + 1 ? 1 : 0;
            while (window.AllChosen().size() < already) {
                Click(Middle(beam), Qt::ControlModifier);  // another beam lies over it
            }
        }
    }
    const std::set<FieldRef> all = window.AllChosen();
    ASSERT_EQ(all.size(), 10U);
    EXPECT_EQ(Told(), "10 annotations chosen");
    EXPECT_EQ(window.Chosen(), Of(Field::Stirrup));
    ASSERT_GT(TextsOf(Field::Stirrup, all).size(), 1U) << "the test needs different texts";
    const QString text = Offer().filter("(").last();
    const int steps = Steps();
    ClickOffer(text);
    ++clicks;
    EXPECT_LE(clicks, 12);
    EXPECT_EQ(Steps(), steps + 1);
    EXPECT_EQ(TextsOf(Field::Stirrup, all), std::set<std::string>{text.toStdString()});
    EXPECT_EQ(window.AllChosen(), all) << "for the next try";
    Trigger("undo");
    for (std::size_t beam = 0; beam < before.beams.size(); ++beam) {
        ASSERT_EQ(document.Get().beams[beam].stirrup, before.beams[beam].stirrup);
    }
}

TEST_F(GroupTest, AllLikeABeamGetTheirTextsFieldByField)
{
    window.Choose(Of(Field::Stirrup));
    Trigger("allLike");
    const std::set<FieldRef> all = window.AllChosen();
    ASSERT_GT(all.size(), 2U);
    EXPECT_EQ(TextsOf(Field::Section, all).size(), 1U);
    const auto empty = [&](Field field) {
        std::vector<std::pair<FieldRef, QString>> texts;
        for (const FieldRef& each : all) {
            texts.emplace_back(Of(field, each.index), QString());
        }
        document.SetTexts(texts);
    };
    for (const Field field : {Field::BottomBars, Field::TopBars, Field::Stirrup}) {
        empty(field);
    }
    window.Choose(Of(Field::Stirrup));
    ASSERT_EQ(window.AllChosen(), all);
    for (const Field field : {Field::Stirrup, Field::TopBars, Field::BottomBars}) {
        ASSERT_EQ(window.Chosen(), Of(field));
        const std::string first = Offer("proposals").front().toStdString();
        QTest::keyClick(&window.Drawing(), '1');
        EXPECT_EQ(TextsOf(field, all), std::set{first});
    }
    EXPECT_EQ(window.AllChosen().size(), all.size()) << "never left for another beam";
    Trigger("undo");
    EXPECT_EQ(TextsOf(Field::BottomBars, all), std::set<std::string>{""});
    EXPECT_EQ(window.AllChosen().size(), all.size());
    Trigger("redo");

    Trigger("allSame");
    EXPECT_GE(window.AllChosen().size(), all.size());
    const std::string same = Text(Of(Field::BottomBars));
    EXPECT_EQ(TextsOf(Field::BottomBars, window.AllChosen()), std::set{same});
    const std::set<FieldRef> gone = window.AllChosen();
    Trigger("clear");
    EXPECT_EQ(TextsOf(Field::BottomBars, gone), std::set<std::string>{""});
    window.Choose(Of(Field::BottomBars, Beam + 1));
    EXPECT_EQ(window.AllChosen().size(), 1U) << "another beam begins anew";
    QTest::keyClick(&window.Drawing(), Qt::Key_Escape);
    EXPECT_TRUE(window.AllChosen().empty());
}

TEST_F(GroupTest, AFrameChoosesBeamsThatAreChangedAsAWhole)
{
    const QRect view = window.Drawing().viewport()->rect();
    const std::size_t count = document.Get().beams.size();
    Drag(view.topLeft() + QPoint(1, 1), view.bottomRight());  // 0, 0 would be the middle
    EXPECT_EQ(window.AllChosen().size(), count) << "walls take no part with beams";
    Click(Middle(*window.AllChosen().begin() == Of(Field::Name, 0) ? 1 : 0), Qt::ControlModifier);
    EXPECT_EQ(window.AllChosen().size(), count - 1);
    QTest::keyClick(&window.Drawing(), Qt::Key_Escape);

    const QPoint middle = window.Drawing().viewport()->mapFromGlobal(Middle(Beam));
    Drag(middle - QPoint(3, 10), middle + QPoint(3, 10));
    EXPECT_TRUE(window.AllChosen().empty()) << "to the right: what is in the frame";
    Drag(middle + QPoint(3, 10), middle - QPoint(3, 10));
    EXPECT_TRUE(window.AllChosen().contains(Of(Field::Name))) << "to the left: what it touches";
    window.Choose(Of(Field::Name));
    Trigger("allLike");
    const std::size_t alike = window.AllChosen().size();
    const int steps = Steps();
    Trigger("delete");
    EXPECT_EQ(document.Get().beams.size(), count - alike);
    EXPECT_EQ(Steps(), steps + 1);
    EXPECT_LE(window.AllChosen().size(), 1U);
    Trigger("undo");
    EXPECT_EQ(document.Get().beams.size(), count);
}

TEST_F(GroupTest, TextsGoFromOneToOthers)
{
    const FieldRef from = Of(Field::LeftEnd);
    document.SetText(from, "5B25");
    window.Choose(from);
    Trigger("copyText");
    EXPECT_EQ(QApplication::clipboard()->text(), "5B25");
    struct Case {
        FieldRef to;
        Field gets;
    };
    for (const auto& [to, gets] :
         {Case{Of(Field::RightEnd, 3), Field::RightEnd}, Case{Of(Field::Name, 4), Field::LeftEnd},
          Case{Of(Field::Stirrup, 5), Field::LeftEnd}}) {
        for (const char* const way : {"paste", "repeat"}) {
            document.SetText(Of(gets, to.index), "2B16");
            window.Choose(to);
            Trigger(way);
            EXPECT_EQ(Text(Of(gets, to.index)), "5B25") << way << to.index;
            EXPECT_NE(Text(to), gets == to.field ? "" : "5B25");
        }
    }
    QApplication::clipboard()->setText("A8@150(2)\n");
    window.Choose(Of(Field::Stirrup, 6));
    Trigger("allLike");
    const std::set<FieldRef> all = window.AllChosen();
    Trigger("paste");
    EXPECT_EQ(TextsOf(Field::Stirrup, all), std::set<std::string>{"A8@150(2)"});
    QApplication::clipboard()->setText("A8@100(2)\n2B25");
    const int steps = Steps();
    Trigger("paste");
    window.Choose(FieldRef{true, 0, Field::HorizontalBars});
    Trigger("repeat");
    EXPECT_EQ(Steps(), steps) << "neither several lines nor a beam's text for a wall";

    window.Choose(Of(Field::Stirrup));
    Trigger("copyTexts");
    const std::string name = Text(Of(Field::Name, 7));
    window.Choose(Of(Field::Section, 7));
    Trigger("paste");
    EXPECT_EQ(Steps(), steps + 1);
    for (const Field field : BeamFields()) {
        EXPECT_EQ(Text(Of(field, 7)), field == Field::Name ? name : Text(Of(field)));
    }
    QTest::keyClick(&window.Drawing(), Qt::Key_Period);
    EXPECT_EQ(Steps(), steps + 1) << "the same texts are no change";
}

TEST_F(GroupTest, MatchedTextsGoToWhatIsClickedUntilEsc)
{
    for (const FieldRef& from : {Of(Field::Stirrup), Of(Field::Name)}) {
        const bool isWhole = from.field == Field::Name;
        const std::size_t to = isWhole ? 9 : 8;
        document.SetTexts({{Of(Field::Stirrup), "A12@100(4)"}, {Of(Field::Side), "G6B14"}});
        window.Choose(from);
        Trigger("match");
        const std::string side = Text(Of(Field::Side, to));
        Click(Middle(to));
        const std::size_t got = window.Chosen()->index;  // which may lie over that one
        EXPECT_EQ(Text(Of(Field::Stirrup, got)), "A12@100(4)");
        EXPECT_EQ(Text(Of(Field::Side, got)) == "G6B14", isWhole);
        QTest::keyClick(&window.Drawing(), Qt::Key_Escape);
        document.SetText(Of(Field::Stirrup, got), "A8@200(2)");
        Click(Middle(to));
        EXPECT_EQ(Text(Of(Field::Stirrup, got)), "A8@200(2)");
    }
}

TEST(HitsTest, ReplacesWhatIsAskedForAndWholeNumbers)
{
    Project project;
    project.beams = {MadeBeam("KL1(2)", {}, {6000, 0}), MadeBeam("L1(1)", {}, {6000, 0}),
                     MadeBeam("LL1(1)", {}, {6000, 0})};
    for (Desk::Beam& beam : project.beams) {
        beam.stirrup = "A8@200(2)";
        beam.topBars = "2B25+12B25";
    }
    project.beams[1].inPlace.push_back({Role::Stirrup, 1, "A8@200(2)", {}, -1, {}});
    project.walls = {MadeWall("Q1", {}, {0, 6000})};
    project.walls[0].horizontalBars = "A8@200";
    const struct {
        Sought sought;
        std::size_t hits;
        const char* after;  // of the first one
    } cases[] = {
        {{"A8@200(2)", "A8@150(2)", Field::Stirrup, "L"}, 2, "A8@150(2)"},
        {{"A8@200", "A8@150", std::nullopt, ""}, 5, "A8@150(2)"},
        {{"@200", "@150", Field::HorizontalBars, ""}, 1, "A8@150"},
        {{"2B25", "3B25", Field::TopBars, "KL"}, 1, "3B25+12B25"},
        {{"A8@20", "A8@15", std::nullopt, ""}, 0, ""},
        {{"KL1(2)", "", std::nullopt, ""}, 0, ""},
        {{"(2)", "", Field::Stirrup, "LL"}, 1, "A8@200"},
        {{"", "A8", std::nullopt, ""}, 0, ""},
    };
    for (const auto& [sought, count, after] : cases) {
        const std::vector<Hit> hits = HitsOf(project, sought);
        EXPECT_EQ(hits.size(), count) << sought.what.toStdString();
        if (count > 0 && !hits.empty()) {
            EXPECT_EQ(hits[0].after, after);
        }
    }
}

TEST_F(GroupTest, ReplacesTheHitsThatStayTicked)
{
    const std::string text = Text(Of(Field::Stirrup));
    window.Choose(Of(Field::Stirrup));
    Trigger("allSame");
    const std::set<FieldRef> all = window.AllChosen();
    ASSERT_GT(all.size(), 1U);
    QTimer::singleShot(0, &window, [] {
        auto& dialog = *QApplication::activeModalWidget();
        dialog.findChild<QLineEdit*>("by")->setText("A10@100(2)");
        auto& hits = *dialog.findChild<QTreeWidget*>("hits");
        hits.topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    const int steps = Steps();
    Trigger("replace");
    EXPECT_EQ(Steps(), steps + 1);
    EXPECT_EQ(Text(*all.begin()), text) << "was not ticked";
    EXPECT_EQ(TextsOf(Field::Stirrup, all), (std::set<std::string>{text, "A10@100(2)"}));
    EXPECT_EQ(Told(), QString("%1 texts replaced").arg(all.size() - 1));
}

}  // namespace
