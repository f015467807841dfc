// The system's windows and controls as plain data: the door between the files that know the system's header
// and those that know the window layer, since the two use the same names.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Lengths and positions are pixels of the system.
namespace Native {

using Handle = void*;  // an HWND of the system

enum class Kind { PopUp, Label, EditBox, ListBox, ListOfColumns, Button };
enum class Align { Left, Right, Center };

struct Shape {
    Kind kind = Kind::Label;
    Align align = Align::Left;
    bool digitsOnly = false;
};

struct Area {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

// A message as it came, before its window handles it.
struct Event {
    unsigned message = 0;
    std::uintptr_t wParam = 0;
    std::intptr_t lParam = 0;
    std::uint32_t time = 0;
    int x = 0;  // of a mouse event: in the window, borders included
    int y = 0;
    bool shift = false;  // is held
};

class Listener {
public:
    // True: the window does not handle the event, and may be gone.
    virtual bool OnMouse(Handle window, const Event& event) = 0;
    virtual bool OnKey(Handle window, const Event& event) = 0;
    // The window has handled what may have changed its text or moved its caret.
    virtual void OnEdited(Handle window) = 0;
    virtual void OnFocused(Handle window) = 0;
    // The scroll bar of a list wants this row at the top.
    virtual void OnScrolled(Handle list, int top) = 0;
    virtual void OnClosed(Handle popUp) = 0;
    // Another window of the process is active now.
    virtual void OnLeft(Handle popUp) = 0;
    virtual void OnDpi(Handle popUp, int dpi, int x, int y) = 0;

protected:
    ~Listener() = default;
};

// A null owner is none.
[[nodiscard]] Handle MakePopUp(Handle owner, Listener& listener);
// Below the controls that the pop-up has.
[[nodiscard]] Handle MakeControl(const Shape& shape, int id, Handle popUp, Listener& listener);
// Its controls go with a pop-up.
void Destroy(Handle window);

// A pop-up on the screen, a control in its pop-up.
void Place(Handle window, const Area& area);
void Show(Handle window, bool shown);
void Raise(Handle popUp);
void Enable(Handle window, bool enabled);
// What has the keyboard, when it is of this thread; null for none.
[[nodiscard]] Handle Focused();
void Focus(Handle window);
// A button shows as held down.
void Push(Handle button, bool pushed);

void SetText(Handle window, const std::wstring& text);
[[nodiscard]] std::wstring TextOf(Handle window);
void SetCaret(Handle box, int position);
[[nodiscard]] int CaretOf(Handle box);
[[nodiscard]] bool HasSelection(Handle box);

struct Rows {
    int height = 0;
    int columnWidth = 0;  // of a list of columns
    std::vector<std::wstring> texts;
};
void SetRows(Handle list, const Rows& rows);
// The row that is selected, -1 for none, and the first one in view, of so many rows. The list scrolls as
// far as the last row alone at the top. The bar is at the right edge where not all rows are in view, none
// when its width is 0.
struct View {
    int selection = -1;
    int top = 0;
    int count = 0;
    int inView = 1;
    int barWidth = 0;
};
void SetView(Handle list, const View& view);

// The fonts of the controls, each made once. They go with the object.
class Fonts {
public:
    Fonts() = default;
    Fonts(const Fonts&) = delete;
    Fonts& operator=(const Fonts&) = delete;
    ~Fonts();

    // The height is that of the letters without the space above them.
    void Use(Handle window, const std::wstring& face, int height);

private:
    struct Made {
        std::wstring face;
        int height = 0;
        void* font = nullptr;
    };
    std::vector<Made> m_made;
};

// Of the screen on which a window or position is.
[[nodiscard]] int DpiOf(Handle window);
[[nodiscard]] int DpiAt(int x, int y);
[[nodiscard]] Area RoomAround(int x, int y);
[[nodiscard]] bool UsePerMonitorDpi();

// Waits for the answer.
void ShowMessage(Handle owner, const std::wstring& text);

// One character of GBK; nothing for bytes that are none.
[[nodiscard]] std::optional<wchar_t> Decode(std::string_view bytes);
// Nothing when the text holds a character that GBK lacks.
[[nodiscard]] std::optional<std::string> Encode(std::wstring_view text);

}  // namespace Native
