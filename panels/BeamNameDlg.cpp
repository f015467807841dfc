// The beam name panel: moves texts between the name, the boxes and the lists.
#include "panels/BeamNameDlg.h"

#include "panels/NameText.h"
#include "panels/private/BeamNameTemplate.h"
#include "panels/private/ListRows.h"
#include "panels/private/PanelFrame.h"
#include "platform/windows/DataExchange.h"
#include "platform/windows/MessageBox.h"
#include "platform/windows/WindowRecord.h"

using namespace BeamNameTemplate;
using ListRows::FieldOf;
using ListRows::HasSelection;
using ListRows::SelectedText;

namespace {

constexpr int NameCode = 8;

// The panel or its window may be gone when the message has been answered.
void SayNoSpan() { AfxMessageBox(GbkLabel<u8"跨数有误">()); }

}  // namespace

BEGIN_MESSAGE_MAP(CBeamNameDlg, CDialog)
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_LBN_SELCHANGE(TypeList, &CBeamNameDlg::OnSelchangeBntypeList)
ON_LBN_SELCHANGE(XuantiaoList, &CBeamNameDlg::OnSelchangeBnxuantiaoList)
ON_LBN_SELCHANGE(KuaList, &CBeamNameDlg::OnSelchangeBnkuaList)
ON_LBN_SELCHANGE(XuList, &CBeamNameDlg::OnSelchangeBnxuList)
ON_EN_CHANGE(KuaEdit, &CBeamNameDlg::OnChangeBnkuaEdit)
ON_EN_CHANGE(TypeEdit, &CBeamNameDlg::OnChangeBntypeEdit)
ON_EN_CHANGE(XuEdit, &CBeamNameDlg::OnChangeBnxuEdit)
ON_EN_CHANGE(XuantiaoEdit, &CBeamNameDlg::OnChangeBnxuantiaoEdit)
END_MESSAGE_MAP()

CBeamNameDlg::CBeamNameDlg(CString strText, CWnd* pParent) : CDialog(Shape, pParent), m_strResult(strText)
{
}

CBeamNameDlg::~CBeamNameDlg() = default;

void CBeamNameDlg::DoDataExchange(CDataExchange* pDX)
{
    DDX_Control(pDX, XuantiaoList, m_XuantiaoList);
    DDX_Control(pDX, XuList, m_XuList);
    DDX_Control(pDX, TypeList, m_TypeList);
    DDX_Control(pDX, KuaList, m_KuaList);
    DDX_Text(pDX, TypeEdit, m_strBeamType);
    DDX_Text(pDX, KuaEdit, m_strKua);
    DDX_Text(pDX, XuEdit, m_strXu);
    DDX_Text(pDX, XuantiaoEdit, m_strXuantiao);
}

void CBeamNameDlg::Init()
{
    ListRows::Fill(m_TypeList, TypeRows);
    ListRows::Fill(m_XuList, DigitRows);
    ListRows::Fill(m_KuaList, DigitRows);
    ListRows::Fill(m_XuantiaoList, XuantiaoRows);
    DecomposeBeamName();
}

void CBeamNameDlg::SetFocusBeamname(CString strText)
{
    m_strResult = strText;
    DecomposeBeamName();
}

void CBeamNameDlg::DecomposeBeamName()
{
    NameText::Fields fields{m_strBeamType, m_strXu, m_strKua, m_strXuantiao};
    if (!NameText::Decompose(m_strResult, fields)) {
        return;
    }
    m_strBeamType = fields.type;
    m_strXu = fields.serial;
    m_strKua = fields.span;
    m_strXuantiao = fields.cantilever;
    UpdateData(FALSE);
    CoordinateListWithEdit();
}

void CBeamNameDlg::IntegrateName()
{
    if (!HasSelection(m_TypeList) || !HasSelection(m_XuList) || !HasSelection(m_KuaList) ||
        !HasSelection(m_XuantiaoList)) {
        return;
    }
    const NameText::Fields rows{SelectedText(m_TypeList), SelectedText(m_XuList), SelectedText(m_KuaList),
                                FieldOf(SelectedText(m_XuantiaoList))};
    if (!NameText::Compose(rows, m_strResult)) {
        SayNoSpan();
    }
}

