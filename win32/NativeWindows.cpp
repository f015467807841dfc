// Windows and controls made, placed and filled.
#include "win32/NativeEvents.h"

#include <algorithm>

namespace Native {

namespace {

constexpr wchar_t PopUpClass[] = L"RankerPopUp";
constexpr wchar_t BarOfList[] = L"RankerBar";  // the property by which a list knows its bar

HINSTANCE ThisLibrary()
{
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       PopUpClass, &library);
    return library;
}

void RegisterPopUpClass()
{
    WNDCLASSEXW shape{};
    shape.cbSize = sizeof shape;
    shape.style = CS_DBLCLKS | CS_DROPSHADOW;
    shape.lpfnWndProc = &DefWindowProcW;
    shape.hInstance = ThisLibrary();
    shape.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    shape.lpszClassName = PopUpClass;
    RegisterClassExW(&shape);  // once more is refused, and does no harm
}

const wchar_t* ClassOf(Kind kind)
{
    switch (kind) {
    case Kind::EditBox: return L"EDIT";
    case Kind::ListBox:
    case Kind::ListOfColumns: return L"LISTBOX";
    case Kind::Button: return L"BUTTON";
    default: return L"STATIC";
    }
}

DWORD StyleOf(const Shape& shape)
{
    switch (shape.kind) {
    case Kind::EditBox:
        return WS_BORDER | ES_AUTOHSCROLL | (shape.align == Align::Right ? ES_RIGHT : ES_LEFT) |
               (shape.digitsOnly ? ES_NUMBER : 0);
    case Kind::ListBox:
    case Kind::ListOfColumns:  // the rows are as high as the window layer says
        return LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT |
               (shape.kind == Kind::ListOfColumns ? LBS_MULTICOLUMN : 0);
    case Kind::Button: return BS_PUSHBUTTON;
    default:
        return SS_CENTERIMAGE | SS_NOPREFIX |
               (shape.align == Align::Center  ? SS_CENTER
                : shape.align == Align::Right ? SS_RIGHT
                                              : SS_LEFTNOWORDWRAP);
    }
}

HWND BarOf(HWND list) { return static_cast<HWND>(GetPropW(list, BarOfList)); }

// A slim bar over the list's edge: the system's own is as wide as some lists.
HWND MakeBar(HWND list)
{
    HWND bar = CreateWindowExW(0, L"SCROLLBAR", nullptr, WS_CHILD | WS_CLIPSIBLINGS | SBS_VERT, 0, 0, 0, 0,
                               GetParent(list), nullptr, ThisLibrary(), nullptr);
    SetWindowLongPtrW(bar, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(list));
    SetPropW(list, BarOfList, bar);
    return bar;
}

void ShowBar(HWND list, const View& view)
{
    HWND bar = BarOf(list);
    const bool needed = view.barWidth > 0 && view.count > view.inView;
    if (bar == nullptr) {
        if (!needed) {
            return;
        }
        bar = MakeBar(list);
    }
    SCROLLINFO range{};
    range.cbSize = sizeof range;
    range.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    range.nMax = std::max(view.count, view.top + view.inView) - 1;
    range.nPage = static_cast<UINT>(view.inView);
    range.nPos = view.top;
    SetScrollInfo(bar, SB_CTL, &range, TRUE);
    RECT area;
    GetWindowRect(list, &area);
    MapWindowPoints(nullptr, GetParent(list), reinterpret_cast<POINT*>(&area), 2);
    const UINT show = needed ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
    SetWindowPos(bar, HWND_TOP, area.right - view.barWidth, area.top, view.barWidth, area.bottom - area.top,
                 SWP_NOACTIVATE | show);
}

}  // namespace

Handle MakePopUp(Handle owner, Listener& listener)
{
    RegisterPopUpClass();
    HWND popUp = CreateWindowExW(WS_EX_TOOLWINDOW, PopUpClass, nullptr, WS_POPUP | WS_CLIPCHILDREN, 0, 0, 0,
                                 0, WindowOf(owner), nullptr, ThisLibrary(), nullptr);
    Listen(popUp, true, listener);
    return popUp;
}

