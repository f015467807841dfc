// What the status line says of changes, and what texts from elsewhere are asked about.
#include "tests/window/MainWindow.h"

namespace {

using namespace Desk;

constexpr FieldRef BottomBars{false, 0, Field::BottomBars};

class ChangesTest : public MainWindowTest {
protected:
    ChangesTest() { Answer({}); }

    Document& document = window.TheDocument();
    int Steps() { return document.Changes().index(); }
    static FieldRef Of(Field field, std::size_t beam) { return {false, beam, field}; }
};

TEST_F(ChangesTest, UndoAndRedoSayWhatTheyDid)
{
    const FieldRef wall{true, 0, Field::HorizontalBars};
    const FieldRef end{false, 0, Field::LeftEnd};
    document.SetTexts({{Of(Field::Side, 0), ""}, {end, "4B20"}});
    const auto top = [](std::size_t beam) { return FieldRef{false, beam, Field::TopBars}; };
    const struct {
        NewTexts texts;
        const char* what;
    } cases[] = {
        {{{Bars, "2B25"}}, "KL1(7) top through bars 2B20 to 2B25"},
        {{{Bars, ""}}, "KL1(7) top through bars 2B20 removed"},
        {{{Of(Field::Side, 0), "G4B12"}}, "KL1(7) side bars G4B12 added"},
        {{{Of(Field::Name, 0), "KL91(7)"}}, "KL1(7) name KL1(7) to KL91(7)"},
        {{{wall, "A12@150"}}, "Wall Q1 horizontal bars B10@150 to A12@150"},
        {{{Bars, "2B25"}, {BottomBars, "2B25"}}, "2 texts of KL1(7)"},
        {{{top(0), "9B25"}, {top(1), "9B25"}, {top(2), "9B25"}}, "top through bars of 3 beams to 9B25"},
        {{{top(0), "9B25"}, {top(1), "8B25"}}, "top through bars of 2 beams"},
        {{{top(0), ""}, {top(1), ""}}, "top through bars of 2 beams removed"},
        {{{top(0), "9B25"}, {{true, 1, Field::VerticalBars}, "A9@99"}}, "2 texts of 2 beams and walls"},
    };
    for (const auto& [texts, what] : cases) {
        ASSERT_EQ(document.SetTexts(texts), "");
        Trigger("undo");
        EXPECT_EQ(Told(), QString("Undone: ") + what);
        Trigger("redo");
        EXPECT_EQ(Told(), QString("Redone: ") + what);
        Trigger("undo");
    }
    window.Choose(Bars);
    Trigger("delete");
    Trigger("undo");
    EXPECT_EQ(Told(), "Undone: KL1(7) deleted");
    window.SetLanguage(Language::Chinese);
    document.SetText(Bars, "2B25");
    Trigger("undo");
    EXPECT_EQ(Told(), QString::fromUtf8("已撤销：KL1(7) 上部通长筋 2B20 改为 2B25"));
}

TEST_F(ChangesTest, AChangeThatChangesNothingSaysSo)
{
    const FieldRef side = Of(Field::Side, 0);
    document.SetTexts({{side, ""}, {Of(Field::TopBars, 3), "2B20"}});
    auto& typed = Find<QLineEdit>("typed");
    const auto type = [&](const char* text) {
        Trigger("type");
        typed.setText(text);
        QTest::keyClick(&typed, Qt::Key_Return, Qt::ControlModifier);
    };
    const struct {
        const char* what;
        FieldRef at;
        std::function<void()> change;
        const char* told;
    } cases[] = {
        {"offer", Bars, [&] { ClickOffer("2B20"); }, "KL1(7), Top through bars: 2B20 already"},
        {"typed", Bars, [&] { type("2B20"); }, "KL1(7), Top through bars: 2B20 already"},
        {"repeat", Bars, [&] { Trigger("repeat"); }, "KL1(7), Top through bars: 2B20 already"},
        {"paste", Bars,
         [&] {
             Trigger("copyText");
             Trigger("paste");
         },
         "KL1(7), Top through bars: 2B20 already"},
        {"group", Bars,
         [&] {
             Trigger("allSame");
             Trigger("copyText");
             Trigger("paste");
         },
         nullptr},
        {"match", Bars,
         [&] {
             Trigger("match");
             Press(Bars);
         },
         "KL1(7), Top through bars: 2B20 already"},
        {"clear", side, [&] { Trigger("clear"); }, "KL1(7), Side bars: no text already"},
    };
    for (const auto& [what, at, change, told] : cases) {
        window.Choose(std::nullopt);
        window.Choose(at);
        const int steps = Steps();
        change();
        EXPECT_EQ(Steps(), steps) << what;
        EXPECT_EQ(Told(), told != nullptr
                              ? QString(told)
                              : QString("%1 annotations: 2B20 already").arg(window.AllChosen().size()))
            << what;
    }
    window.Choose(Bars);
    auto& grid = Find<QTreeWidget>("properties");
    QTreeWidgetItem& row = *grid.findItems("Floor", Qt::MatchExactly).front();
    const int steps = Steps();
    row.setText(1, row.text(1) + " ");  // as an editor does
    QCoreApplication::processEvents();
    EXPECT_TRUE(Told().startsWith("KL1(7), Floor: ") && Told().endsWith(" already"))
        << Told().toStdString();
    EXPECT_EQ(Steps(), steps);
    row.setText(1, "12");
    QCoreApplication::processEvents();
    EXPECT_EQ(Steps(), steps + 1);
    Trigger("undo");
    EXPECT_TRUE(Told().startsWith("Undone: KL1(7), Floor: ") && Told().endsWith(" to 12"))
        << Told().toStdString();
}

// Wherever the keyboard is, but in a text that is being typed.
TEST_F(ChangesTest, DeleteClearsWhatIsChosen)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (QWidget* const focus :
         std::initializer_list<QWidget*>{&window.Drawing(), &Find<QListView>("choices"),
                                         &Find<QTreeWidget>("properties"), &Find<QLineEdit>("typed")}) {
        window.Choose(Bars);
        ASSERT_EQ(Text(Bars), "2B20");
        focus->setFocus();
        QTest::keyClick(focus, Qt::Key_Delete);
        EXPECT_EQ(Text(Bars), "") << focus->objectName().toStdString();
        EXPECT_EQ(Told(), "KL1(7), Top through bars removed");
        Trigger("undo");
    }
    auto& typed = Find<QLineEdit>("typed");
    typed.setFocus();
    typed.setText("B2");
    QTest::keyClick(&typed, Qt::Key_Delete);
    EXPECT_EQ(Text(Bars), "2B20");
    typed.clear();
    window.Drawing().setFocus();
    Trigger("allSame");
    const std::set<FieldRef> all = window.AllChosen();
    ASSERT_GT(all.size(), 1U);
    QTest::keyClick(&window.Drawing(), Qt::Key_Delete);
    for (const FieldRef& each : all) {
        EXPECT_EQ(Text(each), "");
    }
    Trigger("undo");
    EXPECT_EQ(Told(), QString("Undone: top through bars of %1 beams removed").arg(all.size()));
}

