// beamdesk import as a person calls it, and over real drawing texts where they are at hand.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <CLI/CLI.hpp>

#include "desk/console/Commands.h"
#include "desk/console/ImportReport.h"
#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"
#include "desk/reading/TextsFile.h"
#include "tests/reading/Readings.h"

namespace Desk {
namespace {

namespace fs = std::filesystem;

class Command : public testing::Test {
protected:
    void SetUp() override
    {
        m_folder = fs::path(testing::TempDir()) /
                   (std::string("import-") + testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
        fs::current_path(m_folder);
    }
    void TearDown() override
    {
        fs::current_path(m_folder.parent_path());
        fs::remove_all(m_folder);
    }

    static void Write(const char* file, std::string_view text) { std::ofstream(file) << text; }

    // What the command prints, behind it the failure.
    static std::string Run(const std::string& line)
    {
        std::ostringstream out;
        CLI::App program;
        AddImportCommand(program, out);
        try {
            program.parse("import " + line);
        } catch (const Failure& failure) {
            out << "failure: " << failure.what();
        } catch (const CLI::ParseError& error) {
            out << "usage: " << error.what();
        }
        return out.str();
    }

    fs::path m_folder;
};

bool Holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

TEST_F(Command, WritesAProjectAndAccountsForEveryText)
{
    Write("t.txt", "KL-1(2) 300×600 Φ8@200 2C25;4C25\n2C20\n2C20\n\nC30\nnothing\n2C25(2)\n");
    const std::string report = Run("t.txt -o p.json --grade C");
    for (const char* const part :
         {"t.txt: 7 lines, 6 texts, 1 blank line",
          "read 3, partly read 1, no annotation of a beam or wall 1, not read 1", "top bars            4",
          "C for bars, C for stirrups", "1 text, line 1\n", "line 5: \"C30\": a concrete grade",
          "line 6: \"nothing\"", "line 7: \"2C25(2)\": left out: \"(2)\"",
          "written to p.json: 4 beams, 0 walls"}) {
        EXPECT_TRUE(Holds(report, part)) << part << " in:\n" << report;
    }
    const Project project = ReadProject("p.json");
    EXPECT_EQ(project.title, "t");
    ASSERT_EQ(project.beams.size(), 4U);
    EXPECT_EQ(project.beams[0].name + " " + project.beams[0].stirrup, "KL1(2) C8@200(2)");
    EXPECT_EQ(project.beams[2].topBars, "2C20");
}

TEST_F(Command, SaysWhatIsWrong)
{
    Write("t.txt", "2C20\n");
    Write("none.txt", "nothing\n");
    Write("old.json", "old");
    Write("gbk.txt", "300\xA1\xC1"
                     "600\n");
    const std::pair<const char*, const char*> cases[] = {
        {"t.txt", "usage: --output is required"},
        {"-o p.json", "usage: TEXTS is required"},
        {"absent.txt -o p.json", "failure: absent.txt: "},
        {". -o p.json", "failure: .: a folder"},
        {"t.txt -o t.txt", "failure: t.txt: the project would replace the texts"},
        {"t.txt -o t.txt --force", "failure: t.txt: the project would replace the texts"},
        {"t.txt -o .", "failure: .: a folder"},
        {"t.txt -o old.json", "failure: old.json: already exists; --force replaces it"},
        {"t.txt -o absent/p.json", "failure: "},
        {"none.txt -o p.json", "failure: none.txt: no annotation"},
        {"gbk.txt -o p.json", "failure: gbk.txt:1:4: the byte 0xA1 is not UTF-8"},
        {"t.txt -o p.json --grade E", "usage: --grade"},
        {"t.txt -o p.json --legs 12", "usage: --legs"},
        {"t.txt -o p.json --encoding big5", "usage: --encoding"},
    };
    for (const auto& [line, message] : cases) {
        const std::string told = Run(line);
        EXPECT_TRUE(Holds(told, message)) << line << " tells: " << told;
        EXPECT_FALSE(fs::exists("p.json")) << line;
    }
    EXPECT_TRUE(Holds(Run("t.txt -o old.json --force"), "written to old.json"));
    EXPECT_TRUE(
        Holds(Run("gbk.txt -o p.json --encoding gbk --all"), "line 1: \"300×600\": section 300x600"));
}

TEST_F(Command, LosesNothingOfRealTexts)
{
    if (!fs::exists(DRAWN_TEXTS)) {
        GTEST_SKIP() << "no collection of drawing texts beside the checkout";
    }
    const TextsFile file = ReadTextsFile(DRAWN_TEXTS, Encoding::Utf8);
    std::size_t read = 0;
    std::size_t refused = 0;
    for (const DrawnText& drawn : file.texts) {
        const Reading reading = ReadText(drawn.text, KindOf(drawn.kind), Choices());
        EXPECT_EQ(Fault(drawn.text, reading, Choices()), "") << drawn.text;
        EXPECT_EQ(reading.contradiction, "") << drawn.text;
        ++(reading.annotations.empty() ? refused : read);
    }
    EXPECT_EQ(read + refused + file.blankLines + 1, file.lines);
    EXPECT_GE(read, 290U);
    Run(std::string(DRAWN_TEXTS) + " -o p.json");
    const Project project = ReadProject("p.json");
    EXPECT_EQ(project.beams.size() + project.walls.size(), read);
}

TEST(Report, WritesLinesAsRanges)
{
    EXPECT_EQ(Ranges({3}), "3");
    EXPECT_EQ(Ranges({1, 2, 4, 5, 6, 9}), "1, 2, 4-6, 9");
}

}  // namespace
}  // namespace Desk
