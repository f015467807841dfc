// What the documents show is what the programs print. RENEW_DOCS=1 writes it into them.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/console/Shell.h"
#include "tests/support/Folder.h"

namespace {

// A command goes on over lines as long as a quote is open.
bool IsWhole(const std::string& command)
{
    return std::count(command.begin(), command.end(), '\'') % 2 == 0;
}

// The document with each console block printed anew and each listing read anew from its file.
std::string Renew(const std::string& document)
{
    std::istringstream in(document);
    std::string renewed;
    std::string listing;
    bool inConsole = false;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("```") && inConsole) {
            inConsole = false;
        } else if (inConsole && !line.starts_with("$ ")) {
            continue;
        } else if (line == "```console") {
            inConsole = true;
        }
        renewed += line + "\n";
        if (inConsole && line.starts_with("$ ")) {
            std::string command = line.substr(2);
            while (!IsWhole(command) && std::getline(in, line)) {
                command += "\n" + line;
                renewed += line + "\n";
            }
            renewed += RunShell(command).out;
        } else if (line.starts_with("<!-- examples/")) {
            listing = line.substr(5, line.find(" -->") - 5);
        } else if (line == "```cpp" && !listing.empty()) {
            renewed += ContentOf(std::string(SOURCE_FOLDER "/") + listing);
            while (std::getline(in, line) && line != "```") {
            }
            renewed += "```\n";
            listing.clear();
        }
    }
    return renewed;
}

class Docs : public testing::TestWithParam<const char*> {};

TEST_P(Docs, ShowWhatTheProgramsPrint)
{
    const std::string file = std::string(SOURCE_FOLDER "/docs/") + GetParam();
    const std::string document = ContentOf(file);
    const Folder folder;  // for what the commands write
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    const std::string renewed = Renew(document);
    std::filesystem::current_path(before);
    ASSERT_NE(renewed.find("\n$ "), std::string::npos) << "no console block in " << file;
    if (std::getenv("RENEW_DOCS") != nullptr) {
        std::ofstream(file, std::ios::binary) << renewed;
    }
    EXPECT_EQ(document, renewed);
}

INSTANTIATE_TEST_SUITE_P(All, Docs,
                         testing::Values("panels.md", "host.md", "drawings.md", "hitrate.md", "checks.md"));

}  // namespace
