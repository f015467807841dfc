#include "pickers/HBarPropertySheet.h"

#include "bartext/AnalyseBarComment.h"
#include "pickers/HBarTemplate.h"
#include "platform/windows/DataExchange.h"

using namespace HBarTemplate;
using namespace ItemBinding;

namespace {

CString Number(int number)
{
    CString text;
    text.Format("%d", number);
    return text;
}

// Tenths 0 to 9; written out, since a real number's point depends on the locale.
CString DiameterText(int whole, int tenths)
{
    return tenths == 0 ? Number(whole) : Number(whole) + "." + Number(tenths);
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
    m_GradeEdit.SetWindowText(m_arrGrade[0]);
    m_DiameterEdit.SetWindowText(m_arrDiameter[0]);
    m_TightEdit.SetWindowText(m_arrTightSpace[0]);
    m_NonTightEdit.SetWindowText(m_arrNonTightSpace[0]);
    Fill(m_GradeList, m_arrGrade);
    Fill(m_DiameterList, m_arrDiameter);
    Fill(m_TightList, m_arrTightSpace);
    Fill(m_NonTightList, m_arrNonTightSpace);
    return TRUE;
}

void CHBarPropertySheet::UpdateValue()
{
    if (!IsUsable(m_pItem)) {
        return;
    }
    const CString value = m_pItem->GetValue();
    const CString grade = GradeIn(value);
    if (!grade.IsEmpty()) {
        m_GradeEdit.SetWindowText(grade);
    }
    int gradeNumber = 0;
    int whole = 0;
    int tight = 0;
    int normal = 0;
    int tenths = 0;
    AnalyseBarComment(value, gradeNumber, whole, tight, normal, &tenths);
    const CString diameterText = DiameterText(whole, tenths);
    const CString tightText = Number(tight);
    const CString normalText = normal == 0 ? CString() : Number(normal);
    m_DiameterEdit.SetWindowText(diameterText);
    m_NonTightEdit.SetWindowText(normalText);
    m_TightEdit.SetWindowText(tightText);
    SetSelectFlag(grade, diameterText, tightText, normalText);
}

void CHBarPropertySheet::SetSelectFlag(CString strGrade, CString strDiameter, CString strTight,
                                       CString strNonTight)
{
    Select(m_GradeList, m_arrGrade, strGrade);
    Select(m_DiameterList, m_arrDiameter, strDiameter);
    Select(m_TightList, m_arrTightSpace, strTight);
    Select(m_NonTightList, m_arrNonTightSpace, strNonTight);
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

void CHBarPropertySheet::OnSelchangeListHbarGrade() { TakeRow(m_GradeList, m_arrGrade, m_GradeEdit); }

void CHBarPropertySheet::OnSelchangeListHbarDiameter()
{
    TakeRow(m_DiameterList, m_arrDiameter, m_DiameterEdit);
}

void CHBarPropertySheet::OnSelchangeListHbarTightspace()
{
    TakeRow(m_TightList, m_arrTightSpace, m_TightEdit);
}

void CHBarPropertySheet::OnSelchangeListHbarNontightspace()
{
    TakeRow(m_NonTightList, m_arrNonTightSpace, m_NonTightEdit);
}
