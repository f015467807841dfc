// beamdesk propose as a person and as a program call it.
#include <gtest/gtest.h>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "desk/console/Commands.h"
#include "desk/drawing/Export.h"
#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"
#include "tests/console/Shell.h"
#include "tests/support/Folder.h"

namespace Desk {
namespace {

std::string Propose(const std::string& line) { return PrintedBy(AddProposeCommand, "propose " + line); }

TEST(ProposeCommand, TellsTheSameInBothForms)
{
    const std::string table = Propose("--beam L22 bottomBars");
    const auto told = nlohmann::json::parse(Propose("--beam L22 bottomBars --json"));
    EXPECT_EQ(told["field"], "bottomBars");
    const std::string present = told["present"];
    ASSERT_GE(told["proposals"].size(), 2U);
    EXPECT_LE(told["proposals"].size(), 10U);
    int votes = 0;
    for (const auto& proposal : told["proposals"]) {
        const std::string text = proposal["text"];
        EXPECT_NE(table.find("  " + text + " "), std::string::npos) << text;
        EXPECT_NE(table.find(proposal["reason"].get<std::string>()), std::string::npos) << text;
        EXPECT_EQ(text == present, table.find(" *     1  " + text) != std::string::npos) << table;
        votes += proposal["share"].get<int>();
    }
    EXPECT_GT(votes, 50);
    EXPECT_LE(votes, 100);
    EXPECT_EQ(nlohmann::json::parse(Propose("--beam L22 bottomBars --json --limit 1"))["proposals"].size(),
              1U);
}

TEST(ProposeCommand, AWholeBeamGetsWhatItLacksInAProjectAndInADrawing)
{
    const Folder folder;
    Project project = SampleProject();
    Beam& beam = project.beams[22];
    beam.stirrup.clear();
    beam.bottomBars.clear();
    const std::string json = (folder / "p.json").string();
    const std::string dxf = (folder / "p.dxf").string();
    SaveProject(project, json);
    ReplaceFile(dxf, FormatDrawing(project));
    for (const std::string& file : {json, dxf}) {
        const std::string asked = "--project " + file + " --beam " + beam.name;
        const auto told = nlohmann::json::parse(Propose(asked + " --json"));
        ASSERT_FALSE(told["proposals"].empty()) << file;
        const Answer piped =
            RunShell("beamdesk propose --project - --json --beam '" + beam.name + "' < '" + file + "'");
        ASSERT_EQ(piped.status, 0) << piped.out;
        EXPECT_EQ(nlohmann::json::parse(piped.out)["proposals"], told["proposals"]);
        const auto& texts = told["proposals"][0]["texts"];
        ASSERT_TRUE(texts.contains("stirrup") && texts.contains("bottomBars")) << texts;
        EXPECT_FALSE(texts.contains("topBars")) << "it has them";
        EXPECT_NE(told["proposals"][0]["reason"], "");
        const std::string row =
            texts["stirrup"].get<std::string>() + ", " + texts["bottomBars"].get<std::string>();
        EXPECT_NE(Propose(asked).find(row), std::string::npos);
    }
    EXPECT_NE(Propose("--beam KL2").find("no proposals: "), std::string::npos) << "it lacks nothing";
}

TEST(ProposeCommand, RefusesWhatIsNotThere)
{
    for (const char* const line :
         {"--beam L22 bars", "--beam KL99 topBars", "--beam L22 --project no.json"}) {
        EXPECT_THROW(Propose(line), Failure) << line;
    }
    EXPECT_THROW(Propose("topBars"), CLI::ParseError);
    EXPECT_THROW(Propose("--beam L22 topBars --limit -1"), CLI::ParseError);
}

}  // namespace
}  // namespace Desk
