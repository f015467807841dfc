// What all panels share: dragging, confirming, dismissing, and receivers that change everything meanwhile.
#include <gtest/gtest.h>

#include <limits>

#include "platform/windows/Display.h"
#include "tests/panels/Panels.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Watched.h"

namespace {

template <class Kit>
class PanelFrameTest : public testing::Test {
};
using Kits = testing::Types<NameKit, SectionKit, LevelKit, StirrupKit>;
TYPED_TEST_SUITE(PanelFrameTest, Kits);

TYPED_TEST(PanelFrameTest, RightPressAnywhereHidesAndDeliversOnce)
{
    Stage<TypeParam> stage;
    CWnd* control = stage.panel->GetTopWindow();
    for (; control != nullptr; control = control->GetNextWindow()) {
        stage.Show(TypeParam::Text);
        bool hiddenBefore = false;
        stage.receiver.m_answer = [&] { hiddenBefore = stage.panel->IsWindowVisible() == FALSE; };
        stage.hands.RightClick(Hands::MiddleOf(*control));
        EXPECT_TRUE(hiddenBefore);
        EXPECT_FALSE(stage.panel->IsWindowVisible());
        // The same press from a shell that names the control itself, label or disabled as it may be.
        Hands::Send({control->m_hWnd, WM_RBUTTONDOWN, 0, 0, 0, Hands::MiddleOf(*control)});
        EXPECT_EQ(stage.receiver.m_items, Texts(2, TypeParam::Text)) << control->GetDlgCtrlID();
        stage.receiver.Forget();
    }
    stage.Show(TypeParam::Text);
    EXPECT_TRUE(stage.hands.RightClick(stage.BareSurface()));
    EXPECT_EQ(stage.receiver.m_items, Texts{TypeParam::Text});
    EXPECT_TRUE(stage.receiver.m_calls.empty());
}

// What takes no input leaves a press to the panel, which has had this one already.
TYPED_TEST(PanelFrameTest, ReceiverDisablesOrHidesWhatWasPressed)
{
    Stage<TypeParam> stage;
    CWnd* control = stage.panel->GetTopWindow();
    for (; control != nullptr; control = control->GetNextWindow()) {
        for (const bool hides : {true, false}) {
            stage.receiver.m_answer = [&] {
                hides ? control->ShowWindow(SW_HIDE) : control->EnableWindow(FALSE);
            };
            stage.Show(TypeParam::Text);
            stage.hands.RightClick(Hands::MiddleOf(*control));
            EXPECT_EQ(stage.receiver.Count(), 1U) << control->GetDlgCtrlID() << hides;
            stage.receiver.Forget();
            control->ShowWindow(SW_SHOW);
            control->EnableWindow();
        }
    }
}

// Hiding tells the display, which may take the item away.
TYPED_TEST(PanelFrameTest, DeliversToTheItemThatIsSetAfterTheHide)
{
    struct Taker : Display {
        explicit Taker(CPropertyGridItem*& pItem) : m_pItem(pItem) { SetDisplay(this); }
        ~Taker() override { SetDisplay(nullptr); }
        void WindowCreated(const WindowRecord&) override {}
        void WindowChanged(const WindowRecord&, WindowChange) override { m_pItem = nullptr; }
        void WindowDestroyed(HWND) override {}
        int ShowMessageBox(const CString&) override { return IDOK; }
        CPropertyGridItem*& m_pItem;
    };
    Stage<TypeParam> stage;
    const Taker taker(stage.panel->m_pItem);
    stage.hands.RightClick(stage.BareSurface());
    EXPECT_EQ(stage.receiver.Count(), 0U);
    EXPECT_FALSE(stage.panel->IsWindowVisible());
}

TYPED_TEST(PanelFrameTest, GoesToParentHostDataOrNobody)
{
    Stage<TypeParam> stage;
    auto& panel = *stage.panel;
    panel.m_bToItem = false;
    stage.hands.RightClick(panel, TypeParam::Edit);
    int hostData = 0;
    if constexpr (!std::is_same_v<TypeParam, NameKit>) {
        panel.m_bInParent = false;
        panel.m_pHostData = &hostData;
    }
    stage.Show(TypeParam::Text);
    stage.hands.RightClick(panel, TypeParam::Edit);
    const void* const first =
        std::is_same_v<TypeParam, NameKit> ? static_cast<void*>(&stage.frame) : &hostData;
    EXPECT_EQ(stage.receiver.m_calls,
              (std::vector<Delivery>{{&stage.frame, 1, TypeParam::Text, TypeParam::Code},
                                     {first, TypeParam::HostMode, TypeParam::Text, TypeParam::Code}}));
    EXPECT_TRUE(stage.receiver.m_items.empty());

    stage.receiver.Forget();
    SetBeamMouseInputFunc(nullptr);
    stage.Show(TypeParam::Text);
    stage.hands.RightClick(panel, TypeParam::Edit);
    EXPECT_FALSE(panel.IsWindowVisible());
    panel.m_bToItem = true;
    panel.m_pItem = nullptr;
    stage.Show(TypeParam::Text);
    stage.hands.RightClick(panel, TypeParam::Edit);
    EXPECT_FALSE(panel.IsWindowVisible());
    EXPECT_EQ(stage.receiver.Count(), 0U);
}

TYPED_TEST(PanelFrameTest, ParentIsTheWindowsNotTheConstructors)
{
    Stage<TypeParam> stage;
    auto panel = [&stage] {
        if constexpr (std::is_same_v<TypeParam, LevelKit>) {
            return CBeamLevelDlg(&stage.frame);
        } else {
            return typename TypeParam::Panel(TypeParam::Text, &stage.frame);
        }
    }();
    panel.Create(TypeParam::Panel::IDD);
    TypeParam::Show(panel, TypeParam::Text);
    panel.m_bToItem = false;
    panel.OnRButtonDown(0, CPoint());
    EXPECT_EQ(stage.receiver.m_calls,
              (std::vector<Delivery>{{nullptr, 1, TypeParam::Text, TypeParam::Code}}));
}

TYPED_TEST(PanelFrameTest, EmptyTextHidesAndDeliversNothing)
{
    Stage<TypeParam> stage;
    stage.Show("");
    if (std::is_same_v<TypeParam, NameKit>) {  // the boxes count
        stage.hands.Retype(*stage.panel, 1316, "");
    }
    stage.hands.RightClick(*stage.panel, TypeParam::Edit);
    EXPECT_FALSE(stage.panel->IsWindowVisible());
    EXPECT_EQ(stage.receiver.Count(), 0U);
    EXPECT_TRUE(stage.receiver.m_messages.empty());
}

TYPED_TEST(PanelFrameTest, EscDismissesAndKeepsEverything)
{
    Stage<TypeParam> stage;
    stage.hands.Click(*stage.panel, TypeParam::Edit);
    EXPECT_TRUE(stage.hands.Key(VK_ESCAPE));
    EXPECT_FALSE(stage.panel->IsWindowVisible());
    EXPECT_EQ(stage.receiver.Count(), 0U);
    EXPECT_EQ(stage.panel->m_strResult, TypeParam::Text);
    stage.panel->ShowWindow(SW_SHOW);
    EXPECT_FALSE(stage.hands.Key(VK_RETURN));
    EXPECT_TRUE(stage.panel->IsWindowVisible());
    stage.hands.RightClick(*stage.panel, TypeParam::Edit);
    EXPECT_EQ(stage.receiver.m_items, Texts{TypeParam::Text});

    // A loop that offers no events: the key and the press still reach the window by dispatch.
    stage.panel->ShowWindow(SW_SHOW);
    stage.panel->SendMessage(WM_KEYDOWN, VK_ESCAPE);
    const bool hides = std::is_same_v<TypeParam, LevelKit> || std::is_same_v<TypeParam, StirrupKit>;
    EXPECT_EQ(stage.panel->IsWindowVisible(), hides ? FALSE : TRUE);
    stage.panel->SendMessage(WM_RBUTTONDOWN);
    EXPECT_EQ(stage.receiver.m_items, Texts(2, TypeParam::Text));
}

TYPED_TEST(PanelFrameTest, DragsByPressAndReleaseAnywhere)
{
    Stage<TypeParam> stage;
    const CRect start = stage.Place();
    const CPoint bare = stage.BareSurface();
    const HWND window = stage.panel->m_hWnd;
    Hands::Send({window, WM_LBUTTONUP, 0, 0, 0, {bare.x + 50, bare.y}});  // no press before it
    EXPECT_EQ(stage.Place(), start);

    stage.hands.Drag(bare, CPoint(bare.x + 30, bare.y - 7));
    EXPECT_EQ(stage.Place(), CRect(start.left + 30, start.top - 7, start.right + 30, start.bottom - 7));
    EXPECT_EQ(CPoint(stage.panel->m_nDownX, stage.panel->m_nDownY), bare);

    const CPoint control = Hands::MiddleOf(*stage.panel->GetDlgItem(TypeParam::Edit));
    stage.hands.Drag(control, CPoint(control.x - 200, control.y));
    EXPECT_EQ(stage.Place(), CRect(start.left - 170, start.top - 7, start.right - 170, start.bottom - 7));
    stage.hands.Click(*stage.panel, TypeParam::Edit);
    EXPECT_EQ(stage.Place().left, start.left - 170);
    EXPECT_EQ(stage.receiver.Count(), 0U);

    // Positions that no screen has: the panel goes as far as a window can.
    constexpr int Lowest = std::numeric_limits<int>::min();
    constexpr int Highest = std::numeric_limits<int>::max();
    Hands::Send({window, WM_LBUTTONDOWN, 0, 0, 0, {Lowest, Highest}});
    Hands::Send({window, WM_LBUTTONUP, 0, 0, 0, {Highest, Lowest}});
    EXPECT_EQ(stage.Place().TopLeft(), CPoint(1 << 28, -(1 << 28)));
    EXPECT_EQ(stage.Place().Width(), start.Width());
    EXPECT_EQ(stage.panel->m_nDownX, Lowest);
}

TYPED_TEST(PanelFrameTest, ReceiverDestroysTheWindowOrThePanel)
{
    Stage<TypeParam> stage;
    for (const bool toItem : {true, false}) {
        for (const bool wholePanel : {true, false}) {
            for (const bool bare : {true, false}) {
                stage.Build();
                stage.panel->m_bToItem = toItem;
                const HWND target =
                    bare ? stage.panel->m_hWnd : stage.panel->GetDlgItem(TypeParam::Edit)->m_hWnd;
                stage.receiver.m_answer = [&stage, wholePanel] {
                    wholePanel ? stage.panel.reset() : static_cast<void>(stage.panel->DestroyWindow());
                };
                MSG press{target, WM_RBUTTONDOWN, 0, 0, 0, stage.BareSurface()};
                EXPECT_FALSE(stage.panel->PreTranslateMessage(&press));
                EXPECT_FALSE(IsWindow(target));
                DispatchMessage(&press);
            }
        }
    }
    EXPECT_EQ(stage.receiver.Count(), 8U);
}

TYPED_TEST(PanelFrameTest, ReceiverMakesTheWindowAnewOrDestroysTheParent)
{
    Stage<TypeParam> stage;
    stage.receiver.m_answer = [&stage] {
        stage.panel->DestroyWindow();
        stage.panel->Create(TypeParam::Panel::IDD, &stage.frame);
        stage.panel->ShowWindow(SW_SHOW);
    };
    EXPECT_FALSE(stage.hands.RightClick(*stage.panel, TypeParam::Edit));
    EXPECT_TRUE(stage.panel->IsWindowVisible());

    stage.Build();
    stage.panel->m_bToItem = false;
    stage.receiver.m_answer = [&stage] { stage.frame.DestroyWindow(); };
    EXPECT_FALSE(stage.hands.RightClick(*stage.panel, TypeParam::Edit));
    EXPECT_EQ(stage.panel->m_hWnd, nullptr);
    stage.panel->OnRButtonDown(0, CPoint());
    EXPECT_EQ(stage.receiver.Count(), 3U);
}

TYPED_TEST(PanelFrameTest, ReceiverUsesPanelsRankersAndSlots)
{
    Stage<TypeParam> stage;
    stage.panel->m_bToItem = false;
    stage.receiver.m_answer = [&stage] {
        // Again, with another text; then another panel, a ranker, and other slots.
        stage.receiver.m_answer = [&stage] {
            CBeamSecDlg other("250x500");
            other.m_pItem = &stage.receiver;
            other.Create(CBeamSecDlg::IDD, &stage.frame);
            other.Init("250x500");
            other.ShowWindow(SW_SHOW);
            stage.hands.DoubleClickRow(other, 1317, 0);
            const FakeHost host;
            BEAMLEVEL_HITNESS_RANKER ranker;
            CStringArray levels;
            ranker.ProcessController(levels);
            SetBeamMouseInputFunc(nullptr);
        };
        stage.Show(TypeParam::Text);
        stage.hands.RightClick(*stage.panel, TypeParam::Edit);
    };
    stage.hands.RightClick(*stage.panel, TypeParam::Edit);
    EXPECT_EQ(stage.receiver.m_calls.size(), 2U);
    EXPECT_EQ(stage.receiver.m_items, Texts{"120x500"});
    EXPECT_FALSE(stage.panel->IsWindowVisible());
    stage.Show(TypeParam::Text);
    stage.hands.RightClick(*stage.panel, TypeParam::Edit);
    EXPECT_EQ(stage.receiver.m_calls.size(), 2U);
}

template <class Panel>
void ExpectForwarding(int control, std::size_t presses)
{
    Watched<Panel> panel;
    panel.Create(Panel::IDD);
    panel.ShowWindow(SW_SHOW);
    Hands().RightClick(panel, control);
    EXPECT_EQ(panel.m_presses.size(), 1U);
    MSG msg{panel.m_hWnd, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(3, 4), 0, {5, 6}};
    panel.TranslateMessage(&msg);
    msg.message = WM_LBUTTONDOWN;
    panel.TranslateMessage(&msg);
    EXPECT_EQ(panel.m_presses, std::vector(presses, typename Watched<Panel>::Press{0, 0, 0}));
}

TEST(PanelFrame, ARightPressReachesThePanelWithoutItsParameters)
{
    ExpectForwarding<CBeamNameDlg>(NameKit::Edit, 1);  // its TranslateMessage does nothing
    ExpectForwarding<CBeamSecDlg>(SectionKit::Edit, 2);
    ExpectForwarding<CBeamGujinDlg>(StirrupKit::Edit, 2);
    ExpectForwarding<CBeamSteelDlg>(1338, 2);
}

TYPED_TEST(PanelFrameTest, WithoutAWindow)
{
    Stage<TypeParam> stage;
    typename TypeParam::Panel panel;
    panel.m_pItem = &stage.receiver;
    TypeParam::Show(panel, TypeParam::Text);
    TypeParam::Init(panel);
    MSG msg{nullptr, WM_LBUTTONDOWN, 0, 0, 0, {5, 5}};
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_CHAR}) {
        msg.message = message;
        EXPECT_FALSE(panel.PreTranslateMessage(&msg));
    }
    EXPECT_TRUE(panel.Create(TypeParam::Panel::IDD));
}

}  // namespace
