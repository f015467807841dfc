// What the host answers when the module asks, and the way texts take between UTF-8 and GBK.
#include <stdexcept>

#include <gtest/gtest.h>

#include "desk/project/Encoding.h"
#include "desk/ranking/RankerTexts.h"
#include "tests/support/Texts.h"

namespace Desk {
namespace {

Project TwoBeams()
{
    Project project;
    Beam& first = project.beams.emplace_back();
    first.name = "KL2(3)";
    first.section = "300x600";
    first.stirrup = "A8@100/200(2)";
    first.topBars = "2B25";
    first.leftEnd = "2B25+2B22";
    first.rightEnd = "4B25";
    first.bottomBars = "3B20";
    first.erection = "2B12";
    first.side = "G4B12";
    Beam& second = project.beams.emplace_back();
    second.name = "楼KL7";
    second.section = "300x600";
    second.elevation = "-0.050";
    second.topBars = "2B22";
    second.leftEnd = "2B22+1B20";
    second.torsion = "N4B14";
    second.inPlace = {{Role::Stirrup, 1, "A8@100(2)", {}, -1, {}},
                      {Role::Section, 1, "250x600", {}, -1, {}}};
    for (const char* const name : {"", "3", "KL(2)", "KL-4", "梁", "KL5(1)"}) {
        project.beams.emplace_back().name = name;
    }
    return project;
}

// All texts that the ranker gets, once for each use.
Delivery DeliveryOf(const Project& project, Ranker ranker, const std::string& barKind = {})
{
    RankerTexts texts(ranker, barKind);
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        texts.Set(i, project.beams[i]);
    }
    std::vector<int> numbers;
    for (const RankerTexts::Use& use : texts.Uses()) {
        numbers.push_back(use.text);
    }
    return texts.Delivered(numbers);
}

TEST(Host, AnswersEachKindOfBars)
{
    const Project project = TwoBeams();
    const std::vector<std::pair<const char*, Texts>> cases = {
        {"1", {"2B22", "2B25"}},
        {"2", {"2B22+1B20", "2B25+2B22"}},
        {"3", {"4B25"}},
        {"4", {"2B12"}},
        {"5.1", {"3B20"}},
        {"5.2", {"G4B12", "N4B14"}},
        {"2B22", {"2B22+1B20"}},
        {"2B25", {"2B25+2B22", "4B25"}},
        {"2B20", {}},
    };
    for (const auto& [kind, texts] : cases) {
        const ProjectHost host(DeliveryOf(project, Ranker::Bars, kind));
        CHABIAO_HITNESS_RANKER ranker;
        ranker.SetPara(300, 1000, nullptr, kind);
        CStringArray list;
        ranker.SelectFromProject(list);
        EXPECT_EQ(TextsOf(list), texts) << kind;
    }
}

TEST(Host, AnswersNamesSectionsElevationsAndStirrups)
{
    const Project project = TwoBeams();
    CStringArray list;
    {
        const ProjectHost host(DeliveryOf(project, Ranker::Names));
        EXPECT_THROW(ProjectHost({}), std::logic_error);
        BEAMNAME_HITNESS_RANKER().SelectFromProject(list);
        const std::string other = "\xC2\xA5KL";  // a type of its own, with its plain suffix
        EXPECT_EQ(TextsOf(list), (Texts{"KL1(3)", "KL3(3)", "KL6(3)", "KL1(1)", "KL3(1)", "KL6(1)",
                                        other + "6", other + "8"}));
        list.RemoveAll();
    }
    {
        const ProjectHost host(DeliveryOf(project, Ranker::Sections));
        BEAMSIZE_HITNESS_RANKER().SelectFromProject(list);
    }
    {
        const ProjectHost host(DeliveryOf(project, Ranker::Elevations));
        BEAMLEVEL_HITNESS_RANKER().SelectFromProject(list);
    }
    {
        const ProjectHost host(DeliveryOf(project, Ranker::Stirrups));
        GUJIN_HITNESS_RANKER().SelectFromProject(list);
        EXPECT_EQ(TextsOf(list), (Texts{"300x600", "250x600", "-0.050", "A8@100/200(2)", "A8@100(2)"}));
    }
    list.RemoveAll();
    BEAMSIZE_HITNESS_RANKER().SelectFromProject(list);
    EXPECT_TRUE(list.IsEmpty()) << "the slots are empty again";
}

TEST(Encoding, PassesWhatBothHaveAndSaysWhatNot)
{
    for (const std::string text : {"", "KL1(3)", "楼梯梁TL1", "±×（）"}) {
        const std::optional<CString> gbk = GbkFromUtf8(text);
        ASSERT_TRUE(gbk) << text;
        EXPECT_EQ(Utf8FromGbk(*gbk), text);
    }
    EXPECT_EQ(GbkFromUtf8("楼"), CString("\xC2\xA5"));
    for (const char* const text : {"😀", "\xFF", "a\xE6\xA5", "é楼ß"}) {
        EXPECT_FALSE(GbkFromUtf8(text)) << text;
    }
    EXPECT_EQ(Utf8FromGbk("\xC2\xA5\xFF"
                          "1\xC2"),
              "楼\uFFFD"
              "1\uFFFD");
    std::string longText;
    for (int i = 0; i < 3000; ++i) {
        longText += i % 3 == 0 ? "梁" : "L";
    }
    EXPECT_EQ(Utf8FromGbk(*GbkFromUtf8(longText)), longText);
}

}  // namespace
}  // namespace Desk
