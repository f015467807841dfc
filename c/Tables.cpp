// The two tables, filled once for all contexts.
#include <climits>

#include "c/private/Tables.h"
#include "c/private/Texts.h"

using namespace RankerC;

namespace RankerC {

SteelBiao& BarTable()
{
    static SteelBiao& table = *[] {
        auto* const made = new SteelBiao;
        made->InintOnce();
        return made;
    }();
    return table;
}

GuJinBiao& StirrupTable()
{
    static GuJinBiao& table = *[] {
        auto* const made = new GuJinBiao;
        made->InintOnce();
        return made;
    }();
    return table;
}

}  // namespace RankerC

namespace {

template <class Row, class Table>
std::vector<const Row*> RowsOf(const Table& table, std::initializer_list<CArray<Row> Table::*> arrays)
{
    std::vector<const Row*> rows;
    for (const auto array : arrays) {
        for (const Row& row : table.*array) {
            rows.push_back(&row);
        }
    }
    return rows;
}

const std::vector<const SteelBiaoItem*>& BarRows()
{
    static const auto& rows = *new auto(RowsOf<SteelBiaoItem>(
        BarTable(), {&SteelBiao::m_arBiao250, &SteelBiao::m_arBiao300, &SteelBiao::m_arBiao350,
                     &SteelBiao::m_arBiao400, &SteelBiao::m_arBiao450, &SteelBiao::m_arBiao500,
                     &SteelBiao::m_arBiao550, &SteelBiao::m_arBiao600}));
    return rows;
}

const std::vector<const GuJinItem*>& StirrupRows()
{
    static const auto& rows = *new auto(RowsOf<GuJinItem>(
        StirrupTable(), {&GuJinBiao::m_arBiao20, &GuJinBiao::m_arBiao25, &GuJinBiao::m_arBiao30,
                         &GuJinBiao::m_arBiao35, &GuJinBiao::m_arBiao40}));
    return rows;
}

rk_text TextIn(const CString& text) { return {text, text.View().size()}; }

template <class Rows>
const auto& RowAt(const Rows& rows, std::size_t index)
{
    if (index >= rows.size()) {
        throw Refusal{RK_BAD_INDEX,
                      "row " + std::to_string(index) + ", and there are " + std::to_string(rows.size())};
    }
    return *rows[index];
}

}  // namespace

rk_status rk_bar_table_count(size_t* count)
{
    return Guarded([&] {
        Need(count, "count");
        *count = BarRows().size();
    });
}

rk_status rk_bar_table_row(size_t index, rk_bar_row* row)
{
    return Guarded([&] {
        NeedStruct(row, "row");
        const SteelBiaoItem& found = RowAt(BarRows(), index);
        Give({0, found.m_nWidth, found.m_nArea, TextIn(found.m_strTopJin), TextIn(found.m_strTotalJin),
              TextIn(found.m_strDiJin)},
             row);
    });
}

rk_status rk_stirrup_table_count(size_t* count)
{
    return Guarded([&] {
        Need(count, "count");
        *count = StirrupRows().size();
    });
}

rk_status rk_stirrup_table_row(size_t index, rk_stirrup_row* row)
{
    return Guarded([&] {
        NeedStruct(row, "row");
        const GuJinItem& found = RowAt(StirrupRows(), index);
        Give({0, found.m_nWidth, found.m_nGrade, found.m_dRatio, TextIn(found.m_strGuJin),
              TextIn(found.m_strGuJinJiaMi)},
             row);
    });
}

rk_status rk_bar_table_find(rk_context context, int32_t what, int32_t width, int32_t area,
                            const char* through, size_t through_length, rk_list list, int32_t* nearest)
{
    return Guarded([&] {
        const auto host = Find<Context>(context);
        const auto found = Find<List>(list);
        SteelBiao& table = BarTable();
        int row = -1;
        const auto look = [&](auto lookUp) {
            found->Changed();
            row = lookUp(found->m_texts);
        };
        switch (what) {
        case RK_THROUGH_BARS: look([&](auto& texts) { return table.GetTopJin(width, area, texts); }); break;
        case RK_TOTAL_BARS: look([&](auto& texts) { return table.GetTotalJin(width, area, texts); }); break;
        case RK_BOTTOM_BARS: look([&](auto& texts) { return table.GetDiJin(width, area, texts); }); break;
        case RK_TOTAL_ON_THROUGH: {
            const CString own = TextOf(*host, through, through_length, "through");
            look([&](auto& texts) { return table.GetExactTotalJin(width, area, own, texts); });
            break;
        }
        default: RefuseValue("what", what);
        }
        if (nearest != nullptr) {
            *nearest = row;
        }
    });
}

rk_status rk_stirrup_table_find(rk_context context, int32_t width, int32_t grade, int32_t seismic,
                                rk_list list)
{
    return Guarded([&] {
        static_cast<void>(Find<Context>(context));
        const auto found = Find<List>(list);
        found->Changed();
        if (StirrupTable().GetGuJin(width, grade, seismic, found->m_texts) < 0) {
            throw Refusal{RK_NOT_DONE, "the table has no grade " + std::to_string(grade) + " or no class " +
                                           std::to_string(seismic)};
        }
    });
}
