// Filling a panel's list and finding its rows by what they stand for.
#pragma once

#include <span>

#include "platform/text/CString.h"
#include "platform/windows/CListBox.h"

namespace ListRows {

// Rows stand in the order given, whatever the control would sort them to. In front of rows that the
// list has already.
void Fill(CListBox& list, std::span<const char* const> rows);

[[nodiscard]] bool HasSelection(const CListBox& list);
// The selected row's text; empty without a selection.
[[nodiscard]] CString SelectedText(const CListBox& list);

// Whether a row stands for a field's text: the row "无" for the empty text, a row in brackets for its
// inside with or without them, any other row for exactly its own text.
[[nodiscard]] bool StandsFor(const CString& row, const CString& text);

// Selects the first row that stands for the text, or none. Selecting does not notify.
void Select(CListBox& list, const CString& text);
// Selects the first row whose number is the given one, or none.
void SelectNumber(CListBox& list, int number);

// The text that a row stands for in a field: the row's own, empty for "无".
[[nodiscard]] CString FieldOf(const CString& row);

}  // namespace ListRows
