// The rows of a list box by program.
#pragma once

#include "platform/windows/private/WindowLayer.h"

// All take the handle of any window; one that is no list box has no rows. Answers as in CListBox.
namespace ListBox {

[[nodiscard]] Window* FindList(HWND hList);

int Insert(HWND hList, int nRow, const CString& strText);
int Delete(HWND hList, int nRow);
void Reset(HWND hList);
int Select(HWND hList, int nRow);
int SetTop(HWND hList, int nRow);
void SetColumnWidth(HWND hList, int nWidth);

// Scrolls as little as it takes to show a row whole; nothing for a row that does not exist.
void ScrollTo(HWND hList, int nRow);

}  // namespace ListBox
