// The bar panel's lists: set from a stored piece, and what a click outside the column lists opens.
#include "panels/BarPiece.h"
#include "panels/BeamSteelDlg.h"
#include "panels/private/BeamSteelTemplate.h"

using namespace BeamSteelTemplate;

namespace {

void Select(CListBox& list, const std::optional<int>& row)
{
    if (row) {
        list.SetCurSel(*row);
    }
}

}  // namespace

void CBeamSteelDlg::SetListWithSteelStr(CString strPiece, int nType)
{
    const BarPiece::Rows rows = BarPiece::ReadBack(strPiece, nType);
    Select(m_SteeltypeList, rows.type);
    Select(m_VdiaList, rows.later);
    Select(m_SteelnumList, rows.count);
    Select(m_SteelsymList, rows.grade);
    Select(m_SteeldiaList, rows.diameter);
    Select(m_UpList, rows.upper);
    Select(m_DownList, rows.lower);
    Select(m_SepList, rows.terminator);
}

void CBeamSteelDlg::CoordinateWithType(int nType, int nPos)
{
    m_SteeltypeList.SetCurSel(nType);
    const int place = BarGroups::OfType(nType);
    if (place >= 0 && m_Group[place].m_strSteel.IsEmpty()) {
        m_bNewPiece = true;
        SetListWithSteelStr(CString(), -1);
    } else if (IsPiece(nType, nPos)) {
        m_bNewPiece = false;
        const bool through = nType == BarPiece::TopThrough || nType == BarPiece::BottomThrough;
        SetListWithSteelStr(m_Group[place].m_arrPiece[nPos], through ? nType : -1);
        m_nCurType = nType;
        m_nCurPos = nPos;
    }
    if (nPos == 0) {
        m_VdiaList.SetCurSel(-1);
    }
}

void CBeamSteelDlg::SetPosSel(int nType)
{
    const int place = BarGroups::OfType(nType);
    if (place >= 0) {
        const int row = m_Group[place].m_nFirstRow;
        m_PosList.SetCurSel(row);
        m_bNewPiece = row == -1;
    }
}

void CBeamSteelDlg::SetTypeAndPos(int nType, int nPos, int nRow)
{
    if (nRow >= 0 && nRow <= MaxRows) {
        m_nRowType[nRow] = nType;
        m_nRowPos[nRow] = nPos;
    }
}

// A group that has pieces opens on its first one; an empty one waits for its first piece, which goes in
// behind the group of the row selected until now.
void CBeamSteelDlg::OnSelchangeSteeltypeList()
{
    const int type = m_SteeltypeList.GetCurSel();
    if (!BarGroups::IsAllowed(m_nSteelKind, m_bToItem, type)) {
        m_SteeltypeList.SetCurSel(-1);
        return;
    }
    m_nPosListSel = m_PosList.GetCurSel();
    CoordinateWithType(type, 0);
    SetPosSel(type);
}

// Starts a later piece for the group shown. Whether it gets a "+" depends on the group alone.
void CBeamSteelDlg::OnSelchangeVdiaList()
{
    if (m_VdiaList.GetCurSel() == BlankRow) {
        m_VdiaList.SetCurSel(-1);
    }
    SetListWithSteelStr(CString(), -1);
    m_bNewPiece = true;
    const int place = BarGroups::OfType(m_SteeltypeList.GetCurSel());
    if (m_VdiaList.GetCurSel() == LaterRow && place >= 0 && m_Group[place].m_strSteel.IsEmpty()) {
        m_VdiaList.SetCurSel(-1);
    }
    m_nPosListSel = m_PosList.GetCurSel();
}

void CBeamSteelDlg::OnSelchangePosList()
{
    const int row = m_PosList.GetCurSel();
    m_bNewPiece = row < 0;
    m_nCurType = row >= 0 && row <= MaxRows ? m_nRowType[row] : -1;
    m_nCurPos = row >= 0 && row <= MaxRows ? m_nRowPos[row] : -1;
    if (row >= 0) {
        CoordinateWithType(m_nCurType, m_nCurPos);
    }
}

// A column list was clicked.
void CBeamSteelDlg::ComposeOrRewrite()
{
    if (m_bNewPiece) {
        IntegratePieceSteel();
    } else {
        ModiPieceSteel();
    }
}

void CBeamSteelDlg::OnSelchangeSteelnumList() { ComposeOrRewrite(); }
void CBeamSteelDlg::OnSelchangeSteelsymList() { ComposeOrRewrite(); }
void CBeamSteelDlg::OnSelchangeSteeldiaList() { ComposeOrRewrite(); }
void CBeamSteelDlg::OnSelchangeSepList() { ComposeOrRewrite(); }
void CBeamSteelDlg::OnSelchangeListUp() { ComposeOrRewrite(); }
void CBeamSteelDlg::OnSelchangeListDown() { ComposeOrRewrite(); }
