// The section panel: moves texts between the section, the boxes and the lists.
#include "panels/BeamSecDlg.h"

#include "panels/SectionText.h"
#include "panels/private/BeamSecTemplate.h"
#include "panels/private/ListRows.h"
#include "panels/private/PanelFrame.h"
#include "platform/text/Numbers.h"
#include "platform/windows/DataExchange.h"

using namespace BeamSecTemplate;
using ListRows::HasSelection;
using ListRows::SelectedText;

namespace {

constexpr int HostMode = 0;
constexpr int SectionCode = 0;

}  // namespace

BEGIN_MESSAGE_MAP(CBeamSecDlg, CDialog)
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_LBN_SELCHANGE(WidthList, &CBeamSecDlg::OnSelchangeBeamwidthList)
ON_LBN_SELCHANGE(HeightList, &CBeamSecDlg::OnSelchangeBeamheightList)
ON_EN_CHANGE(WidthEdit, &CBeamSecDlg::OnChangeBeamwidthEdit)
ON_EN_CHANGE(HeightEdit, &CBeamSecDlg::OnChangeBeamheightEdit)
END_MESSAGE_MAP()

CBeamSecDlg::CBeamSecDlg(CString strText, CWnd* pParent) : CDialog(Shape, pParent), m_strResult(strText) {}

CBeamSecDlg::~CBeamSecDlg() = default;

void CBeamSecDlg::DoDataExchange(CDataExchange* pDX)
{
    DDX_Control(pDX, SignList, m_SeparatorList);
    DDX_Control(pDX, SignColumn, m_SeparatorColumn);
    DDX_Control(pDX, HeightList, m_HeightList);
    DDX_Control(pDX, WidthList, m_WidthList);
    DDX_Text(pDX, WidthEdit, m_strWidth);
    DDX_Text(pDX, HeightEdit, m_strHeight);
}

void CBeamSecDlg::Init(CString strText)
{
    m_WidthList.ResetContent();
    m_HeightList.ResetContent();
    m_SeparatorColumn.ResetContent();
    m_strResult = strText;
    ListRows::Fill(m_WidthList, WidthRows);
    ListRows::Fill(m_HeightList, HeightRows);
    DecomposeChicun();
    for (int i = 0; i < SignRows; ++i) {
        m_SeparatorColumn.AddString(m_strSeparator);
    }
    m_SeparatorList.AddString(m_strSeparator);
}

void CBeamSecDlg::DecomposeChicun()
{
    SectionText::Fields fields{m_strSeparator, m_strWidth, m_strHeight};
    if (!SectionText::Decompose(m_strResult, fields)) {
        return;
    }
    m_strSeparator = fields.separator;
    m_strWidth = fields.width;
    m_strHeight = fields.height;
    UpdateData(FALSE);
    CoordinateListWithEdit();
}

void CBeamSecDlg::IntegrateSec()
{
    if (HasSelection(m_WidthList) && HasSelection(m_HeightList)) {
        m_strResult =
            SectionText::Compose({m_strSeparator, SelectedText(m_WidthList), SelectedText(m_HeightList)});
    }
}

bool CBeamSecDlg::IntegrateChicunFromEdit()
{
    UpdateData(TRUE);
    if (m_strWidth.IsEmpty() || m_strHeight.IsEmpty()) {
        return false;
    }
    m_strResult = SectionText::Compose({m_strSeparator, m_strWidth, m_strHeight});
    return true;
}

void CBeamSecDlg::CoordinateEditWithList()
{
    if (HasSelection(m_WidthList)) {
        m_strWidth = SelectedText(m_WidthList);
    }
    if (HasSelection(m_HeightList)) {
        m_strHeight = SelectedText(m_HeightList);
    }
    UpdateData(FALSE);
}

void CBeamSecDlg::CoordinateListWithEdit()
{
    UpdateData(TRUE);
    ListRows::SelectNumber(m_WidthList, NumberValue(m_strWidth.View()));
    ListRows::SelectNumber(m_HeightList, NumberValue(m_strHeight.View()));
}

void CBeamSecDlg::TestMoveWnd(CPoint point) { PanelFrame::Move(*this, CPoint(m_nDownX, m_nDownY), point); }

void CBeamSecDlg::TranslateMessage(MSG* pMsg) { PanelFrame::ForwardRightPress(*this, *pMsg); }

BOOL CBeamSecDlg::PreTranslateMessage(MSG* pMsg)
{
    const HWND hWnd = m_hWnd;
    PanelFrame::Follow(*this, m_bPressed, *pMsg);
    if (pMsg->message == WM_LBUTTONDBLCLK) {
        OnRButtonDown(0, pMsg->pt);
        return IsWindow(hWnd);
    }
    return PanelFrame::Translate(*this, hWnd, pMsg, [&] { TranslateMessage(pMsg); });
}

void CBeamSecDlg::OnRButtonDown(UINT nFlags, CPoint point)
{
    const auto deliver = [this] {
        if (m_strResult.IsEmpty()) {
            return false;
        }
        PanelFrame::Deliver(*this, {m_bToItem, m_pItem, m_bInParent, m_pHostData, HostMode, SectionCode},
                            m_strResult);
        return true;
    };
    if (PanelFrame::Confirm(*this, deliver)) {
        CDialog::OnRButtonDown(nFlags, point);
    }
}

void CBeamSecDlg::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    CDialog::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CBeamSecDlg::OnSelchangeBeamwidthList()
{
    IntegrateSec();
    CoordinateEditWithList();
}

void CBeamSecDlg::OnSelchangeBeamheightList() { OnSelchangeBeamwidthList(); }

void CBeamSecDlg::OnChangeBeamwidthEdit()
{
    CoordinateListWithEdit();
    IntegrateChicunFromEdit();
}

void CBeamSecDlg::OnChangeBeamheightEdit() { OnChangeBeamwidthEdit(); }
