// The desk as a person uses it, by the toolkit's own events.
#include "tests/window/MainWindow.h"

#include "desk/window/FieldNames.h"
#include "desk/window/ScreenReport.h"
#include "platform/windows/Hands.h"

namespace {

using namespace Desk;

TEST_F(MainWindowTest, AClickOnACandidateTakesItAndUndoTakesItBack)
{
    Press(Bars);
    ASSERT_EQ(Offer().first(), "[In the project]");
    EXPECT_TRUE(Offer().contains("[Guesses]"));
    ClickOffer("2B25");
    EXPECT_EQ(Text(Bars), "2B25");
    EXPECT_TRUE(window.isWindowModified());
    window.Choose(FieldRef{false, 0, Field::Section});
    Trigger("undo");
    EXPECT_EQ(window.Chosen(), Bars) << "undo goes where it changes something";
    EXPECT_EQ(Text(Bars), "2B20");
    EXPECT_FALSE(window.isWindowModified());
    Trigger("redo");
    EXPECT_EQ(Text(Bars), "2B25");
}

TEST_F(MainWindowTest, TypingNarrowsAndEnterTakes)
{
    Press(Bars);
    auto& typed = Find<QLineEdit>("typed");
    QTest::keyClick(&window.Drawing(), Qt::Key_Return);  // begins in the drawing
    QTest::keyClicks(&typed, "2b2");
    EXPECT_EQ(typed.text(), "2b2");
    for (const QString& text : Offer()) {
        EXPECT_TRUE(text.startsWith('[') || text.startsWith("2B2")) << text.toStdString();
    }
    QTest::keyClick(&typed, Qt::Key_Down);
    QTest::keyClick(&typed, Qt::Key_Return);
    EXPECT_NE(Text(Bars), "2B20");
    EXPECT_EQ(Text(Bars).substr(0, 3), "2B2");
    QTest::keyClick(&window.Drawing(), '7');  // no proposal has that key
    QTest::keyClicks(&typed, "B28");
    QTest::keyClick(&typed, Qt::Key_Return);
    EXPECT_EQ(Text(Bars), "7B28") << "what no row holds is taken as typed";
    Trigger("type");
    QTest::keyClicks(&typed, "2B10");
    QTest::keyClick(&typed, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Text(Bars), "2B10");
    // An empty line leaves undo and the steps from beam to beam to the window.
    const auto claims = [&](Qt::Key key) {
        QKeyEvent override(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        override.ignore();
        QCoreApplication::sendEvent(&typed, &override);
        return override.isAccepted();
    };
    EXPECT_FALSE(claims(Qt::Key_Z) || claims(Qt::Key_Left) || typed.isUndoAvailable());
    QTest::keyClicks(&typed, "9");
    EXPECT_TRUE(claims(Qt::Key_Z));
    QTest::keyClick(&typed, Qt::Key_Escape);
    EXPECT_TRUE(typed.text().isEmpty());
    EXPECT_EQ(Text(Bars), "2B10");
}

TEST_F(MainWindowTest, ATextTypedInFullIsTakenBeforeOneThatBeginsWithIt)
{
    const FieldRef section{false, 0, Field::Section};
    window.Choose(section);
    ASSERT_TRUE(Offer().contains("300x500") && Offer().contains("300x500/350"));
    auto& typed = Find<QLineEdit>("typed");
    Trigger("type");
    QTest::keyClicks(&typed, "300x500");
    QTest::keyClick(&typed, Qt::Key_Return);
    EXPECT_EQ(Text(section), "300x500");
}

TEST_F(MainWindowTest, FreeNamesAreToldApartAndEnterAloneRenamesNothing)
{
    const FieldRef name{false, 0, Field::Name};
    window.Choose(name);
    EXPECT_EQ(Offer().first(), "[Free names of the project's kinds]");
    auto& typed = Find<QLineEdit>("typed");
    QTest::keyClick(&typed, Qt::Key_Return);
    EXPECT_EQ(Text(name), "KL1(7)");
    const std::string first = Offer().at(1).toStdString();
    QTest::keyClick(&typed, Qt::Key_Down);
    QTest::keyClick(&typed, Qt::Key_Return);
    EXPECT_EQ(Text(name), first);
}

TEST_F(MainWindowTest, TableRowsComeOnRequest)
{
    Press({false, 0, Field::BottomBars});
    EXPECT_FALSE(Offer().contains("[From the table]"));
    const qsizetype without = Offer().size();
    QTest::mouseClick(&Find<QCheckBox>("table"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(Find<QCheckBox>("table").isChecked());
    EXPECT_GE(Offer().size(), without);
    window.Choose(FieldRef{false, 0, Field::Side});
    EXPECT_TRUE(Offer().contains("G4B12"));
    window.Choose(FieldRef{false, 0, Field::Torsion});
    EXPECT_TRUE(Offer().contains("N4B14"));
}

TEST_F(MainWindowTest, PropertiesAreEditedInPlace)
{
    Press({false, 2, Field::Section});
    Trigger("edit");
    auto* const editor = Find<QTreeWidget>("properties").findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->setText("350x750");
    QTest::keyClick(editor, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Text({false, 2, Field::Section}) == "350x750"; }, 2000));
    EXPECT_EQ(Text({false, 2, Field::Section}), "350x750");
}

// Whatever comes next takes the text that stands in the editor: saving, leaving, the panel.
TEST_F(MainWindowTest, WhatStandsInAnEditorCounts)
{
    const FieldRef section{false, 2, Field::Section};
    const auto type = [&](const char* text) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // of the editor before
        window.Choose(section);
        Trigger("edit");
        auto* const editor = Find<QTreeWidget>("properties").findChild<QLineEdit*>();
        ASSERT_NE(editor, nullptr);
        editor->setText(text);
    };
    const QTemporaryDir folder;
    window.TheDocument().SaveAs(folder.filePath("floor.json"));
    type("351x751");
    Trigger("save");
    EXPECT_EQ(Text(section), "351x751");
    EXPECT_FALSE(window.TheDocument().IsChanged());
    type("352x752");
    window.OpenPanel();
    CString width;
    constexpr int WidthBox = 1320;
    CWnd::FromHandle(window.Panels().Window())->GetDlgItem(WidthBox)->GetWindowText(width);
    EXPECT_EQ(width, "352");
    window.Panels().Close();
    Trigger("save");
    type("353x753");
    QStringList asked;
    QTimer::singleShot(0, [&asked] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        asked << (box != nullptr ? box->text() : QString());
        QTest::keyClick(box, Qt::Key_Escape);
    });
    EXPECT_FALSE(window.close());
    EXPECT_EQ(asked.size(), 1);
    EXPECT_EQ(Text(section), "353x753");
}

