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
    const std::pair<Qt::Key, Qt::KeyboardModifiers> confirms[] = {{Qt::Key_Menu, {}},
                                                                  {Qt::Key_F10, Qt::ShiftModifier},
                                                                  {Qt::Key_Return, Qt::ControlModifier},
                                                                  {Qt::Key_Return, {}},
                                                                  {Qt::Key_Enter, Qt::KeypadModifier}};
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
        EXPECT_TRUE(stage.item.taken.empty());
        press(key, with);
        EXPECT_EQ(stage.item.taken, std::vector<std::string>{"B32"});
        EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE);
    }
}

// Of each pop-up a row or key that changes what it holds, and what is taken then.
struct Change {
    Shown kind;
    int id;
    int row;  // -1: the control is a box or a button of the keypad
    const char* taken;
};
constexpr Change Changes[] = {
    {Shown::Name, 1316, -1, ""},  // one letter is no name: it stays in the panel's hands
    {Shown::Section, 1317, 0, "120x600"},  {Shown::Elevation, 1320, -1, "7"},
    {Shown::Stirrup, 1358, 1, ""},         {Shown::Bars, 1338, 1, "2B10"},
    {Shown::Horizontal, 1112, 2, "A8@50"}, {Shown::Vertical, 1307, 3, "A14"},
};

class StripTest : public Shell {
protected:
    QWidget& Surface(const Stage& stage) { return *display.WidgetOf(stage.panel->m_hWnd); }
    template <class Part>
    Part& Of(const Stage& stage, const char* name)
    {
        return *Surface(stage).findChild<Part*>(QLatin1String(name));
    }
    void Do(const Change& change, Stage& stage)
    {
        QWidget& widget = *display.WidgetOf(stage.panel->GetDlgItem(change.id)->m_hWnd);
        if (change.row < 0) {
            widget.setFocus();
            QTest::keyClicks(&widget, "7");
            return;
        }
        auto& list = dynamic_cast<QListView&>(widget);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(change.row, 0)).center());
        if (change.kind == Shown::Bars) {  // a piece needs a diameter too
            Do({Shown::Section, 1340, 0, ""}, stage);
        }
    }
};

// The strip's buttons and Enter do what the right button and Esc do on the panel.
TEST_F(StripTest, TakesAndCancelsAsTheMouseDoes)
{
    const QTimer answers;  // a name without spans brings a message
    QObject::connect(&answers, &QTimer::timeout, [] {
        if (QWidget* const box = QApplication::activeModalWidget()) {
            box->close();
        }
    });
    const_cast<QTimer&>(answers).start(1);
    for (const Change& change : Changes) {
        SCOPED_TRACE(static_cast<int>(change.kind));
        const auto after = [&](const std::function<void(Stage&)>& leave) {
            Stage stage(change.kind);
            Do(change, stage);
            leave(stage);
            EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE);
            return stage.item.taken;
        };
        const std::vector<std::string> wanted = after([&](Stage& stage) {
            QTest::mouseClick(&Surface(stage), Qt::RightButton, {}, Surface(stage).rect().bottomLeft());
        });
        EXPECT_EQ(wanted.empty() ? "" : wanted.front(), std::string(change.taken));
        EXPECT_EQ(after([&](Stage& stage) {
                      QTest::mouseClick(&Of<QPushButton>(stage, "take"), Qt::LeftButton);
                  }),
                  wanted);
        EXPECT_EQ(after([&](Stage& stage) { QTest::keyClick(&Surface(stage), Qt::Key_Return); }), wanted);
        EXPECT_EQ(
            after([&](Stage& stage) { QTest::mouseClick(&Of<QLabel>(stage, "hint"), Qt::RightButton); }),
            wanted);
        EXPECT_TRUE(after([&](Stage& stage) {
                        QTest::mouseClick(&Of<QPushButton>(stage, "cancel"), Qt::LeftButton);
                    }).empty());
    }
}

