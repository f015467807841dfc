// Each rule on both sides of its limit, worked out by hand from the clause; which annotation is blamed.
#include <gtest/gtest.h>

#include <array>
#include <random>

#include <nlohmann/json.hpp>

#include "desk/checks/Checks.h"
#include "desk/project/Generate.h"
#include "desk/project/ProjectFile.h"

namespace {

using namespace Desk;
using Json = nlohmann::json;

// A sound frame beam: the stirrups may be 8 x 20 = 160, 600 / 4 = 150, 150 mm apart in the tight zone.
// Inside them the beam is 300 - 2 x (20 + 8) = 244 mm wide.
const char* const Sound = R"j({"name": "KL1(2)", "section" : "300x600",
                  "stirrup" : "A8@100/200(2)",
                  "topBars" : "2B20",
                  "bottomBars" : "3B20",
                  "leftEnd" : "4B20",
                  "rightEnd" : "4B20",
                  "side" : "G4B12",
                  "concreteGrade" : 30,
                  "seismicClass" : 3,
                  "start" : [ 0, 0 ],
                  "end" : [ 12000, 0 ],
                  "spans" : [ 6000, 6000 ]
})j";
// One that is no frame beam.
const char* const Simple = R"j({"name": "L1(1)", "section": "300x600", "stirrup": "A8@200(2)",
    "topBars": "2B20", "bottomBars": "3B20", "concreteGrade": 30, "seismicClass": 3
})j";
// A coupling beam.
const char* const Coupling = R"j({"name": "LL1", "section": "300x600", "stirrup": "A10@100(2)",
    "topBars": "2B20", "bottomBars": "3B20", "concreteGrade": 30, "seismicClass": 2
})j";

Project ProjectWith(const std::vector<Json>& beams)
{
    return ParseProject(Json{{"version", 1}, {"beams", beams}}.dump(), "test");
}

// "stirrup stirrup-legs: 2 legs are ..." a line a problem; of a text in place "bottom 2" is the field.
std::string Told(const Project& project, const std::vector<Problem>& problems)
{
    std::string told;
    for (const Problem& problem : problems) {
        EXPECT_EQ(problem.text, TextAt(project, problem.at));
        std::string field = RowOf(problem.at.field).key;
        if (problem.at.inPlace >= 0) {
            const InPlace& text =
                project.beams[problem.at.index].inPlace[static_cast<std::size_t>(problem.at.inPlace)];
            field = RowOf(text.role).key + (" " + std::to_string(text.number));
        }
        told +=
            (told.empty() ? "" : "\n") + field + " " + problem.rule->key + ": " + problem.message.English();
    }
    return told;
}

struct Case {
    const char* base;
    const char* changes;   // of the base, as JSON
    const char* problems;  // empty for none
};

