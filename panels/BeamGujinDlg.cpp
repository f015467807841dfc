// The stirrup panel: moves texts between the annotation, the boxes and the lists.
#include "panels/BeamGujinDlg.h"

#include "host/StirrupText.h"
#include "panels/private/BeamGujinTemplate.h"
#include "panels/private/ListRows.h"
#include "panels/private/PanelFrame.h"
#include "platform/windows/DataExchange.h"

using namespace BeamGujinTemplate;
using ListRows::FieldOf;
using ListRows::HasSelection;
using ListRows::SelectedText;

namespace {

constexpr int HostMode = 0;
constexpr int StirrupCode = 1;

void Trim(CString& text)
{
    text.TrimLeft();
    text.TrimRight();
}

void TakeRow(const CListBox& list, CString& field)
{
    if (HasSelection(list)) {
        field = SelectedText(list);
    }
}

// The digit between the brackets.
void CutToSecondCharacter(CString& legs) { legs = legs.Mid(1, 1); }

StirrupText::Fields FieldsOf(const CBeamGujinDlg& panel)
{
    return {panel.m_strSteelType,   panel.m_strSteelDiameter, panel.m_strJiamiInterval,
            panel.m_strJiamiZhishu, panel.m_strInterval,      panel.m_strZhishu};
}

void TakeFields(CBeamGujinDlg& panel, const StirrupText::Fields& fields)
{
    panel.m_strSteelType = fields.grade;
    panel.m_strSteelDiameter = fields.diameter;
    panel.m_strJiamiInterval = fields.tightSpacing;
    panel.m_strJiamiZhishu = fields.tightLegs;
    panel.m_strInterval = fields.spacing;
    panel.m_strZhishu = fields.legs;
}

}  // namespace

BEGIN_MESSAGE_MAP(CBeamGujinDlg, CDialog)
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_LBN_SELCHANGE(ZhishuList, &CBeamGujinDlg::OnSelchangeZhishuList)
ON_LBN_SELCHANGE(SteelsymList, &CBeamGujinDlg::OnSelchangeSteelsymList)
ON_LBN_SELCHANGE(JiamiZhishuList, &CBeamGujinDlg::OnSelchangeJiamizhishuList)
ON_LBN_SELCHANGE(JiamiIntervalList, &CBeamGujinDlg::OnSelchangeJiamiintervallist)
ON_LBN_SELCHANGE(IntervalList, &CBeamGujinDlg::OnSelchangeIntervalList)
ON_LBN_SELCHANGE(DiaList, &CBeamGujinDlg::OnSelchangeDiaList)
ON_EN_CHANGE(IntervalEdit, &CBeamGujinDlg::OnChangeEditInterval)
ON_EN_CHANGE(JiamiIntervalEdit, &CBeamGujinDlg::OnChangeEditJiamiinterval)
ON_EN_CHANGE(JiamiZhishuEdit, &CBeamGujinDlg::OnChangeEditJiamizhishu)
ON_EN_CHANGE(DiaEdit, &CBeamGujinDlg::OnChangeEditSteeldiameter)
ON_EN_CHANGE(SteelsymEdit, &CBeamGujinDlg::OnChangeEditSteeltype)
ON_EN_CHANGE(ZhishuEdit, &CBeamGujinDlg::OnChangeEditZhishu)
END_MESSAGE_MAP()

CBeamGujinDlg::CBeamGujinDlg(CString strText, CWnd* pParent) : CDialog(Shape, pParent), m_strResult(strText)
{
}

CBeamGujinDlg::~CBeamGujinDlg() = default;

void CBeamGujinDlg::DoDataExchange(CDataExchange* pDX)
{
    DDX_Control(pDX, ZhishuList, m_ZhishuList);
    DDX_Control(pDX, SteelsymList, m_SteelsymList);
    DDX_Control(pDX, JiamiZhishuList, m_JiamizhishuList);
    DDX_Control(pDX, JiamiIntervalList, m_JiamiintervalList);
    DDX_Control(pDX, IntervalList, m_IntervalList);
    DDX_Control(pDX, DiaList, m_DiaList);
    DDX_Text(pDX, IntervalEdit, m_strInterval);
    DDX_Text(pDX, JiamiIntervalEdit, m_strJiamiInterval);
    DDX_Text(pDX, JiamiZhishuEdit, m_strJiamiZhishu);
    DDX_Text(pDX, DiaEdit, m_strSteelDiameter);
    DDX_Text(pDX, SteelsymEdit, m_strSteelType);
    DDX_Text(pDX, ZhishuEdit, m_strZhishu);
}

void CBeamGujinDlg::Init()
{
    // All lists first: rows of an earlier Init would let the handlers below compose from them.
    for (CListBox* list : {&m_SteelsymList, &m_DiaList, &m_JiamiintervalList, &m_JiamizhishuList,
                           &m_IntervalList, &m_ZhishuList}) {
        list->ResetContent();
    }
    ListRows::Fill(m_SteelsymList, SteelsymRows);
    m_SteelsymList.SetCurSel(0);
    OnSelchangeSteelsymList();
    ListRows::Fill(m_DiaList, DiaRows);
    ListRows::Fill(m_JiamiintervalList, JiamiIntervalRows);
    m_JiamiintervalList.SetCurSel(0);
    OnSelchangeJiamiintervallist();
    ListRows::Fill(m_JiamizhishuList, JiamiZhishuRows);
    m_JiamizhishuList.SetCurSel(0);
    OnSelchangeJiamizhishuList();
    ListRows::Fill(m_IntervalList, IntervalRows);
    ListRows::Fill(m_ZhishuList, ZhishuRows);
    DecomposeGujin();
}

