// Files of texts: encodings, line ends, kinds, and what is wrong with a file or a line.
#include <gtest/gtest.h>

#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"
#include "desk/reading/ImportTexts.h"

namespace Desk {
namespace {

using namespace std::string_literals;

// One "line|kind|text|fault" a text.
std::vector<std::string> Told(std::string_view bytes, Encoding encoding = Encoding::Utf8)
{
    std::vector<std::string> told;
    for (const DrawnText& text : ParseTexts(bytes, "t", encoding).texts) {
        told.push_back(std::to_string(text.line) + "|" + text.kind + "|" + text.text + "|" + text.fault);
    }
    return told;
}

using Lines = std::vector<std::string>;

TEST(TextsFile, TakesLinesWithAndWithoutKinds)
{
    EXPECT_EQ(Told("KL1\n\n \t\r\n2C25\tx"), (Lines{"1||KL1|", "4||2C25\tx|"}));
    EXPECT_EQ(Told("\xEF\xBB\xBFkind\ttext\r\nname\tKL1\r\n\r\nKL2\nbars\t\nbars\t2C25\t4C25\n"),
              (Lines{"2|name|KL1|", "4||KL2|no tab between kind and text", "5|bars||a kind without a text",
                     "6|bars|2C25\t4C25|"}));
    EXPECT_EQ(Told("name\tKL1"), Lines{"1||name\tKL1|"});
    const TextsFile file = ParseTexts("KL1\n\nKL2", "t", Encoding::Utf8);
    EXPECT_EQ(file.lines, 3U);
    EXPECT_EQ(file.blankLines, 1U);
    EXPECT_FALSE(file.hasKinds);
}

TEST(TextsFile, KeepsTextsThatAreNoUse)
{
    const std::string withZero = "1||KL\0001|holds the control character 0x00"s;
    EXPECT_EQ(Told("KL\0001\n"s), Lines{withZero});
    EXPECT_EQ(Told("a\rb\n"), Lines{"1||a\rb|holds the control character 0x0D"});
    const std::string text(LongestText + 1, 'x');
    const std::string tooLong = "1||" + text + "|a text of 1001 bytes; the longest that is read has 1000";
    EXPECT_EQ(Told(text), Lines{tooLong});
}

TEST(TextsFile, ReadsGbk)
{
    EXPECT_EQ(Told("\xB1\xEA\xB8\xDF\xA3\xAD"
                   "0.050\n300\xA1\xC1"
                   "600",
                   Encoding::Gbk),
              (Lines{"1||标高－0.050|", "2||300×600|"}));
}

std::string FaultOf(std::string_view bytes, Encoding encoding = Encoding::Utf8)
{
    try {
        static_cast<void>(ParseTexts(bytes, "t", encoding));
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "";
}

TEST(TextsFile, NamesThePlaceOfBadBytes)
{
    EXPECT_EQ(FaultOf("KL1\n标\xB1\xEA"),
              "t:2:2: the byte 0xB1 is not UTF-8; --encoding gbk reads a GBK file");
    for (const char* const bad :
         {"\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE6\xA0", "\x80"}) {
        EXPECT_EQ(FaultOf(bad).substr(0, 5), "t:1:1") << bad;
    }
    EXPECT_EQ(FaultOf("KL1\nKL\xFF\xFF", Encoding::Gbk),
              "t:2:3: a byte that is not GBK; --encoding utf-8 reads a UTF-8 file");
    EXPECT_EQ(FaultOf("\xFF\xFEK\0L\0"s), "t: this is a UTF-16 file; save it as UTF-8");
}

TEST(ImportTexts, MakesABeamOfEachText)
{
    const TextsFile file =
        ParseTexts("kind\ttext\ncombined\tKL1(2) 300×600 2C22+(2C12);3C25 G2C12 N2C16 (0.10)\n"
                   "bars\t2C22\nbars\t2C22\nstrange\tKL3\ndistributed\tC8@200\nname_trap\tC30\n",
                   "t", Encoding::Utf8);
    const std::vector<ImportedText> texts = ReadTexts(file, Choices());
    const Project project = ProjectOf(texts, "t");
    ASSERT_EQ(project.beams.size(), 4U);
    const Beam& beam = project.beams[0];
    EXPECT_EQ((Lines{beam.name, beam.section, beam.topBars, beam.erection, beam.bottomBars, beam.side,
                     beam.torsion, beam.elevation, beam.stirrup}),
              (Lines{"KL1(2)", "300x600", "2C22", "2C12", "3C25", "G2C12", "N2C16", "(0.10)", ""}));
    // A text that occurs twice counts twice, without a name and with nothing else.
    EXPECT_EQ(project.beams[1].topBars + project.beams[2].topBars, "2C222C22");
    EXPECT_EQ(project.beams[2].name + project.beams[2].section, "");
    EXPECT_NE(FormatProject(project).find(R"({"name": "", "drawn": "2C22", "line": 4,)"), std::string::npos)
        << FormatProject(project);
    EXPECT_NE(texts[3].reading.contradiction, "");
    ASSERT_EQ(project.walls.size(), 1U);
    EXPECT_EQ(project.walls[0].horizontalBars + project.walls[0].verticalBars, "C8@200");
}

}  // namespace
}  // namespace Desk
