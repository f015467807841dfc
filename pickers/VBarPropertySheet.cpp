#include "pickers/VBarPropertySheet.h"

#include "bartext/AnalyseBarComment.h"
#include "pickers/private/ItemBinding.h"
#include "pickers/private/VBarTemplate.h"
#include "platform/windows/DataExchange.h"

using namespace VBarTemplate;
using namespace ItemBinding;

namespace {

Column GradeColumn(CVBarPropertySheet& picker)
{
    return {picker.m_GradeList, picker.m_GradeEdit, picker.m_arrGrade};
}

Column DiameterColumn(CVBarPropertySheet& picker)
{
    return {picker.m_DiameterList, picker.m_DiameterEdit, picker.m_arrDiameter};
}

}  // namespace

BEGIN_MESSAGE_MAP(CVBarPropertySheet, CDialog)
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_LBN_SELCHANGE(GradeList, &CVBarPropertySheet::OnSelchangeListVbarGrade)
ON_LBN_SELCHANGE(DiameterList, &CVBarPropertySheet::OnSelchangeListVbarDiameter)
END_MESSAGE_MAP()

CVBarPropertySheet::CVBarPropertySheet(CWnd* pParent) : CDialog(Shape, pParent)
{
    SetRows(m_arrGrade, GradeRows);
    SetRows(m_arrDiameter, FirstRows);
}

CVBarPropertySheet::~CVBarPropertySheet() = default;

void CVBarPropertySheet::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, GradeEdit, m_GradeEdit);
    DDX_Control(pDX, DiameterEdit, m_DiameterEdit);
    DDX_Control(pDX, GradeList, m_GradeList);
    DDX_Control(pDX, DiameterList, m_DiameterList);
}

BOOL CVBarPropertySheet::OnInitDialog()
{
    CDialog::OnInitDialog();
    Open(GradeColumn(*this));
    Open(DiameterColumn(*this));
    return TRUE;
}

void CVBarPropertySheet::UpdateValue()
{
    if (!IsUsable(m_pItem)) {
        return;
    }
    const CString value = m_pItem->GetValue();
    const CString grade = ShowGradeIn(value, m_GradeEdit);
    int gradeNumber = 0;
    int diameter = 0;
    int tight = 0;
    int normal = 0;
    AnalyseBarComment(value, gradeNumber, diameter, tight, normal, nullptr);
    const CString diameterText = DecimalText(diameter);
    m_DiameterEdit.SetWindowText(diameterText);
    SetSelectFlag(grade, diameterText);
}

void CVBarPropertySheet::SetSelectFlag(CString strGrade, CString strDiameter)
{
    Select(GradeColumn(*this), strGrade);
    Select(DiameterColumn(*this), strDiameter);
}

void CVBarPropertySheet::OnRButtonDown(UINT /*nFlags*/, CPoint /*point*/)
{
    Confirm(*this, m_life, TextOf(m_GradeEdit) + TextOf(m_DiameterEdit));
}

void CVBarPropertySheet::OnKeyDown(UINT nChar, UINT /*nRepCnt*/, UINT /*nFlags*/)
{
    if (nChar == VK_ESCAPE) {
        Dismiss(*this);
    }
}

void CVBarPropertySheet::OnSelchangeListVbarGrade()
{
    const int row = m_GradeList.GetCurSel();
    if (row < 0 || row >= m_arrGrade.GetSize()) {
        return;
    }
    TakeRow(GradeColumn(*this));
    if (row == 0) {
        SetRows(m_arrDiameter, PlainRows);
    } else {
        SetRows(m_arrDiameter, RibbedRows);
    }
    Open(DiameterColumn(*this));
}

void CVBarPropertySheet::OnSelchangeListVbarDiameter() { TakeRow(DiameterColumn(*this)); }
