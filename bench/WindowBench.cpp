// What the desk costs without a screen: start to the first drawn floor, a click to the ranked list, the hit
// rate, memory.
#include <ctime>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "desk/plan/FloorView.h"
#include "desk/project/Encoding.h"
#include "desk/project/Generate.h"
#include "desk/project/ProjectFile.h"
#include "desk/ranking/Proposals.h"
#include "desk/ranking/Ranking.h"
#include "desk/ranking/Replay.h"
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

// Processor time, which other programs on the machine do not lengthen much.
class Timer {
public:
    Timer() : m_start(std::clock()) {}
    [[nodiscard]] double Milliseconds() const
    {
        return 1e3 * static_cast<double>(std::clock() - m_start) / CLOCKS_PER_SEC;
    }

private:
    std::clock_t m_start;
};

// Every annotation of beams spread over the project.
std::vector<FieldRef> SpreadRefs(const Project& project)
{
    constexpr std::size_t Beams = 50;
    std::vector<FieldRef> refs;
    for (std::size_t i = 0; i < Beams; ++i) {
        const std::vector<FieldRef> ofBeam =
            RefsOf(project, {false, i * (project.beams.size() - 1) / Beams});
        refs.insert(refs.end(), ofBeam.begin(), ofBeam.end());
    }
    return refs;
}

template <class Click>
void MeasureClicks(const char* name, const std::vector<FieldRef>& refs, Click click)
{
    double all = 0.0;
    double worst = 0.0;
    const FieldRef* worstRef = nullptr;
    for (const FieldRef& ref : refs) {
        const Timer timer;
        click(ref);
        const double ms = timer.Milliseconds();
        all += ms;
        if (ms > worst) {
            worst = ms;
            worstRef = &ref;
        }
    }
    std::cout << "  " << name << ": " << all / static_cast<double>(refs.size()) << " ms on average, "
              << worst << " at worst (" << RowOf(worstRef->field).key << ")\n";
}

// Of the plan alone: which small texts have room is found anew, then what a pointer is on.
void MeasurePlan(Project project)
{
    FloorView plan;
    plan.resize(900, 700);
    plan.SetProject(&project);
    plan.show();
    plan.grab();
    const auto point = [&plan] {
        QMouseEvent move(QEvent::MouseMove, QPointF(450, 350), QPointF(450, 350), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(plan.viewport(), &move);
    };
    constexpr int Steps = 8;
    Timer timer;
    for (int i = 0; i < Steps; ++i) {
        plan.ZoomBy(i % 2 == 0 ? 1.25 : 0.8);
        point();
    }
    std::cout << "  on the plan: a step of zoom " << timer.Milliseconds() / Steps << " ms, ";
    timer = Timer();
    for (std::size_t i = 0; i < Steps; ++i) {
        const FieldRef ref{false, i * (project.beams.size() - 1) / Steps, Field::BottomBars};
        TextAt(project, ref) = "12B25 6/6";
        plan.Refresh(ref);
        point();
    }
    std::cout << "a changed text " << timer.Milliseconds() / Steps << " ms, ";
    timer = Timer();
    plan.grab();
    std::cout << "a redraw " << timer.Milliseconds() << " ms\n";
}

// What the beams beside have, so that every list changes a little.
std::string OtherText(const Project& project, const FieldRef& ref)
{
    const FieldRef beside{false, ref.index + 1, ref.field};
    std::string text = TextAt(project, beside);
    return text != TextAt(project, ref) ? text : ref.field == Field::Name ? "KL9999(1)" : "2B12";
}

void Measure(const char* name, const Project& project, const QString& file)
{
    SaveProject(project, file.toStdString());
    Timer timer;
    QtDisplay display{{Utf8FromGbk, GbkFromUtf8}};
    MainWindow window(display);
    window.show();
    Document& document = window.TheDocument();
    document.Open(file);
    window.grab();
    std::cout << name << ": " << project.beams.size() << " beams; window to first drawn floor "
              << timer.Milliseconds() << " ms, " << MemoryInUse() << " MiB\n";
    MeasurePlan(project);
    const std::vector<FieldRef> refs = SpreadRefs(project);
    const auto click = [&window](const FieldRef& ref) { window.Choose(ref); };
    MeasureClicks("click to ranked list", refs, click);
    MeasureClicks("the same again", refs, click);
    MeasureClicks("another text, to its list", refs, [&document](const FieldRef& ref) {
        document.SetText(ref, QString::fromStdString(OtherText(document.Get(), ref)));
    });
    MeasureClicks("click after it", refs, click);

    Project edited = project;
    std::optional<Rankings> rankings;
    std::optional<Proposer> proposer;
    timer = Timer();
    rankings.emplace(edited);
    proposer.emplace(edited);
    std::cout << "  of that without the window: " << timer.Milliseconds() << " ms before the first\n";
    const auto ask = [&](const FieldRef& ref) {
        static_cast<void>(rankings->For(ref, false));
        static_cast<void>(proposer->For(ref, 3));
    };
    MeasureClicks("lists and proposals", refs, ask);
    MeasureClicks("the same again", refs, ask);
    MeasureClicks("another text, to its list", refs, [&](const FieldRef& ref) {
        TextAt(edited, ref) = OtherText(edited, ref);
        rankings->Update(ref.index);
        proposer->Update(ref.index);
        ask(ref);
    });

    for (const Known known : {Known::All, Known::Before}) {
        timer = Timer();
        const Hitrate::Tally all =
            Hitrate::ReplayProject(project, known).front().Of(Hitrate::Order::Proposal);
        std::cout << "  hit rate, " << (known == Known::All ? "hidden" : "drawn") << ": "
                  << timer.Milliseconds() / 1e3 << " s for " << all.uses << " texts\n";
    }
    timer = Timer();
    window.grab();
    std::cout << "  redraw " << timer.Milliseconds() << " ms\n";
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Timer timer;
    QApplication application(argc, argv);
    std::cout << "toolkit: " << timer.Milliseconds() << " ms\n";
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir folder;
    Measure("sample", SampleProject(), folder.filePath("sample.json"));
    Measure("generated", GenerateProject(20'000, 1), folder.filePath("generated.json"));
    return 0;
}
