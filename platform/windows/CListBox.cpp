// CListBox: the operations on the rows of the object's window.
#include "platform/windows/CListBox.h"

#include "platform/windows/private/ListRows.h"

using ListRows::FindList;

BEGIN_MESSAGE_MAP(CListBox, CWnd)
END_MESSAGE_MAP()

int CListBox::AddString(const CString& strText) { return ListRows::Insert(m_hWnd, -1, strText); }

int CListBox::InsertString(int nIndex, const CString& strText)
{
    return ListRows::Insert(m_hWnd, nIndex, strText);
}

int CListBox::DeleteString(int nIndex) { return ListRows::Delete(m_hWnd, nIndex); }
void CListBox::ResetContent() { ListRows::Reset(m_hWnd); }

int CListBox::GetCount() const
{
    const WindowRecord* const list = FindList(m_hWnd);
    return list != nullptr ? ListRows::CountOf(*list) : LB_ERR;
}

int CListBox::GetCurSel() const
{
    const WindowRecord* const list = FindList(m_hWnd);
    return list != nullptr ? list->list.selection : LB_ERR;
}

int CListBox::SetCurSel(int nSelect) { return ListRows::Select(m_hWnd, nSelect); }

int CListBox::GetText(int nIndex, CString& rString) const
{
    const WindowRecord* const list = FindList(m_hWnd);
    if (list == nullptr || !ListRows::HasRow(*list, nIndex)) {
        rString.Empty();
        return LB_ERR;
    }
    rString = list->list.rows[static_cast<std::size_t>(nIndex)];
    return rString.GetLength();
}

int CListBox::GetItemRect(int nIndex, RECT* lpRect) const
{
    const WindowRecord* const list = FindList(m_hWnd);
    if (list == nullptr || !ListRows::HasRow(*list, nIndex)) {
        return LB_ERR;
    }
    *lpRect = ListRows::RectOf(*list, nIndex);
    return LB_OKAY;
}

void CListBox::SetColumnWidth(int nWidth) { ListRows::SetColumnWidth(m_hWnd, nWidth); }

int CListBox::GetTopIndex() const
{
    const WindowRecord* const list = FindList(m_hWnd);
    return list != nullptr ? list->list.top : LB_ERR;
}

int CListBox::SetTopIndex(int nIndex) { return ListRows::SetTop(m_hWnd, nIndex); }
