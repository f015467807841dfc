// What the two wall bar pickers share: their columns, the grade in a text, the item they are bound to.
#pragma once

#include <memory>
#include <span>

#include "griditem/PropertyGridItem.h"
#include "platform/text/Arrays.h"
#include "platform/windows/CListBox.h"

namespace ItemBinding {

// One field of a bar text: its list, the box above it, and the array whose rows the list shows.
struct Column {
    CListBox& list;
    CWnd& box;
    const CStringArray& rows;
};

void SetRows(CStringArray& rows, std::span<const char* const> texts);
// The first row into the box and all of them into the list, with no selection.
void Open(const Column& column);
// Selects the first row equal to the text, none when no row is. No handler runs.
void Select(const Column& column, const CString& text);
// Puts the row for the list's selection into the box; without a selection nothing.
void TakeRow(const Column& column);

[[nodiscard]] CString TextOf(const CWnd& box);
[[nodiscard]] CString DecimalText(int number);

// "A", "B", "C" or "D": the first in this order that the text holds anywhere, which the box takes; empty
// for none, and the box stays.
[[nodiscard]] CString ShowGradeIn(const CString& text, CWnd& box);

// An item counts only while it is attached to its window.
[[nodiscard]] bool IsUsable(const CPropertyGridItem* item);

// Hides the picker, hands the text to a usable item and unbinds it. The item may destroy the picker, which
// the picker's life tells.
template <class Picker>
void Confirm(Picker& picker, const std::weak_ptr<const int>& alive, const CString& text)
{
    picker.ShowWindow(SW_HIDE);
    if (IsUsable(picker.m_pItem)) {
        picker.m_pItem->SetValue(text);
        if (!alive.expired()) {
            picker.m_pItem = nullptr;
        }
    }
}

// Hides the picker; a usable item's drop-down counts as closed. The item stays.
template <class Picker>
void Dismiss(Picker& picker)
{
    picker.ShowWindow(SW_HIDE);
    if (IsUsable(picker.m_pItem)) {
        picker.m_pItem->SetListShowFlag(FALSE);
    }
}

}  // namespace ItemBinding
