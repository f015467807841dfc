// A whole session in a real window: another program moves the pointer, presses buttons and keys, and
// compares the saved file.
#include <numeric>
#include <sstream>

#include "desk/drawing/Export.h"
#include "tests/desktop/Session.h"

namespace {

using namespace Desk;

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
    Save();
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
    Save();
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
    Enlarge(Top);
    Choose(Top);
    TakeCandidate("2B25");
    Save();
    EXPECT_EQ(Saved(Top), "2B25");
    const std::vector<std::string> after = lines();
    ASSERT_EQ(after.size(), before.size());
    EXPECT_EQ(std::inner_product(before.begin(), before.end(), after.begin(), 0, std::plus<>(),
                                 std::not_equal_to<>()),
              1)
        << "lines that differ";
}

}  // namespace
