// Reference table of longitudinal beam bars and its look-ups by beam width and steel area.
#pragma once

#include "host/Export.h"
#include "platform/text/Arrays.h"
#include "platform/text/CString.h"

// One row of the table.
class RANKER_API SteelBiaoItem {
public:
    SteelBiaoItem() = default;
    SteelBiaoItem(const SteelBiaoItem& other) = default;
    virtual ~SteelBiaoItem() = default;
    void operator=(const SteelBiaoItem& other);

    // Sets the first four fields and works out the bottom bars.
    void Init(int width, int area, CString topJin, CString totalJin);
    // Sets m_strDiJin, three bars whose diameter is chosen by m_nArea alone.
    void CounterPartDiJin();

    int m_nWidth = 0;       // nominal beam width in mm
    int m_nArea = 0;        // steel area in mm²
    CString m_strTopJin;    // top through bars, "2B18"
    CString m_strTotalJin;  // complete top bars, "2B18+2B20"
    CString m_strDiJin;     // counterpart bottom bars, "3B20"
};

// The table. The host owns it, calls InintOnce once and lends it to the bar ranker. A table that was
// not filled answers as one without rows.
//
// The look-ups take a beam width in mm and a steel area in mm² and append texts to the caller's list,
// in row order and each only if the list does not hold it yet. A width below 200 or above 700 finds
// nothing. Their integer result is the index, in the width's array, of the row nearest in area among
// those that added a text in the search by area; -1 when none did. GetDiJin always answers -1.
class RANKER_API SteelBiao {
public:
    SteelBiao() = default;
    virtual ~SteelBiao() = default;

    // Appends all 344 rows; a second call appends them again.
    void InintOnce();

    // Top through bars, complete top bars and bottom bars of the rows within 70 mm² of the area. When
    // the list is empty after that and the area lies beyond the first or the last row, up to 8 texts
    // from that end on.
    int GetTopJin(int nWidth, int nArea, CStringArray& arResult);
    int GetTotalJin(int nWidth, int nArea, CStringArray& arResult);
    int GetDiJin(int nWidth, int nArea, CStringArray& arResult);
    // The given through bars themselves, without looking for them in the list, then the complete top
    // bars of the rows within 30 mm² that have exactly these through bars.
    int GetExactTotalJin(int nWidth, int nArea, CString strTopJin, CStringArray& arResult);

    CArray<SteelBiaoItem> m_arBiao250;
    CArray<SteelBiaoItem> m_arBiao300;
    CArray<SteelBiaoItem> m_arBiao400;
    CArray<SteelBiaoItem> m_arBiao450;
    CArray<SteelBiaoItem> m_arBiao500;
    CArray<SteelBiaoItem> m_arBiao550;
    CArray<SteelBiaoItem> m_arBiao600;
    CArray<SteelBiaoItem> m_arBiao350;

private:
    [[nodiscard]] CArray<SteelBiaoItem>& ArrayOf(int nWidth);
    [[nodiscard]] const CArray<SteelBiaoItem>* BandOf(int nWidth);
    int LookUp(int nWidth, int nArea, CString SteelBiaoItem::*field, CStringArray& arResult);
};
