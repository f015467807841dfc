// What a panel shows at one moment, as plain values in UTF-8.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "RankerModule.h"
#include "platform/windows/Display.h"

namespace Desk::Panels {

struct Control {
    int id = 0;
    WindowKind kind = WindowKind::Label;
    ControlStyle style = ControlStyle::None;
    CRect place;       // pixels of the panel's client area
    std::string text;  // caption, or what stands in a box
    int caret = -1;    // of the box with the focus: byte position in the text
    bool enabled = true;
    bool focused = false;
    std::vector<std::string> rows;
    int selection = -1;
    int top = 0;     // first row in view
    int inView = 0;  // rows that fit
};

// One group of the bar panel that is not empty.
struct Group {
    int number = 0;
    std::string text;
    std::vector<std::string> pieces;

    bool operator==(const Group&) const = default;
};

// What a panel holds besides what its controls show: its text, or groups and mode of the bar panel. Of a
// picker the value of its item, and whether it is bound to it.
struct Holding {
    std::optional<std::string> text;
    std::vector<Group> groups;
    int editedRow = -1;  // of the bar panel; -1 while it composes a new piece
    std::optional<bool> bound;

    bool operator==(const Holding&) const = default;
};

struct Picture {
    bool shown = false;
    CRect place;  // on the screen
    std::vector<Control> controls;
    Holding holding;
};

// Without what the panel holds. A window that is gone gives an empty picture, not shown.
[[nodiscard]] Picture TakePicture(HWND hPanel);

// "list 552", "box 1316", "button 1347", "label".
[[nodiscard]] std::string NameOf(WindowKind kind, int id);

[[nodiscard]] std::string Quoted(const std::string& text);

// What is not as it was, in a few words each: "hidden", "moved by 30,0", "552 on KL", "1316 = KL".
[[nodiscard]] std::vector<std::string> Changes(const Picture& before, const Picture& after);

}  // namespace Desk::Panels
