// set, labels, export and import on drawings, as a person calls them.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "desk/drawing/Export.h"
#include "desk/project/ProjectFile.h"
#include "tests/console/Shell.h"
#include "tests/support/Folder.h"

namespace Desk {
namespace {

using Json = nlohmann::json;

bool Shows(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    const std::size_t at = text.find(from);
    EXPECT_TRUE(at != std::string::npos && text.find(from, at + 1) == std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

// A drawing of three beams in a folder: KL1(2) written out, the same as a name alone, and L1(1).
class DrawingCommands : public testing::Test {
protected:
    void SetUp() override
    {
        Project project;
        project.beams.resize(3);
        Beam& first = project.beams[1];
        first.name = "KL1(2)";
        first.section = "300x600";
        first.stirrup = "A8@100/200(2)";
        first.topBars = "2B25";
        first.bottomBars = "4B20";
        first.leftEnd = "2B25+1B22";
        first.spans = {6000.0, 6000.0};
        first.inPlace = {{Role::Bottom, 2, "5B18", {}, -1, nullptr}};
        first.area.top = 900;
        first.end = {12'000, 0};
        project.beams[0].name = "KL1(2)";
        project.beams[0].start = {0, 8000};
        project.beams[0].end = {12'000, 8000};
        Beam& last = project.beams[2];
        last.name = "L1(1)";
        last.section = "200x400";
        last.start = {20'000, 0};
        last.end = {20'000, 6000};
        SaveProject(project, m_folder / "f.json");
        const Answer made = Run("beamdesk export f.json -o f.dxf");
        ASSERT_EQ(made.status, 0) << made.out;
        m_bytes = ContentOf(m_folder / "f.dxf");
        const Json labels = Json::parse(Run("beamdesk labels f.dxf --json").out);
        for (const Json& text : labels["texts"]) {
            m_handles[text["text"].get<std::string>()] = text["handle"].get<std::string>();
        }
    }

    [[nodiscard]] Answer Run(const std::string& command) const
    {
        return RunShell("cd " + m_folder.Path().string() + " && " + command);
    }
    [[nodiscard]] std::string Bytes(const std::string& file) const { return ContentOf(m_folder / file); }

    Folder m_folder;
    std::string m_bytes;
    std::map<std::string, std::string> m_handles;  // by the text as drawn
};

TEST_F(DrawingCommands, SetChangesOneTextAndNoOtherByte)
{
    const struct {
        std::string words;
        std::string from;
        std::string to;
    } cases[] = {
        {"--beam 'KL1(2)' topBars 2C28", "2%%13125;", "2%%13228;"},
        {"--beam KL1 bottomBars '6B25 2/4'", ";4%%13120", ";6%%13125 2/4"},
        {"--beam KL1 section 350x700", "300x600", "350x700"},
        {"--beam KL1 stirrup 'B10@200(4)'", "%%1308@100/200(2)", "%%13110@200(4)"},
        {"--beam KL1 leftEnd 3B25", "2%%13125+1%%13122", "3%%13125"},
        {"--beam L1 name 'L12(1)'", "L1(1) 200", "L12(1) 200"},
        {"--beam KL1 --at 0,7000 topBars 2B28", "2%%13125;", "2%%13128;"},
        {"--beam KL1 --at 0,7000 name KL7", "KL1(2)\r\n", "KL7\r\n"},
        {"--handle " + m_handles["5%%13118"] + " bottom 5B20", "5%%13118", "5%%13120"},
        {"--handle " + m_handles["2%%13125+1%%13122"] + " topSupport 2B25", "2%%13125+1%%13122",
         "2%%13125\r\n"},
        {"--handle " + m_handles["KL1(2)"] + " topBars 4B25", "2%%13125;", "4%%13125;"},
        {"--beam KL1 --handle " + m_handles["KL1(2)"] + " name KL2", "KL1(2)\r\n", "KL2\r\n"},
        {"--beam KL1 topBars 2B25", "", ""},
    };
    for (const auto& [words, from, to] : cases) {
        const Answer answer = Run("beamdesk set --project f.dxf -o out.dxf " + words);
        EXPECT_EQ(answer.status, 0) << words << ": " << answer.out;
        const std::string tail = to.ends_with("\r\n") && !from.ends_with("\r\n") ? "\r\n" : "";
        const std::string wanted = from.empty() ? m_bytes : Replaced(m_bytes, from + tail, to);
        EXPECT_TRUE(Bytes("out.dxf") == wanted) << words << ": " << answer.out;
        EXPECT_EQ(Bytes("f.dxf"), m_bytes) << words;
        EXPECT_TRUE(Shows(words, " name ") || Bytes("out.beamdesk.json") == Bytes("f.beamdesk.json"))
            << words;
    }
    EXPECT_TRUE(
        Shows(Run("beamdesk set --project f.dxf --beam L1 section hm").out, "note: \"hm\" is not what"));
    EXPECT_EQ(Bytes("f.dxf"), Replaced(m_bytes, "200x400", "hm"));
    EXPECT_EQ(Bytes("f.dxf.bak"), m_bytes);
}

TEST_F(DrawingCommands, ALabelThatLostALineStaysALabel)
{
    EXPECT_EQ(Run("beamdesk set --project f.dxf --beam KL1 stirrup ''").status, 0);
    EXPECT_EQ(Run("beamdesk set --project f.dxf --beam KL1 topBars 2B28").out,
              "KL1(2) topBars: 2B25 -> 2B28\n");
    EXPECT_EQ(Run("beamdesk set --project f.dxf --beam KL1 stirrup 'A8@100/200(2)'").status, 0);
    EXPECT_EQ(Run("beamdesk set --project f.dxf --beam KL1 stirrup 'A8@150(2)'").out,
              "KL1(2) stirrup: A8@100/200(2) -> A8@150(2)\n");
}

TEST_F(DrawingCommands, SetChangesAProjectFileAsWell)
{
    const std::string before = Bytes("f.json");
    EXPECT_EQ(Run("beamdesk set --project f.json --beam KL1 topBars 2B25 -o same.json").status, 0);
    EXPECT_EQ(Bytes("same.json"), before);
    EXPECT_EQ(Run("beamdesk set --project f.json --beam KL1 leftEnd 4B22").status, 0);
    EXPECT_EQ(Bytes("f.json"), Replaced(before, "\"leftEnd\": \"2B25+1B22\"", "\"leftEnd\": \"4B22\""));
}

TEST_F(DrawingCommands, LabelsTellsEveryTextAndItsBeam)
{
    const Json texts = Json::parse(Run("beamdesk labels f.dxf --json").out)["texts"];
    ASSERT_EQ(texts.size(), 7U);
    std::vector<std::string> told;
    for (const Json& text : texts) {
        const std::string roles = text["roles"].dump();
        told.push_back(text["beam"].get<std::string>() + roles +
                       (text["inPlace"].get<bool>() ? " in place" : ""));
        EXPECT_EQ(text["open"], "");
        EXPECT_EQ(text["label"], text["beam"] == "L1(1)" ? m_handles["L1(1) 200x400"]
                                 : told.size() == 1      ? m_handles["KL1(2)"]
                                                         : m_handles["KL1(2) 300x600"]);
    }
    const std::vector<std::string> wanted = {R"(KL1(2)["name"])",
                                             R"(KL1(2)["name","section"])",
                                             R"(KL1(2)["stirrup"])",
                                             R"(KL1(2)["topBars","bottomBars"])",
                                             R"(KL1(2)["topSupport"] in place)",
                                             R"(KL1(2)["bottom"] in place)",
                                             R"(L1(1)["name","section"])"};
    EXPECT_EQ(told, wanted);
    const std::string table = Run("beamdesk labels f.dxf").out;
    EXPECT_TRUE(Shows(table, "3 beams, 7 texts: 5 in labels, 2 in place; 0 open")) << table;
}

TEST_F(DrawingCommands, WhatIsOpenIsListedWithItsReason)
{
    // A text far from every beam.
    WriteFile(
        m_folder / "f.dxf",
        Replaced(
            m_bytes, "  0\r\nENDSEC\r\n  0\r\nEOF",
            "  0\r\nTEXT\r\n  5\r\nFE\r\n  8\r\nT\r\n 10\r\n90000.0\r\n 20\r\n-4000.0\r\n 40\r\n300.0\r\n"
            "  1\r\n7%%13125\r\n  0\r\nENDSEC\r\n  0\r\nEOF"));
    const std::string table = Run("beamdesk labels f.dxf").out;
    EXPECT_TRUE(Shows(table, "; 1 open") && Shows(table, "\nopen: ") &&
                Shows(table, "\n  FE  90000,-4000  7%%13125"))
        << table;
    const std::string report = Run("beamdesk import f.dxf -o g.json").out;
    EXPECT_TRUE(Shows(
        report,
        "f.dxf: 8 annotation texts, 5 in labels, 3 in place; 1 open\n  FE at 90000,-4000: \"7%%13125\": "))
        << report;
    EXPECT_TRUE(Shows(report, "written to g.json: 3 beams, 0 walls"));
    const Project project = ReadProject(m_folder / "g.json");
    ASSERT_EQ(project.beams.size(), 3U);
    EXPECT_EQ(project.beams[1].spans, (std::vector<double>{6000.0, 6000.0}));
    EXPECT_EQ(project.beams[1].inPlace.size(), 2U);
    EXPECT_EQ(project.beams[1].area.top, 900) << "of the companion";
}

TEST_F(DrawingCommands, AnyCommandTakesADrawing)
{
    for (const char* const words :
         {"rank bars --beam KL1 --kind 1 --project f.dxf | grep '2B25  .*twice\\|once'",
          "tour --beam KL1 --project f.dxf | grep 'Beam KL1(2)'", "hitrate --project f.dxf | grep f.dxf",
          "export f.dxf -o f.svg && grep -q '<svg' f.svg",
          "export f.dxf -o f.pdf && grep -aq '^%PDF' f.pdf"}) {
        const Answer answer = Run(std::string("beamdesk ") + words);
        EXPECT_EQ(answer.status, 0) << words << ": " << answer.out;
    }
}

TEST_F(DrawingCommands, SayWhatIsWrong)
{
    const std::pair<const char*, const char*> cases[] = {
        {"set --project f.dxf --beam KL1 elev 1",
         "\"elev\" is no annotation of a beam; those are name, section"},
        {"set --project f.dxf --beam KL9 side G4B12", "no beam KL9 in the project; it has KL1(2)"},
        {"set --project f.dxf side G4B12", "--beam NAME or --handle H is required"},
        {"set --project f.dxf --beam KL1 side", "TEXT is required"},
        {"set --beam KL1 side G4B12", "--project is required"},
        {"set --project f.dxf --beam KL1 side 'G\t4'", "the text holds a control character"},
        {"set --project f.dxf --beam KL1 side '\xF0\x9F\x98\x80'", "a character that GBK does not have"},
        {"set --project f.dxf --handle FFFF side G4B12", "no annotation has the handle FFFF"},
        {"set --project f.json --handle 20 side G4B12", "handles are those of a drawing"},
        {"set --project f.dxf --beam KL1 --at 5 side G4B12",
         "a position such as 8400,-1200 is required, not \"5\""},
        {"set --project f.dxf --beam KL1 side G4B12 -o o.json", "\"beamdesk import\" makes a project"},
        {"set --project f.json --beam KL1 side G4B12 -o o.dxf", "\"beamdesk export\" makes a drawing"},
        {"set --project no.dxf --beam KL1 side G4B12", "no.dxf: cannot be opened"},
        {"labels f.json", "f.json: a project file; labels are those of a drawing"},
        {"export f.dxf -o o.dxf", "f.dxf: a drawing already; copy the file"},
        {"export f.json -o f.dxf", "f.dxf: already exists; --force replaces it"},
        {"export f.json -o g.dwg", "does not end in .dxf, .pdf or .svg"},
        {"export f.json -o .", "does not end in"},
        {"export f.json -o no/f.dxf", "no/"},
        {"import f.dxf -o o.json --grade C", "--grade is for files of texts, not for drawings"},
        {"import f.dxf -o f.dxf", "the project would replace the texts"},
    };
    for (const auto& [words, message] : cases) {
        const Answer answer = Run(std::string("beamdesk ") + words);
        EXPECT_EQ(answer.status, 2) << words;
        EXPECT_TRUE(Shows(answer.out, message)) << words << ":\n" << answer.out;
    }
    EXPECT_EQ(m_folder.FileCount(), 3) << "f.json, f.dxf and its companion";
    EXPECT_EQ(Bytes("f.dxf"), m_bytes);
}

}  // namespace
}  // namespace Desk