TEST_F(MainWindowTest, ACompletedNameIsSearchedForOnce)
{
    auto& search = Find<QLineEdit>("search");
    search.setText("2B");
    emit search.completer()->activated(QStringLiteral("2B"));
    emit search.returnPressed();
    QCoreApplication::processEvents();
    const FieldRef first = *window.Chosen();
    Trigger("findPrevious");
    Trigger("findNext");
    EXPECT_EQ(window.Chosen(), first);
    EXPECT_EQ(first.index, 0U) << "the first beam holds it";
    EXPECT_EQ(first.field, Field::TopBars);
}

TEST_F(MainWindowTest, TheSearchTellsHowManyThereAreAndGoesBackToTheDrawing)
{
    auto& search = Find<QLineEdit>("search");
    window.Drawing().ZoomBy(0.2);
    search.setFocus();
    search.setText("wkl");
    emit search.returnPressed();
    QCoreApplication::processEvents();
    const QString said = window.statusBar()->currentMessage();
    EXPECT_TRUE(said.startsWith("1 of ")) << said.toStdString();
    const QSize shown = window.Drawing().OnScreen(*window.Chosen()).size();
    EXPECT_NEAR(std::min(shown.width(), shown.height()), 16, 2);
    EXPECT_EQ(window.focusWidget(), &window.Drawing());
    Trigger("findPrevious");
    EXPECT_EQ(window.statusBar()->currentMessage(), said.mid(5) + " of " + said.mid(5)) << "the last one";
    window.Choose(Bars);
    Trigger("findAlike");
    EXPECT_EQ(Text(*window.Chosen()), Text(Bars));
    EXPECT_TRUE(window.statusBar()->currentMessage().startsWith("2 of "));
    const QString tip = OwnerTip(window.TheDocument().Get(), {false, 0, Field::TopBars});
    EXPECT_TRUE(tip.contains("<b>Top through bars: ")) << tip.toStdString();
    EXPECT_TRUE(tip.contains(" mm²)"));
    bool isOffered = false;
    QTimer::singleShot(0, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        isOffered = menu != nullptr && menu->actions().contains(&Find<QAction>("findAlike"));
        if (menu != nullptr) {
            menu->close();
        }
    });
    emit window.Drawing().MenuAsked(QPoint(100, 100));
    QCoreApplication::processEvents();
    EXPECT_TRUE(isOffered);
}

