// A window's picture as it is on the screen.
#pragma once

#include <string>

// Writes a PNG file. False where that fails.
[[nodiscard]] bool SavePicture(void* window, const std::wstring& file);
