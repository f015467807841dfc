// Windows and objects that go in the middle of what they are told.
#include <gtest/gtest.h>

#include <memory>

#include "TestPanel.h"
#include "platform/windows/Hands.h"

namespace {

using namespace TestPanelData;

// Each way in which the user makes the panel's handlers run.
const struct {
    const char* name;
    void (*act)(Hands& hands, const TestPanel& panel);
} Acts[] = {
    {"press", [](Hands& h, const TestPanel& p) { h.Click(Hands::OnRow(p.m_list, 2)); }},
    {"double click", [](Hands& h, const TestPanel& p) { h.DoubleClick(Hands::OnRow(p.m_list, 2)); }},
    {"arrow", [](Hands& h, const TestPanel&) { h.Key(VK_TAB), h.Key(VK_TAB), h.Key(VK_DOWN); }},
    {"type", [](Hands& h, const TestPanel&) { h.Type("x"); }},
    {"typed pair", [](Hands& h, const TestPanel&) { h.Type("\xCE\xDE"); }},
    {"button", [](Hands& h, const TestPanel& p) { h.DoubleClick(Hands::MiddleOf(*p.GetDlgItem(Button))); }},
    {"space",
     [](Hands& h, const TestPanel&) { h.Key(VK_TAB, true), h.Key(VK_TAB, true), h.Key(VK_SPACE); }},
    {"right press",
     [](Hands& h, const TestPanel& p) { h.RightClick(Hands::MiddleOf(*p.GetDlgItem(Dead))); }},
    {"key", [](Hands& h, const TestPanel&) { h.Key(VK_ESCAPE); }},
    {"door", [](Hands&, const TestPanel& p) { UserClicksButton(p.GetDlgItem(Button)->m_hWnd); }},
    {"own object",
     [](Hands&, const TestPanel& p) {
         CWnd* const button = p.GetDlgItem(Button);  // belongs to the window that goes
         button->SendMessage(WM_KEYDOWN, VK_SPACE);
         EXPECT_EQ(button->m_hWnd, nullptr);
     }},
};

TEST(Destroy, AHandlerMayDestroyTheWindowOrDeleteTheObject)
{
    for (const bool bDelete : {false, true}) {
        for (const auto& act : Acts) {
            Hands hands;
            auto panel = std::make_unique<TestPanel>();
            panel->Open();
            const HWND handle = panel->m_hWnd;
            int runs = 0;
            panel->m_then = [&] {
                ++runs;
                bDelete ? panel.reset() : static_cast<void>(panel->DestroyWindow());
            };
            act.act(hands, *panel);
            EXPECT_EQ(runs, 1) << act.name;
            EXPECT_FALSE(IsWindow(handle)) << act.name;
            EXPECT_EQ(CWnd::GetFocus(), nullptr) << act.name;
        }
    }
}

TEST(Destroy, TheObjectMayGoWhileAnEventIsOffered)
{
    for (const bool bAnswer : {false, true}) {
        Hands hands;
        auto panel = std::make_unique<TestPanel>();
        panel->Open();
        panel->m_onOffer = [&panel, bAnswer](const MSG&) {
            const auto doomed = std::move(panel);
            return bAnswer;
        };
        EXPECT_EQ(hands.Press(Hands::OnRow(panel->m_list, 1)), bAnswer);
        EXPECT_EQ(panel, nullptr);
        EXPECT_FALSE(hands.Release(CPoint(105, 130)));
    }
}

TEST(Destroy, AHandlerMayTakeAwayASingleControlOrOpenAnotherPanel)
{
    TestPanel panel;
    TestPanel other;
    Hands hands;
    panel.Open();
    panel.m_then = [&] {
        if (IsWindow(panel.m_list.m_hWnd)) {
            panel.m_list.DestroyWindow();
            other.Open(&panel);
        }
    };
    hands.Click(Hands::OnRow(panel.m_list, 1));
    EXPECT_EQ(panel.GetDlgItem(List), nullptr);
    EXPECT_TRUE(panel.UpdateData(TRUE));
    EXPECT_TRUE(other.IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), other.GetDlgItem(Box));
}

TEST(Destroy, MembersThatGoBeforeTheirDialogLeaveNothingBehind)
{
    HWND handle = nullptr;
    HWND list = nullptr;
    {
        TestPanel panel;
        panel.Open();
        handle = panel.m_hWnd;
        list = panel.m_list.m_hWnd;
    }
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_FALSE(IsWindow(list));
}

}  // namespace