// The whole of it fits on the screen, shows its texts in full, and no part of it covers the panel.
TEST_F(StripTest, FitsOverEachPanelOnTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const double zoom : {1.0, 1.25, 1.5, 2.0}) {
        display.SetZoom(zoom);
        for (const Shown kind : AllShown) {
            SCOPED_TRACE("zoom " + std::to_string(zoom) + ", pop-up " +
                         std::to_string(static_cast<int>(kind)));
            Stage stage(kind);
            for (const QPoint corner : {screen.topLeft(), screen.bottomRight(), screen.center()}) {
                stage.panel->ShowWindow(SW_HIDE);
                display.OpenBeside(stage.panel->m_hWnd, QRect(corner, QSize(50, 20)), nullptr,
                                   "KL1(7)  Stirrups");
                const QRect all = Surface(stage).geometry();
                if (all.width() < screen.width() && all.height() < screen.height()) {
                    EXPECT_TRUE(screen.contains(all));
                }
                const auto& panel =
                    *display.WidgetOf(FindWindowRecord(stage.panel->m_hWnd)->children[0])->parentWidget();
                const CRect& place = FindWindowRecord(stage.panel->m_hWnd)->place;
                EXPECT_EQ(panel.mapToGlobal(QPoint()),
                          QPoint(qRound(place.left * zoom), qRound(place.top * zoom)));
                EXPECT_EQ(Of<QLabel>(stage, "title").text(), "KL1(7)  Stirrups");
                for (const char* const name : {"title", "take", "cancel", "hint"}) {
                    const QWidget& part = Of<QWidget>(stage, name);
                    EXPECT_TRUE(part.parentWidget()->rect().contains(part.geometry())) << name;
                    EXPECT_GE(part.height(), part.fontMetrics().height()) << name;
                }
            }
        }
    }
}

// A press elsewhere loses nothing that is composed: the panel stays and asks, and the press is nobody's.
TEST_F(StripTest, WhatIsComposedOutlivesAPressElsewhere)
{
    QPushButton other("other");
    other.show();
    int clicks = 0;
    QObject::connect(&other, &QPushButton::clicked, [&clicks] { ++clicks; });
    for (const Change& change : Changes) {
        SCOPED_TRACE(static_cast<int>(change.kind));
        if (change.kind == Shown::Name) {
            continue;  // a message comes first
        }
        Stage stage(change.kind);
        const QString hint = Of<QLabel>(stage, "hint").text();
        Do(change, stage);
        const std::string before = stage.State();
        clicks = 0;
        QTest::mouseClick(&other, Qt::LeftButton);
        QTest::mouseDClick(&other, Qt::LeftButton);
        QTest::keyClick(&other, Qt::Key_Space);
        EXPECT_EQ(clicks, 0);
        EXPECT_EQ(stage.State(), before);
        EXPECT_NE(Of<QLabel>(stage, "hint").text(), hint) << "asks";
        QTest::mouseClick(&Surface(stage), Qt::LeftButton, {}, QPoint(1, 1));
        EXPECT_EQ(Of<QLabel>(stage, "hint").text(), hint) << "goes on";
        QTest::mouseClick(&Of<QPushButton>(stage, "cancel"), Qt::LeftButton);
        QTest::mouseClick(&other, Qt::LeftButton);
        EXPECT_EQ(clicks, 1);
        EXPECT_TRUE(stage.item.taken.empty());
    }
}

// A row is dimmed when a click leaves it unselected, and no other row is; digits are typed, not selected.
TEST_F(StripTest, DimsTheRowsThatAClickDoesNotChoose)
{
    struct State {
        Shown kind;
        int barKind;
        bool whole;  // a text that fills every list
    };
    std::size_t dimmed = 0;
    for (const State& state :
         {State{Shown::Name, 0, true}, State{Shown::Section, 0, true}, State{Shown::Stirrup, 0, false},
          State{Shown::Stirrup, 0, true}, State{Shown::Bars, 0, false}, State{Shown::Bars, 0, true},
          State{Shown::Bars, 3, true}, State{Shown::Horizontal, 0, true},
          State{Shown::Vertical, 0, true}}) {
        SCOPED_TRACE("pop-up " + std::to_string(static_cast<int>(state.kind)));
        const auto open = [&](Stage& stage) {
            Desk::PanelUse use;
            use.barKind = state.barKind;
            use.pieceType = state.barKind;
            if (state.whole) {
                use.text = state.kind == Shown::Name      ? "KL1(2)"
                           : state.kind == Shown::Section ? "300x600"
                                                          : "A8@200(2)";
                use.pieces = {"2B25"};
            }
            stage.made->Open(use);
        };
        Stage first(state.kind);
        for (const HWND child : FindWindowRecord(first.panel->m_hWnd)->children) {
            const WindowRecord control = *FindWindowRecord(child);
            for (int row = 0; control.enabled && row < control.RowCount(); ++row) {
                Stage stage(state.kind);
                open(stage);
                auto& list = dynamic_cast<CListBox&>(*stage.panel->GetDlgItem(control.id));
                const bool canChoose = Desk::CanChoose(list, row);
                UserPicksRow(list.m_hWnd, row);
                const bool isDigit = state.kind == Shown::Name && (control.id == 1062 || control.id == 547);
                EXPECT_EQ(canChoose, isDigit || list.GetCurSel() == row) << control.id << " row " << row;
                dimmed += canChoose ? 0 : 1;
            }
        }
    }
    EXPECT_GT(dimmed, 10U);
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
