// The longitudinal bar table: what its rows must satisfy as a whole; random look-ups compare the rest.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <set>
#include <tuple>
#include <utility>

#include "tests/support/Texts.h"

namespace {

SteelBiao FilledTable()
{
    SteelBiao table;
    table.InintOnce();
    return table;
}

// Sum of the nominal bar areas in mm² of an annotation such as "2B22+3B25/2B22".
double NominalArea(const CString& text)
{
    double area = 0.0;
    for (int from = 0; from >= 0 && from < text.GetLength();) {
        CString term = text.Mid(from);
        const auto joint = static_cast<int>(term.View().find_first_of("+/"));
        term = joint < 0 ? term : term.Left(joint);
        const BarText::Term bars = BarText::SplitTerm(term);
        area += bars.count * 3.14159265 * bars.diameter * bars.diameter / 4;
        from = joint < 0 ? -1 : from + joint + 1;
    }
    return area;
}

// The columns of the survey of the rows: a slip in one row shows in one of these figures.
TEST(SteelBiao, RowsAddUp)
{
    struct Band {
        CArray<SteelBiaoItem> SteelBiao::*rows;
        int width, count, first, last, smallest, largest;
    };
    const Band bands[] = {
        {&SteelBiao::m_arBiao250, 250, 48, 380, 1964, 380, 2016},
        {&SteelBiao::m_arBiao300, 300, 62, 226, 2454, 226, 2993},
        {&SteelBiao::m_arBiao350, 350, 47, 308, 3927, 308, 3927},
        {&SteelBiao::m_arBiao400, 400, 48, 308, 4910, 308, 4910},
        {&SteelBiao::m_arBiao450, 450, 46, 402, 6383, 402, 6383},
        {&SteelBiao::m_arBiao500, 500, 40, 402, 6874, 402, 6874},
        {&SteelBiao::m_arBiao550, 550, 27, 509, 7854, 509, 7854},
        {&SteelBiao::m_arBiao600, 600, 26, 628, 7854, 628, 7854},
    };
    const SteelBiao table = FilledTable();
    int farOff = 0;
    for (const Band& band : bands) {
        const auto& rows = table.*band.rows;
        ASSERT_EQ(rows.GetSize(), band.count) << band.width;
        EXPECT_EQ(rows[0].m_nArea, band.first);
        EXPECT_EQ(rows[band.count - 1].m_nArea, band.last);
        std::set<std::pair<CString, CString>> pairs;
        int smallest = INT_MAX;
        int largest = 0;
        for (const SteelBiaoItem& row : rows) {
            EXPECT_EQ(row.m_nWidth, band.width);
            EXPECT_TRUE(pairs.emplace(row.m_strTopJin, row.m_strTotalJin).second)
                << row.m_strTotalJin.View();
            smallest = std::min(smallest, row.m_nArea);
            largest = std::max(largest, row.m_nArea);
            farOff += std::fabs(NominalArea(row.m_strTotalJin) - row.m_nArea) > 2.0 ? 1 : 0;
        }
        EXPECT_EQ(smallest, band.smallest);
        EXPECT_EQ(largest, band.largest);
    }
    EXPECT_EQ(farOff, 14);
}

TEST(SteelBiao, BottomBarsFollowTheArea)
{
    const std::pair<int, const char*> cases[] = {
        {INT_MIN, "3B12"}, {0, "3B12"},    {400, "3B12"},  {401, "3B14"},  {570, "3B14"},
        {571, "3B16"},     {700, "3B16"},  {701, "3B18"},  {880, "3B18"},  {881, "3B20"},
        {1050, "3B20"},    {1051, "3B22"}, {1300, "3B22"}, {1301, "3B25"}, {INT_MAX, "3B25"},
    };
    for (const auto& [area, diJin] : cases) {
        SteelBiaoItem item;
        item.Init(250, area, "2B18", "2B18+2B20");
        EXPECT_EQ(item.m_strDiJin, diJin) << area;
        SteelBiaoItem copy;
        copy = item;
        for (const SteelBiaoItem& same : {copy, SteelBiaoItem(item)}) {
            EXPECT_EQ(std::tie(same.m_nWidth, same.m_nArea), std::make_tuple(250, area));
            EXPECT_EQ(std::tie(same.m_strTopJin, same.m_strTotalJin, same.m_strDiJin),
                      std::make_tuple(CString("2B18"), CString("2B18+2B20"), CString(diJin)));
        }
    }
}

}  // namespace
