// CListBox: the operations on the rows of the object's window.
#include "platform/windows/CListBox.h"

#include "platform/windows/private/ListBox.h"

using ListBox::FindList;

BEGIN_MESSAGE_MAP(CListBox, CWnd)
END_MESSAGE_MAP()

int CListBox::AddString(const CString& strText) { return ListBox::Insert(m_hWnd, -1, strText); }

int CListBox::InsertString(int nIndex, const CString& strText)
{
    return ListBox::Insert(m_hWnd, nIndex, strText);
}

int CListBox::DeleteString(int nIndex) { return ListBox::Delete(m_hWnd, nIndex); }
void CListBox::ResetContent() { ListBox::Reset(m_hWnd); }

int CListBox::GetCount() const
{
    const Window* const list = FindList(m_hWnd);
    return list != nullptr ? list->RowCount() : LB_ERR;
}

int CListBox::GetCurSel() const
{
    const Window* const list = FindList(m_hWnd);
    return list != nullptr ? list->list.selection : LB_ERR;
}

int CListBox::SetCurSel(int nSelect) { return ListBox::Select(m_hWnd, nSelect); }

int CListBox::GetText(int nIndex, CString& rString) const
{
    const Window* const list = FindList(m_hWnd);
    if (list == nullptr || !list->HasRow(nIndex)) {
        rString.Empty();
        return LB_ERR;
    }
    rString = list->list.rows[static_cast<std::size_t>(nIndex)];
    return rString.GetLength();
}

int CListBox::GetItemRect(int nIndex, RECT* lpRect) const
{
    const Window* const list = FindList(m_hWnd);
    if (list == nullptr || !list->HasRow(nIndex)) {
        return LB_ERR;
    }
    *lpRect = list->RectOfRow(nIndex);
    return LB_OKAY;
}

void CListBox::SetColumnWidth(int nWidth) { ListBox::SetColumnWidth(m_hWnd, nWidth); }

int CListBox::GetTopIndex() const
{
    const Window* const list = FindList(m_hWnd);
    return list != nullptr ? list->list.top : LB_ERR;
}

int CListBox::SetTopIndex(int nIndex) { return ListBox::SetTop(m_hWnd, nIndex); }
