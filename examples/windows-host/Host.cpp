// A host in plain Win32: a button for each panel and picker. What they deliver it prints, and shows in a
// list.
//   windows_host                               the window
//   windows_host PANEL [TEXT [STEP]...] [then ...]  the panel open on a text as well; when it hides, the
//   next one
// opens, and after the last one the program ends. Steps: click=ID,ROW on a list, take by the right button,
// picture=FILE.png of the panel, cancel by Esc.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "examples/windows-host/Panels.h"
#include "examples/windows-host/Picture.h"

#include <windows.h>

namespace {

constexpr UINT Gbk = 936;
constexpr int FirstButton = 100;

std::wstring Wide(const std::string& text, UINT codePage)
{
    std::wstring wide(text.size(), L'\0');
    const int made = MultiByteToWideChar(codePage, 0, text.data(), static_cast<int>(text.size()),
                                         wide.data(), static_cast<int>(wide.size()));
    wide.resize(static_cast<std::size_t>(made));
    return wide;
}

std::string Narrow(const std::wstring& wide, UINT codePage)
{
    std::string text(3 * wide.size(), '\0');
    const int made = WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()),
                                         text.data(), static_cast<int>(text.size()), nullptr, nullptr);
    text.resize(static_cast<std::size_t>(made));
    return text;
}

// The window: a column of buttons, and the list of what was taken.
class Frame {
public:
    Frame()
    {
        WNDCLASSW shape{};
        shape.lpfnWndProc = &Frame::Handle;
        shape.hInstance = GetModuleHandleW(nullptr);
        shape.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
        shape.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        shape.lpszClassName = L"RankerWindowsHost";
        RegisterClassW(&shape);
        HDC screen = GetDC(nullptr);
        m_dpi = GetDeviceCaps(screen, LOGPIXELSX);
        ReleaseDC(nullptr, screen);
        m_window = CreateWindowExW(0, shape.lpszClassName, L"RankerModule",
                                   WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, Scaled(40), Scaled(40),
                                   Scaled(460), Scaled(340), nullptr, nullptr, shape.hInstance, nullptr);
        SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        int row = 0;
        for (const std::string& name : Panels::Names()) {
            AddControl(L"BUTTON", Wide(name, CP_UTF8), BS_PUSHBUTTON | WS_TABSTOP,
                       {10, 10 + 38 * row, 100, 28}, FirstButton + row);
            ++row;
        }
        m_list = AddControl(L"LISTBOX", L"", WS_BORDER | WS_VSCROLL, {120, 10, 310, 260}, 0);
        ShowWindow(m_window, SW_SHOW);
    }

    [[nodiscard]] HWND Window() const { return m_window; }
    void Serve(Panels& panels) { m_panels = &panels; }

    void Open(int row, const std::string& gbk)
    {
        RECT button;
        GetWindowRect(GetDlgItem(m_window, FirstButton + row), &button);
        m_panels->Open(Panels::Names()[static_cast<std::size_t>(row)], gbk, button.left, button.top,
                       button.right, button.bottom);
    }

    void Note(const std::string& panel, const std::string& gbk)
    {
        const std::wstring line = Wide(panel, CP_UTF8) + L": " + Wide(gbk, Gbk);
        std::printf("%s\n", Narrow(line, CP_UTF8).c_str());
        std::fflush(stdout);
        SendMessageW(m_list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    }

private:
    struct Area {
        int x, y, width, height;
    };

    [[nodiscard]] int Scaled(int length) const { return MulDiv(length, m_dpi, 96); }

    HWND AddControl(const wchar_t* kind, const std::wstring& text, DWORD style, const Area& area,
                    int id) const
    {
        return CreateWindowExW(0, kind, text.c_str(), WS_CHILD | WS_VISIBLE | style, Scaled(area.x),
                               Scaled(area.y), Scaled(area.width), Scaled(area.height), m_window,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr),
                               nullptr);
    }

