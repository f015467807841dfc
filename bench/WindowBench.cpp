// What the desk costs without a screen: start to the first drawn floor, a click to the ranked list, memory.
#include <fstream>
#include <iostream>
#include <string>

#include "desk/project/Encoding.h"
#include "desk/project/Generate.h"
#include "desk/project/ProjectFile.h"
#include "desk/window/MainWindow.h"

namespace {

using namespace Desk;

// Pages of the process in memory, MiB.
double MemoryInUse()
{
    std::ifstream status("/proc/self/statm");
    long all = 0;
    long resident = 0;
    status >> all >> resident;
    return static_cast<double>(resident) * 4096.0 / (1 << 20);
}

void Measure(const char* name, const Project& project, const QString& file)
{
    SaveProject(project, file.toStdString());
    QElapsedTimer timer;
    timer.start();
    QtDisplay display{{Utf8FromGbk, GbkFromUtf8}};
    MainWindow window(display);
    window.show();
    window.TheDocument().Open(file);
    window.grab();
    const double drawn = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    std::cout << name << ": " << project.beams.size() << " beams; window to first drawn floor " << drawn
              << " ms";
    constexpr int Clicks = 20;
    double worst = 0.0;
    timer.restart();
    for (int i = 0; i < Clicks; ++i) {
        QElapsedTimer click;
        click.start();
        const auto& fields = BeamFields();
        window.Choose(FieldRef{false, static_cast<std::size_t>(i) % project.beams.size(),
                               fields[static_cast<std::size_t>(i) % fields.size()]});
        worst = std::max(worst, static_cast<double>(click.nsecsElapsed()) / 1e6);
    }
    std::cout << ", click to ranked list " << static_cast<double>(timer.nsecsElapsed()) / 1e6 / Clicks
              << " ms (longest " << worst << "), redraw ";
    timer.restart();
    window.grab();
    std::cout << static_cast<double>(timer.nsecsElapsed()) / 1e6 << " ms, " << MemoryInUse() << " MiB\n";
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QElapsedTimer timer;
    timer.start();
    QApplication application(argc, argv);
    std::cout << "toolkit: " << static_cast<double>(timer.nsecsElapsed()) / 1e6 << " ms\n";
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir folder;
    Measure("sample", SampleProject(), folder.filePath("sample.json"));
    Measure("generated", GenerateProject(20'000, 1), folder.filePath("generated.json"));
    return 0;
}