TEST_F(MainWindowTest, KeysGoFromAnnotationToAnnotationAndTheSearchFinds)
{
    window.Choose(Bars);
    Trigger("nextField");
    EXPECT_EQ(window.Chosen(), (FieldRef{false, 0, Field::BottomBars}));
    Trigger("nextOwner");
    EXPECT_EQ(window.Chosen(), (FieldRef{false, 1, Field::BottomBars}));
    Trigger("previousOwner");
    Trigger("previousOwner");
    EXPECT_TRUE(window.Chosen()->isWall) << "around the circle";
    auto& search = Find<QLineEdit>("search");
    search.setText("wkl");
    std::set<std::size_t> found;
    for (int i = 0; i < 60; ++i) {
        Trigger("findNext");
        ASSERT_NE(QString::fromStdString(Text(*window.Chosen())).indexOf("WKL"), -1);
        found.insert(window.Chosen()->index);
    }
    std::size_t wanted = 0;
    for (const Beam& beam : window.TheDocument().Get().beams) {
        wanted += beam.name.find("WKL") != std::string::npos ? 1U : 0U;
    }
    EXPECT_EQ(found.size(), wanted);
    const FieldRef last = *window.Chosen();
    Trigger("findNext");
    Trigger("findPrevious");
    EXPECT_EQ(window.Chosen(), last);
    search.setFocus();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);  // as the line passes it on
    EXPECT_EQ(window.focusWidget(), &search) << "the next Enter searches on";
}

// A project with texts in place, opened from a file.
class TextsInPlaceTest : public MainWindowTest {
protected:
    TextsInPlaceTest()
    {
        Project project = SampleProject();
        project.beams.resize(3);
        project.walls.clear();
        project.beams[0].spans = {6000, 5700};
        project.beams[0].inPlace = {{Role::TopSupport, 2, "2B20+2B18", {}, -1, {}},
                                    {Role::Bottom, 1, "3B25", {}, -1, {}}};
        project.beams[1].inPlace = {{Role::Bottom, 2, "7B20", {}, -1, {}},
                                    {Role::TopSupport, 2, "6B20 4/2", {}, -1, {}}};
        SaveProject(project, folder.filePath("p.json").toStdString());
        window.Files().Open(folder.filePath("p.json"));
    }

    const FieldRef support{false, 0, Field::LeftEnd, 0};
    const FieldRef bottom{false, 0, Field::BottomBars, 1};
    QTemporaryDir folder;
};

TEST_F(TextsInPlaceTest, AreStepsAndFound)
{
    window.Choose(FieldRef{false, 0, Field::Side});
    const std::pair<const char*, FieldRef> steps[] = {
        {"nextField", support},
        {"nextField", bottom},
        {"nextField", {false, 0, Field::Name}},
        {"previousField", bottom},
        {"previousField", support},
        {"nextOwner", {false, 1, Field::LeftEnd, 1}},  // the text at that support
        {"previousField", {false, 1, Field::BottomBars, 0}},
        {"nextOwner", {false, 2, Field::BottomBars}},  // there is none in place
    };
    for (const auto& [action, ref] : steps) {
        Trigger(action);
        EXPECT_EQ(window.Chosen(), ref) << action;
    }
    window.Choose(std::nullopt);
    Find<QLineEdit>("search").setText("b20 4/");
    for (const char* const find : {"findNext", "findPrevious"}) {
        Trigger(find);
        EXPECT_EQ(window.Chosen(), (FieldRef{false, 1, Field::LeftEnd, 1}));
        window.Choose(FieldRef{false, 2, Field::Name});
    }
}

