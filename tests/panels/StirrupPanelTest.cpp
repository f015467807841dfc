// The stirrup panel: six boxes over six lists that follow each other.
#include <gtest/gtest.h>

#include "tests/panels/Panels.h"

namespace {

// Grade, diameter, tight spacing, tight legs, spacing, legs.
constexpr int Edits[] = {1321, 1653, 1654, 1658, 1662, 1665};
constexpr int Lists[] = {1339, 1062, 1356, 1357, 1358, 1359};
enum Field { Grade, Diameter, TightSpacing, TightLegs, Spacing, Legs };

class StirrupPanel : public testing::Test, protected Stage<StirrupKit> {
protected:
    static std::string StateOf(const CWnd& dlg)
    {
        return Shown(dlg, {1321, 1653, 1654, 1658, 1662, 1665}, {1339, 1062, 1356, 1357, 1358, 1359});
    }
    [[nodiscard]] std::string Now() const { return StateOf(*panel); }
    void Pick(Field field, int row) { hands.ClickRow(*panel, Lists[field], row); }
    void Retype(Field field, const char* text) { hands.Retype(*panel, Edits[field], text); }
};

TEST_F(StirrupPanel, OpensOnItsTextOrOnGradeA)
{
    for (const char* text : {"", "B10@100(4)/250(3)"}) {
        CBeamGujinDlg other(text);
        other.Create(CBeamGujinDlg::IDD);
        for (int again = 0; again < 2; ++again) {
            other.Init();
            EXPECT_EQ(StateOf(other), *text == '\0' ? "A,,,,,,|A,-,none,none,-,-,"
                                                    : "B,10,100,4,250,3,|B,10,100,(4),250,(3),");
            EXPECT_EQ(other.m_strResult, text);
        }
    }
}

TEST_F(StirrupPanel, ShowsEachNewText)
{
    const std::pair<const char*, const char*> cases[] = {
        {"A10@100/200(2)", "A,10,100,,200,2,|A,10,100,none,200,(2),"},
        {"A10@100(4)/200(2)", "A,10,100,4,200,2,|A,10,100,(4),200,(2),"},
        {"A8-200(2)", "A,8,,,200,2,|A,8,none,none,200,(2),"},
        {"B14@90(5)/180(6)", "B,14,90,5,180,6,|B,-,-,-,-,-,"},
        // What cannot be read to the end leaves boxes and lists.
        {"A8@200", "B,14,90,5,180,6,|B,-,-,-,-,-,"},
        {"C8@200(2)", "B,14,90,5,180,6,|B,-,-,-,-,-,"},
        {"", "B,14,90,5,180,6,|B,-,-,-,-,-,"},
    };
    for (const auto& [text, shown] : cases) {
        panel->SetFocusGujin(text);
        EXPECT_EQ(Now(), shown) << text;
        EXPECT_EQ(panel->m_strResult, text);
    }
}

TEST_F(StirrupPanel, FieldsOfATextThatEndsEarlyAppearWithTheNextClick)
{
    panel->SetFocusGujin("B12@150(3)/200");
    EXPECT_EQ(Now(), "A,8,100,,200,2,|A,8,100,none,200,(2),");
    EXPECT_EQ(panel->m_strSteelDiameter, "12");
    hands.RightClick(*panel, Lists[Grade]);
    EXPECT_EQ(receiver.m_items, Texts{"B12@150(3)/200"});
}

TEST_F(StirrupPanel, PicksComposeOnceAllSixListsHaveARow)
{
    panel->m_strResult.Empty();
    panel->Init();
    panel->m_strResult = "old";
    for (const Field field : {Diameter, Spacing}) {
        Pick(field, 1);
        EXPECT_EQ(panel->m_strResult, "old");
    }
    Pick(Legs, 0);
    EXPECT_EQ(panel->m_strResult, "A8@200(2)");
    EXPECT_EQ(Now(), "A,8,,,200,2,|A,8,none,none,200,(2),");
}

TEST_F(StirrupPanel, PicksKeepTightLegsAndTightSpacingTogether)
{
    panel->SetFocusGujin("A8@200(2)");
    Pick(TightLegs, 2);
    EXPECT_EQ(Now(), "A,8,,,200,2,|A,8,none,none,200,(2),");
    EXPECT_EQ(panel->m_strResult, "A8@200(2)");
    Pick(TightSpacing, 1);
    EXPECT_EQ(panel->m_strResult, "A8@100/200(2)");
    Pick(TightLegs, 2);
    EXPECT_EQ(panel->m_strResult, "A8@100(3)/200(2)");
    EXPECT_EQ(Now(), "A,8,100,3,200,2,|A,8,100,(3),200,(2),");
    Pick(TightSpacing, 0);
    EXPECT_EQ(panel->m_strResult, "A8@200(2)");
    EXPECT_EQ(Now(), "A,8,,,200,2,|A,8,none,none,200,(2),");
}

TEST_F(StirrupPanel, TypingMovesTheRowsAndComposes)
{
    panel->SetFocusGujin("A8@200(2)");
    Retype(Legs, "3");
    EXPECT_EQ(panel->m_strResult, "A8@200(3)");
    EXPECT_EQ(Now(), "A,8,,,200,3,|A,8,none,none,200,(3),");
    Retype(Legs, "(2)");
    EXPECT_EQ(panel->m_strResult, "A8@200(2)");
    EXPECT_EQ(RowText(*panel, Lists[Legs]), "(2)");
    Retype(Spacing, "180");
    EXPECT_EQ(panel->m_strResult, "A8@180(2)");
    EXPECT_EQ(RowText(*panel, Lists[Spacing]), "-");
    Pick(Diameter, 2);  // composes nothing, one list having no row
    EXPECT_EQ(panel->m_strResult, "A8@180(2)");
    EXPECT_EQ(BoxText(*panel, Edits[Diameter]), "10");
    EXPECT_EQ(BoxText(*panel, Edits[Spacing]), "180");
}

TEST_F(StirrupPanel, TightZoneByTyping)
{
    panel->SetFocusGujin("A8@100(4)/200(2)");
    Retype(TightSpacing, "");
    EXPECT_EQ(panel->m_strResult, "A8@200(2)");
    EXPECT_EQ(Now(), "A,8,,4,200,2,|A,8,none,(4),200,(2),");
    EXPECT_EQ(panel->m_strJiamiZhishu, "");
    Retype(TightSpacing, " 90 ");
    EXPECT_EQ(panel->m_strResult, "A8@90(4)/200(2)");
    Retype(TightLegs, " 3 ");
    EXPECT_EQ(panel->m_strResult, "A8@90(3)/200(2)");
    EXPECT_EQ(RowText(*panel, Lists[TightLegs]), "(3)");
}

TEST_F(StirrupPanel, HalfTypedTextIsNotDelivered)
{
    panel->SetFocusGujin("A8@200(2)");
    for (const Field field : {Grade, Diameter, Spacing, Legs}) {
        const std::string old = BoxText(*panel, Edits[field]);
        Retype(field, " ");
        EXPECT_EQ(RowText(*panel, Lists[field]), "-");
        Retype(field, old.c_str());
        EXPECT_EQ(panel->m_strResult, "A8@200(2)");
    }
    Retype(Spacing, "");
    hands.RightClick(*panel, Lists[Grade]);
    EXPECT_EQ(receiver.m_items, Texts{"A8@2(2)"});  // the last that was whole
}

TEST_F(StirrupPanel, LegsWithoutBracketsLoseTheirDigitToAClick)
{
    // Legs are cut to their second character whoever wrote them.
    panel->SetFocusGujin("A8@200(6)");
    Pick(Grade, 1);
    EXPECT_EQ(Now(), "B,8,,,200,,|B,8,none,none,200,-,");
    EXPECT_EQ(panel->m_strResult, "A8@200(6)");
    Retype(Legs, "12");  // composed, and so kept in brackets
    Pick(Grade, 0);
    EXPECT_EQ(BoxText(*panel, Edits[Legs]), "1");
}

TEST_F(StirrupPanel, DoubleClickDoesNotConfirm)
{
    hands.DoubleClickRow(*panel, Lists[Diameter], 3);
    EXPECT_TRUE(panel->IsWindowVisible());
    EXPECT_EQ(panel->m_strResult, "A12@100/200(2)");
    EXPECT_EQ(receiver.Count(), 0U);
}

}  // namespace
