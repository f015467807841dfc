// Screens, the message box, and texts between GBK and the system.
#include "win32/NativeEvents.h"

namespace Native {

namespace {

constexpr UINT Gbk = 936;  // the code page
constexpr int UsualDpi = 96;

// What older systems lack is asked for by name; null where it is not there.
template <class Function>
Function* FindFunction(const wchar_t* library, const char* name)
{
    HMODULE module = LoadLibraryW(library);  // stays loaded: a library of the system
    return module != nullptr
               ? reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)))
               : nullptr;
}

HMONITOR MonitorAt(int x, int y) { return MonitorFromPoint({x, y}, MONITOR_DEFAULTTONEAREST); }

int SystemDpi()
{
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : UsualDpi;
}

}  // namespace

int DpiOf(Handle window)
{
    static auto* const ask = FindFunction<UINT WINAPI(HWND)>(L"user32.dll", "GetDpiForWindow");
    const UINT dpi = ask != nullptr ? ask(WindowOf(window)) : 0;
    return dpi != 0 ? static_cast<int>(dpi) : SystemDpi();
}

int DpiAt(int x, int y)
{
    static auto* const ask =
        FindFunction<HRESULT WINAPI(HMONITOR, int, UINT*, UINT*)>(L"shcore.dll", "GetDpiForMonitor");
    constexpr int Effective = 0;
    UINT across = 0;
    UINT down = 0;
    if (ask != nullptr && SUCCEEDED(ask(MonitorAt(x, y), Effective, &across, &down)) && down != 0) {
        return static_cast<int>(down);
    }
    return SystemDpi();
}

Area RoomAround(int x, int y)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorAt(x, y), &monitor);
    const RECT& room = monitor.rcWork;
    return {room.left, room.top, room.right - room.left, room.bottom - room.top};
}

bool UsePerMonitorDpi()
{
    auto* const use = FindFunction<BOOL WINAPI(void*)>(L"user32.dll", "SetProcessDpiAwarenessContext");
    void* const perMonitorV2 = reinterpret_cast<void*>(static_cast<INT_PTR>(-4));
    return use != nullptr && use(perMonitorV2) != FALSE;
}

void ShowMessage(Handle owner, const std::wstring& text)
{
    HWND above = owner != nullptr ? WindowOf(owner) : GetActiveWindow();
    MessageBoxW(above, text.c_str(), TextOf(GetAncestor(above, GA_ROOTOWNER)).c_str(),
                MB_OK | MB_ICONINFORMATION);
}

std::optional<wchar_t> Decode(std::string_view bytes)
{
    wchar_t character[2] = {};
    const int made = MultiByteToWideChar(Gbk, MB_ERR_INVALID_CHARS, bytes.data(),
                                         static_cast<int>(bytes.size()), character, 2);
    return made == 1 && character[0] != L'\0' ? std::optional(character[0]) : std::nullopt;
}

std::optional<std::string> Encode(std::wstring_view text)
{
    if (text.empty()) {
        return std::string();
    }
    std::string bytes(2 * text.size(), '\0');
    BOOL replaced = FALSE;
    const int made =
        WideCharToMultiByte(Gbk, WC_NO_BEST_FIT_CHARS, text.data(), static_cast<int>(text.size()),
                            bytes.data(), static_cast<int>(bytes.size()), nullptr, &replaced);
    if (made <= 0 || replaced != FALSE) {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(made));
    return bytes;
}

}  // namespace Native