TEST_F(TextsInPlaceTest, AreTakenFromAnOfferEditedComposedAndUndone)
{
    constexpr int Pieces = 1346;
    Press(support);
    EXPECT_TRUE(Offer().contains("5B20 3/2")) << "the ends on the same through bars";
    ClickOffer("5B20 3/2");
    EXPECT_EQ(Text(support), "5B20 3/2");
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("Top bars at support 2: 5B20 3/2"));
    window.Choose(bottom);
    Trigger("undo");
    EXPECT_EQ(window.Chosen(), support);
    EXPECT_EQ(Text(support), "2B20+2B18");

    auto& grid = Find<QTreeWidget>("properties");
    const auto row = [&grid](const char* caption) {
        const auto found = grid.findItems(caption, Qt::MatchExactly);
        return found.isEmpty() ? nullptr : found.front();
    };
    ASSERT_NE(row("Bottom bars of span 1"), nullptr);
    EXPECT_EQ(row("Spans, mm")->text(1), "6000 + 5700");
    EXPECT_EQ(grid.currentItem(), row("Top bars at support 2"));
    EXPECT_EQ(row("Top bars at support 2")->text(1), "2B20+2B18");
    grid.setCurrentItem(row("Bottom bars of span 1"), 1);
    EXPECT_EQ(window.Chosen(), bottom);
    Trigger("edit");
    grid.findChild<QLineEdit*>()->setText("4B25");
    window.OpenPanel();  // takes it first
    ASSERT_EQ(window.Panels().Serving(), bottom);
    EXPECT_EQ(Text(bottom), "4B25");
    EXPECT_EQ(Text({false, 0, Field::BottomBars}), "3B22") << "the beam's own stays";
    EXPECT_EQ(qobject_cast<QListView*>(Control(Pieces).parentWidget())->model()->rowCount(), 1);
    ClickRow(1338, "5");
    QTest::mouseClick(&Control(1338), Qt::RightButton);
    EXPECT_EQ(Text(bottom), "5B25");
    Trigger("undo");
    Trigger("undo");
    EXPECT_EQ(Text(bottom), "3B25");
    window.SetLanguage(Language::Chinese);
    EXPECT_NE(row("第1跨下部筋"), nullptr);
    window.SetLanguage(Language::English);
    window.Choose(FieldRef{false, 1, Field::Name});
    ASSERT_NE(row("Bottom bars of span 2"), nullptr);
    EXPECT_EQ(row("Top bars at support 2")->text(1), "6B20 4/2");
    EXPECT_EQ(row("Bottom bars of span 1"), nullptr);
}

TEST_F(MainWindowTest, UnsavedWorkIsNeverLeftWithoutAQuestion)
{
    window.TheDocument().SetText(Bars, "8B28");
    QStringList asked;
    const auto answer = [&](const char* button) {
        QTimer::singleShot(0, [&asked, button] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            asked << box->text();
            for (QAbstractButton* const each : box->buttons()) {
                if (each->text() == button) {
                    each->click();
                }
            }
        });
    };
    answer("Stay");
    EXPECT_FALSE(window.Files().Open(QString()));
    EXPECT_EQ(Text(Bars), "8B28");
    answer("Stay");
    EXPECT_FALSE(window.close());
    answer("Leave without saving");
    EXPECT_TRUE(window.close());
    EXPECT_EQ(asked.size(), 3);
}

TEST_F(MainWindowTest, TheReportTellsWhatShowsAndWhere)
{
    Press(Bars);
    window.OpenPanel();
    const QJsonObject report = ScreenReport(window);
    EXPECT_FALSE(report["annotations"].toArray().isEmpty());
    EXPECT_TRUE(report["panel"].toObject().contains("1346"));
    EXPECT_TRUE(report["widgets"].toObject().contains("desk/choices"));
    EXPECT_EQ(report["chosen"].toObject()["field"].toInt(), static_cast<int>(Field::TopBars));
}

}  // namespace