bool CBeamNameDlg::IntegrateNameFromEdit()
{
    if (m_strBeamType.IsEmpty()) {
        return false;
    }
    UpdateData(TRUE);
    if (NameText::Compose({m_strBeamType, m_strXu, m_strKua, m_strXuantiao}, m_strResult)) {
        return true;
    }
    SayNoSpan();
    return false;
}

void CBeamNameDlg::CoordinateEditWithList()
{
    UpdateData(TRUE);
    const auto take = [](const CListBox& list, const char* emptyRow, CString& field) {
        if (HasSelection(list)) {
            const CString row = SelectedText(list);
            field = row == emptyRow ? CString() : row;
        }
    };
    take(m_TypeList, "", m_strBeamType);
    take(m_XuList, "0", m_strXu);
    take(m_KuaList, "0", m_strKua);
    take(m_XuantiaoList, XuantiaoRows[0], m_strXuantiao);
    UpdateData(FALSE);
}

void CBeamNameDlg::CoordinateListWithEdit()
{
    UpdateData(TRUE);
    ListRows::Select(m_TypeList, m_strBeamType);
    ListRows::Select(m_XuantiaoList, m_strXuantiao);
    ListRows::Select(m_KuaList, m_strKua);
    ListRows::Select(m_XuList, m_strXu);
    UpdateData(FALSE);
}

void CBeamNameDlg::TestMoveWnd(CPoint point) { PanelFrame::Move(*this, CPoint(m_nDownX, m_nDownY), point); }

void CBeamNameDlg::TranslateMessage(MSG* /*pMsg*/) {}

// A press on a digit row adds its digit to the number, a double click, whose press added one before,
// makes it the whole number. False for an event below the ten rows.
bool CBeamNameDlg::PressDigit(const CListBox& list, CString& strNumber, const MSG& msg)
{
    CRect rect;
    list.GetWindowRect(&rect);
    if (!rect.PtInRect(msg.pt)) {
        return true;
    }
    const CString digit = NameText::DigitOfRow((msg.pt.y - rect.top) / RowHeight);
    if (digit.IsEmpty()) {
        return false;
    }
    strNumber = msg.message == WM_LBUTTONDBLCLK ? digit : strNumber + digit;
    UpdateData(FALSE);
    CoordinateListWithEdit();
    return true;
}

BOOL CBeamNameDlg::PreTranslateMessage(MSG* pMsg)
{
    const HWND hWnd = m_hWnd;
    PanelFrame::Follow(*this, m_bPressed, *pMsg);
    if (pMsg->message == WM_LBUTTONDOWN || pMsg->message == WM_LBUTTONDBLCLK) {
        if (!PressDigit(m_KuaList, m_strKua, *pMsg) || !PressDigit(m_XuList, m_strXu, *pMsg)) {
            return FALSE;
        }
    }
    return PanelFrame::Translate(*this, hWnd, pMsg, [this] { SendMessage(WM_RBUTTONDOWN); });
}

void CBeamNameDlg::OnRButtonDown(UINT nFlags, CPoint point)
{
    const auto deliver = [this] {
        if (!IntegrateNameFromEdit()) {
            return false;
        }
        PanelFrame::Deliver(*this, {.toItem = m_bToItem, .item = m_pItem, .code = NameCode}, m_strResult);
        return true;
    };
    if (PanelFrame::Confirm(*this, deliver)) {
        CDialog::OnRButtonDown(nFlags, point);
    }
}

void CBeamNameDlg::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    CDialog::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CBeamNameDlg::OnSelchangeBntypeList()
{
    CoordinateEditWithList();
    IntegrateName();
}

void CBeamNameDlg::OnSelchangeBnxuantiaoList() { OnSelchangeBntypeList(); }

// The digit is in the box already; no row stays marked.
void CBeamNameDlg::OnSelchangeBnkuaList() { m_KuaList.SetCurSel(-1); }

void CBeamNameDlg::OnSelchangeBnxuList() { m_XuList.SetCurSel(-1); }

void CBeamNameDlg::OnChangeBnkuaEdit()
{
    CoordinateListWithEdit();
    IntegrateNameFromEdit();
}

void CBeamNameDlg::OnChangeBntypeEdit() { OnChangeBnkuaEdit(); }

void CBeamNameDlg::OnChangeBnxuEdit() { OnChangeBnkuaEdit(); }

void CBeamNameDlg::OnChangeBnxuantiaoEdit() { OnChangeBnkuaEdit(); }
