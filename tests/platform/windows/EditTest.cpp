// Edit boxes: caret, typed bytes, GBK pairs, digits; and stepping through GBK text.
#include <gtest/gtest.h>

#include "TestPanel.h"
#include "platform/windows/Hands.h"

namespace {

using namespace TestPanelData;

constexpr char Wu[] = "\xCE\xDE";  // one double-byte character

class EditBox : public ::testing::Test {
protected:
    EditBox() { box.SetFocus(); }

    TestPanel panel;
    Hands hands;
    CWnd& box = *panel.Open().GetDlgItem(Box);
};

TEST_F(EditBox, TypingAndKeysEditAtTheCaretAndNotifyOnceAChange)
{
    hands.Type("ac");
    hands.Key(VK_LEFT);
    hands.Type("b");
    EXPECT_TRUE(panel.TextOf(Box) == "abc");
    EXPECT_EQ(panel.Heard(), (Lines{"box", "box", "box"}));
    hands.Key(VK_HOME);
    hands.Key(VK_BACK);  // nothing stands before the caret
    hands.Key(VK_DELETE);
    EXPECT_TRUE(panel.TextOf(Box) == "bc");
    hands.Key(VK_END);
    hands.Key(VK_DELETE);
    hands.Key(VK_BACK);
    EXPECT_TRUE(panel.TextOf(Box) == "b");
    panel.Heard();

    box.SetWindowText("longer");
    EXPECT_EQ(panel.Heard(), Lines());
    hands.Type("!");
    EXPECT_TRUE(panel.TextOf(Box) == "longer!");
    hands.Key(VK_ESCAPE);
    hands.Key(VK_RETURN);
    EXPECT_TRUE(panel.TextOf(Box) == "longer!");
    EXPECT_EQ(panel.Heard(), (Lines{"box", "key 27", "key 13"}));
}

TEST_F(EditBox, ADoubleByteCharacterComesGoesAndIsPassedWhole)
{
    hands.Type(CString("a") + Wu + "b");
    EXPECT_EQ(panel.Heard().size(), 3U);
    hands.Key(VK_LEFT);
    hands.Key(VK_LEFT);
    hands.Type("x");
    EXPECT_TRUE(panel.TextOf(Box) == CString("ax") + Wu + "b");
    hands.Key(VK_DELETE);
    EXPECT_TRUE(panel.TextOf(Box) == "axb");
    hands.Type(Wu);
    hands.Key(VK_BACK);
    EXPECT_TRUE(panel.TextOf(Box) == "axb");
    panel.Heard();
    hands.Type("\xCE");  // half a character shows nothing yet, and Backspace forgets it
    hands.Key(VK_BACK);
    EXPECT_TRUE(panel.TextOf(Box) == "axb");
    EXPECT_EQ(panel.Heard(), Lines());
    hands.Type("\xCE"
               "1");  // no character, but nothing is lost
    EXPECT_TRUE(panel.TextOf(Box) == "ax\xCE"
                                     "1b");
}

TEST_F(EditBox, APressPutsTheCaretAtTheNearestCharacter)
{
    struct {
        int x;
        const char* text;
    } const presses[] = {{0, "|ab\xCE\xDE"
                             "c"},
                         {8, "a|b\xCE\xDE"
                             "c"},
                         {14, "ab|\xCE\xDE"
                              "c"},
                         {18, "ab|\xCE\xDE"
                              "c"},
                         {22, "ab\xCE\xDE|c"},
                         {59, "ab\xCE\xDE"
                              "c|"}};
    for (const auto& press : presses) {
        box.SetWindowText(CString("ab") + Wu + "c");
        hands.Click(CPoint(130 + press.x, 106));
        hands.Type("|");
        EXPECT_TRUE(panel.TextOf(Box) == press.text) << press.x;
    }
    CWnd& right = *panel.GetDlgItem(RightBox);  // 30 pixels wide, at 160, 136
    right.SetWindowText("12");
    hands.Click(CPoint(160 + 23, 140));
    hands.Type("|");
    EXPECT_TRUE(panel.TextOf(RightBox) == "1|2");
}

TEST_F(EditBox, DigitsOnlyHoldsForWhatTheUserBringsIn)
{
    CWnd& digits = *panel.GetDlgItem(Digits);
    digits.SetWindowText("6.5");
    digits.SetFocus();
    hands.Type("a-\xCE\xDE"
               "7.");
    EXPECT_TRUE(panel.TextOf(Digits) == "6.57");
    EXPECT_EQ(panel.Heard(), Lines{"digits"});
    EXPECT_FALSE(UserEditsText(digits.m_hWnd, "6.5.7"));
    EXPECT_TRUE(UserEditsText(digits.m_hWnd, "6123", 2));
    hands.Type("0");
    EXPECT_TRUE(panel.TextOf(Digits) == "61023");
    hands.Type("\xA6"
               "4\xC3"
               "5");  // a stray half of a character takes no digit along
    EXPECT_TRUE(panel.TextOf(Digits) == "6104523");
}

TEST_F(EditBox, TheDoorKeepsTheCaretBetweenCharactersAndIsSilentOnTheSameText)
{
    const CString text = CString(Wu) + Wu;
    EXPECT_TRUE(UserEditsText(box.m_hWnd, text, 3));  // inside the second pair
    hands.Type("x");
    EXPECT_TRUE(panel.TextOf(Box) == text + "x");
    panel.Heard();
    EXPECT_TRUE(UserEditsText(box.m_hWnd, text + "x", 99));
    EXPECT_EQ(panel.Heard(), Lines());
    EXPECT_FALSE(UserEditsText(panel.m_list.m_hWnd, "x"));
    EXPECT_FALSE(UserPicksRow(box.m_hWnd, 0));
    EXPECT_FALSE(UserClicksButton(nullptr));
}

TEST(GbkWalk, StepsByWholeCharactersFromTheStart)
{
    struct {
        const char* text;
        std::vector<int> ends;
    } const cases[] = {
        {"", {}},
        {"ab", {1, 2}},
        {"a\xCE\xDE\xB1\xEA", {1, 3, 5}},
        {"\xCE", {1}},                        // a lead byte at the end
        {"\xCE\x31\xDE\xB1", {1, 2, 4}},      // a lead byte without its trail
        {"\x81\x40\xFE\xFE\x7F", {2, 4, 5}},  // a trail byte that is ASCII, one that is a lead byte
        {"\xFF\x80\x81\x7F", {1, 2, 3, 4}},   // bytes that begin no character
    };
    for (const auto& example : cases) {
        int place = 0;
        for (const int end : example.ends) {
            EXPECT_EQ(NextCharacter(example.text, place), end);
            EXPECT_EQ(PreviousCharacter(example.text, end), place);
            if (end == place + 2) {
                EXPECT_EQ(PreviousCharacter(example.text, place + 1), place);
            }
            place = end;
        }
        EXPECT_EQ(NextCharacter(example.text, place), place);
        EXPECT_EQ(PreviousCharacter(example.text, 0), 0);
    }
}

}  // namespace