TEST(Checks, JudgeABeamByTheCode)
{
    const Case cases[] = {
        {Sound, "{}", ""},
        {Simple, "{}", ""},
        {Coupling, "{}", ""},
        {R"j({"name": "KL1(2)"})j", R"j({"area": {"top": 500}})j", ""},

        // Every field by its own grammar; what cannot be read is judged by no other rule.
        {Sound, R"j({"bottomBars": "A8@100"})j", "bottomBars unreadable: cannot be read; an example: 2B25"},
        {Sound, R"j({"side": "4B12"})j", "side unreadable: cannot be read; an example: G4B12"},
        {Sound, R"j({"torsion": "N4B12", "elevation": "-0.100", "side": ""})j", ""},
        {Sound, R"j({"elevation": "down"})j", "elevation unreadable: cannot be read; an example: -0.050"},
        {Sound, R"j({"inPlace": [{"role": "stirrup", "span": 2, "text": "2B25"}]})j",
         "stirrup 2 unreadable: cannot be read; an example: A8@100/200(2)"},

        // 2B25 are 981.7 mm², told as 982.
        {Simple, R"j({"bottomBars": "2B25", "area": {"bottom": 982}})j", ""},
        {Simple, R"j({"bottomBars": "2B25", "area": {"bottom": 983}})j",
         "bottomBars steel-area: 982 mm², 983 mm² required"},
        {Simple, R"j({"bottomBars": "", "area": {"bottom": 100}})j",
         "bottomBars steel-area: none, 100 mm² required"},
        {Simple, R"j({"area": {"leftEnd": 628, "rightEnd": 629}})j",
         "rightEnd steel-area: the through bars have 628 mm², 629 mm² required"},
        {Sound,
         R"j({"inPlace": [{"role": "bottom", "span": 1, "text": "2B20"}], "area": {"bottom": 900}})j",
         "bottom 1 steel-area: 628 mm², 900 mm² required"},
        {Sound, R"j({"bottomBars": "", "inPlace": [{"role": "bottom", "span": 1, "text": "3B20"}],
                    "area": {"bottom": 900}})j",
         ""},

        // 9.2.1, top: 3 x 25 + 2 x 37.5 = 150, and 56 for stirrups and cover.
        {Simple, R"j({"section": "206x600", "topBars": "3B25"})j", ""},
        {Simple, R"j({"section": "205x600", "topBars": "3B25", "bottomBars": "2B20"})j",
         "topBars bar-spacing: 3 bars in a row leave 37 mm clear between them, 38 mm required"},
        // 4 x 16 + 3 x 30 = 154, and 56.
        {Simple, R"j({"section": "210x600", "topBars": "4B16", "bottomBars": "2B20"})j", ""},
        {Simple, R"j({"section": "209x600", "topBars": "4B16", "bottomBars": "2B20"})j",
         "topBars bar-spacing: 4 bars in a row leave 29 mm clear between them, 30 mm required"},
        // Bottom: 4 x 25 + 3 x 25 = 175, and 56; up to C25 the cover is 5 mm more on each side.
        {Simple, R"j({"section": "231x600", "bottomBars": "4B25"})j", ""},
        {Simple, R"j({"section": "230x600", "bottomBars": "4B25"})j",
         "bottomBars bar-spacing: 4 bars in a row leave 24 mm clear between them, 25 mm required"},
        {Simple, R"j({"section": "231x600", "bottomBars": "4B25", "concreteGrade": 25})j",
         "bottomBars bar-spacing: 4 bars in a row leave 21 mm clear between them, 25 mm required"},
        // By rows: 4 x 25 + 3 x 37.5 = 212.5 in the first one.
        {Sound, R"j({"section": "269x600", "leftEnd": "2B20+4B25 4/2", "bottomBars": "2B20"})j", ""},
        {Sound, R"j({"section": "300x600", "leftEnd": "2B20+4B25"})j",
         "leftEnd bar-spacing: 6 bars in a row leave 20 mm clear between them, 38 mm required"},
        // The third row from below: 3 x 20 + 2 x (2 x 45 - 20) = 200, and 56.
        {Simple, R"j({"section": "256x600", "bottomBars": "9B20 3/3/3"})j", ""},
        {Simple, R"j({"section": "255x600", "bottomBars": "9B20 3/3/3"})j",
         "bottomBars bar-spacing: 3 bars in a row leave 69 mm clear between them, 70 mm required"},
        // Erection bars lie in the top row: 2 x 25 + 2 x 12 + 3 x 37.5 = 186.5, and 56.
        {Simple, R"j({"section": "243x600", "topBars": "2B25", "erection": "2B12"})j", ""},
        {Simple, R"j({"section": "242x600", "topBars": "2B25", "erection": "2B12"})j",
         "topBars bar-spacing: 4 bars in a row leave 37 mm clear between them, 38 mm required"},

        {Sound, R"j({"leftEnd": "2B22+2B18"})j",
         "leftEnd end-bars: the through bars 2B20 are not among them"},
        {Sound, R"j({"leftEnd": "1B20+2B22"})j",
         "leftEnd end-bars: the through bars 2B20 are not among them"},
        {Sound, R"j({"leftEnd": "2C20+2B20"})j", ""},
        // At the support after a span with through bars of its own.
        {Sound, R"j({"inPlace": [{"role": "topSpan", "span": 2, "text": "2B22"},
                                {"role": "topSupport", "support": 2, "text": "4B20"}]})j",
         "topSupport 2 end-bars: the through bars 2B22 are not among them"},

        // 11.3.7.
        {Sound, R"j({"topBars": "1B20"})j",
         "topBars through-bars: only one; a frame beam has two at least"},
        {Sound, R"j({"name": "A-LLk3a(2)", "topBars": ""})j",
         "topBars through-bars: none; a frame beam has two at least"},
        {Sound, R"j({"topBars": ""})j", "topBars through-bars: none; a frame beam has two at least"},
        {Sound, R"j({"bottomBars": ""})j", ""},
        {Sound, R"j({"topBars": "2B12", "leftEnd": "", "rightEnd": "", "stirrup": "A8@90/180(2)"})j", ""},
        {Sound, R"j({"topBars": "2B12", "leftEnd": "", "rightEnd": "", "stirrup": "A8@90/180(2)",
                    "seismicClass": 2})j",
         "topBars through-bars: 12 mm thick, 14 mm at least in seismic class 2"},
        {Sound, R"j({"bottomBars": "2B22+1B12", "stirrup": "A8@90/180(2)", "seismicClass": 2})j", ""},
        {Sound, R"j({"bottomBars": "1B22+2B12", "stirrup": "A8@90/180(2)", "seismicClass": 2})j",
         "bottomBars through-bars: 12 mm thick, 14 mm at least in seismic class 2"},
        {Simple, R"j({"topBars": "2B12", "bottomBars": "2B12"})j", ""},
        // (2 x 201 + 4 x 380) / 4 = 480.7 over 402; class 3 does not ask.
        {Sound, R"j({"topBars": "2B16", "leftEnd": "2B16+4B22 4/2", "rightEnd": "", "seismicClass": 2})j",
         "topBars through-bars: 402 mm², a quarter of the bars at the end is 481 mm²"},
        {Sound, R"j({"topBars": "2B16", "leftEnd": "2B16+4B22 4/2", "rightEnd": ""})j", ""},

        {Sound, R"j({"inPlace": [{"role": "topSupport", "support": 2, "text": "4B20"},
                                {"role": "topSupport", "support": 2, "text": "2B20+2B22"}]})j",
         "topSupport 2 support-bars: the same support has 4B20 as well"},
        {Sound, R"j({"inPlace": [{"role": "topSupport", "support": 3, "text": "2B20+1B22"}]})j",
         "topSupport 3 support-bars: the same support has 4B20 as well"},
        {Sound, R"j({"inPlace": [{"role": "topSupport", "support": 2, "text": "5B20 3/2"}]})j", ""},

        // Table 11.3.6-2: 150 mm, h / 4, 8 d; 100 mm in class 2, 6 d in class 1.
        {Sound, R"j({"stirrup": "A8@150/200(2)"})j", ""},
        {Sound, R"j({"stirrup": "A8@155/200(2)"})j",
         "stirrup stirrup-spacing: spacing 155 mm in the tight zone, at most 150 mm"},
        {Sound, R"j({"section": "300x500", "stirrup": "A8@130/200(2)"})j",
         "stirrup stirrup-spacing: spacing 130 mm in the tight zone, at most 125 mm"},
        {Sound, R"j({"bottomBars": "3B14", "stirrup": "A8@115/200(2)"})j",
         "stirrup stirrup-spacing: spacing 115 mm in the tight zone, at most 112 mm"},
        {Sound, R"j({"seismicClass": 2, "stirrup": "A8@110/200(2)"})j",
         "stirrup stirrup-spacing: spacing 110 mm in the tight zone, at most 100 mm"},
        {Sound, R"j({"seismicClass": 1, "section": "240x600", "topBars": "2B16", "bottomBars": "3B16",
                    "leftEnd": "", "rightEnd": "", "stirrup": "A10@100/200(2)"})j",
         "stirrup stirrup-spacing: spacing 100 mm in the tight zone, at most 96 mm"},
        {Sound, R"j({"stirrup": "A8@200(2)"})j",
         "stirrup stirrup-spacing: spacing 200 mm at the ends, at most 150 mm"},
        // 11.3.9: twice the tight spacing; 9.2.9: 250 mm at 600 mm depth.
        {Sound, R"j({"stirrup": "A8@100/210(2)"})j",
         "stirrup stirrup-spacing: spacing 210 mm, at most twice the tight one: 200 mm"},
        {Sound, R"j({"stirrup": "A8@130/260(2)"})j",
         "stirrup stirrup-spacing: spacing 260 mm, at most 250 mm at this depth"},
        {Coupling, R"j({"stirrup": "A10@100/150(2)"})j",
         "stirrup stirrup-spacing: spacing 150 mm at the ends, at most 100 mm"},
        // Table 9.2.9, on both sides of its depths; a beam that tapers goes by the lesser one.
        {Simple, R"j({"section": "300x150", "stirrup": "A8@200(2)"})j", ""},
        {Simple, R"j({"section": "300x300", "stirrup": "A8@160(2)"})j",
         "stirrup stirrup-spacing: spacing 160 mm, at most 150 mm at this depth"},
        {Simple, R"j({"section": "300x500", "stirrup": "A8@210(2)"})j",
         "stirrup stirrup-spacing: spacing 210 mm, at most 200 mm at this depth"},
        {Simple, R"j({"section": "300x800", "stirrup": "A8@250(2)"})j", ""},
        {Simple, R"j({"section": "300x850", "stirrup": "A8@300(2)"})j", ""},
        {Simple, R"j({"section": "300x600/300", "stirrup": "A8@160(2)"})j",
         "stirrup stirrup-spacing: spacing 160 mm, at most 150 mm at this depth"},
        // The beam's own stirrups where one span is lower: 400 / 4.
        {Sound, R"j({"stirrup": "A8@120/200(2)",
                    "inPlace": [{"role": "section", "span": 2, "text": "300x400"}]})j",
         "stirrup stirrup-spacing: spacing 120 mm in the tight zone, at most 100 mm"},

        {Sound, R"j({"stirrup": "A6@100/200(2)"})j", "stirrup stirrup-diameter: 6 mm thick, 8 mm at least"},
        {Sound, R"j({"stirrup": "A6@100/200(2)", "seismicClass": 4})j", ""},
        {Simple, R"j({"stirrup": "A6@200(2)", "section": "300x850"})j",
         "stirrup stirrup-diameter: 6 mm thick, 8 mm at least"},

        // 11.3.8: 306 - 40 - 2 x 8 = 250 clear; 330 - 40 - 2 x 14 = 262, under 20 x 14 = 280.
        {Sound, R"j({"section": "306x600"})j", ""},
        {Sound, R"j({"section": "307x600"})j",
         "stirrup stirrup-legs: 2 legs are 251 mm apart, at most 250 mm"},
        {Sound, R"j({"section": "330x600", "stirrup": "A14@100/200(2)"})j", ""},
        {Sound, R"j({"section": "390x600", "stirrup": "A16@100/200(2)"})j",
         "stirrup stirrup-legs: 2 legs are 318 mm apart, at most 300 mm"},
        {Sound, R"j({"section": "350x600", "stirrup": "A8@100(4)/200(2)"})j", ""},
        {Sound, R"j({"seismicClass": 1, "stirrup": "A10@100/200(2)"})j",
         "stirrup stirrup-legs: 2 legs are 240 mm apart, at most 200 mm"},
        {Simple, R"j({"section": "400x600"})j", ""},
        {Simple, R"j({"section": "450x600"})j",
         "stirrup stirrup-legs: 2 legs; beams wider than 400 mm have more"},
        {Simple, R"j({"stirrup": "A8@200"})j", "stirrup stirrup-legs: the number of legs is missing"},

        {Sound, R"j({"drawnWidth": 311.5})j", ""},
        {Sound, R"j({"drawnWidth": 250})j", "section section-width: drawn 250 mm wide"},
    };
    for (const auto& [base, changes, problems] : cases) {
        Json beam = Json::parse(base);
        beam.merge_patch(Json::parse(changes));
        const Project project = ProjectWith({beam});
        EXPECT_EQ(Told(project, CheckBeam(project, 0)), problems) << base << changes;
    }
}

