// The window commands of beamdesk, and whether there is a screen for them.
#pragma once

namespace CLI {
class App;
}

namespace Desk {

// "window": opens the desk on a project. Ends when the window is closed.
void AddWindowCommand(CLI::App& program);
// "shot": pictures of the window, of every panel and picker, and of the menus, drawn without a screen.
void AddShotCommand(CLI::App& program);

// A display server is named in the environment, or a platform that needs none is asked for.
[[nodiscard]] bool HasScreen();

// The desk on a project file, the sample for an empty name; report is a file for ScreenReport, or empty.
int RunWindow(const char* project, const char* report);

}  // namespace Desk
