// CVBarPropertySheet: the pop-up that sets a wall's vertical bars, such as "B16".
#pragma once

#include <memory>

#include "pickers/ColSpecControls.h"
#include "platform/text/Arrays.h"
#include "platform/windows/CDialog.h"

class CPropertyGridItem;

// The twin of the horizontal picker for grade and diameter alone. A click on a grade puts the diameters
// of that grade on offer; a new picker offers rows of its own until then.
class RANKER_API CVBarPropertySheet : public CDialog {
public:
    static constexpr UINT IDD = 365;

    explicit CVBarPropertySheet(CWnd* pParent = nullptr);
    ~CVBarPropertySheet() override;

    // As the horizontal picker's. The diameters on offer stay, whatever the grade.
    void UpdateValue();

    BOOL OnInitDialog() override;
    void OnRButtonDown(UINT nFlags, CPoint point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSelchangeListVbarGrade();
    void OnSelchangeListVbarDiameter();

    CColSpecEdit m_GradeEdit;
    CColSpecEdit m_DiameterEdit;
    CColSpecList m_GradeList;
    CColSpecList m_DiameterList;
    CPropertyGridItem* m_pItem = nullptr;  // borrowed
    CStringArray m_arrGrade;
    CStringArray m_arrDiameter;  // on offer at present

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void SetSelectFlag(CString strGrade, CString strDiameter);

    std::shared_ptr<const int> m_life = std::make_shared<const int>(0);  // ends with the picker

    DECLARE_MESSAGE_MAP()
};
