// Pictures of the desk, drawn without a screen.
#pragma once

#include <string>

namespace Desk {

struct ShotOptions {
    std::string project;  // empty for the sample
    int width = 1440;     // of the window, in pixels at scale 1
    int height = 900;
    double scale = 1.0;
    bool dark = false;
    bool chinese = false;
};

// Writes window.png and one picture for each panel and picker, and says which. Throws Failure when a
// file cannot be written.
void TakeShots(const std::string& folder, const ShotOptions& options);

}  // namespace Desk
