// Beams and walls made and changed by a person, by the toolkit's own events.
#include "tests/window/MainWindow.h"

namespace {

using namespace Desk;

class WindowMakingTest : public MainWindowTest {
protected:
    Document& document = window.TheDocument();

    [[nodiscard]] const Project& Now() { return document.Get(); }
    void Press(const PlanPoint& at)
    {
        QWidget& view = *window.Drawing().viewport();
        QTest::mouseClick(&view, Qt::LeftButton, {}, view.mapFromGlobal(window.Drawing().OnScreen(at)));
    }
    void Type(const char* text)
    {
        QTest::keyClick(&window.Drawing(), text[0]);
        auto& line = Find<QLineEdit>("coordinates");
        QTest::keyClicks(&line, text + 1);
        QTest::keyClick(&line, Qt::Key_Return);
    }
    void Leave()
    {
        while (window.Drawing().IsPointing()) {
            QTest::keyClick(&window.Drawing(), Qt::Key_Escape);
        }
    }
    // Does something to the next dialog and takes it.
    template <class Use>
    void Answer(Use use)
    {
        auto* const waiting = new QTimer(&window);
        QObject::connect(waiting, &QTimer::timeout, waiting, [waiting, use] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                waiting->deleteLater();
                waiting->stop();
                use(*dialog);
            }
        });
        waiting->start(1);
    }
    void NewFloor(const char* across, const char* up)
    {
        Answer([=](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("title")->setText("third floor");
            dialog.findChild<QLineEdit*>("across")->setText("x");
            auto& ok = *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            EXPECT_FALSE(ok.isEnabled());
            dialog.findChild<QLineEdit*>("across")->setText(across);
            dialog.findChild<QLineEdit*>("up")->setText(up);
            ok.click();
        });
        Trigger("new");
    }
    void EditRow(const char* caption, const char* text)
    {
        auto& grid = Find<QTreeWidget>("properties");
        const auto rows = grid.findItems(caption, Qt::MatchExactly);
        ASSERT_EQ(rows.size(), 1) << caption;
        rows.front()->setText(1, text);
        QCoreApplication::processEvents();
    }
};

TEST_F(WindowMakingTest, AnEmptyFloorBecomesTenBeamsWithAllTexts)
{
    const QTemporaryDir folder;
    NewFloor("2x8000", "6000 6000");
    ASSERT_TRUE(Now().beams.empty());
    EXPECT_EQ(Now().axesAcross.size(), 3U);
    EXPECT_TRUE(window.windowTitle().startsWith("third floor"));
    EXPECT_FALSE(document.IsChanged());
    Trigger("beam");
    for (const double y : {0.0, 6000.0, 12000.0}) {  // near the crossings
        for (const double x : {0.0, 8000.0}) {
            Press(PlanPoint{x + 60, y - 50});
            Press(PlanPoint{x + 7940, y + 50});
        }
    }
    Type("0,0");
    Type("@6000<90");
    Type("@0,0");  // from the last one
    Type("6000");  // in the direction of the pointer there is none
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("no position"));
    Find<QLineEdit>("coordinates").clear();
    Type("0,12000");
    Type("8000, 0");
    Type("8000,6000");
    Type("16000,0");
    Type("16000,12000");
    ASSERT_EQ(Now().beams.size(), 10U);
    EXPECT_EQ(Now().beams[1].start.x, 8000);
    EXPECT_EQ(Now().beams[1].end.x, 16000);
    EXPECT_EQ(Now().beams[6].end.y, 6000);
    Leave();
    EXPECT_FALSE(window.Drawing().IsPointing());
    std::set<std::string> names;
    const std::pair<Field, const char*> texts[] = {
        {Field::Section, "300x600"}, {Field::Stirrup, "A8@100/200(2)"}, {Field::TopBars, "2B25"},
        {Field::BottomBars, "4B25"}, {Field::LeftEnd, "4B25"},          {Field::RightEnd, "4B25"},
        {Field::Side, "G4B12"},      {Field::Elevation, "-0.050"}};
    for (std::size_t i = 0; i < 10; ++i) {
        names.insert(Now().beams[i].name);
        for (const auto& [field, text] : texts) {
            window.Choose(FieldRef{false, i, field});
            auto& typed = Find<QLineEdit>("typed");
            QTest::keyClick(&window.Drawing(), text[0]);
            QTest::keyClicks(&typed, text + 1);
            QTest::keyClick(&typed, Qt::Key_Return, Qt::ControlModifier);
        }
    }
    EXPECT_EQ(names.size(), 10U) << "each has a name of its own";
    EXPECT_FALSE(names.contains(""));
    EXPECT_EQ(names.begin()->substr(0, 2), "KL");
    document.SaveAs(folder.filePath("floor.json"));
    const Project saved = Now();
    while (document.Changes().canUndo()) {
        document.Changes().undo();
    }
    EXPECT_TRUE(Now().beams.empty());
    while (document.Changes().canRedo()) {
        document.Changes().redo();
    }
    EXPECT_EQ(FormatProject(Now()), FormatProject(saved));
    window.Files().Open(folder.filePath("floor.json"));
    ASSERT_EQ(Now().beams.size(), 10U);
    EXPECT_EQ(FormatProject(Now()), FormatProject(saved));
    EXPECT_EQ(Now().beams[9].side, "G4B12");
    EXPECT_EQ(Now().axesUp.at(2).label, "C");
}