TEST_F(ChangesTest, TextsFromElsewhereAreReadAsTypedOnesAre)
{
    const FieldRef name = Of(Field::Name, 0);
    const auto paste = [&](const FieldRef& at, const char* text, const QStringList& answers) {
        QApplication::clipboard()->setText(text);
        window.Choose(std::nullopt);
        window.Choose(at);
        Answer(answers);
        const int steps = Steps();
        Trigger("paste");
        return Steps() - steps;
    };
    EXPECT_EQ(paste(name, "2B22", {"Cancel"}), 0);
    EXPECT_EQ(questions.size(), 1);
    EXPECT_EQ(paste(name, "2B22", {"Bottom bars"}), 1);
    EXPECT_EQ(Text(BottomBars), "2B22");
    EXPECT_EQ(Text(name), "KL1(7)");
    EXPECT_EQ(paste(Bars, "what?", {"Keep it"}), 1);
    EXPECT_EQ(paste(Bars, "2B25", {}), 1);
    EXPECT_TRUE(questions.isEmpty());

    // Several: those that belong there, or all.
    document.SetTexts({{Bars, "what?"}, {BottomBars, "3B22"}});
    window.Choose(Bars);
    Trigger("copyTexts");
    document.SetText(Bars, "2B20");
    const FieldRef top = Of(Field::TopBars, 2);
    const std::string before = Text(top);
    for (const char* const answer : {"Cancel", "Leave them out", "Keep them"}) {
        window.Choose(std::nullopt);
        window.Choose(top);
        Answer({answer});
        Trigger("paste");
        ASSERT_EQ(questions.size(), 1);
        EXPECT_TRUE(questions[0].contains("Top through bars: what?")) << questions[0].toStdString();
        EXPECT_EQ(Text(top), answer == QString("Keep them") ? "what?" : before) << answer;
        EXPECT_EQ(Text(Of(Field::BottomBars, 2)) == "3B22", answer != QString("Cancel")) << answer;
    }
}

}  // namespace
