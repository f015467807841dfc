// The horizontal picker: values read back, rows and digits composed.
#include "tests/pickers/Pickers.h"

namespace {

constexpr int GradeList = 1308, DiameterList = 1112, TightList = 1114, NormalList = 1116;
constexpr int GradeBox = 1309, DiameterBox = 1311, TightBox = 1313, NormalBox = 1315;

class HBarPicker : public testing::Test, protected Grid<CHBarPropertySheet> {
protected:
    [[nodiscard]] std::string Now() const
    {
        return Shown({GradeBox, DiameterBox, TightBox, NormalBox},
                     {GradeList, DiameterList, TightList, NormalList});
    }
};

TEST_F(HBarPicker, OpensOnTheFirstRowsWithoutSelection) { EXPECT_EQ(Now(), "A,6,50,,|-,-,-,-,"); }

TEST_F(HBarPicker, ShowsAValueAndGivesItBack)
{
    const struct {
        const char* value;
        const char* shown;
        const char* confirmed;
    } cases[] = {
        {"A10@100/200", "A,10,100,200,|0,3,1,3,", "A10@100/200"},
        {"B8@150", "B,8,150,,|1,2,2,0,", "B8@150"},
        {"C20@120", "C,20,120,,|2,-,-,0,", "C20@120"},
        {"D6.5@50/100", "D,6.5,50,100,|3,1,0,1,", "D6.5@50/100"},
        {"C16@150/175", "C,16,150,175,|2,6,2,-,", "C16@150/175"},
        {"A6@600", "A,6,600,,|0,0,-,0,", "A6@600"},
        // no grade: the box keeps the one before
        {"12@200", "A,12,200,,|-,4,3,0,", "A12@200"},
        // of two letters the first of the alphabet, wherever it stands
        {"DA8@100", "A,8,100,,|0,2,1,0,", "A8@100"},
        {"", "A,0,0,,|-,-,-,0,", "A0@0"},
        {"2B8@200(2)", "B,8,200,,|1,2,3,0,", "B8@200"},
    };
    for (const auto& each : cases) {
        Open(each.value);
        EXPECT_EQ(Now(), each.shown) << each.value;
        EXPECT_EQ(Confirm(), each.confirmed) << each.value;
    }
}

TEST_F(HBarPicker, RowsAndTypedDigitsCountAlike)
{
    Open("A10@100/200");
    hands.ClickRow(*picker, GradeList, 2);
    hands.ClickRow(*picker, DiameterList, 1);
    EXPECT_EQ(Now(), "C,6.5,100,200,|2,1,1,3,");
    hands.ClickRow(*picker, NormalList, 0);
    hands.Retype(*picker, TightBox, "1x75");  // letters are refused
    EXPECT_EQ(Now(), "C,6.5,175,,|2,1,1,0,") << "typing moves no row";
    EXPECT_TRUE(item.taken.empty()) << "nothing goes out before it is confirmed";
    EXPECT_EQ(Confirm(), "C6.5@175");
}

TEST_F(HBarPicker, ComposesWithoutATightSpacing)
{
    Open("A10@100");
    hands.Retype(*picker, TightBox, "");
    EXPECT_EQ(Confirm(), "A10@");
    Open("A10@100");
    hands.Retype(*picker, TightBox, "");
    hands.ClickRow(*picker, NormalList, 1);
    EXPECT_EQ(Confirm(), "A10@/100");
}

TEST_F(HBarPicker, GoesByTheArrayNotByTheList)
{
    Open("A10@100");
    auto& list = dynamic_cast<CListBox&>(*picker->GetDlgItem(DiameterList));
    list.ResetContent();
    for (int i = 0; i < 7; ++i) {
        list.AddString("x");
    }
    hands.ClickRow(*picker, DiameterList, 6);
    EXPECT_EQ(Confirm(), "A16@100");
}

}  // namespace
