// Messages, notifications and keys by name.
#pragma once

#include <string>

#include "RankerModule.h"

namespace Desk::Panels {

// "WM_LBUTTONDOWN"; the number of a message without a name here.
[[nodiscard]] std::string MessageName(UINT message);
// "LBN_SELCHANGE".
[[nodiscard]] std::string NoticeName(UINT code);

struct NamedKey {
    const char* name;
    UINT key;
    bool shift = false;
};

// Every key that a step can press, as people write it.
inline constexpr NamedKey Keys[] = {
    {"esc", VK_ESCAPE},  {"tab", VK_TAB},      {"shift+tab", VK_TAB, true}, {"enter", VK_RETURN},
    {"space", VK_SPACE}, {"back", VK_BACK},    {"delete", VK_DELETE},       {"left", VK_LEFT},
    {"right", VK_RIGHT}, {"up", VK_UP},        {"down", VK_DOWN},           {"home", VK_HOME},
    {"end", VK_END},     {"pageup", VK_PRIOR}, {"pagedown", VK_NEXT},       {"f4", VK_F4},
};

// Of a mouse event "at 12,40", in pixels of its target; of a key "esc"; of a typed byte the character in
// quotes or "byte B2".
[[nodiscard]] std::string DetailOf(const MSG& event);

}  // namespace Desk::Panels
