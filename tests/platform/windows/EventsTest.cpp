// Who is offered an event, who gets it, and which window lies under the pointer.
#include <gtest/gtest.h>

#include "TestPanel.h"
#include "platform/windows/Hands.h"

namespace {

using namespace TestPanelData;

// An edit box object that finishes events itself when asked to.
class Greedy : public CEdit {
public:
    BOOL PreTranslateMessage(MSG* /*pMsg*/) override
    {
        ++m_offers;
        return m_bTakes;
    }
    BOOL m_bTakes = FALSE;
    int m_offers = 0;
};

TEST(Events, AnEventIsOfferedUpToThePopUpAndNotBeyond)
{
    TestPanel outer;
    TestPanel inner;
    inner.Open(&outer.Open());
    Greedy box;
    CDataExchange exchange(&inner, FALSE);
    DDX_Control(&exchange, Box, box);
    outer.Heard(true);
    inner.Heard(true);

    MSG msg{box.m_hWnd, WM_KEYDOWN, VK_F4, 0, 0, {}};
    EXPECT_FALSE(AfxPreTranslateMessage(&msg));
    EXPECT_EQ(box.m_offers, 1);
    EXPECT_EQ(inner.Heard(true), Lines{"offer 256"});
    box.m_bTakes = TRUE;
    EXPECT_TRUE(AfxPreTranslateMessage(&msg));
    EXPECT_EQ(inner.Heard(true), Lines());
    msg.hwnd = inner.m_hWnd;
    EXPECT_FALSE(AfxPreTranslateMessage(&msg));
    EXPECT_EQ(inner.Heard(true), Lines{"offer 256"});
    EXPECT_EQ(outer.Heard(true), Lines());
    MSG nobody{};
    EXPECT_FALSE(AfxPreTranslateMessage(&nobody));
    EXPECT_EQ(DispatchMessage(&nobody), 0);
}

TEST(Events, WhatIsFinishedEarlyNeverReachesItsTarget)
{
    TestPanel panel;
    Hands hands;
    panel.Open();
    panel.m_onOffer = [](const MSG& msg) { return msg.message == WM_LBUTTONDOWN; };
    hands.Click(Hands::OnRow(panel.m_list, 1));
    EXPECT_EQ(panel.m_list.GetCurSel(), -1);
}

TEST(Events, LabelsAndDisabledControlsLeaveTheirEventsToTheParent)
{
    TestPanel panel;
    panel.Open();
    for (const int id : {Label, Dead}) {
        CWnd& control = *panel.GetDlgItem(id);
        EXPECT_EQ(WindowFromPoint(Hands::MiddleOf(control)), panel.m_hWnd);
        panel.Heard();
        CPoint inside(4, 5);
        const MSG msg{control.m_hWnd, WM_RBUTTONDOWN, 0, MAKELPARAM(4, 5), 0, {}};
        DispatchMessage(&msg);
        control.ClientToScreen(&inside);
        EXPECT_EQ(panel.Heard(), (Lines{"right " + std::to_string(inside.x - 100) + "," +
                                        std::to_string(inside.y - 100)}));
    }
    auto& dead = dynamic_cast<CListBox&>(*panel.GetDlgItem(Dead));
    dead.AddString("row");
    const MSG press{dead.m_hWnd, WM_LBUTTONDOWN, 0, MAKELPARAM(4, 5), 0, {}};
    DispatchMessage(&press);
    dead.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(4, 5));
    EXPECT_FALSE(UserPicksRow(dead.m_hWnd, 0));
    EXPECT_EQ(dead.GetCurSel(), -1);

    panel.EnableWindow(FALSE);
    EXPECT_EQ(WindowFromPoint(Hands::MiddleOf(panel)), nullptr);
    const MSG right{panel.m_hWnd, WM_RBUTTONDOWN, 0, 0, 0, {}};
    DispatchMessage(&right);
    EXPECT_FALSE(UserPicksRow(panel.m_list.m_hWnd, 0));
    EXPECT_EQ(panel.Heard(), Lines());
}

TEST(Events, AKeyWithoutAUseGoesToTheParentAndAMouseEventDoesNot)
{
    TestPanel outer;
    TestPanel panel;
    Hands hands;
    panel.Open(&outer.Open());
    for (const int id : {Box, List, Button}) {
        panel.GetDlgItem(id)->SetFocus();
        hands.Key(VK_ESCAPE);
        EXPECT_EQ(panel.Heard(), Lines{"key 27"}) << id;
        hands.RightClick(panel, id);
        EXPECT_EQ(panel.Heard(), Lines()) << id;
    }
    EXPECT_EQ(outer.Heard(), Lines());
}

TEST(Events, AButtonIsClickedByPressAndReleaseOnIt)
{
    TestPanel panel;
    Hands hands;
    panel.Open();
    const CPoint on = Hands::MiddleOf(*panel.GetDlgItem(Button));
    const CPoint off = Hands::MiddleOf(*panel.GetDlgItem(Label));
    hands.Click(on);
    EXPECT_EQ(panel.Heard(), Lines{"button"});
    hands.DoubleClick(on);
    EXPECT_EQ(panel.Heard(), (Lines{"button", "button"}));
    hands.Drag(on, off);
    hands.Release(on);
    hands.Drag(off, on);
    EXPECT_EQ(panel.Heard(), Lines());
    hands.Press(on);  // a host that sends the release to the window under the pointer
    Hands::Send({panel.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(2, 2), 0, off});
    hands.Release(on);
    EXPECT_EQ(panel.Heard(), Lines());
    panel.GetDlgItem(Button)->SetFocus();
    hands.Key(VK_SPACE);
    EXPECT_EQ(panel.Heard(), Lines{"button"});
}

TEST(Events, ThePointerMeetsTheTopmostShownWindow)
{
    CWnd frame;
    frame.CreateFrame(CRect(0, 0, 400, 400));
    const CPoint place(105, 150);
    EXPECT_EQ(WindowFromPoint(place), nullptr);
    TestPanel first;
    TestPanel second;
    first.Open(&frame);
    second.Open(&frame);
    EXPECT_EQ(WindowFromPoint(place), second.m_list.m_hWnd);
    first.ShowWindow(SW_SHOW);
    EXPECT_EQ(WindowFromPoint(place), first.m_list.m_hWnd);
    frame.ShowWindow(SW_SHOW);  // its pop-ups stay above it
    EXPECT_EQ(WindowFromPoint(place), second.m_list.m_hWnd);
    second.m_list.ShowWindow(SW_HIDE);
    EXPECT_EQ(WindowFromPoint(place), second.m_hWnd);
    second.ShowWindow(SW_HIDE);
    first.ShowWindow(SW_HIDE);
    EXPECT_EQ(WindowFromPoint(place), frame.m_hWnd);
    EXPECT_EQ(WindowFromPoint(CPoint(400, 0)), nullptr);
}

}  // namespace
