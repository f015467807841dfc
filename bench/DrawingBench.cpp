// What a large drawing costs: opened, one text changed, saved; beside a plain copy of the file, and beside
// another program's reader where there is one.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "bench/Memory.h"
#include "desk/drawing/Drawing.h"
#include "tests/drawing/Floors.h"
#include "tests/support/Folder.h"

namespace {

using namespace Desk;

constexpr double Million = 1e6;

// Floors side by side, and between them what other trades have drawn: most of the file.
std::string LargeDrawing(std::size_t size)
{
    constexpr unsigned Floors = 40;
    DrawingMaker maker({.name = "Large",
                        .version = "AC1018",
                        .lineEnd = "\r\n",
                        .hasPaddedCodes = true,
                        .outlines = OutlineAs::LightPolylines});
    for (unsigned floor = 0; floor < Floors; ++floor) {
        const PlanPoint corner{floor % 8 * 70'000.0, floor / 8 * 50'000.0};
        DrawOn(maker, CrowdedFloor(floor), corner);
        for (std::size_t i = 0; i < size / Floors / 1230; ++i) {
            const PlanPoint at{corner.x + 0.125 + static_cast<double>(i * 37 % 50'000),
                               corner.y + 0.375 + static_cast<double>(i * 91 % 28'000)};
            const auto along = [&at](double x, double y) { return PlanPoint{at.x + x, at.y + y}; };
            for (int line = 0; line < 5; ++line) {
                maker.Line(along(40.5 * line, 0), along(350, 120.25), "STAIR");
            }
            maker.Polyline({at, along(300, 0), along(300, 80), along(120, 80), along(0, 45)}, true,
                           "FURNITURE");
            if (i % 4 == 0) {
                maker.Circle(at, 75, "PIPE");
            }
        }
    }
    return maker.Bytes();
}

// The shortest of some runs, in ms.
double Fastest(const std::function<void()>& run)
{
    double best = 1e300;
    for (int i = 0; i < 5; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        run();
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
        best = std::min(best, took.count());
    }
    return best;
}

// As `cp` does, and then on the disk.
void CopyFile(const std::filesystem::path& from, const std::filesystem::path& to)
{
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing);
    const int file = open(to.c_str(), O_RDONLY | O_CLOEXEC);
    fsync(file);
    close(file);
}

// Of ezdxf.readfile in a process of its own, without the process's start; negative where there is none.
double OtherReader(const std::filesystem::path& file)
{
    const std::string command =
        "/usr/bin/python3 -c 'import sys, time, ezdxf; t = time.time(); ezdxf.readfile(sys.argv[1]); "
        "print((time.time() - t) * 1000)' '" +
        file.string() + "' 2>/dev/null";
    FILE* const pipe = popen(command.c_str(), "r");
    double ms = -1;
    if (pipe == nullptr || std::fscanf(pipe, "%lf", &ms) != 1) {
        ms = -1;
    }
    if (pipe != nullptr) {
        pclose(pipe);
    }
    return ms;
}

}  // namespace

int main()
{
    const Folder folder;
    const std::filesystem::path file = folder / "large.dxf";
    WriteFile(file, LargeDrawing(std::size_t{50} << 20));
    const auto size = static_cast<double>(std::filesystem::file_size(file));

    Bench::ResetPeak();
    const std::size_t before = Bench::CurrentHeapUse().held;
    const Drawing drawing = Drawing::Read(file);
    const double peak = static_cast<double>(Bench::CurrentHeapUse().peak - before);
    const double held = static_cast<double>(Bench::CurrentHeapUse().held - before);
    const double opened = Fastest([&] { static_cast<void>(Drawing::Read(file)); });

    Project project = drawing.Get();
    project.beams.at(project.beams.size() / 2).section = "450x950";
    const double written = Fastest([&] { static_cast<void>(drawing.Written(project)); });
    drawing.Save(project, file);  // the first save copies the old file
    const double saved = Fastest([&] { drawing.Save(project, file); });
    const double copied = Fastest([&] { CopyFile(file, folder / "copy.dxf"); });
    const double other = OtherReader(file);

    std::size_t open = 0;
    for (const AnnotationText& text : drawing.Texts()) {
        open += text.open ? 1 : 0;
    }
    std::printf(
        "A drawing of %.1f MB: %zu beams, %zu annotations of which %zu are open, %zu lines behind\n",
        size / Million, drawing.Get().beams.size(), drawing.Texts().size(), open,
        drawing.Behind().lines.size());
    std::printf("| what | ms | beside |\n|---|---:|---|\n");
    std::printf("| opened and read | %.0f | %.0f ms for 50 MB |\n", opened, opened * 50 * Million / size);
    if (other > 0) {
        std::printf("| read by ezdxf | %.0f | %.1f times as long |\n", other, other / opened);
    } else {
        std::printf("| read by ezdxf | - | it is not installed |\n");
    }
    std::printf("| one text changed, in memory | %.0f | |\n", written);
    std::printf("| changed and saved | %.0f | %.2f times a copy of the file |\n", saved, saved / copied);
    std::printf("| the file copied | %.0f | |\n", copied);
    std::printf("Memory: %.2f times the file when open, %.2f at most\n", held / size, peak / size);
    return 0;
}
