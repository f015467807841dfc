// What the display adds to the panels: DPI, focus, native editing, input methods, messages, leaving by a
// press elsewhere.
#include <gtest/gtest.h>

#include "platform/windows/CWnd.h"
#include "tests/win32/SystemHands.h"

namespace {

constexpr int DiameterBox = 1311, DiameterList = 1112;  // of the horizontal picker
constexpr int SpacingBox = 1662;                        // of the stirrup panel
constexpr int ElevationBox = 1320;
constexpr UINT KeyA = 'A', KeyZ = 'Z', KeyMenu = 93, KeyF10 = 121;

class DisplayTest : public testing::Test {
protected:
    User::Handle Native(const Stage& stage, int id = 0) const
    {
        return display.NativeOf(id == 0 ? stage.panel->m_hWnd : stage.panel->GetDlgItem(id)->m_hWnd);
    }
    static std::string TextOf(const Stage& stage, int id)
    {
        CString text;
        stage.panel->GetDlgItem(id)->GetWindowText(text);
        return std::string(text.View());
    }
    static void Click(User::Handle window, User::Button button = User::Button::Left)
    {
        const User::Area area = User::PlaceOf(window);
        User::Press(button, area.x + area.width / 2, area.y + area.height / 2);
        User::Release(button, area.x + area.width / 2, area.y + area.height / 2);
    }
    static void Type(const std::wstring& text)
    {
        for (const wchar_t character : text) {
            User::Type(character);
        }
    }

