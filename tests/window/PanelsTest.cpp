// The module's panels and pickers in the desk.
#include "tests/window/MainWindow.h"

#include "desk/window/FieldNames.h"
#include "platform/windows/Hands.h"

namespace {

using namespace Desk;

TEST_F(MainWindowTest, ThePanelOpensOnThePresentTextAndTheRightButtonTakes)
{
    constexpr int Count = 1338, Diameter = 1340, Separate = 1345, Pieces = 1346;
    const FieldRef end{false, 1, Field::LeftEnd};  // 2B25+2B22
    Press(end);
    QTest::keyClick(&window, Qt::Key_F4);
    ASSERT_EQ(window.Panels().Serving(), end);
    auto& pieces = *qobject_cast<QListView*>(Control(Pieces).parentWidget());
    ASSERT_EQ(pieces.model()->rowCount(), 2);
    EXPECT_EQ(pieces.model()->index(1, 0).data().toString(), "+2B22 ");
    ClickRow(Count, "3");
    ClickRow(Diameter, "20");
    QTest::mouseClick(&Control(Diameter), Qt::RightButton);
    EXPECT_EQ(Text(end), "2B25+3B20");
    EXPECT_FALSE(window.Panels().Serving());
    window.OpenPanel();
    ClickRow(Count, "1");
    QTest::keyClick(&Control(Separate), Qt::Key_Escape);
    EXPECT_EQ(Text(end), "2B25+3B20") << "Esc takes nothing";
}

// Confirmed unchanged, each panel gives back what it opened on.
TEST_F(MainWindowTest, EachPanelReadsItsAnnotation)
{
    QTimer answers;  // a name without spans brings a message
    QObject::connect(&answers, &QTimer::timeout, [] {
        if (QWidget* const box = QApplication::activeModalWidget()) {
            box->close();
        }
    });
    answers.start(1);
    const Project& project = window.TheDocument().Get();
    for (const Field field : BeamFields()) {
        for (std::size_t i = 0; i < project.beams.size(); i += 7) {
            const FieldRef ref{false, i, field};
            const std::string text = Text(ref);
            const bool tapers = field == Field::Section && text.find('/') != std::string::npos;
            if (text.empty() || tapers) {  // the section panel knows no taper
                continue;
            }
            window.Choose(ref);
            window.OpenPanel();
            ASSERT_EQ(window.Panels().Serving(), ref);
            QTest::mouseClick(display.WidgetOf(window.Panels().Window()), Qt::RightButton, {},
                              QPoint(1, 1));
            EXPECT_EQ(Text(ref), text);
        }
    }
    for (std::size_t i = 0; i < project.walls.size(); ++i) {
        for (const Field field : {Field::HorizontalBars, Field::VerticalBars}) {
            const FieldRef ref{true, i, field};
            const std::string text = Text(ref);
            window.Choose(ref);
            window.OpenPanel();
            QTest::mouseClick(display.WidgetOf(window.Panels().Window()), Qt::RightButton, {},
                              QPoint(1, 1));
            EXPECT_EQ(Text(ref), text);
        }
    }
    for (const char* const layers : {"6B25/4B25", "2B22+3B25/2B22", "6B25 4/2", "2B25+3B22 2/3"}) {
        window.TheDocument().SetText(Bars, layers);
        window.OpenPanel();
        QTest::mouseClick(display.WidgetOf(window.Panels().Window()), Qt::RightButton, {}, QPoint(1, 1));
        EXPECT_EQ(Text(Bars), layers);
    }
}

TEST_F(MainWindowTest, AWallsBarsAreSetByThePickers)
{
    const FieldRef wall{true, 0, Field::HorizontalBars};
    Press(wall);
    window.OpenPanel();
    ClickRow(1308, "A");
    ClickRow(1112, "10");
    ClickRow(1114, "100");
    ClickRow(1116, "200");
    QTest::mouseClick(&Control(1116), Qt::RightButton);
    EXPECT_EQ(Text(wall), "A10@100/200");
    auto& grid = Find<QTreeWidget>("properties");
    QTest::mouseClick(grid.findChild<QToolButton*>("open-12"), Qt::LeftButton);
    ASSERT_EQ(window.Panels().Serving(), (FieldRef{true, 0, Field::VerticalBars}));
    ClickRow(1306, "C");
    ClickRow(1307, "16");
    QTest::mouseClick(&Control(1377), Qt::RightButton);
    EXPECT_EQ(Text({true, 0, Field::VerticalBars}), "C16@150") << "the spacing stays";
}

TEST_F(MainWindowTest, APanelDoesNotOutliveItsProject)
{
    window.Choose(Bars);
    window.OpenPanel();
    const HWND panel = window.Panels().Window();
    ASSERT_TRUE(CWnd::FromHandle(panel)->IsWindowVisible());
    window.Files().Open(QString());
    EXPECT_FALSE(IsWindow(panel) && CWnd::FromHandle(panel)->IsWindowVisible());
    EXPECT_FALSE(window.Panels().Serving());
}

// The strip names the annotation; work on it outlives a press on another one.
TEST_F(MainWindowTest, APressElsewhereAsksForWhatIsComposed)
{
    constexpr int Diameter = 1340;
    const FieldRef other{false, 1, Field::Stirrup};
    Press(Bars);
    window.OpenPanel();
    QWidget& panel = *display.WidgetOf(window.Panels().Window());
    EXPECT_EQ(panel.findChild<QLabel*>("title")->text(),
              OwnerName(window.TheDocument().Get(), Bars) + "  " + FieldName(Field::TopBars));
    const std::string before = Text(Bars);
    ClickRow(Diameter, "14");
    const QPoint elsewhere =
        window.Drawing().viewport()->mapFromGlobal(window.Drawing().OnScreen(other).center());
    QTest::mouseClick(window.Drawing().viewport(), Qt::LeftButton, {}, elsewhere);
    EXPECT_EQ(window.Chosen(), Bars);
    ASSERT_EQ(window.Panels().Serving(), Bars);
    QTest::mouseClick(panel.findChild<QPushButton*>("take"), Qt::LeftButton);
    EXPECT_FALSE(window.Panels().Serving());
    EXPECT_EQ(Text(Bars), "2B14");
    EXPECT_NE(before, "2B14");
}
}  // namespace
