// The bar panel's editor: pieces made, rewritten and deleted, with groups and rows kept in step.
#include <algorithm>
#include <iterator>

#include "host/BarText.h"
#include "panels/BarPiece.h"
#include "panels/BeamSteelDlg.h"
#include "panels/private/ListRows.h"

using ListRows::SelectedText;

// False while a column has no selection. A split needs both counts: without an upper count the lower
// one goes too.
bool CBeamSteelDlg::ComposeBarePiece(CString& strBare)
{
    for (const CListBox* const list : {&m_SteeltypeList, &m_SteelsymList, &m_SteelnumList, &m_SteeldiaList,
                                       &m_SepList, &m_UpList, &m_DownList}) {
        if (list->GetCurSel() < 0) {
            return false;
        }
    }
    if (m_UpList.GetCurSel() == 0) {
        m_DownList.SetCurSel(0);
    }
    BarPiece::Columns columns{
        SelectedText(m_SteelnumList),
        SelectedText(m_SteelsymList),
        SelectedText(m_SteeldiaList),
        "",
        "",
        m_SepList.GetCurSel() == BarPiece::RowOfNoTerminator ? CString(" ") : SelectedText(m_SepList)};
    if (m_UpList.GetCurSel() > 0 && m_DownList.GetCurSel() > 0) {
        columns.upper = SelectedText(m_UpList);
        columns.lower = SelectedText(m_DownList);
    }
    strBare = BarPiece::Compose(columns);
    return true;
}

void CBeamSteelDlg::IntegratePieceSteel()
{
    CString bare;
    if (!ComposeBarePiece(bare)) {
        return;
    }
    const int type = m_SteeltypeList.GetCurSel();
    const int place = BarGroups::OfType(type);
    if (place < 0) {
        return;
    }
    BarGroup& group = m_Group[place];
    if (m_nPosListSel < 0 || m_nPosListSel >= m_PosList.GetCount() - 1) {
        AddToTail(group.m_arrPiece, group.m_strSteel, group.m_nFirstRow, type, bare);
    } else {
        Insert(group.m_arrPiece, group.m_strSteel, group.m_nFirstRow, type, bare);
    }
}

void CBeamSteelDlg::ModiPieceSteel()
{
    CString bare;
    if (!ComposeBarePiece(bare)) {
        return;
    }
    const int row = m_PosList.GetCurSel();
    if (row < 0 || !IsPiece(m_nCurType, m_nCurPos) ||
        row != FindRow(BarGroups::OfType(m_nCurType), m_nCurPos)) {
        return;
    }
    CString old;
    m_PosList.GetText(row, old);
    const CString piece = ReplaceSteel(bare, old);
    RewriteRow(row, piece);
    BarGroup& group = m_Group[BarGroups::OfType(m_nCurType)];
    group.m_arrPiece.SetAt(m_nCurPos, piece);
    group.m_strSteel = BarGroups::Join(group.m_arrPiece);
}

void CBeamSteelDlg::AddToTail(CStringArray& arrPiece, CString& strSteel, int& nFirstRow, int nType,
                              CString strPiece)
{
    const int row = m_PosList.GetCount();
    if (row < 0) {
        return;
    }
    if (!Refuses(arrPiece, nType, strPiece)) {
        if (strSteel.IsEmpty()) {
            OpenGroup(arrPiece, strSteel, nFirstRow, nType, strPiece, row);
        } else {
            AppendPiece(arrPiece, strSteel, nType, strPiece, row);
        }
    }
    m_nPosListSel = m_PosList.GetCurSel();
}

// A piece of the remembered row's type joins that row's group there; one of another type can only
// open its own group, behind the group of that row.
void CBeamSteelDlg::Insert(CStringArray& arrPiece, CString& strSteel, int& nFirstRow, int nType,
                           CString strPiece)
{
    const int rows = m_PosList.GetCount();
    const int remembered = m_nPosListSel;
    if (rows < 0) {
        return;
    }
    if (remembered >= 0 && remembered < rows && !Refuses(arrPiece, nType, strPiece)) {
        int row = remembered + 1;
        const int pos = m_nRowPos[remembered] + 1;
        if (nType == m_nRowType[remembered]) {
            if (pos > 0 && pos < arrPiece.GetSize()) {
                InsertPiece(arrPiece, strSteel, nType, strPiece, pos, row);
            } else if (pos == arrPiece.GetSize()) {
                AppendPiece(arrPiece, strSteel, nType, strPiece, row);
            }
        } else if (strSteel.IsEmpty()) {
            while (row < rows && m_nRowType[row - 1] == m_nRowType[row]) {
                ++row;
            }
            OpenGroup(arrPiece, strSteel, nFirstRow, nType, strPiece, row);
        }
    }
    m_nPosListSel = m_PosList.GetCurSel();
}

bool CBeamSteelDlg::CmpEssence(CString strA, CString strB) { return BarText::SameEssence(strA, strB); }

CString CBeamSteelDlg::ReplaceSteel(CString strBare, CString strOld)
{
    return BarPiece::Replace(strBare, strOld);
}

