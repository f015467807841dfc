// HelpTexts: what the help tells besides the menus' commands: keys that are no command's, what the mouse
// does, and what colours, signs and words mean.
#pragma once

#include <span>

#include "desk/plan/PlanItem.h"

namespace Desk {

// Source texts of the context "Desk"; a sign of the drawings' own needs no translation.
struct HelpRow {
    const char* sign;
    const char* meaning;
    QColor PlanColors::*color = nullptr;  // that the plan draws it in
};

struct HelpGroup {
    const char* title;
    std::span<const HelpRow> rows;
};

[[nodiscard]] std::span<const HelpGroup> KeysBesideMenus();
[[nodiscard]] std::span<const HelpGroup> Meanings();

}  // namespace Desk
