// List boxes: rows by program, rows by the user, scrolling and columns.
#include <gtest/gtest.h>

#include "TestPanel.h"
#include "platform/windows/Hands.h"

namespace {

using namespace TestPanelData;

class ListBox : public ::testing::Test {
protected:
    ListBox() { panel.Open(); }

    TestPanel panel;
    Hands hands;
    CListBox& list = panel.m_list;
    CListBox& columns = panel.m_columns;
};

TEST_F(ListBox, ProgramChangesKeepTheSelectedRowAndNotifyNobody)
{
    EXPECT_EQ(list.SetCurSel(4), 4);
    EXPECT_EQ(list.InsertString(2, "new"), 2);
    EXPECT_EQ(list.GetCurSel(), 5);
    EXPECT_EQ(list.InsertString(6, "behind"), 6);
    EXPECT_EQ(list.InsertString(-1, "last"), 12);
    EXPECT_EQ(list.InsertString(14, "gap"), -1);
    EXPECT_EQ(list.DeleteString(2), 12);
    EXPECT_EQ(list.GetCurSel(), 4);
    CString text;
    EXPECT_EQ(list.GetText(4, text), 1);
    EXPECT_TRUE(text == "4");
    EXPECT_EQ(list.SetCurSel(99), -1);
    EXPECT_EQ(list.GetCurSel(), 4);
    EXPECT_EQ(list.DeleteString(4), 11);
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(list.DeleteString(11), -1);
    EXPECT_EQ(list.SetCurSel(0), 0);
    EXPECT_EQ(list.SetCurSel(-1), -1);
    EXPECT_EQ(list.GetCurSel(), -1);
    list.ResetContent();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(panel.Heard(), Lines());
}

TEST_F(ListBox, MessagesDoWhatTheCallsDo)
{
    const auto lParam = [](const void* p) { return reinterpret_cast<LPARAM>(p); };
    EXPECT_EQ(list.SendMessage(LB_SETCURSEL, 3), 3);
    EXPECT_EQ(list.SendMessage(LB_INSERTSTRING, 0, lParam("abc")), 0);
    EXPECT_EQ(list.SendMessage(LB_GETCURSEL), 4);
    char buffer[8];
    EXPECT_EQ(list.SendMessage(LB_GETTEXTLEN, 0), 3);
    EXPECT_EQ(list.SendMessage(LB_GETTEXT, 0, lParam(buffer)), 3);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(list.SendMessage(LB_GETTEXT, 50, lParam(buffer)), -1);
    EXPECT_EQ(list.SendMessage(LB_DELETESTRING, 0), 10);
    EXPECT_EQ(list.SendMessage(LB_ADDSTRING, 0, lParam("z")), 10);
    EXPECT_EQ(list.SendMessage(LB_GETCOUNT), 11);
    EXPECT_EQ(list.SendMessage(LB_SETCURSEL, static_cast<WPARAM>(-1)), -1);
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(list.SendMessage(LB_SETTOPINDEX, 2), 0);
    CRect rect;
    EXPECT_EQ(list.SendMessage(LB_GETITEMRECT, 3, lParam(static_cast<RECT*>(&rect))), 0);
    EXPECT_EQ(rect, CRect(0, 12, 30, 24));
    EXPECT_EQ(panel.Heard(), Lines());
}

TEST_F(ListBox, APressOnARowPicksItAtOnceAndEachTime)
{
    hands.Press(Hands::OnRow(list, 2));
    EXPECT_EQ(panel.Heard(), Lines{"list 2"});
    hands.Release(Hands::OnRow(list, 2));
    EXPECT_EQ(panel.Heard(), Lines());
    hands.Click(Hands::OnRow(list, 2));
    EXPECT_EQ(panel.Heard(), Lines{"list 2"});
    hands.DoubleClick(Hands::OnRow(list, 3));
    EXPECT_EQ(panel.Heard(), Lines{"list 3"});
    hands.RightClick(Hands::OnRow(list, 1));
    EXPECT_EQ(list.GetCurSel(), 3);
    list.ResetContent();
    list.AddString("only");
    hands.Click(CPoint(105, 125 + 12));  // below the only row
    EXPECT_EQ(panel.Heard(), Lines());
    EXPECT_EQ(list.GetCurSel(), -1);
}

TEST_F(ListBox, KeysMoveTheSelectionAsAPickAndStopAtTheEnds)
{
    list.SetFocus();
    struct {
        UINT key;
        Lines heard;
    } const steps[] = {
        {VK_DOWN, {"list 0"}}, {VK_DOWN, {"list 1"}}, {VK_RIGHT, {"list 2"}}, {VK_LEFT, {"list 1"}},
        {VK_UP, {"list 0"}},   {VK_UP, {}},           {VK_END, {"list 9"}},   {VK_DOWN, {}},
        {VK_HOME, {"list 0"}}, {VK_NEXT, {"list 5"}}, {VK_NEXT, {"list 9"}},  {VK_PRIOR, {"list 4"}},
    };
    for (const auto& step : steps) {
        hands.Key(step.key);
        EXPECT_EQ(panel.Heard(), step.heard) << step.key;
        CRect rect;
        list.GetItemRect(list.GetCurSel(), &rect);
        EXPECT_TRUE(rect.top >= 0 && rect.bottom <= 60) << step.key;
    }
    list.ResetContent();
    hands.Key(VK_DOWN);  // no use for it: the parent sees it
    EXPECT_EQ(panel.Heard(), Lines{"key 40"});
}

TEST_F(ListBox, EveryRowCanBeTheTopOne)
{
    EXPECT_EQ(list.SetTopIndex(9), 0);
    EXPECT_EQ(list.GetTopIndex(), 9);
    EXPECT_EQ(list.SetTopIndex(10), -1);
    CRect rect;
    list.GetItemRect(9, &rect);
    EXPECT_EQ(rect, CRect(0, 0, 30, 12));
    list.GetItemRect(8, &rect);
    EXPECT_EQ(rect.bottom, 0);
    EXPECT_EQ(list.GetItemRect(10, &rect), -1);
    hands.Click(CPoint(105, 125));
    EXPECT_EQ(panel.Heard(), Lines{"list 9"});
    list.DeleteString(9);
    EXPECT_EQ(list.GetTopIndex(), 8);
    list.SetCurSel(2);  // scrolled into view
    EXPECT_EQ(list.GetTopIndex(), 2);
    list.SetCurSel(7);
    EXPECT_EQ(list.GetTopIndex(), 3);
}

TEST_F(ListBox, TheWheelScrollsWithinTheRowsAndPicksNothing)
{
    const CPoint over = Hands::MiddleOf(list);
    for (const auto& [notches, top] : {std::pair{-1, 3}, {-1, 5}, {-9, 5}, {1, 2}, {3, 0}}) {
        hands.Wheel(over, notches);
        EXPECT_EQ(list.GetTopIndex(), top);
    }
    for (int part = 0; part < 4; ++part) {  // a touchpad's small turns add up
        Hands::Send({list.m_hWnd, WM_MOUSEWHEEL, MAKEWPARAM(0, -30), 0, 0, over});
    }
    EXPECT_EQ(list.GetTopIndex(), 3);
    hands.Wheel(Hands::MiddleOf(columns), -1);
    EXPECT_EQ(columns.GetTopIndex(), 3);
    EXPECT_EQ(panel.Heard(), Lines());
}

TEST_F(ListBox, AMultiColumnListHasOneRowAColumn)
{
    CRect rect;
    columns.GetItemRect(2, &rect);
    EXPECT_EQ(rect, CRect(40, 0, 60, 12));
    columns.GetItemRect(3, &rect);
    EXPECT_EQ(rect.left, 60);  // out of view: behind the client area
    columns.SetTopIndex(4);
    columns.GetItemRect(3, &rect);
    EXPECT_EQ(rect, CRect(-20, 0, 0, 12));
    hands.Click(Hands::OnRow(columns, 5));
    EXPECT_EQ(panel.Heard(), Lines{"columns 5"});
    columns.MoveWindow(30, 12, 60, 20);
    hands.Click(CPoint(135, 112 + 15));  // below the row's 12 pixels
    EXPECT_EQ(panel.Heard(), Lines());
    columns.SetCurSel(9);
    EXPECT_EQ(columns.GetTopIndex(), 7);
    hands.ClickRow(panel, Columns, 0);
    EXPECT_EQ(panel.Heard(), Lines{"columns 0"});
}

}  // namespace
