// A whole session in a real window: another program moves the pointer, presses buttons and keys, and
// compares the saved file.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <numeric>
#include <sstream>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

#include <nlohmann/json.hpp>

#include "desk/drawing/Drawing.h"
#include "desk/drawing/Export.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"

namespace {

using namespace Desk;
using nlohmann::json;

void Shell(const std::string& command)
{
    std::cout << command << '\n';
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
}

// beamdesk in a window, and what it reports of itself.
class Session : public testing::Test {
protected:
    void SetUp() override
    {
        char name[] = "/tmp/beamdesk-session-XXXXXX";
        ASSERT_NE(mkdtemp(name), nullptr);
        m_folder = name;
        for (const char* const home : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "HOME"}) {
            setenv(home, m_folder.c_str(), 1);
        }
        setenv("LANG", "C.UTF-8", 1);
        m_file = m_folder + "/floor.json";
        SaveProject(SampleProject(), m_file);
    }
    void TearDown() override
    {
        Kill();
        Shell("rm -rf " + m_folder);
    }

    void Start(const std::string& scale = "1")
    {
        m_report = m_folder + "/report.json";
        std::remove(m_report.c_str());
        m_program = fork();
        ASSERT_GE(m_program, 0);
        if (m_program == 0) {
            setenv("QT_SCALE_FACTOR", scale.c_str(), 1);
            execl(BEAMDESK, BEAMDESK, "window", "--project", m_file.c_str(), "--report", m_report.c_str(),
                  nullptr);
            _exit(127);
        }
        m_scale = std::stod(scale);
        WaitFor("the window", [](const json& report) {
            return report["active"] == true && !report["annotations"].empty();
        });
    }
    void Kill()
    {
        if (m_program > 0) {
            kill(m_program, SIGKILL);
            waitpid(m_program, nullptr, 0);
            m_program = 0;
        }
    }
    // The exit status of a program that ends by itself, -1 when it does not.
    int WaitForEnd()
    {
        for (int i = 0; i < 100; ++i) {
            int status = 0;
            if (waitpid(m_program, &status, WNOHANG) == m_program) {
                m_program = 0;
                return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return -1;
    }

    [[nodiscard]] json Report() const
    {
        std::ifstream in(m_report);
        return in ? json::parse(in, nullptr, false) : json(json::value_t::discarded);
    }
    void WaitFor(const char* what, const std::function<bool(const json&)>& holds)
    {
        for (int i = 0; i < 150; ++i) {
            const json report = Report();
            if (report.is_object() && holds(report)) {
                return;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        json last = Report();
        last.erase("annotations");
        FAIL() << what << " did not come; the window tells:\n" << last.dump();
    }

    // The report once nothing moves any more: a window manager places windows some time after they show.
    [[nodiscard]] json Settled() const
    {
        json before = Report();
        for (int i = 0; i < 50; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(500));
            json now = Report();
            if (now.is_object() && now == before) {
                break;
            }
            before = std::move(now);
        }
        return before;
    }

    void Click(const json& rect, int button = 1)
    {
        ClickAt(rect[0].get<double>() + rect[2].get<double>() / 2,
                rect[1].get<double>() + rect[3].get<double>() / 2, button);
    }
    void ClickAt(double x, double y, int button)
    {
        const auto pixel = [this](double at) { return std::to_string(static_cast<int>(at * m_scale)); };
        Shell("xdotool mousemove --sync " + pixel(x) + " " + pixel(y) + " click " + std::to_string(button));
    }
    void Keys(const std::string& keys) { Shell("xdotool key --delay 60 " + keys); }

    // Presses an annotation in the drawing.
    void Choose(const FieldRef& ref)
    {
        const auto isWanted = [&](const json& each) {
            return each["wall"] == ref.isWall && each["index"] == ref.index &&
                   each["field"] == static_cast<int>(ref.field);
        };
        const json shown = Settled();
        for (const json& each : shown["annotations"]) {
            if (isWanted(each)) {
                Click(each["place"]);
                WaitFor("the chosen annotation", [&](const json& report) {
                    return report.contains("chosen") && isWanted(report["chosen"]);
                });
                return;
            }
        }
        FAIL() << "the annotation does not show";
    }
    void TakeCandidate(const std::string& text)
    {
        const json report = Settled();
        const json& choices = report["widgets"]["desk/choices"];
        for (const json& row : choices["rows"]) {
            if (row["text"] == text) {
                Click(row["place"]);
                WaitFor("the taken text", [&](const json& now) {
                    return now["changed"] == true && now["status"].get<std::string>().ends_with(text);
                });
                return;
            }
        }
        FAIL() << text << " is not on offer: " << choices.dump();
    }
    // A row of a list in the open panel, by its text.
    void PanelRow(const char* id, const std::string& text)
    {
        constexpr int RowHeight = 12;
        WaitFor("the panel", [&](const json& report) { return report["panel"].contains(id); });
        const json report = Settled();
        const json& list = report["panel"][id];
        const double height = RowHeight * report["panelZoom"].get<double>();
        for (std::size_t row = 0; row < list["rows"].size(); ++row) {
            if (list["rows"][row] == text) {
                const double down = (static_cast<double>(row) - list["top"].get<double>() + 0.5) * height;
                ClickAt(list["place"][0].get<double>() + 6, list["place"][1].get<double>() + down, 1);
                return;
            }
        }
        FAIL() << text << " is no row of " << list.dump();
    }
    void ConfirmPanel(const char* id)
    {
        const json before = Settled();
        Click(before["panel"][id]["place"], 3);
        WaitFor("the end of the panel", [](const json& report) { return report["panel"].empty(); });
    }
    void Press(const std::string& button)
    {
        const json report = Settled();
        for (const auto& [name, widget] : report["widgets"].items()) {
            if (widget.contains("text") && widget["text"] == button) {
                Click(widget["place"]);
                return;
            }
        }
        FAIL() << "no button " << button;
    }
    [[nodiscard]] std::string Saved(const FieldRef& ref) const { return TextAt(OpenProject(m_file), ref); }

    std::string m_folder;
    std::string m_file;
    std::string m_report;
    pid_t m_program = 0;
    double m_scale = 1.0;
};

constexpr FieldRef Top{false, 0, Field::TopBars};
constexpr FieldRef End{false, 0, Field::LeftEnd};

TEST_F(Session, ChoosesComposesSetsAWallSavesAndReloads)
{
    Start();
    Choose(Top);
    TakeCandidate("2B25");
    Choose(End);
    Keys("F4");
    // Two pieces are there; the second of them is rewritten.
    PanelRow("1338", "4");
    PanelRow("1340", "22");
    ConfirmPanel("1340");
    // The wall whose bars show nearest to the sheet's edge.
    FieldRef wall{true, 0, Field::HorizontalBars};
    const json shown = Settled();
    for (const json& each : shown["annotations"]) {
        if (each["wall"] == true && each["field"] == static_cast<int>(Field::HorizontalBars)) {
            wall.index = each["index"].get<std::size_t>();
        }
    }
    Choose(wall);
    Keys("F4");
    PanelRow("1308", "A");
    PanelRow("1112", "12");
    PanelRow("1114", "100");
    PanelRow("1116", "200");
    ConfirmPanel("1308");
    Keys("ctrl+s");
    WaitFor("the save", [](const json& report) { return report["changed"] == false; });
    EXPECT_EQ(Saved(Top), "2B25");
    EXPECT_EQ(Saved(End).substr(0, 4), "4B22");
    EXPECT_EQ(Saved(wall), "A12@100/200");
    Keys("ctrl+q");
    EXPECT_EQ(WaitForEnd(), 0);

    Start();
    Choose(Top);
    Project changed = SampleProject();
    TextAt(changed, Top) = "2B25";
    TextAt(changed, End) = Saved(End);
    TextAt(changed, wall) = "A12@100/200";
    EXPECT_EQ(FormatProject(ReadProject(m_file)), FormatProject(changed)) << "nothing else has changed";
}

TEST_F(Session, WorksAtScaleTwoAndAsksBeforeItLeaves)
{
    Start("2");
    Choose(Top);
    Keys("F4");
    PanelRow("1340", "18");
    ConfirmPanel("1338");
    WaitFor("the change", [](const json& report) { return report["changed"] == true; });
    Keys("ctrl+q");
    WaitFor("the question",
            [](const json& report) { return report["widgets"].contains("unsaved/button0"); });
    Press("Save");
    EXPECT_EQ(WaitForEnd(), 0);
    EXPECT_EQ(Saved(Top), "2B18");
}

TEST_F(Session, AKillInTheMiddleLosesNothing)
{
    Start();
    Choose(Top);
    Keys("Return 2 B 2 8 Return");
    WaitFor("the change", [](const json& report) { return report["changed"] == true; });
    std::this_thread::sleep_for(std::chrono::milliseconds(3500));  // the copy comes a moment after a change
    Kill();
    EXPECT_EQ(Saved(Top), "2B20");

    Start();
    WaitFor("the offer", [](const json& report) { return report["widgets"].contains("recovery/button0"); });
    Press("Recover");
    WaitFor("the lost work", [](const json& report) { return report["changed"] == true; });
    Keys("ctrl+s");
    WaitFor("the save", [](const json& report) { return report["changed"] == false; });
    EXPECT_EQ(Saved(Top), "2B28");
}

TEST_F(Session, ADrawingIsEditedInItsFile)
{
    const auto lines = [this] {
        std::istringstream in(ReadWholeFile(m_file));
        std::vector<std::string> all;
        for (std::string line; std::getline(in, line);) {
            all.push_back(line);
        }
        return all;
    };
    m_file = m_folder + "/floor.dxf";
    ReplaceFile(m_file, FormatDrawing(SampleProject()));
    const std::vector<std::string> before = lines();
    Start();
    Choose(Top);
    TakeCandidate("2B25");
    Keys("ctrl+s");
    WaitFor("the save", [](const json& report) { return report["changed"] == false; });
    EXPECT_EQ(Saved(Top), "2B25");
    const std::vector<std::string> after = lines();
    ASSERT_EQ(after.size(), before.size());
    EXPECT_EQ(std::inner_product(before.begin(), before.end(), after.begin(), 0, std::plus<>(),
                                 std::not_equal_to<>()),
              1)
        << "lines that differ";
}

}  // namespace
