// beamdesk check and quantities, and what all commands share: standard input, ranges, and nothing told of a
// success that did not come.
#include <gtest/gtest.h>

#include <fstream>

#include <nlohmann/json.hpp>

#include "tests/console/Shell.h"
#include "tests/support/Folder.h"

namespace {

const char* const Faulty = R"j({"version": 1, "beams": [
    {"name": "KL1(2)", "section": "350x600", "stirrup": "A8@100/200(2)", "topBars": "2B25",
     "inPlace": [{"role": "bottom", "span": 2, "text": "8B25"}]},
    {"name": "KL3(1)", "section": "300x6O0", "topBars": "2B25", "end": [6000, 0]}],
    "walls": [{"name": "Q1", "verticalBars": "?"}]})j";

class CheckCommand : public testing::Test {
protected:
    CheckCommand() { std::ofstream(m_folder / "f.json") << Faulty; }

    Answer Run(const std::string& command)
    {
        return RunShell("cd " + m_folder.Path().string() + "; " + command);
    }

    Folder m_folder;
};

TEST_F(CheckCommand, ListsProblemsAndTellsThemByItsStatus)
{
    const Answer sound = Run("beamdesk check");
    EXPECT_EQ(sound.status, 0);
    EXPECT_EQ(sound.out, "68 beams, 12 walls: no problems\n");

    const Answer faulty = Run("beamdesk check --project - --json < f.json");
    EXPECT_EQ(faulty.status, 1);
    std::string told;
    const auto answer = nlohmann::json::parse(faulty.out);
    for (const auto& problem : answer["problems"]) {
        for (const char* const key : {"beam", "field", "rule", "text", "message"}) {
            told += problem[key].get<std::string>() + (key == std::string("message") ? "\n" : "|");
        }
    }
    EXPECT_EQ(told, "KL1(2)|stirrup|stirrup-legs|A8@100/200(2)|2 legs are 294 mm apart, at most 250 mm\n"
                    "KL1(2)|bottom 2|bar-spacing|8B25|8 bars in a row leave 13 mm clear between them, "
                    "25 mm required\n"
                    "KL3(1)|name|name-gap|KL3(1)|there is no KL2 before it\n"
                    "KL3(1)|section|unreadable|300x6O0|cannot be read; an example: 300x600\n"
                    "Q1|verticalBars|unreadable|?|cannot be read; an example: B10@150\n");

    const Answer some = Run("beamdesk check --project f.json --off stirrup-legs --off name-gap");
    EXPECT_TRUE(some.out.ends_with("\n\n2 beams, 1 wall: 3 problems\n")) << some.out;
    const Answer failure = Run("beamdesk check --project none.json");
    EXPECT_EQ(failure.status, 2);
    EXPECT_EQ(Run("beamdesk check --off none").status, 2);
    const auto rules = nlohmann::json::parse(Run("beamdesk check --rules --json").out)["rules"];
    EXPECT_EQ(rules.size(), 12U);
    for (const auto& rule : rules) {
        const std::string key = rule["rule"];
        EXPECT_NE(ContentOf(SOURCE_FOLDER "/docs/checks.md").find("| `" + key + "` |"), std::string::npos);
    }
}

// The width comes with the drawing, the switches with its companion, also after a change.
TEST_F(CheckCommand, KnowsTheOutlinesOfADrawing)
{
    EXPECT_EQ(Run("beamdesk export -o f.dxf && beamdesk check --project f.dxf").status, 0);
    const Answer found =
        Run("beamdesk set --project f.dxf --beam L1 section 300x600; beamdesk check --project f.dxf");
    EXPECT_NE(found.out.find("  L1(1)  section  300x600  section-width  drawn 250 mm wide\n"),
              std::string::npos)
        << found.out;
    EXPECT_EQ(
        Run("beamdesk import f.dxf -o f.json --force >/dev/null; beamdesk check --project f.json").status,
        1);
    const Answer off =
        Run(R"(sed -i 's/"version": 1,/"version": 1, "checksOff": ["section-width"],/' f.beamdesk.json
        beamdesk set --project f.dxf --beam L2 section 300x600; beamdesk check --project f.dxf)");
    EXPECT_EQ(off.status, 0) << off.out;
}

TEST_F(CheckCommand, QuantitiesAreTheSameInAllForms)
{
    const auto list = nlohmann::json::parse(Run("beamdesk quantities --json").out);
    double mass = 0.0;
    for (const auto& bar : list["bars"]) {
        mass += bar["mass"].get<double>();
    }
    EXPECT_NEAR(list["steel"].get<double>(), mass, 0.1);
    EXPECT_EQ(Run("beamdesk quantities --csv q.csv").out, "written to q.csv\n");
    const std::string csv = ContentOf(m_folder / "q.csv");
    EXPECT_NE(csv.find("\r\nB,25,"), std::string::npos) << csv;
    EXPECT_EQ(Run("beamdesk quantities --pdf q.pdf").out, "written to q.pdf\n");
    EXPECT_TRUE(ContentOf(m_folder / "q.pdf").starts_with("%PDF"));
    const Answer failed = Run("beamdesk quantities --csv absent/q.csv");
    EXPECT_EQ(failed.status, 2);
    EXPECT_EQ(failed.out.find("written"), std::string::npos) << failed.out;
    EXPECT_NE(Run("beamdesk quantities --project f.json")
                  .out.find("\n  KL3(1)  section  300x6O0  cannot be read\n"),
              std::string::npos);
}

TEST_F(CheckCommand, SharesItsWaysWithAllCommands)
{
    struct Case {
        const char* command;
        int status;
        const char* told;    // found in what is printed
        const char* untold;  // not found there
    };
    const Case cases[] = {
        {"echo 2B25 | beamdesk import - -o p.json", 0, "standard input: 1 line, 1 text", "- "},
        {"beamdesk export --force -o f.dxf && beamdesk import - -o p.json < f.dxf", 0,
         "standard input: ", "open: "},
        {"beamdesk export --force -o f.dxf && beamdesk labels - < f.dxf", 0, "KL2(7)", "open: "},
        {"beamdesk export - -o g.dxf < f.json", 0, "written to g.dxf: 2 beams", "open: "},
        {"echo 2B25 > t; beamdesk import t -o absent/p.json", 2, "absent", "1 text"},
        {"beamdesk export --force -o f.dxf && beamdesk import f.dxf -o absent/p.json", 2, "absent",
         "annotation text"},
        {"beamdesk export f.json -o f.pdf --scale 0", 2,
         "--scale: a number from 1 to 10000 is required, not \"0\"", "1.0"},
        {"beamdesk shot p --scale x", 2, "--scale: a number from 1 to 4 is required, not \"x\"", "1.0"},
        {"beamdesk generate", 2, "BEAMS is required", "beams"},
        {"beamdesk labels", 2, "FILE is required", "file"},
        {"beamdesk shot", 2, "FOLDER is required", "folder"},
    };
    for (const Case& each : cases) {
        std::filesystem::remove_all(m_folder / "f.dxf");
        std::filesystem::remove_all(m_folder / "p.json");
        const Answer answer = Run(each.command);
        EXPECT_EQ(answer.status, each.status) << each.command << answer.out;
        EXPECT_NE(answer.out.find(each.told), std::string::npos) << each.command << answer.out;
        EXPECT_EQ(answer.out.find(each.untold), std::string::npos) << each.command << answer.out;
    }
}

}  // namespace
