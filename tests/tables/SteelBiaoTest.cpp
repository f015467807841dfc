// The longitudinal bar table: what its rows must satisfy as a whole, and its look-ups.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <set>
#include <tuple>
#include <utility>

#include "platform/text/Numbers.h"
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

using LookUp = int (SteelBiao::*)(int, int, CStringArray&);

TEST(SteelBiao, LookUpsByAreaAndWidening)
{
    struct Case {
        LookUp lookUp;
        int width, area;
        Texts texts;
        bool found;  // the integer result is not negative
    };
    const LookUp top = &SteelBiao::GetTopJin;
    const LookUp total = &SteelBiao::GetTotalJin;
    const LookUp bottom = &SteelBiao::GetDiJin;
    const Case cases[] = {
        {top, 300, 1000, {"2B16", "2B18", "2B20", "2B25"}, true},
        {total, 300, 1000, {"5B16", "2B16+2B20", "4B18", "3B20", "2B20+1B22", "2B25"}, true},
        {bottom, 300, 1000, {"3B20"}, false},
        {top, 250, 100, {"2B12", "2B14", "2B16", "2B18", "2B20", "2B22", "2B25"}, false},
        {total,
         250,
         100,
         {"2B12+1B14", "2B12+1B16", "4B12", "2B12+2B14", "2B12+2B16", "3B14", "2B14+1B16", "2B14+1B18"},
         false},
        {top, 250, 3000, {"2B25", "2B22", "2B20", "2B18", "2B16", "2B14", "2B12"}, false},
        {bottom, 250, 3000, {"3B25", "3B20", "3B22", "3B18", "3B16", "3B14", "3B12"}, false},
        {top, 250, 1850, {}, false},
        {top, 350, 3500, {}, false},
        // The difference is exclusive: 311 is 69 from 380 and a hit, 310 is 70 from it and widens.
        {total, 250, 311, {"2B12+1B14"}, true},
        {total,
         250,
         310,
         {"2B12+1B14", "2B12+1B16", "4B12", "2B12+2B14", "2B12+2B16", "3B14", "2B14+1B16", "2B14+1B18"},
         false},
        {top, 199, 1000, {}, false},
        {top, 701, 1000, {}, false},
        {top, 300, INT_MIN, {"2B12", "2B14", "2B16", "2B18", "2B20", "2B22", "2B25"}, false},
    };
    SteelBiao table = FilledTable();
    for (const Case& c : cases) {
        CStringArray list;
        const int result = (table.*c.lookUp)(c.width, c.area, list);
        EXPECT_EQ(TextsOf(list), c.texts) << c.width << ' ' << c.area;
        EXPECT_EQ(result >= 0, c.found) << c.width << ' ' << c.area;
    }
    CStringArray nine;
    table.GetTotalJin(300, 654, nine);
    EXPECT_EQ(nine.GetSize(), 9);
}

TEST(SteelBiao, BandsOfTheWidth)
{
    // A table whose arrays name themselves.
    SteelBiao table;
    const auto name = [](CArray<SteelBiaoItem>& rows, const char* width) {
        SteelBiaoItem item;
        item.Init(NumberValue(width), 1000, width, width);
        rows.Add(item);
    };
    name(table.m_arBiao250, "250");
    name(table.m_arBiao300, "300");
    name(table.m_arBiao350, "350");
    name(table.m_arBiao400, "400");
    name(table.m_arBiao450, "450");
    name(table.m_arBiao500, "500");
    name(table.m_arBiao550, "550");
    name(table.m_arBiao600, "600");
    const std::pair<int, const char*> cases[] = {
        {200, "250"}, {274, "250"}, {275, "300"}, {324, "300"}, {325, "350"}, {374, "350"},
        {375, "400"}, {424, "400"}, {425, "450"}, {474, "450"}, {475, "500"}, {524, "500"},
        {525, "550"}, {574, "550"}, {575, "600"}, {700, "600"},
    };
    for (const auto& [width, band] : cases) {
        CStringArray list;
        table.GetTotalJin(width, 1000, list);
        EXPECT_EQ(TextsOf(list), Texts{band}) << width;
    }
}

TEST(SteelBiao, ExactTotalBarsStandBehindTheGivenOnes)
{
    SteelBiao table = FilledTable();
    struct Case {
        int width, area;
        const char* topJin;
        Texts texts;
        bool found;
    };
    const Case cases[] = {
        {300, 1000, "2B16", {"2B16", "5B16"}, true}, {300, 1000, "2B18", {"2B18", "4B18"}, true},
        {300, 1000, "2B28", {"2B28"}, false},        {300, 402, "2B16", {"2B16"}, false},
        {199, 1000, "2B16", {"2B16"}, false},        {300, 976, "2B16", {"2B16", "5B16"}, true},
        {300, 975, "2B16", {"2B16"}, false},
    };
    for (const Case& c : cases) {
        CStringArray list;
        EXPECT_EQ(table.GetExactTotalJin(c.width, c.area, c.topJin, list) >= 0, c.found) << c.topJin;
        EXPECT_EQ(TextsOf(list), c.texts) << c.topJin << ' ' << c.area;
    }
    CStringArray twice;
    table.GetExactTotalJin(300, 1000, "2B16", twice);
    table.GetExactTotalJin(300, 1000, "2B16", twice);
    EXPECT_EQ(TextsOf(twice), (Texts{"2B16", "5B16", "2B16"}));
}

TEST(SteelBiao, AListThatHoldsTextsIsNeitherWidenedNorRepeated)
{
    SteelBiao table = FilledTable();
    CStringArray list;
    list.Add("2B12");
    EXPECT_EQ(table.GetTopJin(250, 100, list), -1);
    EXPECT_EQ(TextsOf(list), Texts{"2B12"});
    Fill(list, {"2B18"});
    table.GetTopJin(300, 1000, list);
    EXPECT_EQ(TextsOf(list), (Texts{"2B18", "2B16", "2B20", "2B25"}));
}

TEST(SteelBiao, ResultIsTheNearestRowThatAddedAText)
{
    SteelBiao table = FilledTable();
    CStringArray list;
    const int row = table.GetTotalJin(300, 1006, list);
    ASSERT_GE(row, 0);
    EXPECT_EQ(table.m_arBiao300[row].m_strTotalJin, "5B16");
    // Repeats do not count: only "2B25" with 982 is still to be added.
    Fill(list, {"5B16", "2B16+2B20", "4B18", "3B20", "2B20+1B22"});
    EXPECT_EQ(table.m_arBiao300[table.GetTotalJin(300, 1006, list)].m_strTotalJin, "2B25");
}

TEST(SteelBiao, UnfilledAndTwiceFilled)
{
    SteelBiao table;
    CStringArray list;
    EXPECT_EQ(table.GetTopJin(300, 1000, list), -1);
    EXPECT_EQ(table.GetDiJin(300, 1000, list), -1);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(table.GetExactTotalJin(300, 1000, "2B16", list), -1);
    EXPECT_EQ(TextsOf(list), Texts{"2B16"});
    table.InintOnce();
    table.InintOnce();
    EXPECT_EQ(table.m_arBiao250.GetSize(), 96);
    EXPECT_EQ(table.m_arBiao250[0].m_strTotalJin, table.m_arBiao250[48].m_strTotalJin);
}

}  // namespace
