// The project file: what comes back from it, and what is said of a wrong one.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/project/Failure.h"
#include "desk/project/FindBeam.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"
#include "tests/support/Folder.h"

namespace Desk {
namespace {

std::string Complaint(const std::string& text)
{
    try {
        static_cast<void>(ParseProject(text, "f"));
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "none";
}

std::string InBeam(const std::string& members)
{
    return "{\"version\": 1, \"beams\": [\n{\"name\": \"KL1(3)\"},\n{\"name\": \"楼KL2\", " + members +
           "}]}";
}

std::string InPlaceList(const std::string& members) { return "\"inPlace\": [{" + members + "}]"; }

TEST(Store, GivesBackWhatItReadWithUnknownKeysTheirOrderAndNumbersAsWritten)
{
    const std::string text = R"json({
  "zone": {
    "b": 1,
    "a": [1, 2.50, null, true]
  },
  "walls": [
    {"horizontalBars": "A10@150", "name": "Q1", "料": "x", "thickness": 200.0}
  ],
  "version": 1,
  "beams": [
    {
      "section": "300x600",
      "id": 12345678901234567890123,
      "name": "KL1(3)",
      "start": [0.50, 1e3]
    }
  ]
}
)json";
    Project project = ParseProject(text, "f");
    EXPECT_EQ(FormatProject(project), text);
    EXPECT_EQ(project.beams[0].section, "300x600");
    EXPECT_EQ(project.beams[0].start.y, 1000.0);
    EXPECT_EQ(project.walls[0].thickness, 200);

    project.beams[0].section = "300x650";
    project.beams[0].area.top = 900;
    project.walls.emplace_back().name = "Q2";
    project.walls.back().thickness = 250;
    const std::string edited = FormatProject(project);
    EXPECT_NE(edited.find(R"json("id": 12345678901234567890123,
      "name": "KL1(3)",
      "start": [0.50, 1e3],
      "area": {"top": 900})json"),
              std::string::npos)
        << edited;
    const Project again = ParseProject(edited, "edited");
    EXPECT_EQ(again.beams[0].area.top, 900);
    EXPECT_EQ(again.walls[1].thickness, 250);
    EXPECT_EQ(FormatProject(again), edited);
}

TEST(Store, KeepsSpansTextsInPlaceAndPointedTextsAsTheyWereWritten)
{
    const std::string text = R"json({
  "pointed": {
    "2F": [0.50, 1e3],
    "1A3": [3, 4]
  },
  "version": 1,
  "beams": [
    {
      "spans": [6000.0, 5700],
      "inPlace": [
        {"span": 1.0, "role": "bottom", "text": "4B25", "id": 7},
        {
          "role": "topSupport",
          "support": 3,
          "text": "",
          "at": [100, 250.5],
          "angle": 90.0,
          "height": 300
        }
      ],
      "name": "KL1(2)"
    }
  ],
  "walls": []
}
)json";
    Project project = ParseProject(text, "f");
    EXPECT_EQ(FormatProject(project), text);
    Beam& beam = project.beams[0];
    EXPECT_EQ(beam.spans, (std::vector<double>{6000, 5700}));
    ASSERT_EQ(beam.inPlace.size(), 2U);
    EXPECT_EQ(beam.inPlace[1].role, Role::TopSupport);
    EXPECT_EQ(beam.inPlace[1].number, 3);
    EXPECT_EQ(beam.inPlace[1].place.at.y, 250.5);
    EXPECT_EQ(beam.inPlace[1].place.height, 300.0);
    EXPECT_EQ(project.pointed.at("2F").y, 1000.0);

    beam.inPlace[0].text = "5B25";
    beam.inPlace[1].number = 2;
    beam.spans[1] = 5400.5;
    project.pointed.erase("2F");
    project.pointed["1A3"].x = 5;
    project.pointed["0B"] = {};
    InPlace& added = beam.inPlace.emplace_back();
    added.role = Role::Stirrup;
    added.text = "A8@100(2)";
    std::string edited = text;
    const std::vector<std::pair<std::string, std::string>> changes = {
        {R"json("2F": [0.50, 1e3],
    "1A3": [3, 4])json",
         R"json("1A3": [5, 4],
    "0B": [0, 0])json"},
        {"[6000.0, 5700]", "[6000, 5400.5]"},
        {"4B25", "5B25"},
        {R"json("support": 3)json", R"json("support": 2)json"},
        {"\n        }\n",
         "\n        },\n        {\"role\": \"stirrup\", \"span\": 1, \"text\": \"A8@100(2)\"}\n"},
    };
    for (const auto& [before, after] : changes) {
        edited.replace(edited.find(before), before.size(), after);
    }
    EXPECT_EQ(FormatProject(project), edited);
}

