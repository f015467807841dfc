// The elevation panel: its keys, its one box and its confirmation.
#include "panels/BeamLevelDlg.h"

#include "panels/LevelText.h"
#include "panels/private/BeamLevelTemplate.h"
#include "panels/private/PanelFrame.h"
#include "platform/windows/DataExchange.h"

using namespace BeamLevelTemplate;

namespace {

constexpr int HostMode = 2;
constexpr int LevelCode = 7;

}  // namespace

BEGIN_MESSAGE_MAP(CBeamLevelDlg, CDialog)
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_BN_CLICKED(Button1, &CBeamLevelDlg::OnButton1)
ON_BN_CLICKED(Button2, &CBeamLevelDlg::OnButton2)
ON_BN_CLICKED(Button3, &CBeamLevelDlg::OnButton3)
ON_BN_CLICKED(Button4, &CBeamLevelDlg::OnButton4)
ON_BN_CLICKED(Button5, &CBeamLevelDlg::OnButton5)
ON_BN_CLICKED(Button6, &CBeamLevelDlg::OnButton6)
ON_BN_CLICKED(Button7, &CBeamLevelDlg::OnButton7)
ON_BN_CLICKED(Button8, &CBeamLevelDlg::OnButton8)
ON_BN_CLICKED(Button9, &CBeamLevelDlg::OnButton9)
ON_BN_CLICKED(Button0, &CBeamLevelDlg::OnButton0)
ON_BN_CLICKED(ButtonDot, &CBeamLevelDlg::OnButtonDot)
ON_BN_CLICKED(ButtonBrack, &CBeamLevelDlg::OnButtonBrack)
ON_BN_CLICKED(ButtonNegative, &CBeamLevelDlg::OnButtonNegative)
ON_BN_CLICKED(ButtonBack, &CBeamLevelDlg::OnButtonBack)
ON_BN_CLICKED(ButtonClean, &CBeamLevelDlg::OnButtonClean)
END_MESSAGE_MAP()

CBeamLevelDlg::CBeamLevelDlg(CWnd* pParent) : CDialog(Shape, pParent) {}

CBeamLevelDlg::~CBeamLevelDlg() = default;

void CBeamLevelDlg::DoDataExchange(CDataExchange* pDX)
{
    DDX_Control(pDX, LevelEdit, m_Edit);
    DDX_Text(pDX, LevelEdit, m_strEditText);
}

void CBeamLevelDlg::Init() { m_strResult.Empty(); }

void CBeamLevelDlg::SetFocusLevel(CString strText)
{
    m_strResult = strText;
    ShowResult();
}

void CBeamLevelDlg::AddButNum(CString strText)
{
    LevelText::Add(m_strResult, strText);
    ShowResult();
}

void CBeamLevelDlg::ShowResult()
{
    m_strEditText = m_strResult;
    UpdateData(FALSE);
}

void CBeamLevelDlg::TestMoveWnd(CPoint point)
{
    PanelFrame::Move(*this, CPoint(m_nDownX, m_nDownY), point);
}

BOOL CBeamLevelDlg::PreTranslateMessage(MSG* pMsg)
{
    const HWND hWnd = m_hWnd;
    PanelFrame::Follow(*this, m_bPressed, *pMsg);
    return PanelFrame::Translate(*this, hWnd, pMsg, [&] { OnRButtonDown(0, pMsg->pt); });
}

void CBeamLevelDlg::OnRButtonDown(UINT nFlags, CPoint point)
{
    const auto deliver = [this] {
        UpdateData(TRUE);
        m_strResult = m_strEditText;
        if (m_strResult.IsEmpty()) {
            return false;
        }
        PanelFrame::Deliver(*this, {m_bToItem, m_pItem, m_bInParent, m_pHostData, HostMode, LevelCode},
                            m_strResult);
        return true;
    };
    if (PanelFrame::Confirm(*this, deliver)) {
        CDialog::OnRButtonDown(nFlags, point);
    }
}

void CBeamLevelDlg::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_ESCAPE) {
        ShowWindow(SW_HIDE);
    }
    CDialog::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CBeamLevelDlg::OnButton1() { AddButNum("1"); }
void CBeamLevelDlg::OnButton2() { AddButNum("2"); }
void CBeamLevelDlg::OnButton3() { AddButNum("3"); }
void CBeamLevelDlg::OnButton4() { AddButNum("4"); }
void CBeamLevelDlg::OnButton5() { AddButNum("5"); }
void CBeamLevelDlg::OnButton6() { AddButNum("6"); }
void CBeamLevelDlg::OnButton7() { AddButNum("7"); }
void CBeamLevelDlg::OnButton8() { AddButNum("8"); }
void CBeamLevelDlg::OnButton9() { AddButNum("9"); }
void CBeamLevelDlg::OnButton0() { AddButNum("0"); }

void CBeamLevelDlg::OnButtonDot()
{
    if (LevelText::AddPoint(m_strResult)) {
        ShowResult();
    }
}

void CBeamLevelDlg::OnButtonBrack()
{
    if (LevelText::AddBrackets(m_strResult)) {
        ShowResult();
    }
}

void CBeamLevelDlg::OnButtonNegative()
{
    if (LevelText::AddMinus(m_strResult)) {
        ShowResult();
    }
}

void CBeamLevelDlg::OnButtonBack()
{
    if (LevelText::TakeBack(m_strResult)) {
        ShowResult();
    }
}

void CBeamLevelDlg::OnButtonClean()
{
    m_strResult.Empty();
    ShowResult();
}