TEST(Checks, CompareTheNamesOfAFloor)
{
    const auto beam = [](const char* name, const char* section, const char* floor = "1") {
        return Json{{"name", name}, {"section", section}, {"floor", floor}};
    };
    struct NameCase {
        std::vector<Json> beams;
        std::string problems;
    };
    const NameCase cases[] = {
        {{beam("L1(1)", "300x600"), beam("L1(1)", "300x600"), beam("L1(1)", "")}, ""},
        {{beam("L1(1)", "300x600"), beam("L1(1)", "300x500")},
         "section name-twice: another L1(1) has 300x600"},
        {{beam("L1(1)", "300x600"), beam("L1(2)", "300x600")},
         "name name-twice: the number is that of L1(1) already"},
        {{beam("L1(1)", "300x600"), beam("L1(1)", "300x500", "2"), beam("L2", "300x500")}, ""},
        {{beam("L7(1)", ""), beam("L4(1)", ""), beam("L5(1)", ""), beam("KL2", ""), beam("KL4", "")},
         "name name-gap: there is no L6 before it\nname name-gap: there is no KL3 before it"},
        {{beam("L1", ""), beam("L4a", "")}, "name name-gap: there are no L2 to L3 before it"},
        {{beam("", "300x600"), beam("", "300x500"), beam("?", "300x500")},
         "name unreadable: cannot be read; an example: KL1(3)"},
    };
    for (const NameCase& each : cases) {
        const Project project = ProjectWith(each.beams);
        EXPECT_EQ(Told(project, CheckProject(project)), each.problems);
    }
}

