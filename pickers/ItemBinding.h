// What the two wall bar pickers share: the grade in a text, rows of arrays, the item they are bound to.
#pragma once

#include <memory>
#include <span>

#include "griditem/PropertyGridItem.h"
#include "platform/text/Arrays.h"
#include "platform/windows/CListBox.h"

namespace ItemBinding {

// "A", "B", "C" or "D": the first in this order that the text holds anywhere; empty for none.
[[nodiscard]] CString GradeIn(const CString& text);

void SetRows(CStringArray& rows, std::span<const char* const> texts);
// Empties a list and fills it from the array, with no selection.
void Fill(CListBox& list, const CStringArray& rows);
// Selects the first row equal to the text, none when no row is. No handler runs.
void Select(CListBox& list, const CStringArray& rows, const CString& text);
// Puts the array's row for the list's selection into the box; without a selection nothing.
void TakeRow(const CListBox& list, const CStringArray& rows, CWnd& box);

[[nodiscard]] CString TextOf(const CWnd& box);

// An item counts only while it is attached to its window.
[[nodiscard]] bool IsUsable(const CPropertyGridItem* item);

// Alive for as long as the picker that holds it. The item that gets a text may destroy the picker.
class Life {
public:
    [[nodiscard]] std::weak_ptr<const int> Watch() const { return m_mark; }

private:
    std::shared_ptr<const int> m_mark = std::make_shared<const int>(0);
};

// Hides the picker, hands the text to a usable item and unbinds it.
template <class Picker>
void Confirm(Picker& picker, const Life& life, const CString& text)
{
    const std::weak_ptr<const int> alive = life.Watch();
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
