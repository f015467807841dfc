// beamdesk hitrate as a person and as a program call it.
#include <gtest/gtest.h>

#include <sstream>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "desk/console/Commands.h"
#include "desk/project/Failure.h"

namespace Desk {
namespace {

std::string Hitrate(const std::string& line)
{
    std::ostringstream out;
    CLI::App program;
    AddHitrateCommand(program, out);
    program.parse("hitrate " + line);
    return out.str();
}

TEST(HitrateCommand, TellsTheSameOfTheSampleInBothForms)
{
    const std::string table = Hitrate("");
    const auto told = nlohmann::json::parse(Hitrate("--json"));
    EXPECT_GE(told["beams"].get<int>(), 60);
    ASSERT_EQ(told["kinds"].size(), 9U);
    for (const auto& kind : told["kinds"]) {
        const int uses = kind["uses"].get<int>();
        EXPECT_GT(uses, 0) << kind;
        EXPECT_NE(table.find("\n" + kind["kind"].get<std::string>()), std::string::npos) << kind;
        for (const char* const order : {"ranker", "alphabetical", "frequency"}) {
            const auto& tally = kind[order];
            int before = 0;
            for (const char* const column : {"place1", "within3", "within5", "within10"}) {
                EXPECT_GE(tally[column].get<int>(), before) << kind;
                before = tally[column].get<int>();
            }
            EXPECT_LE(before + tally["notInList"].get<int>(), uses) << kind;
        }
    }
    EXPECT_THROW(Hitrate("--project absent.json"), Failure);
}

}  // namespace
}  // namespace Desk
