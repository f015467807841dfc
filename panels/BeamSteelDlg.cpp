// The bar panel as a window: controls, start state, events, and what goes back at a confirmation.
#include "panels/BeamSteelDlg.h"

#include "host/private/AskHost.h"
#include "panels/BarPiece.h"
#include "panels/private/BeamSteelTemplate.h"
#include "panels/private/ListRows.h"
#include "panels/private/PanelFrame.h"
#include "platform/windows/DataExchange.h"

using namespace BeamSteelTemplate;

namespace {

// Codes and modes by which the callback's receiver tells the texts apart.
constexpr int GroupCode = 20;  // with the number of the group that the panel is open for
constexpr int HostThroughMode = 2, HostThroughCode = 0;
constexpr int HostOtherMode = 0, HostTorsionCode = 8, HostSideCode = 9;

// The groups by the bars in them.
constexpr int ThroughGroup = 0, ErectionGroup = 2, TorsionGroup = 3, SideGroup = 4;

}  // namespace

BEGIN_MESSAGE_MAP(CBeamSteelDlg, CDialog)
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_LBN_SELCHANGE(SteeltypeList, &CBeamSteelDlg::OnSelchangeSteeltypeList)
ON_LBN_SELCHANGE(VdiaList, &CBeamSteelDlg::OnSelchangeVdiaList)
ON_LBN_SELCHANGE(PosList, &CBeamSteelDlg::OnSelchangePosList)
ON_LBN_SELCHANGE(SteelnumList, &CBeamSteelDlg::OnSelchangeSteelnumList)
ON_LBN_SELCHANGE(SteelsymList, &CBeamSteelDlg::OnSelchangeSteelsymList)
ON_LBN_SELCHANGE(SteeldiaList, &CBeamSteelDlg::OnSelchangeSteeldiaList)
ON_LBN_SELCHANGE(SepList, &CBeamSteelDlg::OnSelchangeSepList)
ON_LBN_SELCHANGE(UpList, &CBeamSteelDlg::OnSelchangeListUp)
ON_LBN_SELCHANGE(DownList, &CBeamSteelDlg::OnSelchangeListDown)
ON_BN_CLICKED(DeleteButton, &CBeamSteelDlg::OnButtonDel)
END_MESSAGE_MAP()

CBeamSteelDlg::CBeamSteelDlg(CWnd* pParent) : CDialog(Shape, pParent) { ClearRowTables(); }

CBeamSteelDlg::~CBeamSteelDlg() = default;

void CBeamSteelDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, SlashList, m_SlashList);
    DDX_Control(pDX, UpList, m_UpList);
    DDX_Control(pDX, DownList, m_DownList);
    DDX_Control(pDX, PosList, m_PosList);
    DDX_Control(pDX, VdiaList, m_VdiaList);
    DDX_Control(pDX, SteeltypeList, m_SteeltypeList);
    DDX_Control(pDX, SteelsymList, m_SteelsymList);
    DDX_Control(pDX, SteelnumList, m_SteelnumList);
    DDX_Control(pDX, SteeldiaList, m_SteeldiaList);
    DDX_Control(pDX, SepList, m_SepList);
}

void CBeamSteelDlg::Init()
{
    LikeJustCreate();
    ListRows::Fill(m_SteeltypeList, BarGroups::TypeRows(m_nSteelKind, m_bToItem));
    m_SteeltypeList.SetCurSel(BarGroups::FirstRow(m_nSteelKind));
    ListRows::Fill(m_SteelsymList, BarPiece::Grades);
    m_SteelsymList.SetCurSel(BarPiece::RowOfGradeB);
    ListRows::Fill(m_SteelnumList, BarPiece::Counts);
    ListRows::Fill(m_SteeldiaList, BarPiece::Diameters);
    ListRows::Fill(m_SepList, SepRows);
    m_SepList.SetCurSel(BarPiece::RowOfNoTerminator);
    ListRows::Fill(m_VdiaList, VdiaRows);
    m_PosList.SetColumnWidth(PosColumnWidth);
    ListRows::Fill(m_SlashList, SlashRows);
    for (CListBox* const list : {&m_UpList, &m_DownList}) {
        ListRows::Fill(*list, BarPiece::Counts);
        list->InsertString(0, None);
    }
    OnSelchangeSteeltypeList();
}

