// CHBarPropertySheet: the pop-up that sets a wall's horizontal bars, such as "A10@100/200".
#pragma once

#include <memory>

#include "pickers/ColSpecControls.h"
#include "platform/text/Arrays.h"
#include "platform/windows/CDialog.h"

class CPropertyGridItem;

// Four edit boxes above four lists: grade, diameter, tight spacing and, if there is one, normal spacing.
// The boxes count, with rows picked and digits typed alike. A right press hands the text to the property
// item that the picker is bound to and unbinds it, Esc dismisses; the picker hides in both cases and its
// boxes keep their texts.
//
// Order of use: construct, Create(IDD), set m_pItem, UpdateValue, show; for another use the last three.
class RANKER_API CHBarPropertySheet : public CDialog {
public:
    static constexpr UINT IDD = 363;

    explicit CHBarPropertySheet(CWnd* pParent = nullptr);
    ~CHBarPropertySheet() override;

    // Shows the value of the item. One without a grade letter leaves the grade box as it is. Without an
    // item, or with one that has no window, nothing changes.
    void UpdateValue();

    BOOL OnInitDialog() override;
    void OnRButtonDown(UINT nFlags, CPoint point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSelchangeListHbarGrade();
    void OnSelchangeListHbarDiameter();
    void OnSelchangeListHbarTightspace();
    void OnSelchangeListHbarNontightspace();

    CColSpecList m_TightList;
    CColSpecList m_NonTightList;
    CColSpecList m_GradeList;
    CColSpecList m_DiameterList;
    CColSpecEdit m_GradeEdit;
    CColSpecEdit m_DiameterEdit;
    CColSpecEdit m_NonTightEdit;
    CColSpecEdit m_TightEdit;
    CPropertyGridItem* m_pItem = nullptr;  // borrowed
    CStringArray m_arrGrade;
    CStringArray m_arrDiameter;
    CStringArray m_arrTightSpace;
    CStringArray m_arrNonTightSpace;

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void SetSelectFlag(CString strGrade, CString strDiameter, CString strTight, CString strNonTight);

    std::shared_ptr<const int> m_life = std::make_shared<const int>(0);  // ends with the picker

    DECLARE_MESSAGE_MAP()
};
