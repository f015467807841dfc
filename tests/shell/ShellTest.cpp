// What the shell adds to the panels: zoom, focus, native editing, message boxes, leaving by a press
// elsewhere.
#include "Stage.h"

namespace {

class Shell : public testing::Test {
protected:
    static QLineEdit& Box(const Desk::QtDisplay& display, const CWnd& panel, int id)
    {
        return *qobject_cast<QLineEdit*>(display.WidgetOf(panel.GetDlgItem(id)->m_hWnd));
    }
    static std::string TextOf(const CWnd& panel, int id)
    {
        CString text;
        panel.GetDlgItem(id)->GetWindowText(text);
        return std::string(text.View());
    }

    Desk::QtDisplay display{{Desk::Utf8FromGbk, Desk::GbkFromUtf8}};
};

constexpr int DiameterBox = 1311, DiameterList = 1112;  // of the horizontal picker

TEST_F(Shell, EachRowIsPickedWhereItShowsAtEveryZoom)
{
    for (const double zoom : {1.0, 1.25, 1.5, 2.0}) {
        display.SetZoom(zoom);
        Stage stage(Shown::Horizontal);
        auto& list = dynamic_cast<CListBox&>(*stage.panel->GetDlgItem(DiameterList));
        auto& widget = *qobject_cast<QListView*>(display.WidgetOf(list.m_hWnd));
        for (int row = 0; row < list.GetCount(); ++row) {
            const QRect shown = widget.visualRect(widget.model()->index(row, 0));
            EXPECT_EQ(shown.height(), qRound(12 * zoom));
            for (const QPoint at : {shown.topLeft() + QPoint(3, 0), shown.bottomLeft() + QPoint(3, 0)}) {
                QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, at);
                EXPECT_EQ(list.GetCurSel(), row) << "zoom " << zoom;
            }
        }
    }
}

TEST_F(Shell, TheLineEditKeepsItsOwnWaysAndTheModuleHearsOfThem)
{
    Stage stage(Shown::Stirrup);
    constexpr int SpacingBox = 1662;
    QLineEdit& box = Box(display, *stage.panel, SpacingBox);
    box.setFocus();
    QTest::keyClicks(&box, "250");
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClicks(&box, "1");  // over the selection
    EXPECT_EQ(TextOf(*stage.panel, SpacingBox), "150");
    QApplication::clipboard()->setText("200");
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf(*stage.panel, SpacingBox), "200");
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOf(*stage.panel, SpacingBox), "150");
}

TEST_F(Shell, ADigitsOnlyBoxRefusesLettersHoweverTheyCome)
{
    Stage stage(Shown::Horizontal);
    QLineEdit& box = Box(display, *stage.panel, DiameterBox);
    box.setFocus();
    QApplication::clipboard()->setText("1x");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClicks(&box, "y8");
    EXPECT_EQ(box.text(), "68");
    EXPECT_EQ(TextOf(*stage.panel, DiameterBox), "68");
}

TEST_F(Shell, ShowsChineseAndAMarkForWhatIsNone)
{
    Stage stage(Shown::Section);
    CWnd& box = *stage.panel->GetDlgItem(1320);
    box.SetWindowText("\xCE\xDE"
                      "1\xB0");
    const QLineEdit& line = Box(display, *stage.panel, 1320);
    EXPECT_EQ(line.text(), QString::fromUtf8("\u65E0"
                                             "1\uFFFD"));
    for (const QLabel* const label : display.WidgetOf(stage.panel->m_hWnd)->findChildren<QLabel*>()) {
        EXPECT_FALSE(label->text().contains(QChar::ReplacementCharacter)) << label->text().toStdString();
    }
}

