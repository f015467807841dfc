// List box rows: entered, removed, selected, scrolled.
#include "platform/windows/private/ListBox.h"

#include <algorithm>

namespace ListBox {

namespace {

void KeepTopInside(ListState& state)
{
    const int last = static_cast<int>(state.rows.size()) - 1;
    state.top = std::clamp(state.top, 0, std::max(last, 0));
}

}  // namespace

Window* FindList(HWND hList)
{
    Window* const window = WindowLayer::Find(hList);
    return window != nullptr && window->kind == WindowKind::ListBox ? window : nullptr;
}

int Insert(HWND hList, int nRow, const CString& strText)
{
    Window* const list = FindList(hList);
    if (list == nullptr || nRow < -1 || nRow > list->RowCount()) {
        return LB_ERR;
    }
    ListState& state = list->list;
    const int row = nRow == -1 ? list->RowCount() : nRow;
    state.rows.insert(state.rows.begin() + row, strText);
    if (state.selection >= row) {
        ++state.selection;
    }
    WindowLayer::Tell(hList, WindowChange::Rows);
    return row;
}

int Delete(HWND hList, int nRow)
{
    Window* const list = FindList(hList);
    if (list == nullptr || !list->HasRow(nRow)) {
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
    const int left = list->RowCount();
    WindowLayer::Tell(hList, WindowChange::Rows);
    return left;
}

void Reset(HWND hList)
{
    if (Window* const list = FindList(hList)) {
        list->list.rows.clear();
        list->list.selection = -1;
        list->list.top = 0;
        WindowLayer::Tell(hList, WindowChange::Rows);
    }
}

int Select(HWND hList, int nRow)
{
    ScrollTo(hList, nRow);
    Window* const list = FindList(hList);
    if (list == nullptr || (nRow != -1 && !list->HasRow(nRow))) {
        return LB_ERR;
    }
    list->list.selection = nRow;
    WindowLayer::Tell(hList, WindowChange::Selection);
    return nRow;
}

int SetTop(HWND hList, int nRow)
{
    Window* const list = FindList(hList);
    if (list == nullptr || !list->HasRow(nRow)) {
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
    Window* const list = FindList(hList);
    if (list != nullptr && nWidth > 0) {
        list->list.columnWidth = nWidth;
        WindowLayer::Tell(hList, WindowChange::Rows);
    }
}

void ScrollTo(HWND hList, int nRow)
{
    const Window* const list = FindList(hList);
    if (list == nullptr || !list->HasRow(nRow)) {
        return;
    }
    const int inView = list->RowsInView();
    if (nRow < list->list.top) {
        SetTop(hList, nRow);
    } else if (nRow >= list->list.top + inView) {
        SetTop(hList, nRow - inView + 1);
    }
}

}  // namespace ListBox