void CBeamSteelDlg::OnButtonDel()
{
    const int row = m_PosList.GetCurSel();
    if (row < 0 || row >= MaxRows || !IsPiece(m_nRowType[row], m_nRowPos[row])) {
        return;
    }
    const int type = m_nRowType[row];
    const int pos = m_nRowPos[row];
    const int place = BarGroups::OfType(type);
    CStringArray& pieces = m_Group[place].m_arrPiece;
    if (pos == 0 && pieces.GetSize() > 1) {
        pieces[1] = BarPiece::HeadOf(type) + pieces[1].Mid(1);  // in the place of its "+"
        RewriteRow(row + 1, pieces[1]);
    } else if (pos > 0 && pos == pieces.GetSize() - 1) {
        pieces[pos - 1] += BarPiece::TailOf(type, pieces[pos]);
        RewriteRow(row - 1, pieces[pos - 1]);
    }
    pieces.RemoveAt(pos);
    m_Group[place].m_strSteel = BarGroups::Join(pieces);
    if (pieces.IsEmpty()) {
        m_Group[place].m_nFirstRow = -1;
    }
    for (BarGroup& group : m_Group) {
        group.m_nFirstRow -= group.m_nFirstRow > row ? 1 : 0;  // the next piece moves into the row itself
    }
    for (int behind = row + 1; behind < MaxRows; ++behind) {
        m_nRowPos[behind] -= BarGroups::OfType(m_nRowType[behind]) == place ? 1 : 0;
    }
    for (int* const table : {m_nRowType, m_nRowPos}) {
        std::copy(table + row + 1, table + MaxRows + 1, table + row);
        table[MaxRows] = -1;
    }
    m_PosList.DeleteString(row);
    const int rows = m_PosList.GetCount();
    if (rows <= 0) {
        WashToScratch();
        return;
    }
    m_PosList.SetCurSel(std::min(row, rows - 1));
    OnSelchangePosList();
    m_nPosListSel = m_PosList.GetCurSel();
}

bool CBeamSteelDlg::Refuses(const CStringArray& arrPiece, int nType, const CString& strBare)
{
    return BarGroups::OfType(nType) < 0 || m_PosList.GetCount() >= MaxRows ||
           std::any_of(arrPiece.begin(), arrPiece.end(),
                       [&](const CString& piece) { return CmpEssence(strBare, piece); });
}

void CBeamSteelDlg::OpenGroup(CStringArray& arrPiece, CString& strSteel, int& nFirstRow, int nType,
                              const CString& strBare, int nRow)
{
    strSteel = BarPiece::HeadFirst(nType, strBare);
    const int pos = arrPiece.Add(strSteel);
    AddRow(nRow, nType, pos, strSteel);
    nFirstRow = nRow;
}

// Behind the group's last piece, which hands over the tail.
void CBeamSteelDlg::AppendPiece(CStringArray& arrPiece, CString& strSteel, int nType, CString strPiece,
                                int nRow)
{
    strPiece = "+" + strPiece;
    CString last = arrPiece.IsEmpty() ? CString() : arrPiece[arrPiece.GetSize() - 1];
    BarPiece::OpenEnd(nType, strSteel, last, strPiece);
    if (!arrPiece.IsEmpty()) {
        arrPiece.SetAt(arrPiece.GetSize() - 1, last);
        RewriteRow(FindRow(BarGroups::OfType(nType), arrPiece.GetSize() - 1), last);
    }
    strSteel += strPiece;
    const int pos = arrPiece.Add(strPiece);
    AddRow(nRow, nType, pos, strPiece);
}

// Between two pieces of the group, where nothing ends in a terminator.
void CBeamSteelDlg::InsertPiece(CStringArray& arrPiece, CString& strSteel, int nType, CString strPiece,
                                int nPos, int nRow)
{
    strPiece = "+" + strPiece.Left(strPiece.GetLength() - 1);
    arrPiece.InsertAt(nPos, strPiece);
    strSteel = BarGroups::Join(arrPiece);
    for (int behind = nRow; behind < MaxRows; ++behind) {
        m_nRowPos[behind] += BarGroups::OfType(m_nRowType[behind]) == BarGroups::OfType(nType) ? 1 : 0;
    }
    AddRow(nRow, nType, nPos, strPiece);
}

// Puts a row in, selects it and opens it for editing.
void CBeamSteelDlg::AddRow(int nRow, int nType, int nPos, const CString& strPiece)
{
    for (BarGroup& group : m_Group) {
        group.m_nFirstRow += group.m_nFirstRow >= nRow ? 1 : 0;
    }
    for (int* const table : {m_nRowType, m_nRowPos}) {
        std::copy_backward(table + nRow, table + MaxRows, table + MaxRows + 1);
    }
    SetTypeAndPos(nType, nPos, nRow);
    m_PosList.InsertString(nRow, strPiece);
    m_PosList.SetCurSel(nRow);
    m_bNewPiece = false;
    OnSelchangePosList();
}

// The selection and the view of the list stay.
void CBeamSteelDlg::RewriteRow(int nRow, const CString& strPiece)
{
    if (nRow < 0 || nRow >= m_PosList.GetCount()) {
        return;
    }
    const int selected = m_PosList.GetCurSel();
    const int top = m_PosList.GetTopIndex();
    m_PosList.DeleteString(nRow);
    m_PosList.InsertString(nRow, strPiece);
    m_PosList.SetTopIndex(top);
    m_PosList.SetCurSel(selected);
}

// The row that shows a piece, -1 for none.
int CBeamSteelDlg::FindRow(int nGroup, int nPos) const
{
    const int rows = std::min(m_PosList.GetCount(), MaxRows);
    for (int row = 0; row < rows; ++row) {
        if (BarGroups::OfType(m_nRowType[row]) == nGroup && m_nRowPos[row] == nPos) {
            return row;
        }
    }
    return -1;
}

bool CBeamSteelDlg::IsPiece(int nType, int nPos) const
{
    const int place = BarGroups::OfType(nType);
    return place >= 0 && nPos >= 0 && nPos < m_Group[place].m_arrPiece.GetSize();
}

void CBeamSteelDlg::ClearRowTables()
{
    std::fill(std::begin(m_nRowType), std::end(m_nRowType), -1);
    std::fill(std::begin(m_nRowPos), std::end(m_nRowPos), -1);
}
