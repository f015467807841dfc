// Long work shows how far it is and can be cut off: nothing is changed then.
#include "desk/project/Progress.h"
#include "desk/drawing/Export.h"
#include "desk/plan/PlanFile.h"
#include "desk/project/Generate.h"
#include "desk/window/Watched.h"
#include "tests/window/MainWindow.h"

namespace {

using namespace Desk;

QProgressDialog* BoxInView()
{
    for (QWidget* const each : QApplication::topLevelWidgets()) {
        if (each->objectName() == QLatin1String("working") && each->isVisible()) {
            return qobject_cast<QProgressDialog*>(each);
        }
    }
    return nullptr;
}

QByteArray BytesOf(const QString& file)
{
    QFile from(file);
    return from.open(QIODevice::ReadOnly) ? from.readAll() : QByteArray();
}

TEST(Progress, WorkIsCutOffAtEachPlaceAndFilesStayAsTheyWere)
{
    const QTemporaryDir folder;
    const Project project = GenerateProject(40, 1);
    const auto path = [&](const char* name) { return folder.filePath(name).toStdString(); };
    ExportDrawing(project, path("old.dxf"));
    SaveProject(project, path("old.json"));
    const struct {
        const char* file;
        std::function<void(const std::string&)> work;
    } cases[] = {
        {"old.json", [&](const std::string& file) { SaveProject(GenerateProject(50, 2), file); }},
        {"old.json", [](const std::string& file) { static_cast<void>(ReadProject(file)); }},
        {"old.dxf", [&](const std::string& file) { ExportDrawing(GenerateProject(50, 2), file); }},
        {"old.dxf", [](const std::string& file) { static_cast<void>(Drawing::Read(file)); }},
        {"old.dxf",
         [&](const std::string& file) {
             const Drawing drawing = Drawing::Read(file);
             Project edited = drawing.Get();
             edited.beams[0].area.top = 900;  // goes into the companion
             edited.beams[0].topBars = "9B32";
             drawing.Save(edited, file);
         }},
        {"plan.pdf", [&](const std::string& file) { WritePlan(project, nullptr, file); }},
        {"plan.svg", [&](const std::string& file) { WritePlan(project, nullptr, file); }},
    };
    for (const auto& [name, work] : cases) {
        int calls = 0;
        const QByteArray before = BytesOf(folder.filePath(name));
        const QByteArray companion = BytesOf(folder.filePath("old.dxf.json"));
        for (const int last : {1, 3, 5}) {
            calls = 0;
            const ProgressListener listener([&](std::size_t done, std::size_t all) {
                EXPECT_LE(done, all);
                if (++calls == last) {
                    throw Cancelled();
                }
            });
            EXPECT_THROW(work(path(name)), Cancelled) << name << ' ' << last;
            EXPECT_EQ(calls, last);
        }
        EXPECT_EQ(BytesOf(folder.filePath(name)), before) << name;
        EXPECT_EQ(BytesOf(folder.filePath("old.dxf.json")), companion) << name;
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).filter("plan").size(), 0);
    }
    EXPECT_NO_THROW(SaveProject(project, path("old.json"))) << "nobody listens any more";
}

// Parts of 1 ms each; answers how many were done.
int WorkFor(int parts, bool& cancelled)
{
    int done = 0;
    cancelled = false;
    try {
        Watched("Counting", [&] {
            for (; done < parts; ++done) {
                TellProgress(static_cast<std::size_t>(done), static_cast<std::size_t>(parts));
                QThread::msleep(1);
            }
        });
    } catch (const Cancelled&) {
        cancelled = true;
    }
    return done;
}

using ProgressTest = MainWindowTest;

TEST_F(ProgressTest, ABoxComesForLongWorkAloneAndCancelsIt)
{
    bool cancelled = false;
    int seen = 0;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (QProgressDialog* const box = BoxInView()) {
            EXPECT_TRUE(box->isModal());
            EXPECT_GT(box->value(), 0);
            // What changes by itself meanwhile is not part of the work.
            window.TheDocument().WriteRecoveryCopy();
            ++seen;
            box->findChild<QPushButton*>()->click();
        }
    });
    watch.start(10);
    EXPECT_EQ(WorkFor(50, cancelled), 50);
    EXPECT_FALSE(cancelled);
    EXPECT_EQ(seen, 0);
    EXPECT_LT(WorkFor(20000, cancelled), 20000);
    EXPECT_TRUE(cancelled);
    EXPECT_GT(seen, 0);
    EXPECT_EQ(BoxInView(), nullptr);
    EXPECT_EQ(Watched("Counting", [] { return 7; }), 7);
}

}  // namespace