TEST_F(Shell, OpensInsideTheScreenTakesTheKeyboardAndGivesItBack)
{
    QWidget owner;
    QLineEdit field(&owner);
    owner.resize(300, 200);
    owner.show();
    owner.activateWindow();
    QCoreApplication::processEvents();
    field.setFocus();
    Stage stage(Shown::Bars);
    stage.panel->ShowWindow(SW_HIDE);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget& surface = *display.WidgetOf(stage.panel->m_hWnd);
    for (const QPoint corner : {screen.topLeft(), screen.bottomRight(), screen.center()}) {
        field.setFocus();
        display.OpenBeside(stage.panel->m_hWnd, QRect(corner, QSize(50, 20)), &owner);
        EXPECT_TRUE(surface.isVisible());
        EXPECT_TRUE(screen.contains(surface.geometry()));
        EXPECT_FALSE(surface.geometry().intersects(QRect(screen.center(), QSize(50, 20))) &&
                     corner == screen.center());
        QTest::keyClick(&surface, Qt::Key_Escape);
        EXPECT_FALSE(surface.isVisible());
        EXPECT_TRUE(stage.item.taken.empty());
        QCoreApplication::processEvents();
        EXPECT_EQ(QApplication::focusWidget(), &field);
    }
}

TEST_F(Shell, APressElsewhereDismissesAndIsStillAPress)
{
    QWidget owner;
    QPushButton other("other", &owner);
    owner.show();
    int clicks = 0;
    QObject::connect(&other, &QPushButton::clicked, [&clicks] { ++clicks; });
    Stage stage(Shown::Vertical);
    stage.item.SetListShowFlag(TRUE);
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE);
    EXPECT_EQ(stage.item.GetListShowFlag(), FALSE) << "as Esc";
    EXPECT_TRUE(stage.item.taken.empty());
}

TEST_F(Shell, AKeyElsewhereAndTheWindowManagerDismissAsWell)
{
    QLineEdit other;
    other.show();
    Stage stage(Shown::Vertical);
    QWidget& surface = *display.WidgetOf(stage.panel->m_hWnd);
    int hidden = 0;
    QObject::connect(&display, &Desk::QtDisplay::Hidden, [&hidden] { ++hidden; });
    QTest::keyClick(&other, Qt::Key_Control);
    EXPECT_TRUE(surface.isVisible());
    QTest::keyClick(&other, Qt::Key_7);
    EXPECT_FALSE(surface.isVisible());
    EXPECT_EQ(other.text(), "7");
    stage.panel->ShowWindow(SW_SHOW);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    EXPECT_TRUE(QCoreApplication::sendEvent(&other, &escape)) << "eaten";
    EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE);
    stage.panel->ShowWindow(SW_SHOW);
    EXPECT_TRUE(surface.close());
    EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE);
    EXPECT_EQ(hidden, 3);
    EXPECT_TRUE(stage.item.taken.empty());
}

TEST_F(Shell, AKeyThatIsHeldClicksAButtonOnce)
{
    Stage stage(Shown::Elevation);
    constexpr int ElevationBox = 1320;
    CWnd* button = nullptr;
    for (CWnd* child = stage.panel->GetTopWindow(); child != nullptr && button == nullptr;
         child = child->GetNextWindow()) {
        CString caption;
        child->GetWindowText(caption);
        button = caption == "7" ? child : nullptr;
    }
    ASSERT_NE(button, nullptr);
    button->SetFocus();
    QWidget& widget = *display.WidgetOf(button->m_hWnd);
    const std::string before = TextOf(*stage.panel, ElevationBox);
    for (const bool again : {false, true, true}) {
        if (again) {
            QKeyEvent up(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ", true);
            QCoreApplication::sendEvent(&widget, &up);
        }
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", again);
        QCoreApplication::sendEvent(&widget, &down);
    }
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ");
    QCoreApplication::sendEvent(&widget, &up);
    EXPECT_EQ(TextOf(*stage.panel, ElevationBox), before + "7");
}

TEST_F(Shell, ARightPressIsEatenWholeAndDeliversOnce)
{
    for (const Shown kind : AllShown) {
        for (std::size_t i = 0;; ++i) {
            Stage stage(kind);
            const std::vector<HWND>& children = FindWindowRecord(stage.panel->m_hWnd)->children;
            if (i == children.size()) {
                break;
            }
            if (kind == Shown::Elevation) {
                QTest::keyClicks(&Box(display, *stage.panel, 1320), "1");
            }
            QWidget* widget = display.WidgetOf(children[i]);
            if (auto* const area = qobject_cast<QAbstractScrollArea*>(widget)) {
                widget = area->viewport();
            }
            QTest::mouseClick(widget, Qt::RightButton);
            EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE) << static_cast<int>(kind) << " control " << i;
            const bool empty = kind == Shown::Name || kind == Shown::Stirrup;  // nothing composed yet
            EXPECT_EQ(stage.item.taken.size(), empty ? 0U : 1U)
                << static_cast<int>(kind) << " control " << i;
        }
    }
}

