// The rows of a list box by program, and where each of them shows.
#pragma once

#include "platform/windows/private/WindowLayer.h"

// All take the handle of any window; one that is no list box has no rows. Answers as in CListBox.
namespace ListRows {

inline constexpr int RowHeight = 12;  // pixels: a line of the 9-point font

[[nodiscard]] WindowRecord* FindList(HWND hList);
[[nodiscard]] int CountOf(const WindowRecord& list);
[[nodiscard]] bool HasRow(const WindowRecord& list, int nRow);

int Insert(HWND hList, int nRow, const CString& strText);
int Delete(HWND hList, int nRow);
void Reset(HWND hList);
int Select(HWND hList, int nRow);
int SetTop(HWND hList, int nRow);
void SetColumnWidth(HWND hList, int nWidth);

// Whole rows that fit into the client area, at least 1.
[[nodiscard]] int RowsInView(const WindowRecord& list);
[[nodiscard]] CRect RectOf(const WindowRecord& list, int nRow);
// The row under a position of the client area, -1 for none.
[[nodiscard]] int RowAt(const WindowRecord& list, CPoint point);
// Scrolls as little as it takes to show a row whole.
void ScrollTo(HWND hList, int nRow);

}  // namespace ListRows
