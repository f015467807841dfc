#include "desk/window/Window.h"
#include "desk/project/Encoding.h"

#include <cstdlib>

#include "desk/project/Failure.h"
#include "desk/window/MainWindow.h"
#include "desk/window/ScreenReport.h"
#include "desk/window/Shots.h"

namespace Desk {

namespace {

bool IsSet(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr && *value != '\0';
}

}  // namespace

bool HasScreen() { return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM"); }

int RunWindow(const char* project, const char* report, const char* version)
{
    if (!HasScreen()) {
        throw Failure("there is no display to open a window on; beamdesk tour works without one");
    }
    if (IsSet("DISPLAY") && !IsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");  // only the first lets a program place its pop-ups
    }
    int count = 1;
    char name[] = "beamdesk";
    char* arguments[] = {name, nullptr};
    QApplication application(count, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("beamdesk"));
    QCoreApplication::setApplicationVersion(QString::fromUtf8(version));
    QCoreApplication::setOrganizationName(QStringLiteral("beamdesk"));
    QtDisplay display{{Utf8FromGbk, GbkFromUtf8}};
    MainWindow window(display);
    window.show();
    const QString file = QString::fromUtf8(project);
    if (!window.Files().Open(file) && !file.isEmpty()) {
        window.Files().OpenSample();
    }
    if (*report != '\0') {
        KeepScreenReport(window, QString::fromUtf8(report));
    }
    QTimer::singleShot(0, &window, [&window] { window.Files().OfferLostWork(); });
    return QApplication::exec();
}

}  // namespace Desk
