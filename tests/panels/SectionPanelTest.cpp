// The section panel: width, separator, height, and the double click that confirms.
#include <gtest/gtest.h>

#include "tests/panels/Panels.h"

namespace {

constexpr int WidthEdit = 1320, WidthList = 1317, HeightEdit = 1321, HeightList = 1062;
constexpr int SignList = 1349, SignColumn = 1348;

class SectionPanel : public testing::Test, protected Stage<SectionKit> {
protected:
    [[nodiscard]] std::string Now() const
    {
        return Shown(*panel, {WidthEdit, HeightEdit}, {WidthList, HeightList});
    }
};

TEST_F(SectionPanel, ShowsEachTextAndItsSeparator)
{
    struct Case {
        const char* text;
        const char* shown;
        const char* result;
        const char* picked;  // behind a pick of width "350"
    };
    const Case cases[] = {
        {"300x600", "300,600,|300,600,", "300x600", "350x600"},
        {"260x600", "260,600,|-,600,", "260x600", "350x600"},
        {"0300x600", "0300,600,|300,600,", "0300x600", "350x600"},
        {"300X600", "300,600,|300,600,", "300X600", "350X600"},
        {"300x600/500", "300,600,|300,600,", "300x600", "350X600"},  // the separator stays
        {"300x600 Y500x250", "300,600,|300,600,", "300x600", "350X600"},
        {"300*600", "300,600,|300,600,", "300*600", "350*600"},
        {"300", ",300,|-,300,", "300", "350*300"},
        {"300/1 x600", ",300,|-,300,", "300", "350*300"},
        // "x" wins wherever it is, then "X".
        {"3*0X600", "3*0,600,|-,600,", "3*0X600", "350X600"},
        {"3X0*6x600", "3X0*6,600,|-,600,", "3X0*6x600", "350X600"},
        {" 300x600", ",,|-,-,", "", ""},
        {"x600", ",600,|-,600,", "x600", "350*600"},
    };
    for (const Case& c : cases) {
        panel->Init(c.text);
        EXPECT_EQ(Now(), c.shown) << c.text;
        EXPECT_EQ(panel->m_strResult, c.result) << c.text;
        hands.ClickRow(*panel, WidthList, 5);
        EXPECT_EQ(panel->m_strResult, c.picked) << c.text;
        EXPECT_EQ(BoxText(*panel, WidthEdit), "350");
    }
    panel->Init("");
    EXPECT_EQ(Now(), "350,600,|-,-,");
    EXPECT_EQ(panel->m_strResult, "");
}

TEST_F(SectionPanel, SeparatorColumnIsFilledAnewAndTheOneRowListGrows)
{
    panel->Init("300X600");
    CString row;
    EXPECT_EQ(panel->m_SeparatorColumn.GetCount(), 11);
    panel->m_SeparatorColumn.GetText(10, row);
    EXPECT_EQ(row, "X");
    EXPECT_EQ(panel->m_SeparatorList.GetCount(), 3);  // the stage has made two
    panel->m_SeparatorList.GetText(0, row);
    EXPECT_EQ(row, "x");
    EXPECT_EQ(panel->m_SeparatorList.GetTopIndex(), 0);
    for (const int id : {SignList, SignColumn}) {
        hands.Click(*panel, id);
        EXPECT_EQ(RowText(*panel, id), "-");
    }
}

TEST_F(SectionPanel, TypingMovesTheRowsAndComposes)
{
    hands.Retype(*panel, WidthEdit, "40");
    EXPECT_EQ(Now(), "40,600,|-,600,");
    EXPECT_EQ(panel->m_strResult, "40x600");
    hands.TypeInto(*panel, WidthEdit, "0");
    EXPECT_EQ(Now(), "400,600,|400,600,");
    hands.Retype(*panel, HeightEdit, "");
    EXPECT_EQ(panel->m_strResult, "400x6");  // as the last whole text had it
    hands.TypeInto(*panel, WidthEdit, "1");
    EXPECT_EQ(panel->m_strResult, "400x6");
    hands.RightClick(*panel, WidthList);
    EXPECT_EQ(receiver.m_items, Texts{"400x6"});
}

TEST_F(SectionPanel, PickBesideAValueThatNoRowCarriesKeepsTheOldText)
{
    hands.Retype(*panel, WidthEdit, "260");
    hands.ClickRow(*panel, HeightList, 0);
    EXPECT_EQ(Now(), "260,200,|-,200,");
    EXPECT_EQ(panel->m_strResult, "260x600");
    hands.ClickRow(*panel, WidthList, 10);
    EXPECT_EQ(panel->m_strResult, "600x200");
}

TEST_F(SectionPanel, DoubleClickPicksAndConfirms)
{
    hands.DoubleClickRow(*panel, WidthList, 6);
    EXPECT_FALSE(panel->IsWindowVisible());
    EXPECT_EQ(receiver.m_items, Texts{"400x600"});
    Show("250x500");
    hands.DoubleClick(BareSurface());
    EXPECT_EQ(receiver.m_items, (Texts{"400x600", "250x500"}));

    Show("");
    MSG twice{panel->m_hWnd, WM_LBUTTONDBLCLK, 0, 0, 0, BareSurface()};
    EXPECT_TRUE(panel->PreTranslateMessage(&twice));
    EXPECT_FALSE(panel->IsWindowVisible());
    Show("250x500");
    receiver.m_answer = [this] { panel.reset(); };
    EXPECT_FALSE(panel->PreTranslateMessage(&twice));
    EXPECT_EQ(receiver.m_items.size(), 3U);
}

}  // namespace
