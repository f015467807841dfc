// Filling lists and finding rows.
#include "panels/private/ListRows.h"

#include "platform/text/Gbk.h"
#include "platform/text/Numbers.h"

namespace ListRows {
namespace {

constexpr auto NoneRow = Gbk(u8"无");

template <class Fits>
void SelectFirst(CListBox& list, Fits fits)
{
    CString row;
    for (int i = 0; i < list.GetCount(); ++i) {
        list.GetText(i, row);
        if (fits(row)) {
            list.SetCurSel(i);
            return;
        }
    }
    list.SetCurSel(-1);
}

}  // namespace

void Fill(CListBox& list, std::span<const char* const> rows)
{
    int index = 0;
    for (const char* row : rows) {
        list.InsertString(index++, row);
    }
}

bool HasSelection(const CListBox& list) { return list.GetCurSel() >= 0; }

CString SelectedText(const CListBox& list)
{
    CString row;
    if (HasSelection(list)) {
        list.GetText(list.GetCurSel(), row);
    }
    return row;
}

bool StandsFor(const CString& row, const CString& text)
{
    if (row == NoneRow) {
        return text.IsEmpty();
    }
    return row == text || (row.GetAt(0) == '(' && row == "(" + text + ")");
}

void Select(CListBox& list, const CString& text)
{
    SelectFirst(list, [&text](const CString& row) { return StandsFor(row, text); });
}

void SelectNumber(CListBox& list, int number)
{
    SelectFirst(list, [number](const CString& row) { return NumberValue(row.View()) == number; });
}

CString FieldOf(const CString& row) { return row == NoneRow ? CString() : row; }

}  // namespace ListRows