TEST_F(WindowMakingTest, BeamsAreMovedCopiedTurnedAndDeleted)
{
    NewFloor("2x8000", "6000");
    Trigger("move");
    EXPECT_EQ(window.statusBar()->currentMessage(), "Choose a beam or a wall first");
    Trigger("wall");
    Type("0,0");
    Type("0,3000");
    Trigger("beam");
    Type("0,0");
    Type("@8000,0");
    Leave();
    ASSERT_EQ(Now().walls.size(), 1U);
    EXPECT_EQ(Now().walls[0].name, "Q1");
    document.SetText({false, 0, Field::LeftEnd}, "5B25");
    const std::string first = Now().beams[0].name;
    Trigger("copy");
    Type("0,0");
    Type("0,6000");
    Type("@8000,6000");
    Leave();
    ASSERT_EQ(Now().beams.size(), 3U);
    EXPECT_EQ(Now().beams[2].start.x, 8000);
    EXPECT_EQ(Now().beams[2].leftEnd, "5B25");
    EXPECT_EQ((std::set<std::string>{first, Now().beams[1].name, Now().beams[2].name}).size(), 3U);
    EXPECT_EQ(window.Chosen()->index, 0U);
    Trigger("move");
    Press(PlanPoint{8000, 0});
    Press(PlanPoint{16050, 40});
    EXPECT_FALSE(window.Drawing().IsPointing());
    EXPECT_EQ(Now().beams[0].start.x, 8000);
    EXPECT_EQ(Now().beams[0].end.x, 16000);
    Trigger("turnRound");
    EXPECT_EQ(Now().beams[0].start.x, 16000);
    EXPECT_EQ(Now().beams[0].rightEnd, "5B25");
    Trigger("delete");
    EXPECT_FALSE(window.Chosen());
    ASSERT_EQ(Now().beams.size(), 2U);
    window.Choose(FieldRef{true, 0, Field::Name});
    Trigger("delete");
    EXPECT_TRUE(Now().walls.empty());
    Trigger("undo");
    EXPECT_EQ(window.Chosen(), (FieldRef{true, 0, Field::Name}));
    Trigger("undo");
    EXPECT_EQ(Now().beams[0].name, first);
    EXPECT_EQ(window.Chosen(), (FieldRef{false, 0, Field::Name}));
    EXPECT_EQ(Find<QLabel>("counts").text(), "3 beams, 1 walls");
    // An end by its handle.
    window.Drawing().Fit();
    QWidget& view = *window.Drawing().viewport();
    const auto at = [&](const PlanPoint& point) {
        return view.mapFromGlobal(window.Drawing().OnScreen(point));
    };
    QTest::mousePress(&view, Qt::LeftButton, {}, at({16000, 0}));
    QTest::mouseMove(&view, at({16040, 5950}));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, at({16040, 5950}));
    EXPECT_EQ(Now().beams[0].start.y, 6000);
    Trigger("undo");
    EXPECT_EQ(Now().beams[0].start.y, 0);
    // Its texts.
    const QPoint name = view.mapFromGlobal(window.Drawing().OnScreen({false, 0, Field::Name}).center());
    QTest::mousePress(&view, Qt::LeftButton, {}, name);
    QTest::mouseMove(&view, name + QPoint(40, 30));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, name + QPoint(40, 30));
    EXPECT_NE(Now().beams[0].textsAt.x, 0);
    EXPECT_EQ(window.statusBar()->currentMessage(), "Text of " + QString::fromStdString(first) + " moved");
    Trigger("undo");
    EXPECT_EQ(Now().beams[0].textsAt.x, 0);
}

