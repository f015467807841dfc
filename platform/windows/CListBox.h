// CListBox: rows of text of which one or none is selected.
#pragma once

#include "platform/windows/CWnd.h"

// Rows are 12 pixels high and numbered from 0. A multi-column list shows one row a column. None of
// the operations notifies the parent. Those that answer a number give -1 without a window and for
// a row that does not exist.
class PLATFORM_API CListBox : public CWnd {
public:
    // Append or put in front of a row (-1: append); answer the new row's number. The selected row
    // stays the same row.
    int AddString(const CString& strText);
    int InsertString(int nIndex, const CString& strText);
    // Answers how many rows are left. Deleting the selected row leaves none selected.
    int DeleteString(int nIndex);
    void ResetContent();

    [[nodiscard]] int GetCount() const;
    [[nodiscard]] int GetCurSel() const;  // -1 for none
    // Selects a row and scrolls it into view, or with -1 none. Answers the row; for one that does
    // not exist -1, and the selection stays.
    int SetCurSel(int nSelect);
    // The row's text and its length.
    int GetText(int nIndex, CString& rString) const;

    // The row's rectangle in the client area; outside of it for a row out of view. 0 or -1.
    int GetItemRect(int nIndex, RECT* lpRect) const;
    void SetColumnWidth(int nWidth);  // pixels; 90 until it is set, below 1 does nothing
    // The first row in view.
    [[nodiscard]] int GetTopIndex() const;
    int SetTopIndex(int nIndex);

    DECLARE_MESSAGE_MAP()
};