    Win32Display display;
    User::Answers answers;
};

TEST_F(DisplayTest, EachRowIsPickedWhereItShowsAtEveryDpi)
{
    for (const int dpi : {96, 110, 120, 144, 168, 192}) {
        Stage stage(Shown::Horizontal);
        SystemHands(display, dpi).Begin(stage);
        auto& list = dynamic_cast<CListBox&>(*stage.panel->GetDlgItem(DiameterList));
        const int inView = FindWindowRecord(list.m_hWnd)->RowsInView();
        for (int row = 0; row < std::min(inView, list.GetCount()); ++row) {
            const User::Area shown = User::RowOf(Native(stage, DiameterList), row);
            EXPECT_EQ(shown.height, dpi * 12 / 96);
            for (const int y : {shown.y, shown.y + shown.height - 1}) {
                User::Press(User::Button::Left, shown.x + 3, y);
                User::Release(User::Button::Left, shown.x + 3, y);
                EXPECT_EQ(list.GetCurSel(), row) << "DPI " << dpi;
            }
        }
    }
}

// A pop-up that comes to a screen of other DPI stays where it is told to and grows with all that is in it.
TEST_F(DisplayTest, FollowsTheDpiOfItsScreen)
{
    for (const Shown kind : AllShown) {
        Stage stage(kind);
        const User::Area before = User::PlaceOf(Native(stage));
        User::MoveToScreenOf(Native(stage), 144, 300, 150);
        const User::Area after = User::PlaceOf(Native(stage));
        EXPECT_EQ(after.x, 300);
        EXPECT_EQ(after.y, 150);
        EXPECT_NEAR(after.width, 1.5 * before.width, 1);
        EXPECT_NEAR(after.height, 1.5 * before.height, 1);
        for (const HWND child : FindWindowRecord(stage.panel->m_hWnd)->children) {
            const CRect& place = FindWindowRecord(child)->place;
            const User::Area shown = User::PlaceOf(display.NativeOf(child));
            EXPECT_NEAR(shown.x - after.x, 1.5 * place.left, 1);
            EXPECT_NEAR(shown.y - after.y, 1.5 * place.top, 1);
            EXPECT_NEAR(shown.width, 1.5 * place.Width(), 1);
        }
    }
}

TEST_F(DisplayTest, TheBoxKeepsItsOwnWaysAndTheModuleHearsOfThem)
{
    Stage stage(Shown::Stirrup);
    User::Handle box = Native(stage, SpacingBox);
    Click(box);
    EXPECT_EQ(User::Focused(), box);
    User::Key(VK_END);
    for (int i = 0; i < 3; ++i) {
        User::Key(VK_BACK);
    }
    Type(L"250");
    User::Key(VK_HOME);
    User::Key(VK_RIGHT, VK_SHIFT);
    Type(L"1");  // over the selection
    EXPECT_EQ(TextOf(stage, SpacingBox), "150");
    EXPECT_EQ(FindWindowRecord(stage.panel->GetDlgItem(SpacingBox)->m_hWnd)->caret, 1);
    User::Key(VK_HOME);
    User::Key(VK_END, VK_SHIFT);
    User::Paste(L"200");
    EXPECT_EQ(TextOf(stage, SpacingBox), "200");
    User::Key(KeyZ, VK_CONTROL);
    EXPECT_EQ(TextOf(stage, SpacingBox), "150");
}

TEST_F(DisplayTest, ADigitsOnlyBoxRefusesLettersHoweverTheyCome)
{
    Stage stage(Shown::Horizontal);
    User::Handle box = Native(stage, DiameterBox);
    Click(box);
    User::Key(VK_END);
    const std::string before = TextOf(stage, DiameterBox);
    User::Paste(L"1x");
    Type(L"y8");
    EXPECT_EQ(TextOf(stage, DiameterBox), before + "8");
    EXPECT_EQ(User::TextOf(box), User::Wide(before + "8"));
}

// An input method types nothing while a text is composed, and hands the characters in at its end.
TEST_F(DisplayTest, TakesChineseFromAnInputMethodAndNothingThatGbkLacks)
{
    constexpr unsigned StartComposition = 0x10D, EndComposition = 0x10E, ImeCharacter = 0x286,
                       SetText = 0x0C;
    Stage stage(Shown::Elevation);
    User::Handle box = Native(stage, ElevationBox);
    Click(box);
    const std::string before = TextOf(stage, ElevationBox);
    User::Tell(box, StartComposition, 0, 0);
    User::Tell(box, SetText, 0, reinterpret_cast<std::intptr_t>(L"liang"));
    EXPECT_EQ(TextOf(stage, ElevationBox), before) << "not typed yet";
    User::Tell(box, SetText, 0, reinterpret_cast<std::intptr_t>(L""));
    User::Tell(box, ImeCharacter, L'\u6881', 1);
    User::Tell(box, EndComposition, 0, 0);
    EXPECT_EQ(TextOf(stage, ElevationBox), "\xC1\xBA");
    Type(L"\U0001F600\u0E01");  // no characters of GBK
    EXPECT_EQ(TextOf(stage, ElevationBox), "\xC1\xBA");
    EXPECT_EQ(User::TextOf(box), L"\u6881");
}

// Bytes that are no character show as a mark, and keep their values while the user edits beside them.
TEST_F(DisplayTest, ShowsAMarkForBytesThatAreNoCharacter)
{
    Stage stage(Shown::Elevation);
    stage.panel->GetDlgItem(ElevationBox)
        ->SetWindowText("\xCE\xDE"
                        "1\xB0");
    User::Handle box = Native(stage, ElevationBox);
    EXPECT_EQ(User::TextOf(box), L"\u65E0"
                                 L"1\uFFFD");
    Click(box);
    User::Key(VK_HOME);
    Type(L"2");
    EXPECT_EQ(TextOf(stage, ElevationBox), "2\xCE\xDE"
                                           "1\xB0");
}

TEST_F(DisplayTest, OpensInsideTheScreenTakesTheKeyboardAndGivesItBack)
{
    const User::Host host;
    Stage stage(Shown::Bars);
    stage.panel->ShowWindow(SW_HIDE);
    const User::Area screen = User::Screen();
    for (const CPoint corner : {CPoint(0, 0), CPoint(screen.width, screen.height), CPoint(600, 400)}) {
        ASSERT_EQ(User::Focused(), host.Box());
        const CRect field(corner.x, corner.y, corner.x + 50, corner.y + 20);
        display.OpenBeside(stage.panel->m_hWnd, field);
        User::Settle();
        const User::Area shown = User::PlaceOf(Native(stage));
        EXPECT_TRUE(User::IsVisible(Native(stage)));
        EXPECT_GE(shown.x, 0);
        EXPECT_GE(shown.y, 0);
        EXPECT_LE(shown.x + shown.width, screen.width);
        EXPECT_LE(shown.y + shown.height, screen.height);
        EXPECT_TRUE(shown.y >= field.bottom || shown.y + shown.height <= field.top);
        EXPECT_NE(User::Focused(), host.Box());
        User::Key(VK_ESCAPE);
        EXPECT_FALSE(User::IsVisible(Native(stage)));
        EXPECT_TRUE(stage.item.taken.empty());
    }
    EXPECT_EQ(User::Focused(), host.Box());
}

// Nothing composed: as Esc. Else the pop-up stays, and nothing is lost.
TEST_F(DisplayTest, APressElsewhereDismissesWhatHoldsNothingNew)
{
    for (const bool composed : {false, true}) {
        const User::Host host;
        Stage stage(Shown::Vertical);
        if (composed) {
            Click(Native(stage, 1307));
        }
        Click(host.Window());
        EXPECT_EQ(host.Clicks(), 1) << "and is still a press";
        EXPECT_EQ(stage.panel->IsWindowVisible() != FALSE, composed);
        EXPECT_TRUE(stage.item.taken.empty());
    }
}

// Over each control, also one that is disabled; the windows below get nothing of it.
TEST_F(DisplayTest, ARightPressIsEatenWholeAndDeliversOnce)
{
    const User::Host host;
    for (const Shown kind : AllShown) {
        for (std::size_t i = 0;; ++i) {
            Stage stage(kind);
            const std::vector<HWND> children = FindWindowRecord(stage.panel->m_hWnd)->children;
            if (i == children.size()) {
                break;
            }
            stage.panel->MoveWindow(650, 450, FindWindowRecord(stage.panel->m_hWnd)->place.Width(),
                                    FindWindowRecord(stage.panel->m_hWnd)->place.Height());
            if (kind == Shown::Elevation) {
                Click(Native(stage, ElevationBox));
                Type(L"1");
            }
            Click(display.NativeOf(children[i]), User::Button::Right);
            EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE) << static_cast<int>(kind) << " control " << i;
            const bool empty = kind == Shown::Name || kind == Shown::Stirrup;  // nothing composed yet
            EXPECT_EQ(stage.item.taken.size(), empty ? 0U : 1U)
                << static_cast<int>(kind) << " control " << i;
        }
    }
    EXPECT_EQ(host.RightEvents(), 0);
}

