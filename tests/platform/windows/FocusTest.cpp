// The focus: Tab, the press that takes it, and where it goes when a window hides.
#include <gtest/gtest.h>

#include "TestPanel.h"
#include "platform/windows/Hands.h"

namespace {

using namespace TestPanelData;

int FocusId()
{
    const CWnd* const focus = CWnd::GetFocus();
    return focus != nullptr ? focus->GetDlgCtrlID() : -1;
}

TEST(Focus, TabGoesRoundTheControlsThatTakeInput)
{
    TestPanel panel;
    Hands hands;
    panel.Open();
    EXPECT_EQ(FocusId(), Box);
    panel.GetDlgItem(Digits)->ShowWindow(SW_HIDE);
    for (const int id : {List, Columns, Button, RightBox, Box}) {
        EXPECT_TRUE(hands.Key(VK_TAB));
        EXPECT_EQ(FocusId(), id);
    }
    for (const int id : {RightBox, Button, Columns, List, Box, RightBox}) {
        hands.Key(VK_TAB, true);
        EXPECT_EQ(FocusId(), id);
    }
    EXPECT_TRUE(panel.TextOf(Box).IsEmpty());
    MSG msg{panel.GetDlgItem(List)->m_hWnd, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    panel.SetFocus();
    EXPECT_TRUE(panel.PreTranslateMessage(&msg));  // from the event's target
    EXPECT_EQ(FocusId(), Columns);
    for (const UINT key : {VK_RETURN, VK_ESCAPE}) {
        msg.wParam = key;
        EXPECT_FALSE(panel.PreTranslateMessage(&msg));
    }
}

TEST(Focus, APressTakesItAndALabelOrADisabledControlDoesNot)
{
    TestPanel panel;
    Hands hands;
    panel.Open();
    hands.Click(Hands::OnRow(panel.m_list, 1));
    EXPECT_EQ(FocusId(), List);
    hands.Click(panel, Label);
    hands.Click(panel, Dead);
    EXPECT_EQ(panel.GetDlgItem(Dead)->SetFocus(), &panel.m_list);
    EXPECT_EQ(FocusId(), List);
    panel.m_list.EnableWindow(FALSE);
    EXPECT_EQ(FocusId(), Box);
}

TEST(Focus, AHiddenPopUpGivesItBackAndFindsItsPlaceAgain)
{
    CWnd frame;
    frame.CreateFrame(CRect(0, 0, 800, 600));
    frame.ShowWindow(SW_SHOW);
    EXPECT_EQ(CWnd::GetFocus(), &frame);
    TestPanel panel;
    panel.Open(&frame);
    panel.m_list.SetFocus();
    panel.ShowWindow(SW_HIDE);
    EXPECT_EQ(CWnd::GetFocus(), &frame);
    panel.ShowWindow(SW_SHOW);
    EXPECT_EQ(CWnd::GetFocus(), &panel.m_list);
    TestPanel inner;
    inner.Open(&panel);
    EXPECT_EQ(CWnd::GetFocus(), inner.GetDlgItem(Box));
    inner.DestroyWindow();
    EXPECT_EQ(CWnd::GetFocus(), &panel.m_list);
    inner.Open(&panel);
    panel.DestroyWindow();  // takes the inner one along
    EXPECT_EQ(CWnd::GetFocus(), &frame);
    frame.DestroyWindow();
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

}  // namespace
