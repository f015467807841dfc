// Data exchange: both ways, the notification lock, and the caret it leaves alone.
#include <gtest/gtest.h>

#include <stdexcept>

#include "TestPanel.h"
#include "platform/windows/Hands.h"

namespace {

using namespace TestPanelData;

TEST(Exchange, FieldsAndBoxesBothWays)
{
    TestPanel panel;
    panel.m_strBox = "start";
    panel.Open();
    EXPECT_TRUE(panel.TextOf(Box) == "start");
    panel.GetDlgItem(Digits)->SetWindowText("12");
    EXPECT_TRUE(panel.UpdateData());
    EXPECT_TRUE(panel.m_strDigits == "12");
    CString missing("kept");
    CDataExchange exchange(&panel, TRUE);
    DDX_Text(&exchange, 1, missing);
    EXPECT_TRUE(missing == "kept");
}

TEST(Exchange, ABoxWithTheSameTextKeepsItsCaret)
{
    TestPanel panel;
    Hands hands;
    panel.Open();
    panel.m_then = [&] {  // a panel that brings its boxes up to date after each stroke
        panel.UpdateData(TRUE);
        panel.UpdateData(FALSE);
    };
    hands.TypeInto(panel, Box, "ad");
    hands.Key(VK_LEFT);
    hands.Type("bc");
    EXPECT_TRUE(panel.TextOf(Box) == "abcd");
}

TEST(Exchange, NotificationsAreDroppedWhileItRunsAndComeAfterwards)
{
    TestPanel panel;
    panel.Open();
    const auto meddle = [&] {
        UserPicksRow(panel.m_list.m_hWnd, 3);
        UserEditsText(panel.GetDlgItem(Box)->m_hWnd, "typed");
    };
    bool bNested = false;
    panel.m_exchange = [&] {
        if (!bNested) {
            bNested = true;
            panel.UpdateData(TRUE);
        }
        meddle();  // the inner exchange must not have opened the lock
    };
    panel.UpdateData(TRUE);
    EXPECT_EQ(panel.m_list.GetCurSel(), 3);
    EXPECT_EQ(panel.Heard(), Lines());

    panel.m_exchange = [] { throw std::runtime_error("host"); };
    EXPECT_THROW(panel.UpdateData(TRUE), std::runtime_error);
    UserPicksRow(panel.m_list.m_hWnd, 4);
    EXPECT_EQ(panel.Heard(), Lines{"list 4"});

    TestPanel other;
    other.Open();
    panel.m_exchange = [&] { UserPicksRow(other.m_list.m_hWnd, 1); };
    panel.UpdateData(TRUE);
    EXPECT_EQ(other.Heard(), Lines{"list 1"});
}

TEST(Exchange, ThePanelMayGoWhileItRuns)
{
    auto* const panel = new TestPanel;
    panel->Open();
    const HWND handle = panel->m_hWnd;
    panel->m_exchange = [&] { panel->DestroyWindow(); };
    EXPECT_TRUE(panel->UpdateData(TRUE));
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_FALSE(panel->Create(Id));  // destroyed again while OnInitDialog runs
    EXPECT_EQ(panel->m_hWnd, nullptr);
    delete panel;
}

}  // namespace
