#include "tests/win32/User.h"
#include "platform/text/GbkWalk.h"

#include <windows.h>

namespace User {

namespace {

DWORD now = 1'000'000;  // milliseconds, of the presses

HWND WindowOf(Handle window) { return static_cast<HWND>(window); }

void Send(INPUT& input)
{
    SendInput(1, &input, sizeof input);
    Settle();
}

void Mouse(DWORD flags, int x, int y, int turn = 0)
{
    const Area screen = Screen();
    INPUT input{};
    input.type = INPUT_MOUSE;
    // Positions count to 65536 across the screen; the middle of the pixel.
    input.mi.dx = (x * 65536 + 32768) / screen.width;
    input.mi.dy = (y * 65536 + 32768) / screen.height;
    input.mi.mouseData = static_cast<DWORD>(turn);
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    input.mi.time = now;
    Send(input);
}

void Keyboard(WORD key, WORD character, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = character;
    input.ki.dwFlags = flags;
    Send(input);
}

void CALLBACK Answer(HWND, UINT, UINT_PTR, DWORD)
{
    wchar_t name[16] = {};
    HWND box = GetActiveWindow();
    if (GetClassNameW(box, name, 16) != 0 && name == std::wstring(L"#32770")) {
        PostMessageW(box, WM_COMMAND, IDOK, 0);
    }
}

LRESULT CALLBACK HostProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (auto* const host = reinterpret_cast<Host*>(GetWindowLongPtrW(window, GWLP_USERDATA))) {
        host->Count(message);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

void Settle()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void Press(Button button, int x, int y)
{
    now += 10'000;
    Mouse(button == Button::Left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN, x, y);
}

void Release(Button button, int x, int y)
{
    Mouse(button == Button::Left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP, x, y);
}

void DoubleClick(int x, int y)
{
    Press(Button::Left, x, y);
    Release(Button::Left, x, y);
    now += 10;
    Mouse(MOUSEEVENTF_LEFTDOWN, x, y);
    Release(Button::Left, x, y);
}

void Wheel(int x, int y, int notches) { Mouse(MOUSEEVENTF_WHEEL, x, y, notches * WHEEL_DELTA); }

void KeyDown(unsigned key) { Keyboard(static_cast<WORD>(key), 0, 0); }

void KeyUp(unsigned key) { Keyboard(static_cast<WORD>(key), 0, KEYEVENTF_KEYUP); }

void Key(unsigned key, unsigned with)
{
    if (with != 0) {
        KeyDown(with);
    }
    KeyDown(key);
    KeyUp(key);
    if (with != 0) {
        KeyUp(with);
    }
}

void Type(wchar_t character)
{
    const int keys = VkKeyScanW(character);
    if (keys >= 0 && keys < 0x200) {  // alone or with Shift
        Key(LOBYTE(keys), HIBYTE(keys) != 0 ? VK_SHIFT : 0U);
    } else {
        Keyboard(0, character, KEYEVENTF_UNICODE);
        Keyboard(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
    }
}

void Paste(const std::wstring& text)
{
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    text.copy(static_cast<wchar_t*>(GlobalLock(memory)), text.size());
    static_cast<wchar_t*>(GlobalLock(memory))[text.size()] = L'\0';
    GlobalUnlock(memory);
    OpenClipboard(nullptr);
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
    Key('V', VK_CONTROL);
}

std::intptr_t Tell(Handle window, unsigned message, std::uintptr_t wParam, std::intptr_t lParam)
{
    const LRESULT result = SendMessageW(WindowOf(window), message, wParam, lParam);
    Settle();
    return result;
}

void MoveToScreenOf(Handle window, int dpi, int x, int y)
{
    RECT wanted{x, y, x + 100, y + 100};
    Tell(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&wanted));
}

Answers::Answers() : m_timer(SetTimer(nullptr, 0, 10, &Answer)) {}

Answers::~Answers() { KillTimer(nullptr, m_timer); }

std::wstring Wide(const std::string& gbk)
{
    constexpr UINT Gbk = 936;
    std::wstring wide;
    for (int at = 0; at < static_cast<int>(gbk.size());) {
        const int next = NextCharacter(gbk, at);
        wchar_t character = 0;
        const bool isOne =
            MultiByteToWideChar(Gbk, MB_ERR_INVALID_CHARS, gbk.data() + at, next - at, &character, 1) == 1;
        wide += isOne ? character : wchar_t{0xFFFD};
        at = next;
    }
    return wide;
}

Area PlaceOf(Handle window)
{
    RECT area{};
    GetWindowRect(WindowOf(window), &area);
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

Area Screen() { return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

Handle At(int x, int y) { return WindowFromPoint({x, y}); }

bool IsVisible(Handle window) { return IsWindowVisible(WindowOf(window)) != FALSE; }

bool IsEnabled(Handle window) { return IsWindowEnabled(WindowOf(window)) != FALSE; }

Handle Focused() { return GetFocus(); }

std::wstring TextOf(Handle window)
{
    wchar_t text[256] = {};
    return {text, static_cast<std::size_t>(GetWindowTextW(WindowOf(window), text, 256))};
}

int CaretOf(Handle box)
{
    DWORD end = 0;
    SendMessageW(WindowOf(box), EM_GETSEL, 0, reinterpret_cast<LPARAM>(&end));
    return static_cast<int>(end);
}

List ListOf(Handle list)
{
    HWND window = WindowOf(list);
    List shown;
    shown.selection = static_cast<int>(SendMessageW(window, LB_GETCURSEL, 0, 0));
    shown.top = static_cast<int>(SendMessageW(window, LB_GETTOPINDEX, 0, 0));
    const LRESULT count = SendMessageW(window, LB_GETCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row) {
        wchar_t text[256] = {};
        SendMessageW(window, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
        shown.rows.emplace_back(text);
    }
    return shown;
}

Area RowOf(Handle list, int row)
{
    RECT area{};
    SendMessageW(WindowOf(list), LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&area));
    MapWindowPoints(WindowOf(list), nullptr, reinterpret_cast<POINT*>(&area), 2);
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

Host::Host()
{
    WNDCLASSW shape{};
    shape.lpfnWndProc = &HostProc;
    shape.lpszClassName = L"TestHost";
    RegisterClassW(&shape);
    HWND window = CreateWindowExW(0, L"TestHost", L"host", WS_POPUP | WS_VISIBLE, 600, 400, 400, 300,
                                  nullptr, nullptr, nullptr, nullptr);
    m_window = window;
    m_box = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 100, 20, window, nullptr,
                            nullptr, nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetForegroundWindow(window);
    SetFocus(WindowOf(m_box));
    Settle();
}

Host::~Host() { DestroyWindow(WindowOf(m_window)); }

void Host::Count(unsigned message)
{
    m_clicks += message == WM_LBUTTONDOWN ? 1 : 0;
    m_rightEvents +=
        message == WM_RBUTTONDOWN || message == WM_RBUTTONUP || message == WM_CONTEXTMENU ? 1 : 0;
}

}  // namespace User
