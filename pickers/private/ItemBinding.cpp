#include "pickers/private/ItemBinding.h"

namespace ItemBinding {

void SetRows(CStringArray& rows, std::span<const char* const> texts)
{
    rows.RemoveAll();
    for (const char* const text : texts) {
        rows.Add(text);
    }
}

void Open(const Column& column)
{
    column.box.SetWindowText(column.rows[0]);
    column.list.ResetContent();
    for (const CString& row : column.rows) {
        column.list.AddString(row);
    }
}

void Select(const Column& column, const CString& text)
{
    int row = 0;
    while (row < column.rows.GetSize() && column.rows[row] != text) {
        ++row;
    }
    column.list.SetCurSel(row < column.rows.GetSize() ? row : -1);
}

void TakeRow(const Column& column)
{
    const int row = column.list.GetCurSel();
    if (row >= 0 && row < column.rows.GetSize()) {
        column.box.SetWindowText(column.rows[row]);
    }
}

CString TextOf(const CWnd& box)
{
    CString text;
    box.GetWindowText(text);
    return text;
}

CString DecimalText(int number)
{
    CString text;
    text.Format("%d", number);
    return text;
}

CString ShowGradeIn(const CString& text, CWnd& box)
{
    for (const char* const grade : {"A", "B", "C", "D"}) {
        if (text.Find(grade) >= 0) {
            box.SetWindowText(grade);
            return grade;
        }
    }
    return {};
}

bool IsUsable(const CPropertyGridItem* item) { return item != nullptr && item->GetHWnd() != nullptr; }

}  // namespace ItemBinding
