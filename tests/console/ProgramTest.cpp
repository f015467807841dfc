// The program as a person calls it: exit status, what it prints, what it says of wrong usage.
#include <cstdio>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/wait.h>

#include "desk/project/ProjectFile.h"
#include "tests/support/Folder.h"

namespace {

struct Result {
    int status = -1;
    std::string out;
    std::string err;
};

Result Call(const std::string& words)
{
    const Folder folder;
    const std::string err = (folder / "err").string();
    Result result;
    FILE* const pipe = popen((std::string(BEAMDESK) + " " + words + " 2>" + err).c_str(), "r");
    if (pipe == nullptr) {
        return result;
    }
    for (int ch = std::fgetc(pipe); ch != EOF; ch = std::fgetc(pipe)) {
        result.out += static_cast<char>(ch);
    }
    const int status = pclose(pipe);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.err = ContentOf(err);
    return result;
}

bool Holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

TEST(Program, AnswersWithStatusZero)
{
    struct Case {
        const char* words;
        std::vector<const char*> parts;
    };
    const std::vector<Case> cases = {
        {"", {"Beam KL", "Bottom bars", "rank bars", ">", "*"}},
        {"tour --beam L33", {"Beam L33(1)", "* 2 200x450"}},
        {"--help", {"rank", "table", "tour", "Examples:"}},
        {"--version", {"beamdesk "}},
        {"rank --help", {"Examples:"}},
        {"rank bars --help", {"5.1 bottom bars", "Examples:"}},
        {"rank bars --kind 1 --width 300 --area 1000 --table",
         {"place  text  stamp", "1  2B16", "project, ", "guess",
          "its rows are in the list already: 2B16, 2B18", "> "}},
        {"rank bars --top 2B16 --width 300 --area 1000 --table", {"the through bars themselves", "5B16"}},
        {"rank bars --beam KL3 --kind ends", {"on through bars 2B25", " *", "what KL3(3) has now"}},
        {"rank bars --beam KL2 --kind left", {"on through bars 2B25", "area 1725 mm²"}},
        {"rank bars --beam KL2 --kind right", {"on through bars 2B25", "area 1935 mm²"}},
        {"rank bars --kind 1 --width 250 --area 3000 --table",
         {"table: the bar table has no row within 70"}},
        {"rank stirrups --beam 'KL2(7)' --table",
         {"concrete grade 30", " *     8  A8@100/200(4)", "table"}},
        {"rank elevation", {"\"      \"      -  no elevation: 6 blanks"}},
        {"rank name --limit 3", {">      1  KL15(7)", "... and 10 more; --limit 0 shows all 13"}},
        {"rank section --beam XL1 --limit 0", {"*", "300x500/350", "what XL1 has now"}},
        {"table bars --width 300 --area 1000 --top 2B16",
         {"on 2B16\n  2B16  5B16\n", "Bottom bars\n  3B20\n"}},
        {"table bars --width 701 --area 1000", {"widths from 200 to 700 mm, nothing for 701"}},
        {"table stirrups --width 400 --grade 40 --seismic 1", {"  A8@200(4)      A8@100/200(4)\n"}},
        {"table stirrups --width 400 --grade 22 --seismic 1", {"20, 25, 30, 35 and 40, nothing for 22"}},
    };
    for (const Case& right : cases) {
        const Result result = Call(right.words);
        EXPECT_EQ(result.status, 0) << right.words << '\n' << result.err;
        EXPECT_EQ(result.err, "") << right.words;
        for (const char* const part : right.parts) {
            EXPECT_TRUE(Holds(result.out, part)) << right.words << ": no " << part << " in\n" << result.out;
        }
    }
}

TEST(Program, SaysWhatIsWrongWithStatusTwo)
{
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"bogus", "beamdesk: unknown argument \"bogus\"\n  subcommands: tour, rank, propose, table"},
        {"--bogus", "unknown option --bogus"},
        {"rank", "beamdesk rank: a subcommand is required\n  subcommands: name, section, elevation"},
        {"rank bans", "unknown argument \"bans\""},
        {"rank bars --seismic 3", "beamdesk rank bars: unknown option --seismic\n  example: beamdesk rank"},
        {"rank bars --width 12x", "--width: a whole number from 1 to 100000 is required, not \"12x\""},
        {"rank bars --kind", "--kind needs a value"},
        {"rank bars --limit 1 --limit 2", "--limit is given more than once"},
        {"rank bars --kind 6", "\"6\" is no kind of bars"},
        {"rank bars --kind 1 --top 2B20", "--kind and --top"},
        {"rank bars --kind ends", "needs --beam NAME"},
        {"rank bars --table", "--table needs --width, or --beam NAME"},
        {"rank stirrups --seismic 5", "--seismic: a whole number from 1 to 4"},
        {"rank bars --beam XL9", "no beam XL9 in the project; it has XL1, XL2\n"},
        {"table bars --width 300", "beamdesk table bars: --area is required"},
        {"table bars --width 300 --area 1 --top 5.1", "\"5.1\" is no bar annotation"},
        {"rank name --project /nowhere", "/nowhere: cannot be opened: No such file or directory\n"},
        {"> /dev/full", "the output could not be written\n"},
    };
    for (const auto& [words, message] : cases) {
        const Result result = Call(words);
        EXPECT_EQ(result.status, 2) << words;
        EXPECT_EQ(result.out, "") << words;
        EXPECT_TRUE(Holds(result.err, message)) << words << ":\n" << result.err;
    }
}

TEST(Program, AWrongProjectIsToldWithItsPlaceAndLeftAlone)
{
    const Folder folder;
    const std::string file = (folder / "p.json").string();
    const std::string text = "{\"version\": 1,\n \"beams\": [{\"name\": 5}]}\n";
    WriteFile(file, text);
    const Result result = Call("rank bars --project " + file);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, file + ":2:21: \"name\" must be a text, here stands a number\n");
    EXPECT_EQ(ContentOf(file), text);
}

TEST(Program, GivesProgramsJson)
{
    const Folder folder;
    Desk::Project project;
    project.beams.resize(30);
    for (int i = 0; i < 30; ++i) {
        Desk::Beam& beam = project.beams[static_cast<std::size_t>(i)];
        beam.name = "梁KL" + std::to_string(i + 1);
        beam.topBars = i < 3 ? "2B25" : std::to_string(i) + "B20";
    }
    Desk::SaveProject(project, folder / "p.json");
    const Result result =
        Call("rank bars --json --beam 梁KL2 --area 700 --project " + (folder / "p.json").string());
    const auto answer = nlohmann::json::parse(result.out);
    EXPECT_EQ(answer["what"], "bars");
    EXPECT_EQ(answer["beam"], "梁KL2");
    EXPECT_EQ(answer["present"], nlohmann::json({"2B25"}));
    EXPECT_EQ(answer["area"], 700);
    EXPECT_EQ(answer["total"], 28) << "all of them, whatever a person is shown";
    EXPECT_EQ(answer["candidates"].size(), 28U);
    EXPECT_EQ(answer["focus"], 28);
    const auto first = nlohmann::json::parse(
        R"({"place": 1, "text": "2B25", "stamp": 15, "source": "project", "uses": 3})");
    EXPECT_EQ(answer["candidates"][0], first);
    const auto table = nlohmann::json::parse(Call("table bars --width 300 --area 1000 --json").out);
    EXPECT_EQ(table["bottom"], nlohmann::json({"3B20"}));
}

}  // namespace