TEST(FindBeam, ANameAloneRefersToTheFullestBeamOfThatName)
{
    Project project;
    const auto add = [&project](const char* name, const char* section, const char* stirrup) {
        Beam& beam = project.beams.emplace_back();
        beam.name = name;
        beam.section = section;
        beam.stirrup = stirrup;
    };
    add("L4(1)", "", "");
    add("L4(1)", "200x400", "");
    add("L4(1)", "200x500", "A8@200(2)");
    add("L4(1)", "200x600", "A8@100(2)");
    add("L4(2)", "", "");
    add("", "", "");
    add("", "200x400", "");
    project.beams[0].inPlace.emplace_back().text = "3B20";
    const std::vector<std::size_t> expected = {2, 1, 2, 3, 4, 5, 6};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(WrittenOut(project, i), expected[i]) << i;
    }
    EXPECT_EQ(&FindBeam(project, "L4"), &project.beams[2]);
}

TEST(Store, TellsThePlaceOfWhatIsWrong)
{
    struct Case {
        std::string text;
        const char* complaint;  // its beginning
    };
    const std::string bytes = "{\"version\": 1,\n \"a\": \"楼";
    const std::vector<Case> cases = {
        {"", "f:1:1: the file is empty"},
        {" \n", "f:2:1: no valid JSON: unexpected end of input"},
        {"{\"version\": 1,\n  \"beams\" []}", "f:2:11: no valid JSON: unexpected '['; expected ':'"},
        {"{\"version\": 1} 2", "f:1:16: no valid JSON: unexpected number"},
        {"{\"version\": 1, \"a\": tru}", "f:1:24: no valid JSON: invalid literal"},
        {"{\"version\": 1, \"a\": 1e999}", "f:1:21: no valid JSON: number overflow"},
        {"{\"version\": 1, \"楼\": \"x\ny\"}", "f:1:23: no valid JSON: invalid string"},
        {bytes + "\xFF\"}", "f:2:9: not UTF-8"},
        {bytes + "\xED\xA0\x80\"}", "f:2:9: not UTF-8"},
        {bytes + "\xE6\xA5", "f:2:9: not UTF-8"},
        {bytes + std::string("\0", 1) + "\"}", "f:2:9: a zero byte"},
        {"{\"version\": 1}" + std::string("\0!", 2), "f:1:15: a zero byte"},
        {"{\"version\": 1,\n\"a\\\"b\": 1, \"a\\\"b\": 2}", "f:2:12: the key \"a\"b\" stands twice"},
        {"{\"version\": 1, \"a\": " + std::string(100'000, '['), "f:1:84: nested deeper than 64 levels"},
        {"[]", "f:1:1: a project must be an object, here stands a list"},
        {"\xEF\xBB\xBF{}", "f:1:1: no \"version\""},
        {"{\"version\": 2}", "f:1:13: this program reads \"version\" 1 of the file format, not 2"},
        {"{\"version\": \"1\"}", "f:1:13: this program reads \"version\" 1 of the file format, not a text"},
        {"{\"version\": 1, \"beams\": {}}", "f:1:25: \"beams\" must be a list, here stands an object"},
        {"{\"version\": 1, \"walls\": [7]}", "f:1:26: a wall must be an object, here stands a number"},
        {"{\"version\": 1, \"beams\": [{\"section\": \"\"}]}", "f:1:26: a beam without a \"name\""},
        {InBeam("\"section\": 300"), "f:3:29: \"section\" must be a text, here stands a number"},
        {InBeam("\"topBars\": null"), "f:3:29: \"topBars\" must be a text, here stands null"},
        {InBeam("\"side\": \"\\u0000\""), "f:3:26: \"side\" holds a control character"},
        {InBeam("\"side\": \"G4B12\\n\""), "f:3:26: \"side\" holds a control character"},
        {InBeam("\"side\": \"😀\""), "f:3:26: \"side\" holds a character that GBK does not have"},
        {InBeam("\"x\": [{\"section\": 1}, \"}\\\"\"], \"section\": []"),
         "f:3:59: \"section\" must be a text, here stands a list"},
        {InBeam("\"\\u0073ide\": false"), "f:3:31: \"side\" must be a text, here stands false"},
        {InBeam("\"seismicClass\": 5"), "f:3:34: \"seismicClass\" must be a whole number from 1 to 4"},
        {InBeam("\"concreteGrade\": 30.5"),
         "f:3:35: \"concreteGrade\" must be a whole number from 10 to 100"},
        {InBeam("\"area\": {\"top\": -1}"), "f:3:34: \"top\" must be a whole number from 0 to 1000000"},
        {InBeam("\"area\": {\"top\": 99999999999999999999}"), "f:3:34: \"top\" must be a whole number"},
        {InBeam("\"area\": 5"), "f:3:26: \"area\" must be an object, here stands a number"},
        {InBeam("\"start\": [1]"), "f:3:27: \"start\" must be two coordinates"},
        {InBeam("\"end\": [0, 1e10]"), "f:3:25: \"end\" must be two coordinates"},
        {InBeam("\"spans\": 6000"), "f:3:27: \"spans\" must be a list of at most 200 lengths in mm"},
        {InBeam("\"spans\": [6000, 0]"), "f:3:34: the length of a span must be more than 0 mm"},
        {InBeam("\"spans\": [\"6\"]"), "f:3:28: the length of a span must be more than 0 mm"},
        {InBeam("\"inPlace\": [{}, 1]"), "f:3:30: a text in place without a \"role\""},
        {InBeam(InPlaceList("\"role\": \"topBars\"")),
         "f:3:39: \"role\" must be one of topSupport, topSpan,"},
        {InBeam(InPlaceList("\"role\": \"bottom\", \"support\": 1")),
         "f:3:30: a text in place without a \"span\""},
        {InBeam(InPlaceList("\"role\": \"topSupport\", \"support\": 202")),
         "f:3:64: \"support\" must be a whole number from 1 to 201"},
        {InBeam(InPlaceList("\"role\": \"bottom\", \"span\": 1, \"text\": \"😀\"")),
         "f:3:68: \"text\" holds a character that GBK does not have"},
        {InBeam(InPlaceList("\"role\": \"bottom\", \"span\": 1, \"height\": -3")),
         "f:3:70: \"height\" must be a number from 0 to"},
        {"{\"version\": 1, \"pointed\": {\"1A3\": [1, 2], \"1A4\": 3}}",
         "f:1:50: \"1A4\" must be two coordinates"},
    };
    for (const Case& wrong : cases) {
        EXPECT_EQ(Complaint(wrong.text).substr(0, std::string(wrong.complaint).size()), wrong.complaint)
            << wrong.text.substr(0, 120);
    }
}

TEST(Store, ReadsNoFolderAndNothingEndless)
{
    const auto complaint = [](const std::filesystem::path& file) -> std::string {
        try {
            static_cast<void>(ReadProject(file));
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "none";
    };
    const Folder folder;
    EXPECT_EQ(complaint(folder.Path()), folder.Path().string() + ":1:1: a folder, not a project file");
    EXPECT_EQ(complaint("/dev/zero"), "/dev/zero:1:1: longer than 64 MiB, no project is that long");
    EXPECT_EQ(complaint(folder / "none"),
              (folder / "none").string() + ": cannot be opened: No such file or directory");
}

TEST(Store, ACutFileIsAnErrorWhereverItIsCut)
{
    Project project = SampleProject();
    project.beams.resize(3);
    project.walls.resize(2);
    const std::string text = FormatProject(project);
    for (std::size_t length = 0; length + 2 < text.size(); ++length) {
        const std::string complaint = Complaint(text.substr(0, length));
        EXPECT_TRUE(complaint.starts_with("f:")) << length << ": " << complaint;
    }
    EXPECT_EQ(FormatProject(ParseProject(text.substr(0, text.size() - 1), "without its last line feed")),
              text);
}

TEST(Store, KeepsNothingThatCouldNotBeReadAgain)
{
    const Folder folder;
    const std::filesystem::path file = folder / "p.json";
    SaveProject(SampleProject(), file);
    const std::string before = ContentOf(file);
    std::vector<Project> wrong(5, SampleProject());
    wrong[0].beams[0].section = "300\n600";
    wrong[1].beams[0].name = "\xC1\xBA";  // GBK bytes where UTF-8 belongs
    wrong[2].beams[0].seismicClass = 9;
    wrong[3].beams[0].start.x = 1.0 / 0.0;
    wrong[4].beams[0].spans.assign(201, 1.0);
    for (const Project& project : wrong) {
        EXPECT_THROW(SaveProject(project, file), Failure);
    }
    EXPECT_EQ(ContentOf(file), before);
    EXPECT_EQ(folder.FileCount(), 1);
}

TEST(Sample, IsAFloorOfManyBeams)
{
    const Project sample = SampleProject();
    EXPECT_GE(sample.beams.size(), 60U);
    EXPECT_EQ(sample.walls.size(), 12U);
    const auto holds = [](double low, double high, double value) { return value >= low && value <= high; };
    for (const Beam& beam : sample.beams) {
        // Straight along an axis, and its ends on another beam or a wall: columns stand where girders
        // meet.
        const bool alongX = beam.start.y == beam.end.y;
        ASSERT_TRUE(alongX != (beam.start.x == beam.end.x)) << beam.name;
        const auto carries = [&](const auto& other, const PlanPoint& at) {
            return static_cast<const void*>(&other) != &beam && holds(other.start.x, other.end.x, at.x) &&
                   holds(other.start.y, other.end.y, at.y);
        };
        for (const PlanPoint& at : {beam.start, beam.end}) {
            const auto isThere = [&](const auto& other) { return carries(other, at); };
            EXPECT_TRUE(std::any_of(sample.beams.begin(), sample.beams.end(), isThere) ||
                        std::any_of(sample.walls.begin(), sample.walls.end(), isThere))
                << beam.name << " ends in the air at " << at.x << ", " << at.y;
        }
    }
}

}  // namespace
}  // namespace Desk
