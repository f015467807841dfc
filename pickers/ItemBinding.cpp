#include "pickers/ItemBinding.h"

namespace ItemBinding {

CString GradeIn(const CString& text)
{
    for (const char* const grade : {"A", "B", "C", "D"}) {
        if (text.Find(grade) >= 0) {
            return grade;
        }
    }
    return {};
}

void SetRows(CStringArray& rows, std::span<const char* const> texts)
{
    rows.RemoveAll();
    for (const char* const text : texts) {
        rows.Add(text);
    }
}

void Fill(CListBox& list, const CStringArray& rows)
{
    list.ResetContent();
    for (const CString& row : rows) {
        list.AddString(row);
    }
}

void Select(CListBox& list, const CStringArray& rows, const CString& text)
{
    int row = 0;
    while (row < rows.GetSize() && rows.GetAt(row) != text) {
        ++row;
    }
    list.SetCurSel(row < rows.GetSize() ? row : -1);
}

void TakeRow(const CListBox& list, const CStringArray& rows, CWnd& box)
{
    const int row = list.GetCurSel();
    if (row >= 0 && row < rows.GetSize()) {
        box.SetWindowText(rows.GetAt(row));
    }
}

CString TextOf(const CWnd& box)
{
    CString text;
    box.GetWindowText(text);
    return text;
}

bool IsUsable(const CPropertyGridItem* item) { return item != nullptr && item->GetHWnd() != nullptr; }

}  // namespace ItemBinding
