// Filling the stirrup table and searching it.
#include "tables/GuJinBiao.h"

#include <utility>

#include "host/StirrupText.h"
#include "tables/private/GuJinRows.h"
#include "tables/private/TakeText.h"

namespace {

// The least stirrup ratio figure of the seismic classes 1 to 4.
constexpr double MinimumRatios[] = {0.30, 0.28, 0.26, 0.24};

}  // namespace

void GuJinItem::operator=(const GuJinItem& other)
{
    m_nWidth = other.m_nWidth;
    m_nGrade = other.m_nGrade;
    m_strGuJin = other.m_strGuJin;
    m_strGuJinJiaMi = other.m_strGuJinJiaMi;
    m_dRatio = other.m_dRatio;
}

void GuJinItem::Init(int width, int grade, double ratio, CString gujin)
{
    m_nWidth = width;
    m_nGrade = grade;
    m_strGuJin = std::move(gujin);
    m_dRatio = ratio;
    m_strGuJinJiaMi = StirrupText::TightForm(m_strGuJin);
}

void GuJinBiao::InintOnce()
{
    GuJinItem scratch;
    for (const GuJinRows::Row& row : GuJinRows::Rows) {
        scratch.Init(row.width, row.grade, row.ratio, row.gujin);
        ArrayOf(row.grade)->Add(scratch);
    }
}

// Null for a grade without an array.
CArray<GuJinItem>* GuJinBiao::ArrayOf(int nGrade)
{
    switch (nGrade) {
    case 20: return &m_arBiao20;
    case 25: return &m_arBiao25;
    case 30: return &m_arBiao30;
    case 35: return &m_arBiao35;
    case 40: return &m_arBiao40;
    default: return nullptr;
    }
}

int GuJinBiao::GetGuJin(int nWidth, int nGrade, int nSeismic, CStringArray& arResult)
{
    const CArray<GuJinItem>* const rows = ArrayOf(nGrade);
    if (rows == nullptr || nSeismic < 1 || nSeismic > 4) {
        return -1;
    }
    const double minimum = MinimumRatios[nSeismic - 1];
    for (const GuJinItem& row : *rows) {
        if (row.m_nWidth == nWidth && row.m_dRatio >= minimum) {
            // Both are looked for before either comes in.
            const bool bHasPlain = HoldsText(arResult, row.m_strGuJin);
            const bool bHasTight = HoldsText(arResult, row.m_strGuJinJiaMi);
            if (!bHasPlain) {
                arResult.Add(row.m_strGuJin);
            }
            if (!bHasTight) {
                arResult.Add(row.m_strGuJinJiaMi);
            }
        }
    }
    return nGrade == 40 ? 1 : 0;
}
