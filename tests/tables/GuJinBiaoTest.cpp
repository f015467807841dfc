// The stirrup table: what its rows must satisfy as a whole, and its look-up.
#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <utility>

#include "platform/text/Numbers.h"
#include "tests/support/Texts.h"

namespace {

using Rows = CArray<GuJinItem> GuJinBiao::*;

struct Grade {
    Rows rows;
    int grade, count;
    double strength;  // concrete tension strength in N/mm²
};
const Grade Grades[] = {
    {&GuJinBiao::m_arBiao20, 20, 56, 1.10}, {&GuJinBiao::m_arBiao25, 25, 46, 1.27},
    {&GuJinBiao::m_arBiao30, 30, 43, 1.43}, {&GuJinBiao::m_arBiao35, 35, 37, 1.57},
    {&GuJinBiao::m_arBiao40, 40, 32, 1.71},
};

// The ratio figure of a row worked out from its text.
double RatioOf(const GuJinItem& row, double strength)
{
    const StirrupText::Measures stirrup = StirrupText::Measure(row.m_strGuJin);
    const double legArea = 3.14159265 * stirrup.diameter * stirrup.diameter / 4;
    return stirrup.legs * legArea / (row.m_nWidth * stirrup.spacing) * 210 / strength;
}

TEST(GuJinBiao, RowsAddUp)
{
    GuJinBiao table;
    table.InintOnce();
    Texts farOff;
    for (const Grade& grade : Grades) {
        const auto& rows = table.*grade.rows;
        ASSERT_EQ(rows.GetSize(), grade.count);
        std::set<std::pair<int, CString>> texts;
        std::set<int> widths;
        int width = 0;
        for (const GuJinItem& row : rows) {
            EXPECT_EQ(row.m_nGrade, grade.grade);
            EXPECT_GE(row.m_nWidth, width);
            width = row.m_nWidth;
            widths.insert(width);
            EXPECT_TRUE(texts.emplace(width, row.m_strGuJin).second);
            EXPECT_EQ(row.m_strGuJinJiaMi, StirrupText::TightForm(row.m_strGuJin));
            EXPECT_TRUE(row.m_dRatio >= 0.24 && row.m_dRatio <= 0.60);
            if (std::fabs(RatioOf(row, grade.strength) - row.m_dRatio) > 0.006) {
                farOff.emplace_back(row.m_strGuJin.View());
            }
        }
        EXPECT_EQ(widths, (std::set<int>{200, 250, 300, 350, 400, 450, 500, 550, 600}));
    }
    EXPECT_EQ(farOff, Texts{"A8@150(4)"});
}

TEST(GuJinBiao, LookUp)
{
    struct Case {
        int width, grade, seismic;
        Texts texts;
        int result;
    };
    const Case cases[] = {
        {200,
         20,
         4,
         {"A6@200(2)", "A6@100/200(2)", "A6@150(2)", "A6@100/150(2)", "A8@250(2)", "A8@100/250(2)",
          "A8@200(2)", "A8@100/200(2)", "A10@250(2)", "A10@100/250(2)"},
         0},
        {200,
         20,
         1,
         {"A6@150(2)", "A6@100/150(2)", "A8@250(2)", "A8@100/250(2)", "A8@200(2)", "A8@100/200(2)",
          "A10@250(2)", "A10@100/250(2)"},
         0},
        // A ratio that equals the minimum is enough.
        {200,
         30,
         1,
         {"A8@250(2)", "A8@100/250(2)", "A8@200(2)", "A8@100/200(2)", "A10@250(2)", "A10@100/250(2)"},
         0},
        {400, 40, 1, {"A8@200(4)", "A8@100/200(4)"}, 1},
        {220, 20, 4, {}, 0},
        {220, 40, 4, {}, 1},
        {650, 30, 2, {}, 0},
        {300, 22, 4, {}, -1},
        {300, 20, 0, {}, -1},
        {300, 20, 5, {}, -1},
    };
    GuJinBiao table;
    table.InintOnce();
    for (const Case& c : cases) {
        CStringArray list;
        EXPECT_EQ(table.GetGuJin(c.width, c.grade, c.seismic, list), c.result) << c.width << ' ' << c.grade;
        EXPECT_EQ(TextsOf(list), c.texts) << c.width << ' ' << c.grade << ' ' << c.seismic;
    }
    CStringArray list;
    Fill(list, {"A8@200(2)"});
    table.GetGuJin(200, 40, 2, list);
    EXPECT_EQ(TextsOf(list), (Texts{"A8@200(2)", "A8@100/200(2)", "A10@250(2)", "A10@100/250(2)"}));

    // A row of the host's own: both texts are looked for before either comes in.
    GuJinBiao own;
    GuJinItem row;
    row.Init(200, 40, 1.0, "A8@200(2)");
    row.m_strGuJinJiaMi = "A8@200(2)";
    own.m_arBiao40.Add(row);
    list.RemoveAll();
    own.GetGuJin(200, 40, 1, list);
    own.GetGuJin(200, 40, 1, list);
    EXPECT_EQ(TextsOf(list), Texts(2, "A8@200(2)"));
}

TEST(GuJinBiao, EveryWidthHasAnAnswerForEveryGradeAndClass)
{
    GuJinBiao table;
    table.InintOnce();
    for (const Grade& grade : Grades) {
        for (int width = 200; width <= 600; width += 50) {
            for (int seismic = 1; seismic <= 4; ++seismic) {
                CStringArray list;
                table.GetGuJin(width, grade.grade, seismic, list);
                EXPECT_GE(list.GetSize(), 2) << width << ' ' << grade.grade << ' ' << seismic;
            }
        }
    }
}

TEST(GuJinBiao, UnfilledAndTwiceFilled)
{
    GuJinBiao table;
    CStringArray list;
    EXPECT_EQ(table.GetGuJin(200, 20, 4, list), 0);
    EXPECT_EQ(table.GetGuJin(200, 40, 4, list), 1);
    EXPECT_TRUE(list.IsEmpty());
    table.InintOnce();
    table.InintOnce();
    EXPECT_EQ(table.m_arBiao40.GetSize(), 64);
}

}  // namespace