void CBeamGujinDlg::SetFocusGujin(CString strText)
{
    m_strResult = strText;
    DecomposeGujin();
}

void CBeamGujinDlg::DecomposeGujin()
{
    StirrupText::Fields fields = FieldsOf(*this);
    const bool bReachedLegs = StirrupText::Decompose(m_strResult, fields);
    TakeFields(*this, fields);
    if (bReachedLegs) {
        UpdateData(FALSE);
        CoordinateListWithEdit();
    }
}

void CBeamGujinDlg::IntegrateGuJin()
{
    if (!HasSelection(m_SteelsymList) || !HasSelection(m_DiaList) || !HasSelection(m_JiamiintervalList) ||
        !HasSelection(m_JiamizhishuList) || !HasSelection(m_IntervalList) || !HasSelection(m_ZhishuList)) {
        return;
    }
    if (m_JiamiintervalList.GetCurSel() == 0) {
        m_JiamizhishuList.SetCurSel(0);
    }
    m_strResult = StirrupText::ComposeFromRows({SelectedText(m_SteelsymList), SelectedText(m_DiaList),
                                                FieldOf(SelectedText(m_JiamiintervalList)),
                                                FieldOf(SelectedText(m_JiamizhishuList)),
                                                SelectedText(m_IntervalList), SelectedText(m_ZhishuList)});
}

bool CBeamGujinDlg::IntegrateChicunFromEdit()
{
    StirrupText::Fields fields = FieldsOf(*this);
    const bool bComposed = StirrupText::ComposeFromBoxes(fields, m_strResult);
    TakeFields(*this, fields);
    return bComposed;
}

void CBeamGujinDlg::CoordinateListWithEdit()
{
    UpdateData(TRUE);
    Trim(m_strJiamiInterval);
    Trim(m_strJiamiZhishu);
    ListRows::Select(m_SteelsymList, m_strSteelType);
    ListRows::Select(m_DiaList, m_strSteelDiameter);
    ListRows::Select(m_JiamiintervalList, m_strJiamiInterval);
    ListRows::Select(m_JiamizhishuList, m_strJiamiZhishu);
    ListRows::Select(m_IntervalList, m_strInterval);
    ListRows::Select(m_ZhishuList, m_strZhishu);
}

void CBeamGujinDlg::CoordinateEditWithList()
{
    TakeRow(m_SteelsymList, m_strSteelType);
    TakeRow(m_DiaList, m_strSteelDiameter);
    TakeRow(m_JiamiintervalList, m_strJiamiInterval);
    TakeRow(m_JiamizhishuList, m_strJiamiZhishu);
    TakeRow(m_IntervalList, m_strInterval);
    TakeRow(m_ZhishuList, m_strZhishu);
    m_strJiamiInterval = FieldOf(m_strJiamiInterval);
    m_strJiamiZhishu = FieldOf(m_strJiamiZhishu);
    CutToSecondCharacter(m_strJiamiZhishu);
    CutToSecondCharacter(m_strZhishu);
    UpdateData(FALSE);
}

void CBeamGujinDlg::TestMoveWnd(CPoint point)
{
    PanelFrame::Move(*this, CPoint(m_nDownX, m_nDownY), point);
}

void CBeamGujinDlg::TranslateMessage(MSG* pMsg) { PanelFrame::ForwardRightPress(*this, *pMsg); }

BOOL CBeamGujinDlg::PreTranslateMessage(MSG* pMsg)
{
    const HWND hWnd = m_hWnd;
    PanelFrame::Follow(*this, m_bPressed, *pMsg);
    return PanelFrame::Translate(*this, hWnd, pMsg, [&] { TranslateMessage(pMsg); });
}

void CBeamGujinDlg::OnRButtonDown(UINT nFlags, CPoint point)
{
    const auto deliver = [this] {
        if (m_strResult.IsEmpty()) {
            return false;
        }
        PanelFrame::Deliver(*this, {m_bToItem, m_pItem, m_bInParent, m_pHostData, HostMode, StirrupCode},
                            m_strResult);
        return true;
    };
    if (PanelFrame::Confirm(*this, deliver)) {
        CDialog::OnRButtonDown(nFlags, point);
    }
}

void CBeamGujinDlg::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_ESCAPE) {
        ShowWindow(SW_HIDE);
    }
    CDialog::OnKeyDown(nChar, nRepCnt, nFlags);
}

// One body for the six lists and one for the six boxes.

void CBeamGujinDlg::OnSelchangeZhishuList()
{
    IntegrateGuJin();
    CoordinateEditWithList();
}

void CBeamGujinDlg::OnSelchangeSteelsymList() { OnSelchangeZhishuList(); }
void CBeamGujinDlg::OnSelchangeJiamizhishuList() { OnSelchangeZhishuList(); }
void CBeamGujinDlg::OnSelchangeJiamiintervallist() { OnSelchangeZhishuList(); }
void CBeamGujinDlg::OnSelchangeIntervalList() { OnSelchangeZhishuList(); }
void CBeamGujinDlg::OnSelchangeDiaList() { OnSelchangeZhishuList(); }

void CBeamGujinDlg::OnChangeEditInterval()
{
    CoordinateListWithEdit();
    IntegrateChicunFromEdit();
}

void CBeamGujinDlg::OnChangeEditJiamiinterval() { OnChangeEditInterval(); }
void CBeamGujinDlg::OnChangeEditJiamizhishu() { OnChangeEditInterval(); }
void CBeamGujinDlg::OnChangeEditSteeldiameter() { OnChangeEditInterval(); }
void CBeamGujinDlg::OnChangeEditSteeltype() { OnChangeEditInterval(); }
void CBeamGujinDlg::OnChangeEditZhishu() { OnChangeEditInterval(); }
