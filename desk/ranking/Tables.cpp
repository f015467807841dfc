// Look-ups on an empty list, with the reasons that the tables themselves do not give.
#include "desk/ranking/Tables.h"

#include <algorithm>
#include <array>

#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"

namespace Desk {

namespace {

constexpr int LeastBarWidth = 200;  // mm, the bands of the bar table
constexpr int MostBarWidth = 700;

std::vector<std::string> Texts(const CStringArray& list)
{
    std::vector<std::string> texts;
    std::transform(list.begin(), list.end(), std::back_inserter(texts), Utf8FromGbk);
    return texts;
}

std::string NoBars(int width, int area, int reach)
{
    if (width < LeastBarWidth || width > MostBarWidth) {
        return "the bar table has widths from " + std::to_string(LeastBarWidth) + " to " +
               std::to_string(MostBarWidth) + " mm, nothing for " + std::to_string(width);
    }
    return "the bar table has no row within " + std::to_string(reach) + " mm² of " + std::to_string(area) +
           " mm²";
}

}  // namespace

SteelBiao& BarTable()
{
    static SteelBiao table;
    static const bool isFilled = (table.InintOnce(), true);
    static_cast<void>(isFilled);
    return table;
}

GuJinBiao& StirrupTable()
{
    static GuJinBiao table;
    static const bool isFilled = (table.InintOnce(), true);
    static_cast<void>(isFilled);
    return table;
}

TableAnswer BarsFor(int width, int area, BarColumn column)
{
    constexpr int Reach = 70;  // mm², below which a row counts as near
    CStringArray list;
    SteelBiao& table = BarTable();
    // The bottom look-up does not say whether rows were near; the top look-up goes by the same rows.
    CStringArray top;
    const bool isNear = table.GetTopJin(width, area, top) >= 0;
    switch (column) {
    case BarColumn::Top: list = top; break;
    case BarColumn::Complete: table.GetTotalJin(width, area, list); break;
    case BarColumn::Bottom: table.GetDiJin(width, area, list); break;
    }
    return {Texts(list), isNear ? std::string() : NoBars(width, area, Reach), !isNear && !list.IsEmpty()};
}

TableAnswer BarsOn(int width, int area, const std::string& topBars)
{
    constexpr int Reach = 30;  // mm²
    const std::optional<CString> given = GbkFromUtf8(topBars);
    if (!given) {
        throw Failure(topBars + ": holds a character that GBK does not have");
    }
    CStringArray list;
    BarTable().GetExactTotalJin(width, area, *given, list);
    TableAnswer answer{Texts(list), {}, false};
    if (answer.texts.size() == 1) {
        answer.remark = NoBars(width, area, Reach) + " for " + topBars;
    }
    return answer;
}

TableAnswer StirrupsFor(int width, int grade, int seismicClass)
{
    CStringArray list;
    const int result = StirrupTable().GetGuJin(width, grade, seismicClass, list);
    TableAnswer answer{Texts(list), {}, false};
    if (result < 0) {
        answer.remark = "the stirrup table has the concrete grades 20, 25, 30, 35 and 40, nothing for " +
                        std::to_string(grade);
    } else if (list.IsEmpty()) {
        answer.remark = "the stirrup table has the widths 200 to 600 mm in steps of 50, nothing for " +
                        std::to_string(width);
    }
    return answer;
}

}  // namespace Desk
