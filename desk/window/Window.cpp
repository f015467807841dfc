#include "desk/window/Window.h"

#include <cstdlib>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "desk/Failure.h"
#include "desk/Options.h"
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

int RunWindow(const char* project, const char* report)
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
    QCoreApplication::setOrganizationName(QStringLiteral("beamdesk"));
    QtDisplay display;
    MainWindow window(display);
    window.show();
    const QString file = QString::fromUtf8(project);
    if (!window.OpenFile(file) && !file.isEmpty()) {
        window.OpenFile(QString());
    }
    if (*report != '\0') {
        KeepScreenReport(window, QString::fromUtf8(report));
    }
    QTimer::singleShot(0, &window, [&window] { window.OfferLostWork(); });
    return QApplication::exec();
}

void AddWindowCommand(CLI::App& program)
{
    const auto project = std::make_shared<std::string>();
    const auto report = std::make_shared<std::string>();
    CLI::App& command = *program.add_subcommand("window", "The drafting desk in a window");
    AddProjectOption(command, *project);
    command.add_option("file", *project, "The same without the option's name")->type_name("FILE");
    command.add_option("--report", *report, "Keep a JSON file that tells what the window shows and where")
        ->type_name("FILE");
    command.footer("Examples:\n  beamdesk window\n  beamdesk window tower.json");
    command.callback([project, report] { RunWindow(project->c_str(), report->c_str()); });
}

void AddShotCommand(CLI::App& program)
{
    const auto folder = std::make_shared<std::string>();
    const auto options = std::make_shared<ShotOptions>();
    CLI::App& command =
        *program.add_subcommand("shot", "Pictures of the window, the panels and the pickers, as PNG files");
    command.add_option("folder", *folder, "Where the pictures go; it is made if need be")
        ->type_name("DIR")
        ->required();
    AddProjectOption(command, options->project);
    command.add_option("--scale", options->scale, "Device pixels a pixel")
        ->check(CLI::Range(1.0, 4.0))
        ->capture_default_str();
    command.add_flag("--dark", options->dark, "In dark colours");
    command.add_flag("--chinese", options->chinese, "With the Chinese interface");
    command.footer("Examples:\n  beamdesk shot pictures\n  beamdesk shot pictures --scale 2 --dark");
    command.callback([folder, options] { TakeShots(*folder, *options); });
}

}  // namespace Desk
