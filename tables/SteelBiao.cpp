// Filling the longitudinal bar table and searching it.
#include "tables/SteelBiao.h"

#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>

#include "tables/private/SteelRows.h"
#include "tables/private/TakeText.h"

namespace {

constexpr int Tolerance = 70;       // mm², exclusive
constexpr int ExactTolerance = 30;  // mm², exclusive
constexpr int WidenedSize = 8;      // texts at which the widening stops

// Bottom bars by steel area: the first class whose upper bound in mm² is not below the area.
struct DiJinClass {
    int upTo;
    const char* diJin;
};
constexpr DiJinClass DiJinClasses[] = {
    {400, "3B12"},
    {570, "3B14"},
    {700, "3B16"},
    {880, "3B18"},
    {1050, "3B20"},
    {1300, "3B22"},
    {std::numeric_limits<int>::max(), "3B25"},
};

std::int64_t Distance(const SteelBiaoItem& row, int nArea)
{
    return std::abs(static_cast<std::int64_t>(row.m_nArea) - nArea);
}

// Remembers which of the rows that added a text lies nearest to the area; the first one on a tie.
class Nearest {
public:
    void Offer(int nRow, std::int64_t distance)
    {
        if (m_nRow < 0 || distance < m_distance) {
            m_nRow = nRow;
            m_distance = distance;
        }
    }
    [[nodiscard]] int Row() const { return m_nRow; }

private:
    int m_nRow = -1;
    std::int64_t m_distance = 0;
};

}  // namespace

void SteelBiaoItem::operator=(const SteelBiaoItem& other)
{
    m_nWidth = other.m_nWidth;
    m_nArea = other.m_nArea;
    m_strTopJin = other.m_strTopJin;
    m_strTotalJin = other.m_strTotalJin;
    m_strDiJin = other.m_strDiJin;
}

void SteelBiaoItem::Init(int width, int area, CString topJin, CString totalJin)
{
    m_nWidth = width;
    m_nArea = area;
    m_strTopJin = std::move(topJin);
    m_strTotalJin = std::move(totalJin);
    CounterPartDiJin();
}

void SteelBiaoItem::CounterPartDiJin()
{
    for (const DiJinClass& diJinClass : DiJinClasses) {
        if (m_nArea <= diJinClass.upTo) {
            m_strDiJin = diJinClass.diJin;
            return;
        }
    }
}

void SteelBiao::InintOnce()
{
    SteelBiaoItem scratch;
    for (const SteelRows::Row& row : SteelRows::Rows) {
        scratch.Init(row.width, row.area, row.topJin, row.totalJin);
        ArrayOf(row.width).Add(scratch);
    }
}

// The array of a band: a nominal width takes the widths from 25 mm below it to 24 mm above it, the
// lowest down to 200 and the highest up to 700.
const CArray<SteelBiaoItem>* SteelBiao::BandOf(int nWidth)
{
    if (nWidth < 200 || nWidth > 700) {
        return nullptr;
    }
    return &ArrayOf(nWidth);
}

CArray<SteelBiaoItem>& SteelBiao::ArrayOf(int nWidth)
{
    struct Band {
        int below;
        CArray<SteelBiaoItem> SteelBiao::*array;
    };
    static constexpr Band Bands[] = {
        {275, &SteelBiao::m_arBiao250}, {325, &SteelBiao::m_arBiao300}, {375, &SteelBiao::m_arBiao350},
        {425, &SteelBiao::m_arBiao400}, {475, &SteelBiao::m_arBiao450}, {525, &SteelBiao::m_arBiao500},
        {575, &SteelBiao::m_arBiao550},
    };
    for (const Band& band : Bands) {
        if (nWidth < band.below) {
            return this->*band.array;
        }
    }
    return m_arBiao600;
}

int SteelBiao::GetTopJin(int nWidth, int nArea, CStringArray& arResult)
{
    return LookUp(nWidth, nArea, &SteelBiaoItem::m_strTopJin, arResult);
}

int SteelBiao::GetTotalJin(int nWidth, int nArea, CStringArray& arResult)
{
    return LookUp(nWidth, nArea, &SteelBiaoItem::m_strTotalJin, arResult);
}

int SteelBiao::GetDiJin(int nWidth, int nArea, CStringArray& arResult)
{
    LookUp(nWidth, nArea, &SteelBiaoItem::m_strDiJin, arResult);
    return -1;
}

int SteelBiao::LookUp(int nWidth, int nArea, CString SteelBiaoItem::*field, CStringArray& arResult)
{
    const CArray<SteelBiaoItem>* const rows = BandOf(nWidth);
    if (rows == nullptr || rows->IsEmpty()) {
        return -1;
    }
    Nearest nearest;
    for (int i = 0; i < rows->GetSize(); ++i) {
        const SteelBiaoItem& row = rows->GetAt(i);
        const std::int64_t distance = Distance(row, nArea);
        if (distance < Tolerance && TakeText(row.*field, arResult)) {
            nearest.Offer(i, distance);
        }
    }
    if (!arResult.IsEmpty()) {
        return nearest.Row();
    }
    const auto takeUntilFull = [&](auto from, auto to) {
        for (; from != to && arResult.GetSize() < WidenedSize; ++from) {
            TakeText((*from).*field, arResult);
        }
    };
    if (nArea > rows->GetAt(rows->GetSize() - 1).m_nArea) {
        takeUntilFull(std::make_reverse_iterator(rows->end()), std::make_reverse_iterator(rows->begin()));
    } else if (nArea < rows->GetAt(0).m_nArea) {
        takeUntilFull(rows->begin(), rows->end());
    }
    return -1;
}

int SteelBiao::GetExactTotalJin(int nWidth, int nArea, CString strTopJin, CStringArray& arResult)
{
    arResult.Add(strTopJin);
    const CArray<SteelBiaoItem>* const rows = BandOf(nWidth);
    if (rows == nullptr) {
        return -1;
    }
    Nearest nearest;
    for (int i = 0; i < rows->GetSize(); ++i) {
        const SteelBiaoItem& row = rows->GetAt(i);
        const std::int64_t distance = Distance(row, nArea);
        if (distance < ExactTolerance && row.m_strTopJin == strTopJin &&
            TakeText(row.m_strTotalJin, arResult)) {
            nearest.Offer(i, distance);
        }
    }
    return nearest.Row();
}