// Tab into a list, arrows to the row, and a key that stands for the right button.
TEST_F(Shell, TheKeyboardAlonePicksAndConfirms)
{
    const std::pair<Qt::Key, Qt::KeyboardModifiers> confirms[] = {
        {Qt::Key_Menu, {}}, {Qt::Key_F10, Qt::ShiftModifier}, {Qt::Key_Return, Qt::ControlModifier}};
    for (const auto& [key, with] : confirms) {
        Stage stage(Shown::Vertical);
        const auto press = [&](Qt::Key pressed, Qt::KeyboardModifiers held = {}) {
            const CWnd* const focus = CWnd::GetFocus();
            QTest::keyClick(display.WidgetOf(focus != nullptr ? focus->m_hWnd : stage.panel->m_hWnd),
                            pressed, held);
        };
        constexpr int Grades = 1306, Diameters = 1307;
        const auto tabTo = [&](int id) {
            for (int i = 0; i < 8 && CWnd::GetFocus() != stage.panel->GetDlgItem(id); ++i) {
                press(Qt::Key_Tab);
            }
            ASSERT_EQ(CWnd::GetFocus(), stage.panel->GetDlgItem(id));
        };
        tabTo(Grades);
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        tabTo(Diameters);
        press(Qt::Key_End);
        press(Qt::Key_Return);
        EXPECT_TRUE(stage.item.taken.empty());
        press(key, with);
        EXPECT_EQ(stage.item.taken, std::vector<std::string>{"B32"});
        EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE);
    }
}

TEST_F(Shell, AMessageWaitsForItsAnswerAndLeavesThePanel)
{
    Stage stage(Shown::Section);
    QString said;
    QTimer::singleShot(0, [&said] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        said = box->text();
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
    EXPECT_EQ(AfxMessageBox("\xCE\xDE!"), IDOK);
    EXPECT_EQ(said, QString::fromUtf8("\u65E0!"));
    EXPECT_EQ(stage.panel->IsWindowVisible(), TRUE);
}

TEST_F(Shell, AHostMayDestroyThePanelInTheMiddleOfAnEvent)
{
    struct Destroyer : NotedItem {
        void SetValue(CString) override { stage->Destroy(); }
        Stage* stage = nullptr;
    };
    for (const bool onLine : {false, true}) {
        Stage stage(Shown::Horizontal);
        Destroyer destroyer;
        destroyer.stage = &stage;
        destroyer.SetHWnd(&stage);
        dynamic_cast<CHBarPropertySheet&>(*stage.panel).m_pItem = &destroyer;
        const QPointer<QWidget> surface = display.WidgetOf(stage.panel->m_hWnd);
        QWidget* const target = onLine ? &Box(display, *stage.panel, DiameterBox) : surface.data();
        QTest::mouseClick(target, Qt::RightButton);
        EXPECT_EQ(stage.panel, nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(surface, nullptr);
    }
}

}  // namespace
