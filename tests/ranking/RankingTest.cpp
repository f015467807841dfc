// Rankings of a small project: origin, count, focus, table rows and the remarks on them.
#include <sstream>

#include <gtest/gtest.h>

#include "desk/ranking/Ranking.h"
#include "desk/ranking/Tables.h"

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
    EXPECT_EQ(Told(RankBars(project, {.kind = "1"})),
              "2B20 project 2 10\n>2B25 project 1 5\n2B12 guess\n2B14 guess\n2B16 guess\n2B18 guess\n"
              "2B22 guess\n2B28 guess\n");
    EXPECT_EQ(Told(RankBars(project, {.kind = "5.2"})).substr(0, 40),
              ">4B12 project 2 5 N4B12=1 G4B12=1\n3B12 g");
    EXPECT_EQ(Told(RankBars(project, {.kind = "2B16", .width = 300, .area = 1000, .table = true})),
              "4B16 guess\n2B16+1B14 guess\n2B16+2B14 guess\n2B16+1B18 guess\n2B16+2B18 guess\n2B16 given\n"
              "5B16 table\n");
    EXPECT_EQ(Told(RankNames(project)), ">KL3(3) project 2 0 KL(3)=2\nKL5(3) project 2 0 KL(3)=2\n"
                                        "KL3 project 1 0 KL=1\nKL5 project 1 0 KL=1\n");
    EXPECT_EQ(Told(RankElevations(project)), "       guess\n0.1500 guess\n0.3000 guess\n0.6000 guess\n");
    const std::string sections = Told(RankSections(project));
    EXPECT_NE(sections.find("300x600 project 2 0\n350x500 guess\n"), std::string::npos) << sections;
    const std::string stirrups =
        Told(RankStirrups(project, {.width = 300, .grade = 30, .seismicClass = 3, .table = true}));
    EXPECT_TRUE(stirrups.starts_with(">A8@200(2) project 3 1\n")) << stirrups;
    EXPECT_TRUE(stirrups.ends_with("A10@250(3) table\nA10@100/250(3) table\n")) << stirrups;
    EXPECT_EQ(Told(RankBars({}, {.kind = "1", .projectKind = 0})).substr(0, 22),
              "4B20 guess\n2B12 guess\n");
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
