// The beam name panel: boxes, pick lists, digit rows and the one message.
#include <gtest/gtest.h>

#include "tests/panels/Panels.h"

namespace {

constexpr int TypeList = 552, XuList = 1062, KuaList = 547, XuantiaoList = 549;
constexpr int TypeEdit = 1316, XuEdit = 1643, KuaEdit = 1654, XuantiaoEdit = 1658;

class NamePanel : public testing::Test, protected Stage<NameKit> {
protected:
    // Boxes and rows of type, serial, span count and cantilever.
    [[nodiscard]] std::string Now() const
    {
        return Shown(*panel, {TypeEdit, XuEdit, KuaEdit, XuantiaoEdit},
                     {TypeList, XuList, KuaList, XuantiaoList});
    }
    void Empty() { panel->SetFocusBeamname("L()"); }  // type "L" alone
    // A place on a digit list's row, also below the last.
    [[nodiscard]] CPoint OnDigit(int list, int row) const
    {
        CRect rect;
        panel->GetDlgItem(list)->GetWindowRect(&rect);
        return {rect.left + 4, rect.top + 12 * row + 1};
    }
    [[nodiscard]] std::string NoSpan() const { return std::string(Gbk(u8"跨数有误")); }
};

TEST_F(NamePanel, OpensOnItsTextOrEmpty)
{
    EXPECT_EQ(Now(), "KL,3,2,A,|KL,3,2,A,");
    for (const char* text : {"", "KL5(B)"}) {
        CBeamNameDlg other(text);
        other.Create(CBeamNameDlg::IDD);
        other.Init();
        EXPECT_EQ(Shown(other, {TypeEdit, XuEdit, KuaEdit, XuantiaoEdit},
                        {TypeList, XuList, KuaList, XuantiaoList}),
                  *text == '\0' ? ",,,,|-,-,-,-," : "KL,5,,B,|KL,5,-,B,");
    }
}

TEST_F(NamePanel, ShowsEachNewText)
{
    // Each text on top of the one before.
    const std::pair<const char*, const char*> cases[] = {
        {"KL3(2)", "KL,3,2,,|KL,3,2,none,"},   {"KL3(A)", "KL,3,,A,|KL,3,-,A,"},
        {"KL12(3)", "KL,12,3,,|KL,-,3,none,"}, {"AL1", "AL,1,3,,|AL,1,3,none,"},
        {"JCL0(10B)", "JCL,0,10,B,|-,0,-,B,"}, {"", "JCL,0,10,B,|-,0,-,B,"},
        {"Z7(1)", "JCL,0,10,B,|-,0,-,B,"},
    };
    for (const auto& [text, shown] : cases) {
        panel->SetFocusBeamname(text);
        EXPECT_EQ(Now(), shown) << text;
        EXPECT_EQ(panel->m_strResult, text);
    }
}

TEST_F(NamePanel, DigitRowsAddAndReplace)
{
    Empty();
    EXPECT_EQ(Now(), "L,,,,|L,-,-,none,");
    hands.ClickRow(*panel, XuList, 0);
    hands.ClickRow(*panel, XuList, 9);
    EXPECT_EQ(BoxText(*panel, XuEdit), "10");
    hands.ClickRow(*panel, KuaList, 2);
    EXPECT_EQ(BoxText(*panel, KuaEdit), "3");
    EXPECT_EQ(RowText(*panel, KuaList), "-");
    EXPECT_EQ(panel->m_strResult, "L()");  // composed at the confirmation

    hands.DoubleClickRow(*panel, KuaList, 4);
    hands.DoubleClickRow(*panel, XuList, 9);
    EXPECT_EQ(Now().substr(0, Now().find('|')), "L,0,5,,");
    for (const int list : {XuList, KuaList}) {
        const auto before = Now();
        hands.Click(OnDigit(list, 10));
        hands.DoubleClick(OnDigit(list, 10));
        EXPECT_EQ(Now(), before);
        EXPECT_EQ(CPoint(panel->m_nDownX, panel->m_nDownY), OnDigit(list, 10));
    }
    hands.RightClick(*panel, XuList);
    EXPECT_EQ(receiver.m_items, Texts{"L0(5)"});
}

TEST_F(NamePanel, PressBelowTheDigitsEndsTheEvent)
{
    MSG press{panel->GetDlgItem(TypeEdit)->m_hWnd, WM_LBUTTONDOWN, 0, 0, 0, OnDigit(XuList, 10)};
    EXPECT_FALSE(panel->PreTranslateMessage(&press));
    // Place, not target: the digit counts whoever gets the press.
    press.pt = OnDigit(XuList, 6);
    EXPECT_FALSE(panel->PreTranslateMessage(&press));
    EXPECT_EQ(panel->m_strXu, "37");
    EXPECT_EQ(RowText(*panel, XuList), "-");
}

TEST_F(NamePanel, PickListsComposeFromRows)
{
    hands.ClickRow(*panel, TypeList, 2);
    EXPECT_EQ(panel->m_strResult, "WKL3(2A)");
    hands.ClickRow(*panel, XuantiaoList, 0);
    EXPECT_EQ(panel->m_strResult, "WKL3(2)");
    EXPECT_EQ(BoxText(*panel, XuantiaoEdit), "");

    // Row "0" composes as a digit, but empties the box.
    panel->SetFocusBeamname("KL0(0B)");
    hands.ClickRow(*panel, TypeList, 0);
    EXPECT_EQ(panel->m_strResult, "KL0(B)");
    EXPECT_EQ(Now(), "KL,,,B,|KL,0,0,B,");
    EXPECT_TRUE(receiver.m_messages.empty());
    std::string atTheMessage;
    receiver.m_answer = [&] { atTheMessage = Now(); };
    hands.ClickRow(*panel, XuantiaoList, 0);
    EXPECT_EQ(atTheMessage, "KL,,,,|KL,0,0,none,");
    EXPECT_EQ(panel->m_strResult, "KL0");
    EXPECT_EQ(receiver.m_messages, Texts{NoSpan()});

    // Without a row in each list the boxes follow and the text stays.
    panel->SetFocusBeamname("KL12(3)");
    hands.ClickRow(*panel, TypeList, 4);
    EXPECT_EQ(panel->m_strResult, "KL12(3)");
    EXPECT_EQ(BoxText(*panel, TypeEdit), "LL");
    hands.RightClick(*panel, TypeList);
    EXPECT_EQ(receiver.m_items, Texts{"LL12(3)"});
}

TEST_F(NamePanel, TypingComposesFromBoxes)
{
    hands.TypeInto(*panel, XuEdit, "5");
    EXPECT_EQ(panel->m_strResult, "KL35(2A)");
    EXPECT_EQ(Now(), "KL,35,2,A,|KL,-,2,A,");
    hands.Retype(*panel, TypeEdit, "XL");
    EXPECT_EQ(panel->m_strResult, "XL35(2A)");
    EXPECT_EQ(RowText(*panel, TypeList), "XL");
    EXPECT_TRUE(receiver.m_messages.empty());

    hands.Retype(*panel, KuaEdit, "0");
    EXPECT_EQ(panel->m_strResult, "XL35(A)");
    std::string atTheMessage;
    receiver.m_answer = [&] { atTheMessage = Now(); };
    hands.Retype(*panel, XuantiaoEdit, "");
    EXPECT_EQ(atTheMessage, "XL,35,0,,|XL,-,0,none,");
    EXPECT_EQ(panel->m_strResult, "XL35");
    EXPECT_EQ(receiver.m_messages, Texts{NoSpan()});
    hands.TypeInto(*panel, KuaEdit, "1");  // "01"
    EXPECT_EQ(panel->m_strResult, "XL35(01)");
    EXPECT_EQ(receiver.m_messages.size(), 1U);
}

TEST_F(NamePanel, ConfirmsWhatStandsInTheBoxes)
{
    panel->SetFocusBeamname("KL1()");
    hands.RightClick(*panel, TypeList);
    EXPECT_FALSE(panel->IsWindowVisible());
    EXPECT_EQ(receiver.m_messages, Texts{NoSpan()});
    EXPECT_EQ(panel->m_strResult, "KL1");
    receiver.Forget();

    Show("KL3(A)");
    hands.Retype(*panel, TypeEdit, "");
    hands.RightClick(*panel, TypeList);
    EXPECT_EQ(receiver.Count() + receiver.m_messages.size(), 0U);

    // A text without "L" leaves the boxes, and it is they that count.
    Show("KL7(4)");
    panel->SetFocusBeamname("Z1");
    hands.RightClick(*panel, TypeList);
    EXPECT_EQ(receiver.m_items, Texts{"KL7(4)"});
}

TEST_F(NamePanel, TheTypeOfTheFieldDecidesThatOfTheBoxIsComposed)
{
    panel->GetDlgItem(TypeEdit)->SetWindowText("");  // by the program: no change is told
    EXPECT_TRUE(panel->IntegrateNameFromEdit());
    EXPECT_EQ(panel->m_strResult, "3(2A)");
    panel->GetDlgItem(TypeEdit)->SetWindowText("LL");
    EXPECT_FALSE(panel->IntegrateNameFromEdit());
    EXPECT_EQ(panel->m_strResult, "3(2A)");
    EXPECT_TRUE(receiver.m_messages.empty());
}

TEST_F(NamePanel, MessageThatDestroysThePanel)
{
    const auto destroy = [this] { panel.reset(); };
    for (const auto& act : std::initializer_list<std::function<void()>>{
             [this] { hands.RightClick(*panel, TypeList); },
             [this] { hands.TypeInto(*panel, XuEdit, "1"); },
             [this] { hands.ClickRow(*panel, XuantiaoList, 0); }}) {
        Build();
        panel->SetFocusBeamname("KL1(0A)");
        hands.ClickRow(*panel, TypeList, 0);
        panel->SetFocusBeamname("KL1(0)");
        receiver.m_answer = destroy;
        act();
        EXPECT_EQ(panel, nullptr);
    }
    EXPECT_EQ(receiver.m_messages, Texts(3, NoSpan()));
    EXPECT_EQ(receiver.Count(), 0U);
}

}  // namespace
