// The desk in a window, and whether there is a screen for it.
#pragma once

namespace Desk {

// A display server is named in the environment, or a platform that needs none is asked for.
[[nodiscard]] bool HasScreen();

// The desk on a project file, the sample for an empty name; report is a file for ScreenReport, or empty.
// The version is what the help tells, "beamdesk 0.1.0".
int RunWindow(const char* project, const char* report, const char* version);

}  // namespace Desk