TEST_F(WindowMakingTest, DataAndTextsInPlaceAreEditedToo)
{
    NewFloor("8000", "");
    Trigger("beam");
    Type("0,0");
    Type("8000,0");
    Leave();
    EditRow("Floor", "5");
    EditRow("Concrete", "C45");
    EditRow("Required bottom, mm²", "1234");
    EditRow("Spans, mm", "3000 5000");
    EditRow("End x, y, mm", "9000, 0");
    const Beam beam = Now().beams[0];
    EXPECT_EQ(beam.floor + std::to_string(beam.concreteGrade), "545");
    EXPECT_EQ(beam.area.bottom, 1234);
    EXPECT_EQ(beam.spans, (std::vector<double>{3000, 6000}));
    QStringList told;
    Answer([&told](QDialog& box) {
        told << dynamic_cast<QMessageBox&>(box).informativeText();
        box.reject();
    });
    EditRow("Seismic class", "9");
    EXPECT_EQ(told, QStringList{"A whole number from 1 to 4 is needed here, not \"9\"."});
    EXPECT_EQ(Now().beams[0].seismicClass, 3);
    EXPECT_EQ(Find<QTreeWidget>("properties").findItems("Seismic class", Qt::MatchExactly)[0]->text(1),
              "3");

    Answer([](QDialog& dialog) {
        dialog.findChild<QComboBox*>("role")->setCurrentIndex(2);
        dialog.findChild<QSpinBox*>("number")->setValue(9);
        dialog.accept();
    });
    Trigger("inPlace");
    const FieldRef bottom{false, 0, Field::BottomBars, 0};
    ASSERT_EQ(window.Chosen(), bottom);
    EXPECT_EQ(Now().beams[0].inPlace[0].number, 2) << "there are two spans";
    document.SetText(bottom, "7B20");
    Trigger("clear");
    EXPECT_TRUE(Now().beams[0].inPlace.empty());
    Trigger("undo");
    EXPECT_EQ(Text(bottom), "7B20");
    document.SetText(Bars, "2B20");
    Trigger("clear");
    EXPECT_EQ(Text(Bars), "");
    for (int i = 0; i < 50; ++i) {
        document.Changes().undo();
    }
    EXPECT_TRUE(Now().beams.empty());
}

TEST_F(WindowMakingTest, ProjectsComeFromTextsAndDrawingsAndGoToPlans)
{
    const QTemporaryDir folder;
    const QString drawing = folder.filePath("floor.dxf");
    const QString project = folder.filePath("floor.json");
    ASSERT_TRUE(window.Exchanges().Export(drawing, 100.0));
    for (const char* const plan : {"a.pdf", "a.svg"}) {
        ASSERT_TRUE(window.Exchanges().Export(folder.filePath(plan), 200.0));
        EXPECT_GT(QFileInfo(folder.filePath(plan)).size(), 1000);
    }
    const std::size_t beams = Now().beams.size();
    ASSERT_TRUE(window.Exchanges().Import(drawing, {}));
    EXPECT_EQ(Now().beams.size(), beams);
    EXPECT_EQ(document.From(), nullptr);
    EXPECT_TRUE(document.IsChanged() && document.File().isEmpty());
    document.SaveAs(project);
    document.Open(project);
    EXPECT_EQ(Now().beams.size(), beams);

    QFile texts(folder.filePath("texts.txt"));
    ASSERT_TRUE(texts.open(QIODevice::WriteOnly));
    texts.write("KL1(2) 300x600\nA8@100/200\n4%%13225\nlift shaft \xB5\xE7\xCC\xDD\n");  // in GBK
    texts.close();
    Choices choices;
    choices.legs = 4;
    QString told;
    Answer([&told](QDialog& box) {
        told = dynamic_cast<QMessageBox&>(box).informativeText();
        box.accept();
    });
    ASSERT_TRUE(window.Exchanges().Import(texts.fileName(), choices));
    EXPECT_EQ(told, QString::fromUtf8("4: lift shaft 电梯"));
    ASSERT_EQ(Now().beams.size(), 3U);
    EXPECT_EQ(Now().beams[0].section, "300x600");
    EXPECT_EQ(Now().beams[1].stirrup, "A8@100/200(4)");
    document.SaveAs(project);
    Answer([&told](QDialog& box) {
        told = dynamic_cast<QMessageBox&>(box).text();
        box.accept();
    });
    EXPECT_FALSE(window.Exchanges().Export(project, 100.0));
    EXPECT_EQ(told, "Nothing was exported");
    EXPECT_EQ(ReadProject(project.toStdString()).beams.size(), 3U);
}

