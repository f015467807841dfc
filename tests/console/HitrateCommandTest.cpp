// beamdesk hitrate as a person and as a program call it.
#include <gtest/gtest.h>

#include <algorithm>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "desk/console/Commands.h"
#include "desk/project/Failure.h"
#include "tests/console/Shell.h"

namespace Desk {
namespace {

std::string Hitrate(const std::string& line) { return PrintedBy(AddHitrateCommand, "hitrate " + line); }

TEST(HitrateCommand, TellsTheSameOfTheSampleInBothForms)
{
    for (const std::string order : {"", "--order drawn"}) {
        const std::string table = Hitrate(order);
        const auto told = nlohmann::json::parse(Hitrate("--json " + order));
        EXPECT_GE(told["beams"].get<int>(), 60);
        ASSERT_EQ(told["orders"].size(), 4U);
        for (const auto& [name, kinds] : told["orders"].items()) {
            EXPECT_EQ(kinds.size(), 10U);
            EXPECT_NE(table.find("  " + name), std::string::npos) << name;
            for (const auto& [kind, tally] : kinds.items()) {
                const int uses = tally["uses"].get<int>();
                EXPECT_GT(uses, 0) << kind;
                EXPECT_NE(table.find("\n" + (kind == "all" ? "all but names" : kind)), std::string::npos);
                int before = 0;
                for (const char* const column : {"place1", "within3", "within5", "within10"}) {
                    EXPECT_GE(tally[column].get<int>(), before) << kind;
                    before = tally[column].get<int>();
                }
                EXPECT_LE(std::max(before, tally["seen"].get<int>()), uses) << kind;
                EXPECT_GE(tally["mrr"].get<double>() * uses + 1e-6, tally["place1"].get<int>()) << kind;
            }
        }
        // All are the kinds together, but for the names.
        int sum = 0;
        for (const auto& [kind, tally] : told["orders"]["ranker"].items()) {
            sum += kind == "all" || kind == "name" ? 0 : tally["within3"].get<int>();
        }
        EXPECT_EQ(told["orders"]["ranker"]["all"]["within3"].get<int>(), sum);
    }
    EXPECT_NE(Hitrate("--json"), Hitrate("--json --order drawn"));
    EXPECT_THROW(Hitrate("--order sideways"), CLI::ValidationError);
    EXPECT_THROW(Hitrate("--project absent.json"), Failure);
}

}  // namespace
}  // namespace Desk
