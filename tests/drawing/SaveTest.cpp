// A drawing and its companion on the disk.
#include <csignal>
#include <functional>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"
#include "tests/drawing/Floors.h"
#include "tests/drawing/Told.h"
#include "tests/support/Folder.h"
#include "tests/support/Seed.h"

namespace Desk {
namespace {

namespace fs = std::filesystem;

struct SavedDrawing : testing::Test {
    SavedDrawing() { WriteFile(file, bytes); }

    Project Edited(const Drawing& drawing, const std::string& section) const
    {
        Project project = drawing.Get();
        project.beams.at(0).section = section;
        return project;
    }

    const Folder folder;
    const fs::path file = folder / "floor.dxf";
    const std::string bytes = Draw({}, SmallFloor());
};

TEST_F(SavedDrawing, TheFirstSaveKeepsTheOldFile)
{
    const Drawing drawing = Drawing::Read(file);
    drawing.Save(Edited(drawing, "300x700"), file);
    drawing.Save(Edited(drawing, "300x800"), file);
    EXPECT_EQ(ContentOf(file), drawing.Written(Edited(drawing, "300x800")));
    EXPECT_EQ(ContentOf(folder / "floor.dxf.bak"), bytes);
    EXPECT_EQ(folder.FileCount(), 2) << "nothing that a drawing cannot hold";
    drawing.Save(Edited(drawing, "300x900"), folder / "other.dxf");
    EXPECT_EQ(Drawing::Read(folder / "other.dxf").Get().beams.at(0).section, "300x900");
    EXPECT_EQ(folder.FileCount(), 3);
}

TEST_F(SavedDrawing, TheCompanionHoldsWhatADrawingCannot)
{
    const Drawing drawing = Drawing::Read(file);
    Project project = drawing.Get();
    project.beams[0].concreteGrade = 40;
    project.beams[1].seismicClass = 1;
    project.beams[4].area.bottom = 1234;
    drawing.Save(project, file);
    EXPECT_EQ(ContentOf(file), bytes);
    EXPECT_EQ(ContentOf(CompanionFile(file)), Drawing::CompanionOf(project));
    const Opened opened = OpenFile(file);
    ASSERT_TRUE(opened.drawing.has_value());
    const std::vector<Beam>& beams = opened.project.beams;
    EXPECT_EQ(beams.at(0).concreteGrade, 40);
    EXPECT_EQ(beams.at(1).seismicClass, 1);
    EXPECT_EQ(beams.at(4).area.bottom, 1234);
    EXPECT_EQ(Told(opened.project), Told(project));

    for (const char* const damaged : {"{", "[]", "{\"version\": 1, \"beams\": 7}"}) {
        WriteFile(CompanionFile(file), damaged);
        try {
            static_cast<void>(Drawing::Read(file));
            ADD_FAILURE() << damaged;
        } catch (const Failure& failure) {
            EXPECT_NE(std::string(failure.what()).find("floor.beamdesk.json"), std::string::npos)
                << failure.what();
        }
    }
}

TEST_F(SavedDrawing, AFullDiskLeavesTheOldFileAndNothingElse)
{
    const Drawing drawing = Drawing::Read(file);
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{4096, 4096};
        try {
            static_cast<void>(setrlimit(RLIMIT_FSIZE, &limit));
            drawing.Save(Edited(drawing, "300x700"), file);
        } catch (const Failure& failure) {
            _exit(std::string(failure.what()).ends_with("cannot be saved: File too large") ? 0 : 1);
        }
        _exit(2);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    EXPECT_EQ(ContentOf(file), bytes);
    if (folder.FileCount() > 1) {
        EXPECT_EQ(ContentOf(folder / "floor.dxf.bak"), bytes) << "no half of a copy";
    }
    EXPECT_LE(folder.FileCount(), 2);
}

TEST_F(SavedDrawing, AKillLeavesTheOldFileOrTheNewOneWhole)
{
    const Drawing drawing = Drawing::Read(file);
    Project projects[] = {Edited(drawing, "300x700"), Edited(drawing, "300x777")};
    projects[1].beams[0].concreteGrade = 50;
    const std::string wholes[] = {drawing.Written(projects[0]), drawing.Written(projects[1])};
    std::mt19937 random(FirstSeed(20240601));
    for (int round = 0; round < 40; ++round) {
        fs::remove(folder / "floor.dxf.bak");
        const std::string before = ContentOf(file);
        const pid_t child = fork();
        if (child == 0) {
            for (unsigned i = 0;; ++i) {
                drawing.Save(projects[i % 2], file);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 8000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const std::string text = ContentOf(file);
        ASSERT_TRUE(text == before || text == wholes[0] || text == wholes[1]) << text.size() << " bytes";
        if (fs::exists(folder / "floor.dxf.bak")) {
            ASSERT_EQ(ContentOf(folder / "floor.dxf.bak"), before);
        }
        static_cast<void>(Drawing::Read(file));  // and its companion
    }
}

}  // namespace
}  // namespace Desk
