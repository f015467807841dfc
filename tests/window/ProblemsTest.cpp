// What is wrong is found and mended, and what is typed is not taken unread.
#include "tests/window/MainWindow.h"

namespace {

using namespace Desk;

class ProblemsTest : public MainWindowTest {
protected:
    ProblemsTest() { QCoreApplication::processEvents(); }  // the checks have looked

    QString Count()
    {
        QCoreApplication::processEvents();
        return Find<QToolButton>("problemCount").text();
    }
    QString Status() { return window.statusBar()->currentMessage(); }
    void Set(const FieldRef& ref, const char* text) { window.TheDocument().SetText(ref, text); }
    // Types a text for the annotation and presses a button of the question, if there is one.
    QString Type(const FieldRef& ref, const char* text, const char* button)
    {
        window.Choose(ref);
        Trigger("type");
        auto& typed = Find<QLineEdit>("typed");
        typed.setText(text);
        QString asked;
        QTimer timer;
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) {
                return;
            }
            asked = box->text() + '\n' + box->informativeText();
            for (QAbstractButton* const each : box->buttons()) {
                if (each->text() == button) {
                    each->click();
                    return;
                }
            }
            ADD_FAILURE() << "no button " << button;
            box->reject();
        });
        timer.start(0);
        QTest::keyClick(&typed, Qt::Key_Return, Qt::ControlModifier);
        return asked;
    }

    const FieldRef name{false, 0, Field::Name};
    const FieldRef section{false, 3, Field::Section};
    const FieldRef stirrup{false, 5, Field::Stirrup};
};

TEST_F(ProblemsTest, AreCountedListedGoneThroughAndMended)
{
    EXPECT_EQ(Count(), "No problems");
    Trigger("nextProblem");
    EXPECT_EQ(Status(), "No problems");
    Set(section, "wide");
    Set(stirrup, "many");
    Set({true, 0, Field::VerticalBars}, "few");
    EXPECT_TRUE(Count().endsWith("3 problems")) << Count().toStdString();
    auto& dock = Find<QDockWidget>("problemsDock");
    EXPECT_FALSE(dock.isVisible());
    QTest::mouseClick(&Find<QToolButton>("problemCount"), Qt::LeftButton);
    EXPECT_TRUE(dock.isVisible());
    auto& list = Find<QTreeView>("problems");
    ASSERT_EQ(list.model()->rowCount(), 3);

    window.Choose(std::nullopt);
    const std::tuple<const char*, FieldRef, int> steps[] = {
        {"nextProblem", section, 0},
        {"nextProblem", stirrup, 1},
        {"nextProblem", {true, 0, Field::VerticalBars}, 2},
        {"nextProblem", section, 0},
        {"previousProblem", {true, 0, Field::VerticalBars}, 2},
        {"previousProblem", stirrup, 1},
    };
    for (const auto& [command, at, row] : steps) {
        Trigger(command);
        EXPECT_EQ(window.Chosen(), at) << command;
        EXPECT_EQ(list.currentIndex().row(), row);
    }
    EXPECT_TRUE(Status().contains("Stirrups: cannot be read")) << Status().toStdString();
    EXPECT_TRUE(Status().contains("(2 of 3)"));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(0, 0)).center());
    EXPECT_EQ(window.Chosen(), section);
    Trigger("undo");
    Trigger("undo");
    EXPECT_TRUE(Count().endsWith("1 problem"));
    Trigger("nextProblem");
    EXPECT_EQ(window.Chosen(), section) << "looked at before the step";
    Trigger("undo");
    EXPECT_EQ(Count(), "No problems");
}

TEST_F(ProblemsTest, CountByTheRulesOfTheProjectWhichUndoSwitchesBack)
{
    Set(section, "wide");
    Set(stirrup, "many");
    EXPECT_TRUE(Count().endsWith("2 problems"));
    auto& rule = Find<QAction>("rule-unreadable");
    EXPECT_TRUE(rule.isChecked());
    rule.trigger();
    EXPECT_EQ(Count(), "No problems");
    EXPECT_EQ(window.TheDocument().Get().checksOff, std::vector<std::string>{"unreadable"});
    EXPECT_TRUE(window.isWindowModified());
    Trigger("undo");
    EXPECT_TRUE(Find<QAction>("rule-unreadable").isChecked());
    EXPECT_TRUE(Count().endsWith("2 problems"));
}

TEST_F(ProblemsTest, FollowBeamsThatCameAndWent)
{
    window.Choose(FieldRef{false, 2, Field::Name});
    Set(section, "wide");
    EXPECT_TRUE(Count().endsWith("1 problem"));
    window.Choose(FieldRef{false, 3, Field::Name});
    Trigger("delete");
    Count();
    for (int row = 0; row < Find<QTreeView>("problems").model()->rowCount(); ++row) {
        EXPECT_NE(Find<QTreeView>("problems").model()->index(row, 2).data().toString(), "wide");
    }
}

TEST_F(ProblemsTest, WhatIsTypedGoesWhereItBelongs)
{
    const FieldRef bottom{false, 0, Field::BottomBars};
    const std::string first = Text(name);
    const QString asked = Type(name, "2B28", "Bottom bars");
    EXPECT_TRUE(asked.contains("\"2B28\" does not belong there")) << asked.toStdString();
    EXPECT_TRUE(asked.contains("Bottom bars: 2B28 (now ")) << asked.toStdString();
    EXPECT_EQ(Text(bottom), "2B28");
    EXPECT_EQ(Text(name), first);
    Type(name, "the beam", "Cancel");
    EXPECT_EQ(Text(name), first);
    Type(name, "the beam", "Keep it");
    EXPECT_EQ(Text(name), "the beam");
    EXPECT_NE(Count(), "No problems") << "what is kept is marked";
    EXPECT_EQ(Type({false, 1, Field::Name}, "the beam", "Cancel"), "") << "the project has it";
    EXPECT_EQ(Type(bottom, "4B25", "Cancel"), "");

    const int steps = window.TheDocument().Changes().index();
    EXPECT_EQ(Type(Bars, "2B25+1B22;3B20", "Cancel"), "") << "split without a question";
    EXPECT_EQ(Text(Bars), "2B25+1B22");
    EXPECT_EQ(Text(bottom), "3B20");
    EXPECT_EQ(window.TheDocument().Changes().index(), steps + 1);
    Type(section, "350x700 A8@100/200(2)", "Split");
    EXPECT_EQ(Text(section), "350x700");
    EXPECT_EQ(Text({false, 3, Field::Stirrup}), "A8@100/200(2)");
}

TEST_F(ProblemsTest, QuantitiesAreShownWithHowTheyAreCounted)
{
    Set(section, "wide");
    Trigger("quantities");
    auto& dialog = Find<QDialog>("quantities");
    const auto& table = *dialog.findChild<QTableWidget*>("quantityTable");
    EXPECT_GT(table.rowCount(), 3);
    EXPECT_GT(table.item(0, table.columnCount() - 1)->text().toDouble(), 0.0);
    const QString words = dialog.findChild<QPlainTextEdit*>("quantityNotes")->toPlainText();
    EXPECT_TRUE(words.contains("Concrete, m³: "));
    EXPECT_TRUE(words.contains("Section: ")) << "what could not be counted";
    EXPECT_TRUE(words.contains("An estimate"));
    dialog.close();
}

}  // namespace
