// beamdesk in a real window, driven by another program, and what it reports of itself.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

#include <nlohmann/json.hpp>

#include "desk/drawing/Drawing.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"

namespace Desk {

using nlohmann::json;

inline void Shell(const std::string& command)
{
    std::cout << command << '\n';
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
}

// A test has a folder of its own, with the sample in it.
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

    // Waits for its first annotations; a floor without any has none to wait for.
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
            std::this_thread::sleep_for(std::chrono::milliseconds(250));
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
        m_clicks += button <= 3 ? 1 : 0;  // not the wheel
    }
    // Names of keys with a blank between; a combination counts as the keys that it takes.
    void Keys(const std::string& keys)
    {
        Shell("xdotool key --delay 40 " + keys);
        m_keys += 1 + static_cast<int>(std::count_if(keys.begin(), keys.end(),
                                                     [](char ch) { return ch == ' ' || ch == '+'; }));
    }
    void Type(const std::string& text)
    {
        Shell("xdotool type --delay 30 '" + text + "'");
        m_keys += static_cast<int>(text.size());
    }
    // A position on the plan, in mm; the view must show it.
    void ClickPlan(double x, double y)
    {
        const json plan = Report()["plan"];
        const double scale = plan[2].get<double>();
        ClickAt(plan[0].get<double>() + x * scale, plan[1].get<double>() - y * scale, 1);
    }
    void Drag(const json& rect, int right, int down)
    {
        const int x = static_cast<int>(rect[0].get<double>() + rect[2].get<double>() / 2);
        const int y = static_cast<int>(rect[1].get<double>() + rect[3].get<double>() / 2);
        const auto move = [](int toX, int toY) {
            return " mousemove --sync " + std::to_string(toX) + " " + std::to_string(toY);
        };
        Shell("xdotool" + move(x, y) + " mousedown 1" + move(x + right / 2, y + down / 2) +
              move(x + right, y + down) + " mouseup 1");
        ++m_clicks;
    }
    [[nodiscard]] static bool IsOf(const json& each, const FieldRef& ref)
    {
        return each["wall"] == ref.isWall && each["index"] == ref.index &&
               each["field"] == static_cast<int>(ref.field) && each["inPlace"] == ref.inPlace;
    }
    void WaitForChosen(const FieldRef& ref)
    {
        WaitFor("the chosen annotation", [&](const json& report) {
            return report.contains("chosen") && IsOf(report["chosen"], ref);
        });
    }
    // What a widget shows, an empty text for none.
    [[nodiscard]] static std::string Shown(const json& report, const std::string& name)
    {
        const json& widgets = report["widgets"];
        return widgets.contains(name) ? widgets[name].value("text", std::string()) : std::string();
    }
    [[nodiscard]] static json PlaceOf(const json& report, const FieldRef& ref)
    {
        for (const json& each : report["annotations"]) {
            if (IsOf(each, ref)) {
                return each["place"];
            }
        }
        return {};
    }
    // The file in a dialog that asks for one.
    void AnswerFile(const std::string& file)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(700));  // the dialog tells nothing of itself
        Type(file);
        Keys("Return");
    }
    void Save()
    {
        Keys("ctrl+s");
        WaitFor("the save", [](const json& report) { return report["changed"] == false; });
    }

    // Small texts are not all drawn: turns the wheel over one until it is.
    void Enlarge(const FieldRef& ref)
    {
        constexpr double Drawn = 12.0;  // pixels
        json place = PlaceOf(Settled(), ref);
        for (int i = 0; i < 20 && std::min(place.at(2).get<double>(), place.at(3).get<double>()) < Drawn;
             ++i) {
            ClickAt(place[0].get<double>(), place[1].get<double>(), 4);
            place = PlaceOf(Settled(), ref);
        }
    }
    // Presses an annotation in the drawing.
    void Choose(const FieldRef& ref)
    {
        const json place = PlaceOf(Settled(), ref);
        ASSERT_FALSE(place.is_null()) << "the annotation does not show";
        Click(place);
        WaitForChosen(ref);
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
    int m_clicks = 0;  // of a person, from when they are set to 0
    int m_keys = 0;
};

}  // namespace Desk
