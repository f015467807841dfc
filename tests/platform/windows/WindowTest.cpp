// Windows, their objects and their places.
#include <gtest/gtest.h>

#include <limits>

#include "TestPanel.h"

namespace {

using namespace TestPanelData;

TEST(Window, AHandleOfADestroyedWindowStaysGoodForNothing)
{
    TestPanel panel;
    panel.Open();
    const HWND first = panel.m_hWnd;
    const HWND list = panel.m_list.m_hWnd;
    EXPECT_TRUE(panel.DestroyWindow());
    EXPECT_FALSE(panel.DestroyWindow());
    EXPECT_EQ(panel.m_hWnd, nullptr);
    EXPECT_EQ(panel.m_list.m_hWnd, nullptr);

    panel.Open();  // the object and its list serve again, for another window
    EXPECT_EQ(panel.m_list.GetCount(), 10);
    EXPECT_NE(panel.m_hWnd, first);
    EXPECT_FALSE(IsWindow(first));
    EXPECT_FALSE(IsWindow(list));
    EXPECT_EQ(CWnd::FromHandle(first), nullptr);
    EXPECT_EQ(SendMessage(list, LB_GETCOUNT), 0);
}

TEST(Window, WithoutAWindowNothingHappensAndNothingIsAnswered)
{
    TestPanel panel;
    CWnd hollow;
    CRect rect(1, 2, 3, 4);
    CString text("x");
    panel.m_strBox = "kept";
    EXPECT_FALSE(panel.Create(Id + 1));
    EXPECT_FALSE(panel.UpdateData(FALSE));
    EXPECT_FALSE(panel.UpdateData(TRUE));
    EXPECT_TRUE(panel.m_strBox == "kept");
    EXPECT_EQ(panel.GetDlgItem(List), nullptr);
    EXPECT_EQ(panel.m_list.AddString("a"), -1);
    EXPECT_EQ(panel.m_list.GetCount(), -1);
    EXPECT_EQ(panel.m_list.GetCurSel(), -1);
    EXPECT_EQ(panel.m_list.SetCurSel(0), -1);
    EXPECT_EQ(panel.m_list.GetTopIndex(), -1);
    EXPECT_EQ(panel.m_list.GetText(0, text), -1);
    EXPECT_TRUE(text.IsEmpty());
    hollow.MoveWindow(0, 0, 5, 5);
    hollow.GetWindowRect(&rect);
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    EXPECT_FALSE(hollow.ShowWindow(SW_SHOW));
    EXPECT_FALSE(hollow.IsWindowVisible());
    EXPECT_EQ(hollow.SendMessage(WM_RBUTTONDOWN), 0);
    EXPECT_EQ(hollow.GetParent(), nullptr);
}

TEST(Window, TheTemplateGivesSizesInPixelsAndControlsInOrder)
{
    TestPanel panel;
    EXPECT_TRUE(panel.Create(Id));
    EXPECT_FALSE(panel.Create(Id));
    EXPECT_FALSE(panel.IsWindowVisible());
    CRect rect;
    panel.GetClientRect(&rect);
    EXPECT_EQ(rect, CRect(0, 0, 90, 90));
    panel.MoveWindow(1000, -50, 90, 90);
    panel.m_list.GetWindowRect(&rect);
    EXPECT_EQ(rect, CRect(1000, -26, 1030, 34));
    CPoint point(1001, -25);
    panel.m_list.ScreenToClient(&point);
    EXPECT_EQ(point, CPoint(1, 1));
    panel.m_list.ClientToScreen(&point);
    EXPECT_EQ(point, CPoint(1001, -25));

    std::vector<int> ids;
    for (CWnd* child = panel.GetTopWindow(); child != nullptr; child = child->GetNextWindow()) {
        ids.push_back(child->GetDlgCtrlID());
        EXPECT_EQ(child->GetParent(), &panel);
    }
    EXPECT_EQ(ids, (std::vector<int>{Label, Box, Digits, List, Dead, Columns, Button, RightBox}));
    EXPECT_EQ(panel.GetDlgItem(Digits)->GetNextWindow(GW_HWNDPREV), panel.GetDlgItem(Box));

    static_assert(DialogUnitsAcross(97) == 146 && DialogUnitsDown(109) == 164);
    static_assert(DialogUnitsAcross(54) == 81 && DialogUnitsDown(93) == 140);
}

TEST(Window, PositionsThatNoScreenHasCountAsTheFarthest)
{
    constexpr int Far = 1 << 28;
    constexpr int Low = std::numeric_limits<int>::min();
    constexpr int High = std::numeric_limits<int>::max();
    CWnd frame;
    frame.CreateFrame(CRect(Low, High, High, Low));
    CRect rect;
    frame.GetWindowRect(&rect);
    EXPECT_EQ(rect, CRect(-Far, Far, 0, Far));
    const CRect asked(High, Low, High, High);
    frame.MoveWindow(&asked);
    frame.GetWindowRect(&rect);
    EXPECT_EQ(rect, CRect(Far, -Far, Far, 0));
    CPoint point(Low, High);
    frame.ScreenToClient(&point);
    EXPECT_EQ(point, CPoint(-2 * Far, 2 * Far));
    point = CPoint(High, Low);
    frame.ClientToScreen(&point);
    EXPECT_EQ(point, CPoint(2 * Far, -2 * Far));
}

TEST(Window, GetDlgItemGivesTheAttachedObjectOrOneOfTheControlsClass)
{
    TestPanel panel;
    panel.Open();
    EXPECT_EQ(panel.GetDlgItem(List), &panel.m_list);
    EXPECT_NE(dynamic_cast<CListBox*>(panel.GetDlgItem(Dead)), nullptr);
    EXPECT_NE(dynamic_cast<CEdit*>(panel.GetDlgItem(Box)), nullptr);
    EXPECT_NE(dynamic_cast<CButton*>(panel.GetDlgItem(Button)), nullptr);
    EXPECT_NE(dynamic_cast<CStatic*>(panel.GetDlgItem(Label)), nullptr);
    EXPECT_EQ(panel.GetDlgItem(1), nullptr);
    CString caption;
    panel.GetDlgItem(Label)->GetWindowText(caption);
    EXPECT_TRUE(caption == "\xC1\xBA\xBF\xED");

    auto* const dead = dynamic_cast<CListBox*>(panel.GetDlgItem(Dead));
    panel.DestroyWindow();
    EXPECT_EQ(dead->GetCount(), -1);  // stays, hollow, until the next window is made
    {
        CWnd* const list = &panel.m_list;
        EXPECT_EQ(list->m_hWnd, nullptr);
    }
}

TEST(Window, AControlThatLosesItsObjectLivesOn)
{
    TestPanel panel;
    panel.Open();
    CWnd* const own = panel.GetDlgItem(RightBox);
    {
        CEdit late;
        CEdit second;
        CDataExchange exchange(&panel, FALSE);
        DDX_Control(&exchange, RightBox, late);
        DDX_Control(&exchange, RightBox, second);
        EXPECT_EQ(panel.GetDlgItem(RightBox), &late);
        EXPECT_EQ(second.m_hWnd, nullptr);
    }
    EXPECT_EQ(panel.GetDlgItem(RightBox), own);
}

TEST(Window, PopUpsAreNobodysChildrenAndGoWithTheirParent)
{
    CWnd frame;
    ASSERT_TRUE(frame.CreateFrame(CRect(10, 20, 500, 400)));
    EXPECT_FALSE(frame.CreateFrame(CRect()));
    TestPanel panel;
    panel.Create(Id, &frame);
    EXPECT_EQ(panel.GetParent(), &frame);
    EXPECT_EQ(frame.GetTopWindow(), nullptr);
    CRect rect;
    panel.GetWindowRect(&rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(10, 20));
    frame.MoveWindow(0, 0, 5, 5);
    panel.GetWindowRect(&rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(10, 20));
    {
        TestPanel inner;
        inner.Open(&panel);
        EXPECT_EQ(inner.GetParent(), &panel);
    }
    TestPanel hollow;
    TestPanel orphan;
    orphan.Create(Id, &hollow);
    EXPECT_EQ(orphan.GetParent(), nullptr);
    frame.DestroyWindow();
    EXPECT_EQ(panel.m_hWnd, nullptr);
    EXPECT_TRUE(IsWindow(orphan.m_hWnd));
}

TEST(Window, VisibleAndEnabledAreAskedOfTheWindowThatHolds)
{
    TestPanel panel;
    panel.Create(Id);
    EXPECT_FALSE(panel.m_list.IsWindowVisible());
    EXPECT_FALSE(panel.ShowWindow(SW_SHOW));
    EXPECT_TRUE(panel.m_list.IsWindowVisible());
    EXPECT_TRUE(panel.m_list.ShowWindow(SW_HIDE));
    EXPECT_FALSE(panel.m_list.IsWindowVisible());
    EXPECT_TRUE(panel.ShowWindow(SW_HIDE));
    EXPECT_FALSE(panel.GetDlgItem(Dead)->IsWindowEnabled());
    EXPECT_TRUE(panel.GetDlgItem(Dead)->EnableWindow());
    EXPECT_FALSE(panel.GetDlgItem(Dead)->EnableWindow(FALSE));
}

TEST(MessageBox, GoesToTheFunctionAndReturnsWithoutOne)
{
    static CString said;
    EXPECT_EQ(AfxMessageBox("nobody"), IDOK);
    SetMessageBoxFunc([](const CString& text) {
        said = text;
        return 7;
    });
    EXPECT_EQ(AfxMessageBox("hello"), 7);
    SetMessageBoxFunc(nullptr);
    EXPECT_EQ(AfxMessageBox("again"), IDOK);
    EXPECT_TRUE(said == "hello");
}

}  // namespace
