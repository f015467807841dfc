// Rankings of a small project: origin, count, focus, table rows and the remarks on them.
#include <sstream>

#include <gtest/gtest.h>

#include "desk/ranking/Ranking.h"
#include "desk/ranking/Tables.h"
#include "tests/ranking/Plain.h"
#include "tests/support/Seed.h"

namespace Desk {
namespace {

Project Small()
{
    Project project;
    const auto add = [&project](const char* name, const char* section, const char* top, const char* side) {
        Beam& beam = project.beams.emplace_back();
        beam.name = name;
        beam.section = section;
        beam.topBars = top;
        beam.side = side;
        beam.stirrup = "A8@200(2)";
    };
    add("KL1(3)", "300x600", "2B20", "G4B12");
    add("KL2(3)", "300x600", "2B25", "");
    add("KL4", "350x1000", "2B20", "");
    project.beams[0].torsion = "N4B12";
    return project;
}

// "text source uses stamp" of each candidate, the focus marked.
std::string Told(const Ranking& ranking)
{
    static constexpr const char* Sources[] = {"project", "guess", "given", "table"};
    std::ostringstream told;
    for (std::size_t i = 0; i < ranking.candidates.size(); ++i) {
        const Candidate& candidate = ranking.candidates[i];
        told << (static_cast<int>(i) == ranking.focus ? ">" : "") << candidate.text << ' '
             << Sources[static_cast<int>(candidate.source)];
        if (candidate.source == Source::Project) {
            told << ' ' << candidate.uses << ' ' << candidate.stamp;
        }
        for (const Writing& writing : candidate.writings) {
            told << ' ' << writing.text << '=' << writing.uses;
        }
        told << '\n';
    }
    return told.str();
}

TEST(Ranking, TellsWhereEachCandidateComesFrom)
{
    const Project project = Small();
    EXPECT_EQ(Told(Rank(project, {.barKind = "1"})),
              "2B20 project 2 10\n>2B25 project 1 5\n2B12 guess\n2B14 guess\n2B16 guess\n2B18 guess\n"
              "2B22 guess\n2B28 guess\n");
    EXPECT_EQ(Told(Rank(project, {.barKind = "5.2"})).substr(0, 40),
              ">4B12 project 2 5 N4B12=1 G4B12=1\n3B12 g");
    EXPECT_EQ(Told(Rank(project, {.barKind = "2B16", .width = 300, .area = 1000, .wantsTable = true})),
              "4B16 guess\n2B16+1B14 guess\n2B16+2B14 guess\n2B16+1B18 guess\n2B16+2B18 guess\n2B16 given\n"
              "5B16 table\n");
    EXPECT_EQ(Told(Rank(project, {.ranker = Ranker::Names})),
              ">KL3(3) project 2 0 KL(3)=2\nKL5(3) project 2 0 KL(3)=2\n"
              "KL3 project 1 0 KL=1\nKL5 project 1 0 KL=1\n");
    EXPECT_EQ(Told(Rank(project, {.ranker = Ranker::Elevations})),
              "       guess\n0.1500 guess\n0.3000 guess\n0.6000 guess\n");
    const std::string sections = Told(Rank(project, {.ranker = Ranker::Sections}));
    EXPECT_NE(sections.find("300x600 project 2 0\n350x500 guess\n"), std::string::npos) << sections;
    const std::string stirrups = Told(Rank(
        project,
        {.ranker = Ranker::Stirrups, .width = 300, .grade = 30, .seismicClass = 3, .wantsTable = true}));
    EXPECT_TRUE(stirrups.starts_with(">A8@200(2) project 3 1\n")) << stirrups;
    EXPECT_TRUE(stirrups.ends_with("A10@250(3) table\nA10@100/250(3) table\n")) << stirrups;
    EXPECT_EQ(Told(Rank({}, {.barKind = "1", .projectKind = 0})).substr(0, 22), "4B20 guess\n2B12 guess\n");
}

TEST(Rankings, LeaveOutWhatIsInNoGrammar)
{
    Project project;
    for (const char* const kept : {"see note", "2B25", "300x600", "0.1500", "A8@100(2)"}) {
        Beam& beam = project.beams.emplace_back();
        beam.section = beam.elevation = beam.stirrup = beam.topBars = kept;
    }
    const auto fromProject = [&](const Question& question) {
        std::string texts;
        for (const Candidate& candidate : Rank(project, question).candidates) {
            texts += candidate.source == Source::Project ? candidate.text + ' ' : "";
        }
        return texts;
    };
    EXPECT_EQ(fromProject({.ranker = Ranker::Sections}), "300x600 ");
    EXPECT_EQ(fromProject({.ranker = Ranker::Elevations}), "0.1500 ");
    EXPECT_EQ(fromProject({.ranker = Ranker::Stirrups}), "A8@100(2) ");
    EXPECT_EQ(fromProject({.barKind = "1"}), "2B25 ");
}

// What a ranker run on all texts lists, with its stamps.
std::string ToldPlainly(const Project& project, const Question& question)
{
    const PlainHost host(project);
    const List list = RunRanker(question);
    std::ostringstream told;
    for (int i = 0; i < list.texts.GetSize(); ++i) {
        told << (i == list.focus ? ">" : "") << Utf8FromGbk(list.texts[i]) << ' '
             << (i < list.stamps.GetSize() ? list.stamps[i] : 0) << '\n';
    }
    return told.str();
}

TEST(Rankings, AreThoseOfAllTextsAfterEachChange)
{
    std::mt19937 random(FirstSeed(11));
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE(round);
        Project project = RandomProject(random, 14);
        project.walls.resize(3);
        Rankings kept(project);
        for (int step = 0; step < 60; ++step) {
            const std::size_t at = random() % project.beams.size();
            const std::vector<FieldRef> refs = RefsOf(project, {false, at});
            const FieldRef ref = refs[random() % refs.size()];
            if (random() % 2 == 0) {
                TextAt(project, ref) = RandomText(random, ref.field);
                kept.Update(at);
            }
            const bool wantsTable = random() % 2 == 0;
            Question question = QuestionFor(project, ref, wantsTable);
            const Ranking& ranking = kept.For(ref, wantsTable);
            EXPECT_EQ(Told(ranking), Told(ChoicesFor(project, ref, wantsTable)));
            question.heads.clear();
            const Ranking bare = Rank(project, question);
            std::ostringstream told;
            for (const Candidate& candidate : bare.candidates) {
                told << (&candidate - bare.candidates.data() == bare.focus ? ">" : "") << candidate.text
                     << ' ' << candidate.stamp << '\n';
            }
            EXPECT_EQ(told.str(), ToldPlainly(project, question)) << question.barKind;

            const std::size_t wall = random() % 3;
            project.walls[wall].verticalBars = RandomText(random, Field::Stirrup);
            kept.UpdateWall(wall);
            const FieldRef ofWall{true, wall, Field::VerticalBars};
            EXPECT_EQ(Told(kept.For(ofWall, false)), Told(ChoicesFor(project, ofWall, false)));
        }
    }
}

TEST(Question, ComesFromTheTableOfFieldsAndTheBeam)
{
    Beam beam;
    beam.section = "300x600";
    beam.area = {900, 1100, 1300, 1500};
    const auto told = [&beam](Field field) {
        const Question question = QuestionFor(beam, field, true);
        return question.barKind + ' ' + std::to_string(question.width.value_or(-1)) + ' ' +
               std::to_string(question.area.value_or(-1)) + ' ' +
               (question.wantsTable ? "table" : "no table");
    };
    EXPECT_EQ(told(Field::LeftEnd), "2 300 1300 table");
    EXPECT_EQ(told(Field::RightEnd), "3 300 1500 table");
    beam.topBars = "2B25";
    EXPECT_EQ(told(Field::LeftEnd), "2B25 300 1300 table");
    EXPECT_EQ(told(Field::RightEnd), "2B25 300 1500 table");
    EXPECT_EQ(told(Field::TopBars), "1 300 900 table");
    EXPECT_EQ(told(Field::BottomBars), "5.1 300 1100 table");
    EXPECT_EQ(told(Field::Erection), "4 300 -1 no table");
    EXPECT_EQ(told(Field::Torsion), "5.2 300 -1 no table");
    EXPECT_EQ(told(Field::Side), "5.2 300 -1 no table");
    beam.topBars = "as KL1";
    EXPECT_EQ(told(Field::LeftEnd), "2 300 1300 table");
    beam.section = "";
    EXPECT_EQ(told(Field::TopBars), "1 -1 900 no table");

    beam.topBars = "2B25";
    beam.leftEnd = "4B25";
    beam.side = "G4B12";
    const auto texts = [&beam](const char* kind) {
        std::string all;
        for (const std::string* const text : BarTexts(beam, kind)) {
            all += *text + ';';
        }
        return all;
    };
    EXPECT_EQ(texts("2B25") + '|' + texts("2B22") + '|' + texts("2") + '|' + texts("5.2"),
              "4B25;;||4B25;|;G4B12;");
}

TEST(Question, OfATextInPlaceGoesByItsSpanOrSupport)
{
    Project project;
    Beam& beam = project.beams.emplace_back();
    beam.section = "300x600";
    beam.topBars = "2B25";
    beam.rightEnd = "4B25";
    beam.area = {900, 1100, 1300, 1500};
    beam.inPlace = {
        {Role::TopSupport, 1, "5B25", {}, -1, {}}, {Role::TopSupport, 2, "6B25", {}, -1, {}},
        {Role::TopSupport, 3, "7B25", {}, -1, {}}, {Role::TopSpan, 2, "3B22", {}, -1, {}},
        {Role::Bottom, 1, "3B20", {}, -1, {}},     {Role::Bottom, 2, "", {}, -1, {}},
        {Role::Section, 2, "250x500", {}, -1, {}}, {Role::Torsion, 1, "N4B12", {}, -1, {}},
    };
    const auto told = [&project](bool bare) {
        project.beams[0].topBars = bare ? "" : "2B25";
        std::vector<std::string> all;
        for (const FieldRef& ref : RefsOf(project, {})) {
            if (ref.inPlace >= 0) {
                const Question question = QuestionFor(project, ref, true);
                all.push_back(question.barKind + ' ' + std::to_string(question.width.value_or(-1)) + ' ' +
                              std::to_string(question.area.value_or(-1)) +
                              (question.wantsTable ? " table" : "") +
                              (question.heads.empty() ? "" : " head"));
            }
        }
        return all;
    };
    using All = std::vector<std::string>;
    const All spans = {"1 250 900 table", "5.1 300 1100 table", "5.1 250 1100 table", " 250 -1",
                       "5.2 300 -1 head"};
    const auto withSpans = [&spans](All supports) {
        supports.insert(supports.end(), spans.begin(), spans.end());
        return supports;
    };
    EXPECT_EQ(told(false), withSpans({"2B25 300 1300 table", "2B25 250 -1", "2B25 300 -1"}))
        << "no last support";
    beam.spans = {6000, 5700};
    EXPECT_EQ(told(false), withSpans({"2B25 300 1300 table", "2B25 250 -1", "2B25 250 1500 table"}));
    EXPECT_EQ(told(true), withSpans({"2 300 1300 table", "2 250 -1", "3 250 1500 table"}));

    const auto texts = [&beam](const char* kind) {
        std::string all;
        for (const std::string* const text : BarTexts(beam, kind)) {
            all += *text + ';';
        }
        return all;
    };
    EXPECT_EQ(texts("2") + '|' + texts("3") + '|' + texts("1") + '|' + texts("5.2"),
              ";5B25;6B25;|4B25;7B25;|;3B22;|;;N4B12;");
    beam.topBars = "2B25";
    EXPECT_EQ(texts("2B25"), ";4B25;5B25;6B25;7B25;");

    // They count as uses, and are offered, like any other annotation.
    const Ranking ends = ChoicesFor(project, {false, 0, Field::LeftEnd, 1}, false);
    const auto own = std::find_if(ends.candidates.begin(), ends.candidates.end(),
                                  [](const Candidate& each) { return each.text == "7B25"; });
    ASSERT_NE(own, ends.candidates.end());
    EXPECT_EQ(own->uses, 1);
    const Ranking sections = ChoicesFor(project, {false, 0, Field::Section}, false);
    EXPECT_NE(Told(sections).find("250x500 project 1 "), std::string::npos) << Told(sections);
    EXPECT_EQ(ChoicesFor(project, {false, 0, Field::Torsion, 7}, false).candidates.front().text, "N4B12");
}

TEST(Choices, CarryTheHeadThatTheFieldIsWrittenWith)
{
    Project project = Small();
    project.walls.push_back({"Q1", 200, "A10@150", "", {}, {}, {}, nullptr});
    const auto first = [&project](Field field, bool isWall = false) {
        const Ranking ranking = ChoicesFor(project, {isWall, 0, field}, false);
        return ranking.candidates.empty() ? std::string("none")
                                          : ranking.candidates.front().text + ' ' +
                                                std::to_string(ranking.candidates.front().uses);
    };
    EXPECT_EQ(first(Field::Side), "G4B12 1");
    EXPECT_EQ(first(Field::Torsion), "N4B12 1");
    EXPECT_EQ(first(Field::TopBars), "2B20 2");
    EXPECT_EQ(first(Field::HorizontalBars, true), "A10@150 1");
    EXPECT_EQ(first(Field::Name, true), "none");
    project.beams[0].torsion = "*4B12";
    EXPECT_EQ(first(Field::Torsion), "*4B12 1");
    project.beams[0].torsion.clear();
    EXPECT_EQ(ChoicesFor(project, {false, 0, Field::Torsion}, false).candidates.front().source,
              Source::Guess);
}

TEST(Tables, SayWhyTheyHaveNothing)
{
    const TableAnswer near = BarsFor(300, 1000, BarColumn::Complete);
    EXPECT_EQ(near.texts,
              (std::vector<std::string>{"5B16", "2B16+2B20", "4B18", "3B20", "2B20+1B22", "2B25"}));
    EXPECT_EQ(near.remark, "");
    const TableAnswer end = BarsFor(250, 3000, BarColumn::Bottom);
    EXPECT_EQ(end.texts.size(), 7U);
    EXPECT_TRUE(end.isFromEnd);
    EXPECT_EQ(end.remark, "the bar table has no row within 70 mm² of 3000 mm²");
    const TableAnswer gap = BarsFor(250, 1850, BarColumn::Top);
    EXPECT_TRUE(gap.texts.empty() && !gap.isFromEnd);
    EXPECT_EQ(gap.remark, "the bar table has no row within 70 mm² of 1850 mm²");
    EXPECT_EQ(BarsFor(701, 1000, BarColumn::Top).remark,
              "the bar table has widths from 200 to 700 mm, nothing for 701");
    EXPECT_EQ(BarsOn(300, 1000, "2B28").remark,
              "the bar table has no row within 30 mm² of 1000 mm² for 2B28");
    EXPECT_EQ(StirrupsFor(400, 40, 1).texts, (std::vector<std::string>{"A8@200(4)", "A8@100/200(4)"}));
    EXPECT_NE(StirrupsFor(300, 22, 1).remark.find("grades 20, 25, 30, 35 and 40"), std::string::npos);
    EXPECT_NE(StirrupsFor(220, 30, 1).remark.find("widths 200 to 600"), std::string::npos);
}

}  // namespace
}  // namespace Desk