TEST_F(DisplayTest, KeysStandForTheRightButton)
{
    const std::pair<UINT, UINT> confirms[] = {
        {KeyMenu, 0}, {KeyF10, VK_SHIFT}, {VK_RETURN, VK_CONTROL}, {VK_RETURN, 0}};
    std::string wanted;
    for (const auto& [key, with] : confirms) {
        Stage stage(Shown::Vertical);
        constexpr int Grades = 1306, Diameters = 1307;
        for (const int id : {Grades, Diameters}) {
            for (int i = 0; i < 8 && CWnd::GetFocus() != stage.panel->GetDlgItem(id); ++i) {
                User::Key(VK_TAB);
            }
            EXPECT_EQ(User::Focused(), Native(stage, id));
            User::Key(VK_HOME);
            User::Key(VK_DOWN);
        }
        User::Key(key, with);
        EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE) << key;
        ASSERT_EQ(stage.item.taken.size(), 1U) << key;
        wanted = wanted.empty() ? stage.item.taken.front() : wanted;
        EXPECT_EQ(stage.item.taken.front(), wanted) << key;
    }
}

TEST_F(DisplayTest, AKeyThatIsHeldClicksAButtonOnce)
{
    Stage stage(Shown::Elevation);
    constexpr int Seven = 1311;
    stage.panel->GetDlgItem(Seven)->SetFocus();
    const std::string before = TextOf(stage, ElevationBox);
    constexpr std::intptr_t First = 1, Repeated = 0x40000001,
                            Released = 0xC0000001;  // as the system marks them
    for (const std::intptr_t lParam : {First, Repeated, Repeated}) {
        User::Tell(Native(stage, Seven), WM_KEYDOWN, VK_SPACE, lParam);
    }
    User::Tell(Native(stage, Seven), WM_KEYUP, VK_SPACE, Released);
    EXPECT_EQ(TextOf(stage, ElevationBox), before + "7");
}

TEST_F(DisplayTest, AMessageWaitsForItsAnswer)
{
    Stage stage(Shown::Name);
    Click(Native(stage, 1316));
    Type(L"KL");
    Click(Native(stage), User::Button::Right);
    EXPECT_EQ(stage.panel->IsWindowVisible(), FALSE);
    EXPECT_TRUE(stage.item.taken.empty());
}

// The host may close its windows in the middle of a delivery.
TEST_F(DisplayTest, APanelThatGoesWhileItDeliversLeavesNothingBehind)
{
    for (const Shown kind : AllShown) {
        auto stage = std::make_unique<Stage>(kind);
        User::Handle shown = Native(*stage);
        const CRect place = FindWindowRecord(stage->panel->m_hWnd)->place;
        stage->item.onTaken = [&stage] { stage->panel->DestroyWindow(); };
        User::Press(User::Button::Right, place.left + 1, place.top + 1);
        User::Release(User::Button::Right, place.left + 1, place.top + 1);
        EXPECT_FALSE(User::IsVisible(shown));
    }
    EXPECT_TRUE(AllWindows().empty());
}

}  // namespace