TEST_F(WindowMakingTest, OfADrawingLabelsComeAndGoAndOutlinesStay)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("floor.dxf");
    document.SaveAs(file);
    ASSERT_NE(document.From(), nullptr);
    const std::size_t beams = Now().beams.size();
    const std::size_t walls = Now().walls.size();
    const Beam before = Now().beams[0];
    const FieldRef name{false, 0, Field::Name};
    window.Choose(name);
    for (const char* const tool : {"move", "copy"}) {
        Trigger(tool);
        EXPECT_TRUE(window.statusBar()->currentMessage().contains("outlines")) << tool;
    }
    Trigger("clear");
    EXPECT_EQ(Text(name), before.name) << "a label needs it";
    Trigger("delete");
    EXPECT_EQ(Text(name), "");
    EXPECT_EQ(Now().beams.size(), beams);
    Trigger("wall");
    Type("0,0");
    Type("@0,3000");
    Leave();
    document.SaveAs(file);
    document.Open(file);
    ASSERT_EQ(Now().beams.size(), beams - 1);
    EXPECT_EQ(Now().walls.size(), walls + 1);
    EXPECT_NE(Now().beams[0].name, before.name);
    EXPECT_TRUE(document.OpenTexts().empty()) << "its texts in place went too";

    // A new label for the outline that is left.
    const PlanPoint on{before.start.x * 0.6 + before.end.x * 0.4,
                       before.start.y * 0.6 + before.end.y * 0.4};
    const auto middle = [](const Beam& beam) {
        return PlanPoint{(beam.start.x + beam.end.x) / 2, (beam.start.y + beam.end.y) / 2};
    };
    Trigger("beam");
    Press(middle(Now().beams[1]));
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("no outline")) << "it has a label";
    Press(on);
    Leave();
    ASSERT_EQ(Now().beams.size(), beams);
    const FieldRef added{false, beams - 1, Field::Section};
    EXPECT_EQ(window.Chosen(), added);
    const std::string newName = Now().beams.back().name;
    const std::pair<Field, const char*> texts[] = {{Field::Section, "350x800"},
                                                   {Field::Stirrup, "A10@100/200(4)"},
                                                   {Field::TopBars, "2B25"},
                                                   {Field::BottomBars, "6B22 2/4"},
                                                   {Field::LeftEnd, "5B25"}};
    for (const auto& [field, text] : texts) {
        document.SetText({false, beams - 1, field}, text);
    }
    const auto lost = OntoDrawing(*document.From(), ParseProject(FormatProject(Now()), "copy"));
    ASSERT_TRUE(lost);
    EXPECT_EQ(lost->beams.back().stirrup, "A10@100/200(4)");
    EXPECT_EQ(lost->beams.back().places.size(), Now().beams.back().places.size());
    document.SaveAs(file);
    document.Open(file);
    ASSERT_EQ(Now().beams.size(), beams);
    EXPECT_TRUE(document.OpenTexts().empty());
    const auto found = std::find_if(Now().beams.begin(), Now().beams.end(),
                                    [&](const Beam& beam) { return beam.name == newName; });
    ASSERT_NE(found, Now().beams.end());
    EXPECT_EQ(found->section + found->stirrup + found->topBars + found->bottomBars,
              "350x800A10@100/200(4)2B256B22 2/4");
    ASSERT_EQ(found->inPlace.size(), 1U);
    EXPECT_EQ(found->inPlace[0].text + std::to_string(found->inPlace[0].number), "5B251");
    EXPECT_NEAR(found->start.x, before.start.x, 500);
    EXPECT_NEAR(found->end.x, before.end.x, 500);
}

}  // namespace
