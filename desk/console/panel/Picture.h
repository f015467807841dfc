// What a panel shows at one moment, as plain values in UTF-8.
#pragma once

#include <string>
#include <vector>

#include "desk/shell/Panel.h"
#include "platform/windows/Display.h"

namespace Desk::Panels {

struct Control {
    HWND handle = nullptr;
    int id = 0;
    WindowKind kind = WindowKind::Label;
    ControlStyle style = ControlStyle::None;
    CRect place;       // pixels of the panel's client area
    std::string text;  // caption, or the text of a box
    int caret = -1;    // of the box with the focus: byte position in the text
    bool enabled = true;
    bool focused = false;
    std::vector<std::string> rows;
    int selection = -1;
    int top = 0;     // first row in view
    int inView = 1;  // rows that fit
};

struct Picture {
    bool shown = false;
    CRect place;  // on the screen
    std::vector<Control> controls;
    Holding holding;
};

// Without what the panel holds. A destroyed window gives an empty picture, not shown.
[[nodiscard]] Picture TakePicture(HWND hPanel);

// "list", "box", "button", "label".
[[nodiscard]] const char* KindName(WindowKind kind);
// "list 552", "box 1316", "button 1347", "label".
[[nodiscard]] std::string NameOf(WindowKind kind, int id);

// The differences, in a few words each: "hidden", "moved by 30,0", "552 on KL", "1316 = KL".
[[nodiscard]] std::vector<std::string> Changes(const Picture& before, const Picture& after);

}  // namespace Desk::Panels
