// Reference table of beam stirrups and its look-up by width, concrete grade and seismic class.
#pragma once

#include "host/Export.h"
#include "platform/text/Arrays.h"
#include "platform/text/CString.h"

// One row of the table.
class RANKER_API GuJinItem {
public:
    GuJinItem() = default;
    GuJinItem(const GuJinItem& other) = default;
    virtual ~GuJinItem() = default;
    void operator=(const GuJinItem& other);

    // Sets the fields and builds the tight form: "100/" behind the first "@".
    void Init(int width, int grade, double ratio, CString gujin);

    int m_nWidth = 0;         // beam width in mm
    int m_nGrade = 0;         // concrete grade: 20, 25, 30, 35 or 40
    CString m_strGuJin;       // stirrup annotation with one spacing, "A8@200(2)"
    CString m_strGuJinJiaMi;  // the same with a tight zone of spacing 100, "A8@100/200(2)"
    double m_dRatio = 0.0;    // stirrup ratio figure, two decimals
};

// The table. The host owns it, calls InintOnce once and lends it to the stirrup ranker.
class RANKER_API GuJinBiao {
public:
    GuJinBiao() = default;
    virtual ~GuJinBiao() = default;

    // Appends all 214 rows; a second call appends them again.
    void InintOnce();

    // Appends, for every row of exactly this width in mm and this concrete grade whose ratio is
    // enough for the seismic class (1 asks for the most, 4 for the least), the annotation and its
    // tight form, in row order and each only if the list does not hold it yet. Returns 0, for grade 40
    // it is 1; -1 with the list unchanged for a grade that the table has not or a class outside 1 to 4.
    int GetGuJin(int nWidth, int nGrade, int nSeismic, CStringArray& arResult);

    CArray<GuJinItem> m_arBiao20;
    CArray<GuJinItem> m_arBiao25;
    CArray<GuJinItem> m_arBiao30;
    CArray<GuJinItem> m_arBiao35;
    CArray<GuJinItem> m_arBiao40;

private:
    [[nodiscard]] CArray<GuJinItem>* ArrayOf(int nGrade);
};
