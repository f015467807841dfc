#include "pickers/HBarPropertySheet.h"

#include "bartext/AnalyseBarComment.h"
#include "pickers/private/HBarTemplate.h"
#include "pickers/private/ItemBinding.h"
#include "platform/windows/DataExchange.h"

using namespace HBarTemplate;
using namespace ItemBinding;

namespace {

// Tenths 0 to 9; written out, since a real number's point depends on the locale.
CString DiameterText(int whole, int tenths)
{
    return tenths == 0 ? DecimalText(whole) : DecimalText(whole) + "." + DecimalText(tenths);
}

Column GradeColumn(CHBarPropertySheet& picker)
{
    return {picker.m_GradeList, picker.m_GradeEdit, picker.m_arrGrade};
}

Column DiameterColumn(CHBarPropertySheet& picker)
{
    return {picker.m_DiameterList, picker.m_DiameterEdit, picker.m_arrDiameter};
}

Column TightColumn(CHBarPropertySheet& picker)
{
    return {picker.m_TightList, picker.m_TightEdit, picker.m_arrTightSpace};
}

Column NormalColumn(CHBarPropertySheet& picker)
{
    return {picker.m_NonTightList, picker.m_NonTightEdit, picker.m_arrNonTightSpace};
}

}  // namespace

BEGIN_MESSAGE_MAP(CHBarPropertySheet, CDialog)
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_LBN_SELCHANGE(GradeList, &CHBarPropertySheet::OnSelchangeListHbarGrade)
ON_LBN_SELCHANGE(DiameterList, &CHBarPropertySheet::OnSelchangeListHbarDiameter)
ON_LBN_SELCHANGE(TightList, &CHBarPropertySheet::OnSelchangeListHbarTightspace)
ON_LBN_SELCHANGE(NormalList, &CHBarPropertySheet::OnSelchangeListHbarNontightspace)
END_MESSAGE_MAP()

CHBarPropertySheet::CHBarPropertySheet(CWnd* pParent) : CDialog(Shape, pParent)
{
    SetRows(m_arrGrade, GradeRows);
    SetRows(m_arrDiameter, DiameterRows);
    SetRows(m_arrTightSpace, TightRows);
    SetRows(m_arrNonTightSpace, NormalRows);
}

CHBarPropertySheet::~CHBarPropertySheet() = default;

void CHBarPropertySheet::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, TightList, m_TightList);
    DDX_Control(pDX, NormalList, m_NonTightList);
    DDX_Control(pDX, GradeList, m_GradeList);
    DDX_Control(pDX, DiameterList, m_DiameterList);
    DDX_Control(pDX, GradeEdit, m_GradeEdit);
    DDX_Control(pDX, DiameterEdit, m_DiameterEdit);
    DDX_Control(pDX, NormalEdit, m_NonTightEdit);
    DDX_Control(pDX, TightEdit, m_TightEdit);
}

BOOL CHBarPropertySheet::OnInitDialog()
{
    CDialog::OnInitDialog();
    for (const Column& column :
         {GradeColumn(*this), DiameterColumn(*this), TightColumn(*this), NormalColumn(*this)}) {
        Open(column);
    }
    return TRUE;
}

void CHBarPropertySheet::UpdateValue()
{
    if (!IsUsable(m_pItem)) {
        return;
    }
    const CString value = m_pItem->GetValue();
    const CString grade = ShowGradeIn(value, m_GradeEdit);
    int gradeNumber = 0;
    int whole = 0;
    int tight = 0;
    int normal = 0;
    int tenths = 0;
    AnalyseBarComment(value, gradeNumber, whole, tight, normal, &tenths);
    const CString diameterText = DiameterText(whole, tenths);
    const CString tightText = DecimalText(tight);
    const CString normalText = normal == 0 ? CString() : DecimalText(normal);
    m_DiameterEdit.SetWindowText(diameterText);
    m_NonTightEdit.SetWindowText(normalText);
    m_TightEdit.SetWindowText(tightText);
    SetSelectFlag(grade, diameterText, tightText, normalText);
}

void CHBarPropertySheet::SetSelectFlag(CString strGrade, CString strDiameter, CString strTight,
                                       CString strNonTight)
{
    Select(GradeColumn(*this), strGrade);
    Select(DiameterColumn(*this), strDiameter);
    Select(TightColumn(*this), strTight);
    Select(NormalColumn(*this), strNonTight);
}

void CHBarPropertySheet::OnRButtonDown(UINT /*nFlags*/, CPoint /*point*/)
{
    CString text = TextOf(m_GradeEdit) + TextOf(m_DiameterEdit) + "@" + TextOf(m_TightEdit);
    const CString normal = TextOf(m_NonTightEdit);
    if (!normal.IsEmpty()) {
        text += "/" + normal;
    }
    Confirm(*this, m_life, text);
}

void CHBarPropertySheet::OnKeyDown(UINT nChar, UINT /*nRepCnt*/, UINT /*nFlags*/)
{
    if (nChar == VK_ESCAPE) {
        Dismiss(*this);
    }
}

void CHBarPropertySheet::OnSelchangeListHbarGrade() { TakeRow(GradeColumn(*this)); }
void CHBarPropertySheet::OnSelchangeListHbarDiameter() { TakeRow(DiameterColumn(*this)); }
void CHBarPropertySheet::OnSelchangeListHbarTightspace() { TakeRow(TightColumn(*this)); }
void CHBarPropertySheet::OnSelchangeListHbarNontightspace() { TakeRow(NormalColumn(*this)); }
