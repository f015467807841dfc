// Where the rows of a list box show, and the records by handle.
#include "platform/windows/WindowRecord.h"

#include <algorithm>

#include "platform/windows/private/WindowLayer.h"

int WindowRecord::RowsInView() const
{
    const int fit = IsMultiColumn() ? place.Width() / list.columnWidth : place.Height() / RowHeight;
    return std::max(fit, 1);
}

CRect WindowRecord::RectOfRow(int nRow) const
{
    const int from = nRow - list.top;
    if (IsMultiColumn()) {
        return {from * list.columnWidth, 0, (from + 1) * list.columnWidth, RowHeight};
    }
    return {0, from * RowHeight, place.Width(), (from + 1) * RowHeight};
}

int WindowRecord::RowAt(CPoint point) const
{
    const int bottom = IsMultiColumn() ? std::min(RowHeight, place.Height()) : place.Height();
    if (!CRect(0, 0, place.Width(), bottom).PtInRect(point)) {
        return -1;
    }
    const int row = list.top + (IsMultiColumn() ? point.x / list.columnWidth : point.y / RowHeight);
    return HasRow(row) ? row : -1;
}

const WindowRecord* FindWindowRecord(HWND hWnd) { return WindowLayer::Find(hWnd); }

std::vector<HWND> AllWindows()
{
    std::vector<HWND> all;
    for (const HWND holder : WindowLayer::State().windows.Order()) {
        all.push_back(holder);
        for (const HWND child : WindowLayer::Find(holder)->children) {
            all.push_back(child);
        }
    }
    return all;
}
