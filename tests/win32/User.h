// A user at the system's own queue of input, and what the system's controls show. Plain data: the system's
// header and the window layer use the same names.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace User {

using Handle = void*;  // an HWND of the system

enum class Button { Left, Right };

// All of these are done with when they return. Presses have times of their own: far apart, unless they are
// a double click's.
void Press(Button button, int x, int y);
void Release(Button button, int x, int y);
void DoubleClick(int x, int y);
void Wheel(int x, int y, int notches);
void KeyDown(unsigned key);
void KeyUp(unsigned key);
void Key(unsigned key, unsigned with = 0);
// The keys of a character where the keyboard has them; else as an input method hands it in.
void Type(wchar_t character);
void Paste(const std::wstring& text);
// A message straight to a window.
std::intptr_t Tell(Handle window, unsigned message, std::uintptr_t wParam, std::intptr_t lParam);
// As the system asks for it where a window comes to a screen of other DPI.
void MoveToScreenOf(Handle window, int dpi, int x, int y);
void Settle();

// Says OK to each message box while it lives.
class Answers {
public:
    Answers();
    Answers(const Answers&) = delete;
    Answers& operator=(const Answers&) = delete;
    ~Answers();

private:
    std::uintptr_t m_timer;
};

// GBK as the system shows it, U+FFFD for bytes that are no character.
[[nodiscard]] std::wstring Wide(const std::string& gbk);

struct Area {
    int x = 0, y = 0, width = 0, height = 0;
};
[[nodiscard]] Area PlaceOf(Handle window);  // on the screen
[[nodiscard]] Area Screen();
[[nodiscard]] Handle At(int x, int y);
[[nodiscard]] bool IsVisible(Handle window);
[[nodiscard]] bool IsEnabled(Handle window);
[[nodiscard]] Handle Focused();
[[nodiscard]] std::wstring TextOf(Handle window);
[[nodiscard]] int CaretOf(Handle box);

struct List {
    std::vector<std::wstring> rows;
    int selection = -1;
    int top = 0;
};
[[nodiscard]] List ListOf(Handle list);
[[nodiscard]] Area RowOf(Handle list, int row);  // on the screen

// A window of the host's own, with a box and a button; counts what gets to it.
class Host {
public:
    Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host();

    [[nodiscard]] Handle Window() const { return m_window; }
    [[nodiscard]] Handle Box() const { return m_box; }
    [[nodiscard]] int Clicks() const { return m_clicks; }
    [[nodiscard]] int RightEvents() const { return m_rightEvents; }
    void Count(unsigned message);

private:
    Handle m_window = nullptr;
    Handle m_box = nullptr;
    int m_clicks = 0;
    int m_rightEvents = 0;
};

}  // namespace User
