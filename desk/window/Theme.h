// The colours of the desk, light and dark.
#pragma once

namespace Desk {

enum class Appearance { System, Light, Dark };

// Gives the application the colours; answers whether they are dark. System is what the desktop had when
// the program was started.
bool ApplyAppearance(Appearance appearance);

}  // namespace Desk
