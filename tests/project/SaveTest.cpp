// Saving under bad luck: links, refusals, a full disk, a kill at any moment.
#include <chrono>
#include <csignal>
#include <functional>
#include <random>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"
#include "tests/support/Folder.h"
#include "tests/support/Seed.h"

namespace Desk {
namespace {

namespace fs = std::filesystem;

std::string Complaint(const Project& project, const fs::path& file)
{
    try {
        SaveProject(project, file);
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "none";
}

Project Other()
{
    Project project = SampleProject();
    project.title = "another project";
    project.beams.resize(7);
    return project;
}

// Runs in a process of its own, whose limits and rights may be spoilt; true when the work says so.
bool InChild(const std::function<bool()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        _exit(work() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Rights mean nothing to the superuser.
void BecomeNobody()
{
    if (geteuid() == 0 && setuid(65534) != 0) {
        _exit(2);
    }
}

TEST(Save, ReplacesTheFileBehindALinkAndKeepsItsMode)
{
    const Folder folder;
    fs::create_directory(folder / "deep");
    WriteFile(folder / "deep/real.json", "old");
    chmod((folder / "deep/real.json").c_str(), 0640);
    fs::create_symlink("deep/real.json", folder / "link.json");
    fs::create_symlink("deep/new.json", folder / "dangling.json");

    SaveProject(SampleProject(), folder / "link.json");
    SaveProject(SampleProject(), folder / "dangling.json");
    for (const char* const name : {"link.json", "dangling.json"}) {
        EXPECT_TRUE(fs::is_symlink(folder / name));
        EXPECT_EQ(ContentOf(folder / name), FormatProject(SampleProject()));
    }
    EXPECT_EQ(fs::status(folder / "deep/real.json").permissions(), fs::perms(0640));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "deep"), {}), 2);

    fs::current_path(folder.Path());
    SaveProject(Other(), "plain.json");
    EXPECT_EQ(ContentOf(folder / "plain.json"), FormatProject(Other()));
    fs::current_path("/");
}

TEST(Save, RefusesWhatItMustNotReplace)
{
    const Folder folder;
    fs::create_directory(folder / "folder.json");
    fs::create_symlink("loop.json", folder / "loop.json");
    const std::vector<std::pair<fs::path, std::string>> cases = {
        {folder / "folder.json", "a folder stands there"},
        {folder / "loop.json", "Too many levels of symbolic links"},
        {folder / "none/p.json", "No such file or directory"},
        {"/dev/null", "it is no ordinary file"},
        {"/proc/p.json", "No such file or directory"},
    };
    for (const auto& [file, reason] : cases) {
        EXPECT_EQ(Complaint(SampleProject(), file), file.string() + ": cannot be saved: " + reason);
    }
    EXPECT_EQ(folder.FileCount(), 2);
}

TEST(Save, LeavesAReadOnlyFolderAndAProtectedFileAlone)
{
    const Folder folder;
    WriteFile(folder / "p.json", "old");
    chmod((folder / "p.json").c_str(), 0444);
    chmod(folder.Path().c_str(), 0777);
    EXPECT_TRUE(InChild([&] {
        BecomeNobody();
        return Complaint(SampleProject(), folder / "p.json")
            .ends_with("write-protected: Permission denied");
    }));
    chmod((folder / "p.json").c_str(), 0666);
    chmod(folder.Path().c_str(), 0555);
    EXPECT_TRUE(InChild([&] {
        BecomeNobody();
        return Complaint(SampleProject(), folder / "p.json")
            .ends_with("cannot be saved: Permission denied");
    }));
    chmod(folder.Path().c_str(), 0777);
    EXPECT_EQ(ContentOf(folder / "p.json"), "old");
    EXPECT_EQ(folder.FileCount(), 1);
}

TEST(Save, AFullDiskLeavesTheOldFile)
{
    const Folder folder;
    const fs::path file = folder / "p.json";
    SaveProject(Other(), file);
    EXPECT_TRUE(InChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{8192, 8192};
        return setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
               Complaint(SampleProject(), file).ends_with("cannot be saved: File too large");
    }));
    EXPECT_EQ(ContentOf(file), FormatProject(Other()));
    EXPECT_EQ(folder.FileCount(), 1);
}

TEST(Save, AKillLeavesTheOldFileOrTheNewOneWhole)
{
    const Folder folder;
    const fs::path file = folder / "p.json";
    const Project first = SampleProject();
    const Project second = Other();
    const std::string texts[] = {FormatProject(first), FormatProject(second)};
    // Kills fall anywhere in about two rounds of saving both, however slow the machine is.
    const auto begin = std::chrono::steady_clock::now();
    SaveProject(second, file);
    SaveProject(first, file);
    const std::chrono::microseconds span = std::chrono::duration_cast<std::chrono::microseconds>(
        2 * (std::chrono::steady_clock::now() - begin));
    std::mt19937 random(FirstSeed(20240501));
    std::uniform_int_distribution<long> when(0, span.count());
    int seen[] = {0, 0};
    for (int round = 0; round < 40 || (round < 400 && (seen[0] == 0 || seen[1] == 0)); ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (;;) {
                SaveProject(second, file);
                SaveProject(first, file);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(when(random)));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const std::string text = ContentOf(file);
        ASSERT_TRUE(text == texts[0] || text == texts[1]) << "a file of " << text.size() << " bytes";
        ++seen[text == texts[0] ? 0 : 1];
    }
    EXPECT_GT(seen[0], 0);
    EXPECT_GT(seen[1], 0);
    SaveProject(second, file);
    EXPECT_EQ(ContentOf(file), texts[1]);
    EXPECT_EQ(folder.FileCount(), 1) << "what the killed saves left is gone";
}

TEST(Save, RemovesWhatKilledSavesLeftAndNothingElse)
{
    const Folder folder;
    fs::create_directory(folder / ".beamdesk-7");
    fs::create_symlink("p.json", folder / ".beamdesk-8");
    WriteFile(folder / ".beamdesk-1", "left by a killed save");
    WriteFile(folder / ".beamdesk-4294967295", "");
    for (const char* const others : {".beamdesk-", ".beamdesk-1a", "beamdesk-1"}) {
        WriteFile(folder / others, "not ours");
    }
    WriteFile(folder / ".beamdesk-2", "another program's save");
    const int running = open((folder / ".beamdesk-2").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(running, LOCK_EX), 0);
    SaveProject(SampleProject(), folder / "p.json");
    EXPECT_FALSE(fs::exists(folder / ".beamdesk-1") || fs::exists(folder / ".beamdesk-4294967295"));
    EXPECT_EQ(folder.FileCount(), 7);
    close(running);
    SaveProject(SampleProject(), folder / "p.json");
    EXPECT_EQ(folder.FileCount(), 6);
}

}  // namespace
}  // namespace Desk
