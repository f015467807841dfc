// Dialog templates: the size and the controls of a pop-up as constant data.
#pragma once

#include <span>

#include "platform/text/Gbk.h"
#include "platform/windows/Messages.h"

enum class ControlKind { Label, EditBox, ListBox, Button };

// What a control is besides its kind; joined by |.
enum class ControlStyle : unsigned {
    None = 0,
    Disabled = 1,      // shows, takes no input
    DigitsOnly = 2,    // edit box: the user can type digits alone
    AlignRight = 4,    // edit box or label
    AlignCenter = 8,   // label
    MultiColumn = 16,  // list box: one row a column, scrolled sideways
};
[[nodiscard]] constexpr ControlStyle operator|(ControlStyle a, ControlStyle b)
{
    return static_cast<ControlStyle>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
[[nodiscard]] constexpr bool Has(ControlStyle style, ControlStyle wanted)
{
    return (static_cast<unsigned>(style) & static_cast<unsigned>(wanted)) != 0;
}

// A place in dialog units of a 9-point font: 4 units are 6 pixels across, 8 are 12 pixels down.
struct DialogRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

// Pixels of a length in dialog units, halves rounded away from zero.
[[nodiscard]] constexpr int DialogUnitsAcross(int units) { return (units * 6 + (units < 0 ? -2 : 2)) / 4; }
[[nodiscard]] constexpr int DialogUnitsDown(int units) { return (units * 12 + (units < 0 ? -4 : 4)) / 8; }

struct ControlTemplate {
    ControlKind kind = ControlKind::Label;
    int id = IDC_STATIC;
    DialogRect place;
    const char* text = "";  // GBK bytes that outlive the window's making
    ControlStyle style = ControlStyle::None;
};

// The controls stand in the order in which Tab visits them and GetTopWindow walks them. Where two
// overlap the earlier one is on top.
struct DialogTemplate {
    UINT id = 0;
    int width = 0;  // dialog units
    int height = 0;
    const char* font = "";  // GBK bytes
    int points = 9;
    std::span<const ControlTemplate> controls;
};

// A label's GBK bytes, readable in the source and good for as long as the program runs:
// GbkLabel<u8"...">().
template <GbkText Label>
[[nodiscard]] constexpr const char* GbkLabel()
{
    return Label.Text();
}
