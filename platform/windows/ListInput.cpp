// What a list box does with messages, mouse, keys and wheel, and its door for the user.
#include <algorithm>
#include <cstring>

#include "platform/windows/CListBox.h"
#include "platform/windows/UserInput.h"
#include "platform/windows/private/ListRows.h"

namespace {

using namespace WindowLayer;
using namespace ListRows;

constexpr int WheelRows = 3;  // rows a notch

// The row that a key moves to, -1 for a key that moves none.
int RowForKey(const WindowRecord& list, WPARAM key)
{
    const int last = CountOf(list) - 1;
    const int now = list.list.selection;
    const auto moved = [&](int by) { return now == -1 ? 0 : std::clamp(now + by, 0, last); };
    switch (key) {
    case VK_UP:
    case VK_LEFT: return moved(-1);
    case VK_DOWN:
    case VK_RIGHT: return moved(1);
    case VK_PRIOR: return moved(-RowsInView(list));
    case VK_NEXT: return moved(RowsInView(list));
    case VK_HOME: return 0;
    case VK_END: return last;
    default: return -1;
    }
}

std::optional<LRESULT> KeyDown(HWND hList, WPARAM key)
{
    const WindowRecord& list = *FindList(hList);
    if (CountOf(list) == 0 || !TakesInput(list)) {
        return std::nullopt;
    }
    const int row = RowForKey(list, key);
    if (row == -1) {
        return std::nullopt;
    }
    if (row != list.list.selection) {
        ScrollTo(hList, row);
        UserPicksRow(hList, row);
    }
    return 0;
}

LRESULT Press(HWND hList, CPoint point)
{
    GiveFocus(hList);
    if (const WindowRecord* const list = FindList(hList)) {
        UserPicksRow(hList, RowAt(*list, point));
    }
    return 0;
}

LRESULT Wheel(HWND hList, WPARAM wParam)
{
    WindowRecord& list = *FindList(hList);
    const int inView = RowsInView(list);
    const int step = WHEEL_DELTA / std::min(WheelRows, inView);
    const int turn = list.list.wheelRest + static_cast<std::int16_t>(HIWORD(wParam));
    list.list.wheelRest = turn % step;
    const int lowest = std::max({CountOf(list) - inView, list.list.top, 0});
    SetTop(hList, std::clamp(list.list.top - turn / step, 0, lowest));
    return 0;
}

LRESULT RowText(HWND hList, WPARAM row, char* buffer)
{
    const WindowRecord& list = *FindList(hList);
    if (!HasRow(list, static_cast<int>(row))) {
        return LB_ERR;
    }
    const CString& text = list.list.rows[row];
    if (buffer != nullptr) {
        std::memcpy(buffer, static_cast<const char*>(text), text.View().size() + 1);
    }
    return text.GetLength();
}

// The operations by message; parameters as Messages.h tells.
std::optional<LRESULT> RowMessage(HWND hList, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowRecord& list = *FindList(hList);
    const int row = static_cast<int>(wParam);
    const auto* const text = reinterpret_cast<const char*>(lParam);  // NOLINT: as the messages say
    switch (message) {
    case LB_ADDSTRING: return Insert(hList, -1, text);
    case LB_INSERTSTRING: return Insert(hList, row, text);
    case LB_DELETESTRING: return Delete(hList, row);
    case LB_RESETCONTENT: Reset(hList); return LB_OKAY;
    case LB_SETCURSEL: return Select(hList, row);
    case LB_GETCURSEL: return list.list.selection;
    case LB_GETTEXT: return RowText(hList, wParam, const_cast<char*>(text));
    case LB_GETTEXTLEN: return RowText(hList, wParam, nullptr);
    case LB_GETCOUNT: return CountOf(list);
    case LB_GETTOPINDEX: return list.list.top;
    case LB_SETTOPINDEX: return SetTop(hList, row);
    case LB_SETCOLUMNWIDTH: SetColumnWidth(hList, row); return LB_OKAY;
    case LB_GETITEMRECT:
        if (!HasRow(list, row)) {
            return LB_ERR;
        }
        *reinterpret_cast<RECT*>(lParam) = RectOf(list, row);  // NOLINT
        return LB_OKAY;
    default: return std::nullopt;
    }
}

}  // namespace

std::optional<LRESULT> WindowLayer::ListBoxDefault(HWND hList, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_LBUTTONDOWN: return Press(hList, CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
    case WM_KEYDOWN: return KeyDown(hList, wParam);
    case WM_MOUSEWHEEL: return Wheel(hList, wParam);
    default: return RowMessage(hList, message, wParam, lParam);
    }
}

BOOL UserPicksRow(HWND hList, int nRow)
{
    WindowRecord* const list = FindList(hList);
    if (list == nullptr || !TakesInput(*list) || !HasRow(*list, nRow)) {
        return FALSE;
    }
    list->list.selection = nRow;
    Tell(hList, WindowChange::Selection);
    NotifyParent(hList, LBN_SELCHANGE);
    return TRUE;
}