void CBeamSteelDlg::LikeJustCreate()
{
    m_bNewPiece = true;
    ClearRowTables();
    for (CListBox* const list :
         {&m_SlashList, &m_UpList, &m_DownList, &m_PosList, &m_VdiaList, &m_SteeltypeList, &m_SteelsymList,
          &m_SteelnumList, &m_SteeldiaList, &m_SepList}) {
        list->ResetContent();
    }
    for (BarGroup& group : m_Group) {
        group = BarGroup();
    }
}

void CBeamSteelDlg::WashToScratch()
{
    for (BarGroup& group : m_Group) {
        group = BarGroup();
    }
    m_bNewPiece = true;
    SetListWithSteelStr(CString(), -1);
    m_SteeltypeList.SetCurSel(-1);
    m_PosList.ResetContent();
    m_VdiaList.SetCurSel(-1);
    m_nPosListSel = -1;
    m_nCurType = -1;
    m_nCurPos = -1;
    ClearRowTables();
}

void CBeamSteelDlg::TestMoveWnd(CPoint point)
{
    PanelFrame::Move(*this, CPoint(m_nDownX, m_nDownY), point);
}

void CBeamSteelDlg::TranslateMessage(MSG* pMsg) { PanelFrame::ForwardRightPress(*this, *pMsg); }

BOOL CBeamSteelDlg::PreTranslateMessage(MSG* pMsg)
{
    const HWND hWnd = m_hWnd;
    PanelFrame::Follow(*this, m_bPressed, *pMsg);
    return PanelFrame::Translate(*this, hWnd, pMsg, [&] { TranslateMessage(pMsg); });
}

void CBeamSteelDlg::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    CDialog::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CBeamSteelDlg::OnRButtonDown(UINT nFlags, CPoint point)
{
    if (PanelFrame::Confirm(*this, [this] { return DeliverTexts(); })) {
        CDialog::OnRButtonDown(nFlags, point);
    }
}

// False when there is no row to deliver.
bool CBeamSteelDlg::DeliverTexts()
{
    if (m_bToItem) {
        ConfirmToItem();
    } else if (m_PosList.GetCount() <= 0) {
        return false;
    } else if (m_bInParent) {
        ConfirmToParent();
    } else {
        ConfirmToHostData();
    }
    return true;
}

// The stored texts lose their ends here and no longer equal their pieces: Init comes next.
void CBeamSteelDlg::ConfirmToItem()
{
    m_Group[ErectionGroup].m_strSteel = BarGroups::WithoutBrackets(m_Group[ErectionGroup].m_strSteel);
    StripGroups({0, 1, TorsionGroup, SideGroup});
    if (BarGroups::IsOneGroup(m_nSteelKind) || BarGroups::IsOneAnnotation(m_nSteelKind)) {
        const int group = BarGroups::IsOneGroup(m_nSteelKind) ? m_nSteelKind : ThroughGroup;
        PanelFrame::Deliver(*this, {true, m_pItem}, m_Group[group].m_strSteel);
    }
}

void CBeamSteelDlg::ConfirmToParent()
{
    if (BarGroups::IsOneAnnotation(m_nSteelKind)) {
        return;
    }
    PanelFrame::Route route{false};
    route.code = GroupCode;
    if (BarGroups::IsOneGroup(m_nSteelKind)) {
        route.code += m_nSteelKind;
        PanelFrame::Deliver(*this, route, m_Group[m_nSteelKind].m_strSteel);
        return;
    }
    for (const BarGroup& group : m_Group) {
        if (!group.m_strSteel.IsEmpty()) {
            PanelFrame::Deliver(*this, route, group.m_strSteel);
            return;
        }
    }
}

// All texts are taken before the first one goes out: its receiver may destroy or wipe the panel.
void CBeamSteelDlg::ConfirmToHostData()
{
    StripGroups({ThroughGroup, TorsionGroup, SideGroup});
    struct Text {
        CString text;
        int mode;
        int code;
    };
    const Text texts[] = {{m_Group[ThroughGroup].m_strSteel, HostThroughMode, HostThroughCode},
                          {m_Group[TorsionGroup].m_strSteel, HostOtherMode, HostTorsionCode},
                          {m_Group[SideGroup].m_strSteel, HostOtherMode, HostSideCode}};
    void* const hostData = m_pHostData;
    for (const Text& text : texts) {
        if (!text.text.IsEmpty()) {
            HostLink::DeliverText(hostData, text.mode, text.text, text.code);
        }
    }
}

void CBeamSteelDlg::StripGroups(std::initializer_list<int> groups)
{
    for (const int group : groups) {
        m_Group[group].m_strSteel = BarGroups::WithoutTerminator(m_Group[group].m_strSteel);
    }
}
