// What a list box does with messages, mouse, keys and wheel, and its door for the user.
#include <algorithm>
#include <cstring>

#include "platform/windows/CListBox.h"
#include "platform/windows/UserInput.h"
#include "platform/windows/private/ListBox.h"

namespace {

using namespace WindowLayer;
using namespace ListBox;

constexpr int WheelRows = 3;  // rows a notch

// The row that a key moves to, -1 for a key that moves none.
int RowForKey(const Window& list, WPARAM key)
{
    const int last = list.RowCount() - 1;
    const int now = list.list.selection;
    const auto moved = [&](int by) { return now == -1 ? 0 : std::clamp(now + by, 0, last); };
    switch (key) {
    case VK_UP:
    case VK_LEFT: return moved(-1);
    case VK_DOWN:
    case VK_RIGHT: return moved(1);
    case VK_PRIOR: return moved(-list.RowsInView());
    case VK_NEXT: return moved(list.RowsInView());
    case VK_HOME: return 0;
    case VK_END: return last;
    default: return -1;
    }
}

std::optional<LRESULT> ListKeyDown(HWND hList, WPARAM key)
{
    const Window& list = *FindList(hList);
    if (list.RowCount() == 0 || !TakesInput(list)) {
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
    if (const Window* const list = FindList(hList)) {
        UserPicksRow(hList, list->RowAt(point));
    }
    return 0;
}

LRESULT Wheel(HWND hList, WPARAM wParam)
{
    Window& list = *FindList(hList);
    const int inView = list.RowsInView();
    const int step = WHEEL_DELTA / std::min(WheelRows, inView);
    const int turn = list.wheelRest + static_cast<std::int16_t>(HIWORD(wParam));
    list.wheelRest = turn % step;
    const int lowest = std::max({list.RowCount() - inView, list.list.top, 0});
    SetTop(hList, std::clamp(list.list.top - turn / step, 0, lowest));
    return 0;
}

LRESULT RowText(HWND hList, WPARAM row, char* buffer)
{
    const Window& list = *FindList(hList);
    if (!list.HasRow(static_cast<int>(row))) {
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
    const Window& list = *FindList(hList);
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
    case LB_GETCOUNT: return list.RowCount();
    case LB_GETTOPINDEX: return list.list.top;
    case LB_SETTOPINDEX: return SetTop(hList, row);
    case LB_SETCOLUMNWIDTH: SetColumnWidth(hList, row); return LB_OKAY;
    case LB_GETITEMRECT:
        if (!list.HasRow(row)) {
            return LB_ERR;
        }
        *reinterpret_cast<RECT*>(lParam) = list.RectOfRow(row);  // NOLINT
        return LB_OKAY;
    default: return std::nullopt;
    }
}

}  // namespace

std::optional<LRESULT> WindowLayer::ListBoxDefault(HWND hList, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_LBUTTONDOWN: return Press(hList, CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
    case WM_KEYDOWN: return ListKeyDown(hList, wParam);
    case WM_MOUSEWHEEL: return Wheel(hList, wParam);
    default: return RowMessage(hList, message, wParam, lParam);
    }
}

BOOL UserPicksRow(HWND hList, int nRow)
{
    Window* const list = FindList(hList);
    if (list == nullptr || !TakesInput(*list) || !list->HasRow(nRow)) {
        return FALSE;
    }
    list->list.selection = nRow;
    Tell(hList, WindowChange::Selection);
    NotifyParent(hList, LBN_SELCHANGE);
    return TRUE;
}