    static LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* const frame = reinterpret_cast<Frame*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED && LOWORD(wParam) >= FirstButton) {
            frame->Open(LOWORD(wParam) - FirstButton, "");
            return 0;
        }
        if (message == WM_DESTROY) {
            PostQuitMessage(0);
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    HWND m_window = nullptr;
    HWND m_list = nullptr;
    int m_dpi = 96;
    Panels* m_panels = nullptr;
};

void Click(HWND control, UINT press, UINT release, int x, int y)
{
    PostMessageW(control, press, 0, MAKELPARAM(x, y));
    PostMessageW(control, release, 0, MAKELPARAM(x, y));
}

bool ClickRow(const Panels& panels, const std::string& place)
{
    char* rest = nullptr;
    const long id = std::strtol(place.c_str(), &rest, 10);
    const long row = *rest == ',' ? std::strtol(rest + 1, nullptr, 10) : -1;
    HWND list = static_cast<HWND>(panels.Control(static_cast<int>(id)));
    RECT shown{};
    if (list == nullptr || SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(row),
                                        reinterpret_cast<LPARAM>(&shown)) == LB_ERR) {
        return false;
    }
    Click(list, WM_LBUTTONDOWN, WM_LBUTTONUP, shown.left + 3, (shown.top + shown.bottom) / 2);
    return true;
}

// One step on the open panel, as a user's messages. False for one that cannot be done.
bool Do(const std::string& step, const Panels& panels)
{
    HWND panel = static_cast<HWND>(panels.Window());
    const std::size_t sign = step.find('=');
    const std::string word = step.substr(0, sign);
    const std::string rest = sign == std::string::npos ? "" : step.substr(sign + 1);
    if (word == "click") {
        return ClickRow(panels, rest);
    }
    if (word == "take") {
        Click(panel, WM_RBUTTONDOWN, WM_RBUTTONUP, 1, 1);
    } else if (word == "cancel") {
        PostMessageW(panel, WM_KEYDOWN, VK_ESCAPE, 1);
    } else {
        return word == "picture" && SavePicture(panel, Wide(rest, CP_UTF8));
    }
    return true;
}

int Run(const Panels& panels, const std::vector<std::string>& steps)
{
    const bool untilHidden = panels.IsOpen();
    std::size_t next = 0;
    for (;;) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) {
                return 0;
            }
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (untilHidden && !panels.IsOpen()) {
            return 0;
        }
        if (next == steps.size()) {
            WaitMessage();
        } else if (!Do(steps[next++], panels)) {
            std::fprintf(stderr, "cannot do %s\n", steps[next - 1].c_str());
            return 2;
        }
    }
}

// The words of one panel. The program's status.
int RunPanel(Frame& frame, const Panels& panels, const std::vector<std::string>& words)
{
    const std::vector<std::string> names = Panels::Names();
    const auto found = words.empty() ? names.end() : std::find(names.begin(), names.end(), words[0]);
    if (found == names.end()) {
        std::fprintf(stderr, "no panel is called %s\n", words.empty() ? "nothing" : words[0].c_str());
        return 2;
    }
    frame.Open(static_cast<int>(found - names.begin()), words.size() > 1 ? words[1] : "");
    const auto steps = static_cast<std::ptrdiff_t>(std::min<std::size_t>(words.size(), 2));
    return Run(panels, {words.begin() + steps, words.end()});
}

}  // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    Panels::UsePerMonitorDpi();
    Frame frame;
    Panels panels(frame.Window(),
                  [&frame](const std::string& panel, const std::string& gbk) { frame.Note(panel, gbk); });
    frame.Serve(panels);
    if (words.empty()) {
        return Run(panels, {});
    }
    int status = 0;
    for (auto from = words.begin(); status == 0 && IsWindow(frame.Window()) != FALSE;) {
        const auto end = std::find(from, words.end(), "then");
        status = RunPanel(frame, panels, {from, end});
        if (end == words.end()) {
            break;
        }
        from = end + 1;
    }
    return status;
}
