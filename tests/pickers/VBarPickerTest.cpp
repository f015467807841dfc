// The vertical picker: the grade decides which diameters are on offer.
#include "tests/pickers/Pickers.h"

namespace {

constexpr int GradeList = 1306, DiameterList = 1307, GradeBox = 1310, DiameterBox = 1377;

class VBarPicker : public testing::Test, protected Grid<CVBarPropertySheet> {
protected:
    [[nodiscard]] std::string Now() const
    {
        return Shown({GradeBox, DiameterBox}, {GradeList, DiameterList});
    }
    [[nodiscard]] std::string Offer() const
    {
        auto& list = dynamic_cast<CListBox&>(*picker->GetDlgItem(DiameterList));
        std::string rows;
        for (int row = 0; row < list.GetCount(); ++row) {
            CString text;
            list.GetText(row, text);
            EXPECT_EQ(text, picker->m_arrDiameter.GetAt(row));
            rows += std::string(text.View()) + " ";
        }
        return rows;
    }
};

constexpr const char* Ribbed = "10 12 14 16 18 20 22 25 28 32 ";

TEST_F(VBarPicker, EachGradeOffersItsDiametersAndDropsTheOneBefore)
{
    EXPECT_EQ(Now(), "A,8,|-,-,");
    EXPECT_EQ(Offer(), "8 10 12 14 16 18 20 22 25 28 ");
    Open("B28");
    EXPECT_EQ(Now(), "B,28,|1,9,");
    for (const int row : {1, 2, 3}) {
        hands.ClickRow(*picker, GradeList, row);
        EXPECT_EQ(Now(),
                  std::string(1, static_cast<char>('A' + row)) + ",10,|" + std::to_string(row) + ",-,");
        EXPECT_EQ(Offer(), Ribbed);
    }
    hands.ClickRow(*picker, DiameterList, 8);
    EXPECT_EQ(Now(), "D,28,|3,8,");
    hands.ClickRow(*picker, GradeList, 0);
    EXPECT_EQ(Now(), "A,6,|0,-,");
    EXPECT_EQ(Offer(), "6 8 10 12 14 16 18 ");
    EXPECT_EQ(Confirm(), "A6");
}

TEST_F(VBarPicker, AValueIsLookedUpInTheRowsOnOffer)
{
    Open("B32");
    EXPECT_EQ(Now(), "B,32,|1,-,");
    Open("A6");
    EXPECT_EQ(Now(), "A,6,|0,-,");
    hands.ClickRow(*picker, GradeList, 0);
    Open("A6.5@200");
    EXPECT_EQ(Now(), "A,6,|0,0,") << "tenths and spacing play no part";
    Open("14");
    EXPECT_EQ(Now(), "A,14,|-,4,");
    EXPECT_EQ(Offer(), "6 8 10 12 14 16 18 ");
    EXPECT_EQ(Confirm(), "A14") << "without a grade the old one is carried";
    Open("C");
    EXPECT_EQ(Now(), "C,0,|2,-,");
}

}  // namespace
