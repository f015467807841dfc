// WindowRecord: what shows of one window, for a display to read.
#pragma once

#include <vector>

#include "platform/text/CString.h"
#include "platform/windows/CRect.h"
#include "platform/windows/DialogTemplate.h"

enum class WindowKind { Frame, PopUp, Label, EditBox, ListBox, Button };

inline constexpr int RowHeight = DialogUnitsDown(8);  // pixels of a list box's row: a line of the font

// The rows of a list box, numbered from 0; -1 stands for none.
struct ListState {
    std::vector<CString> rows;
    int selection = -1;
    int top = 0;           // first row in view
    int columnWidth = 90;  // pixels, of a list with one row a column
};

struct PLATFORM_API WindowRecord {
    HWND handle = nullptr;
    WindowKind kind = WindowKind::Frame;
    int id = 0;
    ControlStyle style = ControlStyle::None;
    CRect place;  // frame and pop-up: on the screen; control: in its parent's client area
    CString text;
    int caret = 0;  // of an edit box: byte position in the text, never inside a double-byte character
    ListState list;
    bool visible = false;
    bool enabled = true;
    HWND parent = nullptr;                  // of a pop-up: the window it was made for, null for none
    std::vector<HWND> children;             // controls in template order
    const DialogTemplate* shape = nullptr;  // of a pop-up

    [[nodiscard]] bool IsControl() const { return kind != WindowKind::Frame && kind != WindowKind::PopUp; }

    // Of a list box. A multi-column list shows one row a column.
    [[nodiscard]] bool IsMultiColumn() const { return Has(style, ControlStyle::MultiColumn); }
    [[nodiscard]] int RowCount() const { return static_cast<int>(list.rows.size()); }
    [[nodiscard]] bool HasRow(int nRow) const { return nRow >= 0 && nRow < RowCount(); }
    // Whole rows that fit into the client area, at least 1.
    [[nodiscard]] int RowsInView() const;
    // A row's rectangle in the client area; outside of it for a row out of view.
    [[nodiscard]] CRect RectOfRow(int nRow) const;
    // The row under a position of the client area, -1 for none.
    [[nodiscard]] int RowAt(CPoint point) const;
};

// Null for a handle that names no window. Good until the window is destroyed.
[[nodiscard]] PLATFORM_API const WindowRecord* FindWindowRecord(HWND hWnd);
// All windows, each behind its parent.
[[nodiscard]] PLATFORM_API std::vector<HWND> AllWindows();
