// The elevation panel: its keys by their captions, and the box that counts in the end.
#include <gtest/gtest.h>

#include "tests/panels/Panels.h"

namespace {

constexpr int LevelEdit = 1320;

class LevelPanel : public testing::Test, protected Stage<LevelKit> {
protected:
    // Clicks the buttons that carry these captions.
    void Click(std::initializer_list<const char*> captions)
    {
        for (const char* caption : captions) {
            CWnd* control = panel->GetTopWindow();
            CString text;
            for (; control != nullptr; control = control->GetNextWindow()) {
                control->GetWindowText(text);
                if (text == caption && dynamic_cast<CButton*>(control) != nullptr) {
                    break;
                }
            }
            ASSERT_NE(control, nullptr) << caption;
            hands.Click(Hands::MiddleOf(*control));
        }
    }
    [[nodiscard]] std::string Box() const { return BoxText(*panel, LevelEdit); }
};

TEST_F(LevelPanel, EveryKeyWritesTheBox)
{
    Click({"CE"});
    EXPECT_EQ(Box(), "");
    Click({"1", "2", "3", "4", "5", "6", "7", "8", "9", "0"});
    EXPECT_EQ(Box(), "1234567890");
    Click({"CE", "0", ".", "3", ".", "(   )", "(   )", "-", "-", "5"});
    EXPECT_EQ(Box(), "(-0.35)");
    Click({"BK", "BK"});
    EXPECT_EQ(Box(), "-0.3");
    EXPECT_EQ(panel->m_strResult, "-0.3");
    EXPECT_EQ(panel->m_strEditText, "-0.3");
    hands.RightClick(*panel, LevelEdit);
    EXPECT_EQ(receiver.m_items, Texts{"-0.3"});
}

TEST_F(LevelPanel, TypedTextCountsAtTheConfirmationAlone)
{
    hands.Retype(*panel, LevelEdit, "1.5");
    Click({"2"});
    EXPECT_EQ(Box(), "(-0.3002)");
    hands.Retype(*panel, LevelEdit, "1.5");
    hands.RightClick(*panel, LevelEdit);
    EXPECT_EQ(receiver.m_items, Texts{"1.5"});
    EXPECT_EQ(panel->m_strResult, "1.5");
}

TEST_F(LevelPanel, KeysThatDoNotApplyLeaveTheBox)
{
    hands.Retype(*panel, LevelEdit, "typed");
    Click({".", "-", "(   )"});  // the text has them all
    EXPECT_EQ(Box(), "typed");
    panel->Init();
    Click({"BK"});
    EXPECT_EQ(Box(), "typed");
    Click({"CE"});
    EXPECT_EQ(Box(), "");
}

TEST_F(LevelPanel, InitClearsTheTextAndNotTheBox)
{
    panel->Init();
    EXPECT_EQ(panel->m_strResult, "");
    EXPECT_EQ(Box(), LevelKit::Text);
    hands.RightClick(BareSurface());
    EXPECT_EQ(receiver.m_items, Texts{LevelKit::Text});
    panel->ShowWindow(SW_SHOW);
    panel->Init();
    Click({"-"});
    EXPECT_EQ(Box(), "-");
}

TEST_F(LevelPanel, DoubleClickIsTwoClicksAndNoConfirmation)
{
    panel->SetFocusLevel("");
    hands.DoubleClick(Hands::MiddleOf(*panel->GetDlgItem(1360)));
    EXPECT_EQ(Box(), "22");
    EXPECT_TRUE(panel->IsWindowVisible());
    EXPECT_EQ(receiver.Count(), 0U);
}

}  // namespace
