// What an edit box does with mouse, keys and typed bytes, and its door for the user.
#include <algorithm>
#include <cstdlib>
#include <string>

#include "platform/text/GbkWalk.h"
#include "platform/windows/CEdit.h"
#include "platform/windows/UserInput.h"
#include "platform/windows/private/WindowLayer.h"

namespace {

using namespace WindowLayer;

constexpr int ByteWidth = 6;  // pixels of one byte in the 9-point font, a double-byte character has two
constexpr int Margin = 1;     // pixels between the box's edge and its text

Window* FindBox(HWND hEdit)
{
    Window* const window = Find(hEdit);
    return window != nullptr && window->kind == WindowKind::EditBox ? window : nullptr;
}

// The text with the bytes between two positions replaced, the caret behind what came in.
BOOL Replace(HWND hEdit, int nFrom, int nTo, const std::string& bytes)
{
    const CString& text = FindBox(hEdit)->text;
    const CString edited = text.Left(nFrom) + CString(std::string_view(bytes)) + text.Mid(nTo);
    return UserEditsText(hEdit, edited, nFrom + static_cast<int>(bytes.size()));
}

void MoveCaret(HWND hEdit, int nCaret)
{
    SetCaret(*FindBox(hEdit), nCaret);
    Tell(hEdit, WindowChange::Caret);
}

// A double-byte character arrives as two bytes; the first waits, so that the box never shows half of
// one and notifies once.
bool TypeByte(HWND hEdit, WPARAM typed)
{
    Window& box = *FindBox(hEdit);
    const char lead = box.pendingLead;
    box.pendingLead = '\0';
    if (typed == VK_BACK) {
        if (lead == '\0') {
            Replace(hEdit, PreviousCharacter(box.text.View(), box.caret), box.caret, "");
        }
        return true;
    }
    if (typed < ' ' || typed == 0x7F || typed > 0xFF) {
        return false;
    }
    const char byte = static_cast<char>(typed);
    if (lead == '\0' && IsGbkLead(byte)) {
        box.pendingLead = byte;
        return true;
    }
    // Half of a character and then another one come in together; a box for digits leaves the half out.
    const bool drop = !IsGbkTrail(byte) && Has(box.style, ControlStyle::DigitsOnly);
    Replace(hEdit, box.caret, box.caret,
            lead != '\0' && !drop ? std::string{lead, byte} : std::string{byte});
    return true;
}

// Keys whose WM_CHAR is to follow: letters, digits, the number pad, punctuation.
bool TypesText(WPARAM key)
{
    return key == VK_BACK || key == VK_SPACE || (key >= '0' && key <= 'Z') ||
           (key >= 0x60 && key <= 0x6F) || (key >= 0xBA && key <= 0xE2);
}

bool EditKeyDown(HWND hEdit, WPARAM key)
{
    const Window& box = *FindBox(hEdit);
    const std::string_view text = box.text.View();
    const int caret = box.caret;
    switch (key) {
    case VK_LEFT:
    case VK_UP: MoveCaret(hEdit, PreviousCharacter(text, caret)); return true;
    case VK_RIGHT:
    case VK_DOWN: MoveCaret(hEdit, NextCharacter(text, caret)); return true;
    case VK_HOME: MoveCaret(hEdit, 0); return true;
    case VK_END: MoveCaret(hEdit, box.text.GetLength()); return true;
    case VK_DELETE: Replace(hEdit, caret, NextCharacter(text, caret), ""); return true;
    default: return TypesText(key);
    }
}

// The position between two characters that is nearest to a place across the box.
int CaretAt(const Window& box, int x)
{
    const std::string_view text = box.text.View();
    const int length = box.text.GetLength();
    const bool bRight = Has(box.style, ControlStyle::AlignRight);
    const int start = bRight ? box.place.Width() - Margin - length * ByteWidth : Margin;
    int nearest = 0;
    for (int place = 0; place < length;) {
        place = NextCharacter(text, place);
        if (std::abs(start + place * ByteWidth - x) < std::abs(start + nearest * ByteWidth - x)) {
            nearest = place;
        }
    }
    return nearest;
}

LRESULT Press(HWND hEdit, int x)
{
    GiveFocus(hEdit);
    const Window* const box = FindBox(hEdit);
    if (box != nullptr && TakesInput(*box)) {
        MoveCaret(hEdit, CaretAt(*box, x));
    }
    return 0;
}

// Whether nothing but digits came in between what the two texts have in common at their ends.
bool BringsDigitsOnly(std::string_view before, std::string_view after)
{
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t head = 0;
    while (head < shorter && before[head] == after[head]) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < shorter - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
        ++tail;
    }
    const std::string_view added = after.substr(head, after.size() - head - tail);
    return std::all_of(added.begin(), added.end(), [](char byte) { return byte >= '0' && byte <= '9'; });
}

}  // namespace

BEGIN_MESSAGE_MAP(CEdit, CWnd)
END_MESSAGE_MAP()

std::optional<LRESULT> WindowLayer::EditBoxDefault(HWND hEdit, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto ifUsed = [](bool bUsed) { return bUsed ? std::optional<LRESULT>(0) : std::nullopt; };
    const bool bTakesInput = TakesInput(*FindBox(hEdit));
    switch (message) {
    case WM_LBUTTONDOWN: return Press(hEdit, GET_X_LPARAM(lParam));
    case WM_CHAR: return ifUsed(bTakesInput && TypeByte(hEdit, wParam));
    case WM_KEYDOWN: return ifUsed(bTakesInput && EditKeyDown(hEdit, wParam));
    default: return std::nullopt;
    }
}

BOOL UserEditsText(HWND hEdit, const CString& strText, int nCaret)
{
    Window* const box = FindBox(hEdit);
    if (box == nullptr || !TakesInput(*box)) {
        return FALSE;
    }
    const bool bDigits = Has(box->style, ControlStyle::DigitsOnly);
    if (bDigits && !BringsDigitsOnly(box->text.View(), strText.View())) {
        Tell(hEdit, WindowChange::Text);  // a toolkit's box that took it already goes back
        return FALSE;
    }
    const bool bChanged = box->text != strText;
    const int length = strText.GetLength();
    const int wanted = nCaret == -1 ? length : std::clamp(nCaret, 0, length);
    const std::string_view text = strText.View();
    box->text = strText;
    SetCaret(*box, wanted == 0 ? 0 : NextCharacter(text, PreviousCharacter(text, wanted)));
    Tell(hEdit, bChanged ? WindowChange::Text : WindowChange::Caret);
    if (bChanged) {
        NotifyParent(hEdit, EN_CHANGE);
    }
    return TRUE;
}
