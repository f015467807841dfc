// ScreenReport: what the desk shows at this moment and where, for programs that drive its windows.
#pragma once

#include <QtCore>

namespace Desk {

class MainWindow;

// Every shown widget with a name by "WINDOW/NAME": its place on the screen in device-independent pixels
// [x, y, width, height], its text, the rows of a list with their places, and under "annotations" every
// annotation of the drawing that is in view, under "panel" the controls of the open panel by id.
[[nodiscard]] QJsonObject ScreenReport(MainWindow& window);

// Writes the report to a file whenever it has changed, a few times a second, for as long as the window
// lives. A reader always finds a complete report.
void KeepScreenReport(MainWindow& window, const QString& file);

}  // namespace Desk