Handle MakeControl(const Shape& shape, int id, Handle popUp, Listener& listener)
{
    HWND control = CreateWindowExW(
        0, ClassOf(shape.kind), nullptr, WS_CHILD | WS_CLIPSIBLINGS | StyleOf(shape), 0, 0, 0, 0,
        WindowOf(popUp), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ThisLibrary(), nullptr);
    SetWindowPos(control, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    Listen(control, false, listener);
    return control;
}

void Destroy(Handle window)
{
    HWND bar = static_cast<HWND>(RemovePropW(WindowOf(window), BarOfList));
    if (bar != nullptr) {
        DestroyWindow(bar);
    }
    DestroyWindow(WindowOf(window));
}

void Place(Handle window, const Area& area)
{
    SetWindowPos(WindowOf(window), nullptr, area.x, area.y, area.width, area.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void Show(Handle window, bool shown)
{
    ShowWindow(WindowOf(window), shown ? SW_SHOW : SW_HIDE);
    HWND bar = BarOf(WindowOf(window));
    if (bar != nullptr && !shown) {
        ShowWindow(bar, SW_HIDE);
    }
}

void Raise(Handle popUp)
{
    SetWindowPos(WindowOf(popUp), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void Enable(Handle window, bool enabled) { EnableWindow(WindowOf(window), enabled ? TRUE : FALSE); }

Handle Focused() { return GetFocus(); }

void Focus(Handle window) { SetFocus(WindowOf(window)); }

void Push(Handle button, bool pushed)
{
    SendMessageW(WindowOf(button), BM_SETSTATE, pushed ? TRUE : FALSE, 0);
}

void SetText(Handle window, const std::wstring& text) { SetWindowTextW(WindowOf(window), text.c_str()); }

std::wstring TextOf(Handle window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(WindowOf(window))) + 1, L'\0');
    const int length = GetWindowTextW(WindowOf(window), text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void SetCaret(Handle box, int position)
{
    SendMessageW(WindowOf(box), EM_SETSEL, static_cast<WPARAM>(position), position);
    SendMessageW(WindowOf(box), EM_SCROLLCARET, 0, 0);
}

// The end of what is selected: the system does not say on which side the caret is.
int CaretOf(Handle box)
{
    DWORD from = 0;
    DWORD to = 0;
    SendMessageW(WindowOf(box), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return static_cast<int>(to);
}

bool HasSelection(Handle box)
{
    DWORD from = 0;
    DWORD to = 0;
    SendMessageW(WindowOf(box), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return from != to;
}

void SetRows(Handle list, const Rows& rows)
{
    HWND window = WindowOf(list);
    SendMessageW(window, WM_SETREDRAW, FALSE, 0);
    SendMessageW(window, LB_RESETCONTENT, 0, 0);
    SendMessageW(window, LB_SETITEMHEIGHT, 0, rows.height);
    SendMessageW(window, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(rows.columnWidth), 0);
    for (const std::wstring& text : rows.texts) {
        SendMessageW(window, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

void SetView(Handle list, const View& view)
{
    HWND window = WindowOf(list);
    SendMessageW(window, WM_SETREDRAW, FALSE, 0);
    // Empty rows at the end let it scroll farther than it would.
    const int wanted = view.top == 0 ? view.count : std::max(view.count, view.top + view.inView);
    int has = static_cast<int>(SendMessageW(window, LB_GETCOUNT, 0, 0));
    for (; has < wanted; ++has) {
        SendMessageW(window, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
    }
    for (; has > wanted; --has) {
        SendMessageW(window, LB_DELETESTRING, static_cast<WPARAM>(has - 1), 0);
    }
    SendMessageW(window, LB_SETCURSEL, static_cast<WPARAM>(view.selection), 0);
    SendMessageW(window, LB_SETTOPINDEX, static_cast<WPARAM>(view.top), 0);
    SendMessageW(window, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window, nullptr, TRUE);
    ShowBar(window, view);
}

Fonts::~Fonts()
{
    for (const Made& made : m_made) {
        DeleteObject(made.font);
    }
}

void Fonts::Use(Handle window, const std::wstring& face, int height)
{
    auto found = std::find_if(m_made.begin(), m_made.end(),
                              [&](const Made& made) { return made.face == face && made.height == height; });
    if (found == m_made.end()) {
        HFONT font = CreateFontW(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, GB2312_CHARSET,
                                 OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                                 DEFAULT_PITCH | FF_DONTCARE, face.c_str());
        found = m_made.insert(m_made.end(), {face, height, font});
    }
    SendMessageW(WindowOf(window), WM_SETFONT, reinterpret_cast<WPARAM>(found->font), TRUE);
}

}  // namespace Native