TEST(Checks, LeaveOutWhatTheProjectSwitchesOff)
{
    Json beam = Json::parse(Sound);
    beam["name"] = "KL3";
    beam["leftEnd"] = "2B22";
    Json source = {
        {"version", 1},
        {"beams", {Json{{"name", "KL1"}}, beam}},
        {"walls", {Json{{"name", "?"}, {"verticalBars", "B28"}, {"horizontalBars", "B12 @ 2x"}}}}};
    Project project = ParseProject(source.dump(), "test");
    const std::string wall = "horizontalBars unreadable: cannot be read; an example: B10@150";
    const std::string gap = "name name-gap: there is no KL2 before it\n";
    const std::string end = "leftEnd end-bars: the through bars 2B20 are not among them\n";
    EXPECT_EQ(Told(project, CheckProject(project)), gap + end + wall);

    source["checksOff"] = {"end-bars", "of a later program", "unreadable"};
    project = ParseProject(source.dump(), "test");
    EXPECT_EQ(Told(project, CheckProject(project)) + "\n", gap);
    EXPECT_EQ(Json::parse(FormatProject(project))["checksOff"], source["checksOff"]);
}

TEST(Checks, FindNothingInTheSampleAndInGeneratedProjects)
{
    for (const Project& project : {SampleProject(), GenerateProject(3000, 1), GenerateProject(500, 7)}) {
        EXPECT_EQ(Told(project, CheckProject(project)), "") << project.title;
    }
}

// Kept problems are those of the project as it is, whatever was changed before.
TEST(Checks, AreTheSameAfterChanges)
{
    Project project = SampleProject();
    Checks checks(project);
    std::mt19937 random(5);
    constexpr std::array<const char*, 6> Texts = {"", "2B12", "A8@400(2)", "L3(1)", "250x300", "9B25"};
    for (int i = 0; i < 300; ++i) {
        const FieldRef ref{false, random() % project.beams.size(), BeamFields()[random() % 11]};
        TextAt(project, ref) = Texts.at(random() % Texts.size());
        checks.Update(ref);
        if (i % 10 == 9) {
            EXPECT_EQ(Told(project, checks.All()), Told(project, CheckProject(project)));
        }
    }
    EXPECT_GT(checks.All().size(), 50U);
    project.beams.resize(3);
    checks.Renew();
    EXPECT_EQ(Told(project, checks.All()), Told(project, CheckProject(project)));
}

}  // namespace
