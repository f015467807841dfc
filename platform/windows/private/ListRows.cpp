// List box rows: entering and removing them, and their rectangles.
#include "platform/windows/private/ListRows.h"

#include <algorithm>

namespace ListRows {

namespace {

bool IsMultiColumn(const WindowRecord& list) { return Has(list.style, ControlStyle::MultiColumn); }

void KeepTopInside(ListState& state)
{
    const int last = static_cast<int>(state.rows.size()) - 1;
    state.top = std::clamp(state.top, 0, std::max(last, 0));
}

}  // namespace

WindowRecord* FindList(HWND hList)
{
    WindowRecord* const window = WindowLayer::Find(hList);
    return window != nullptr && window->kind == WindowKind::ListBox ? window : nullptr;
}

int CountOf(const WindowRecord& list) { return static_cast<int>(list.list.rows.size()); }

bool HasRow(const WindowRecord& list, int nRow) { return nRow >= 0 && nRow < CountOf(list); }

int Insert(HWND hList, int nRow, const CString& strText)
{
    WindowRecord* const list = FindList(hList);
    if (list == nullptr || nRow < -1 || nRow > CountOf(*list)) {
        return LB_ERR;
    }
    ListState& state = list->list;
    const int row = nRow == -1 ? CountOf(*list) : nRow;
    state.rows.insert(state.rows.begin() + row, strText);
    if (state.selection >= row) {
        ++state.selection;
    }
    WindowLayer::Tell(hList, WindowChange::Rows);
    return row;
}

int Delete(HWND hList, int nRow)
{
    WindowRecord* const list = FindList(hList);
    if (list == nullptr || !HasRow(*list, nRow)) {
        return LB_ERR;
    }
    ListState& state = list->list;
    state.rows.erase(state.rows.begin() + nRow);
    if (state.selection == nRow) {
        state.selection = -1;
    } else if (state.selection > nRow) {
        --state.selection;
    }
    KeepTopInside(state);
    const int left = CountOf(*list);
    WindowLayer::Tell(hList, WindowChange::Rows);
    return left;
}

void Reset(HWND hList)
{
    if (WindowRecord* const list = FindList(hList)) {
        list->list.rows.clear();
        list->list.selection = -1;
        list->list.top = 0;
        WindowLayer::Tell(hList, WindowChange::Rows);
    }
}

int Select(HWND hList, int nRow)
{
    WindowRecord* const list = FindList(hList);
    if (list == nullptr || (nRow != -1 && !HasRow(*list, nRow))) {
        return LB_ERR;
    }
    if (nRow != -1) {
        ScrollTo(hList, nRow);
    }
    list->list.selection = nRow;
    WindowLayer::Tell(hList, WindowChange::Selection);
    return nRow;
}

int SetTop(HWND hList, int nRow)
{
    WindowRecord* const list = FindList(hList);
    if (list == nullptr || !HasRow(*list, nRow)) {
        return LB_ERR;
    }
    if (list->list.top != nRow) {
        list->list.top = nRow;
        WindowLayer::Tell(hList, WindowChange::Scroll);
    }
    return LB_OKAY;
}

void SetColumnWidth(HWND hList, int nWidth)
{
    WindowRecord* const list = FindList(hList);
    if (list != nullptr && nWidth > 0) {
        list->list.columnWidth = nWidth;
        WindowLayer::Tell(hList, WindowChange::Rows);
    }
}

int RowsInView(const WindowRecord& list)
{
    const int fit =
        IsMultiColumn(list) ? list.place.Width() / list.list.columnWidth : list.place.Height() / RowHeight;
    return std::max(fit, 1);
}

CRect RectOf(const WindowRecord& list, int nRow)
{
    const int place = nRow - list.list.top;
    if (IsMultiColumn(list)) {
        const int width = list.list.columnWidth;
        return {place * width, 0, (place + 1) * width, RowHeight};
    }
    return {0, place * RowHeight, list.place.Width(), (place + 1) * RowHeight};
}

int RowAt(const WindowRecord& list, CPoint point)
{
    if (!CRect(0, 0, list.place.Width(), list.place.Height()).PtInRect(point)) {
        return -1;
    }
    if (IsMultiColumn(list) && point.y >= RowHeight) {
        return -1;
    }
    const int place = IsMultiColumn(list) ? point.x / list.list.columnWidth : point.y / RowHeight;
    const int row = list.list.top + place;
    return HasRow(list, row) ? row : -1;
}

void ScrollTo(HWND hList, int nRow)
{
    const WindowRecord* const list = FindList(hList);
    if (list == nullptr) {
        return;
    }
    const int inView = RowsInView(*list);
    if (nRow < list->list.top) {
        SetTop(hList, nRow);
    } else if (nRow >= list->list.top + inView) {
        SetTop(hList, nRow - inView + 1);
    }
}

}  // namespace ListRows
