// Steps read from text: their parts, and what is said of wrong ones.
#include "desk/console/panel/Step.h"

#include <gtest/gtest.h>

#include "desk/project/Failure.h"

namespace {

using namespace Desk::Panels;

TEST(Steps, EndAtSemicolonsAndLinesButNotInQuotes)
{
    const std::vector<Step> steps =
        ReadSteps("\xEF\xBB\xBF# remark; click\r\n click 552 KL ;;\r\n"
                  "click 1341 \";\"; click '(   )'\nclick 1345 \"#1\"\nright 552 #3\n"
                  "drag -30 4 1316;double 5,-6; key shift+tab 3;type 1316 \"\"",
                  "a.steps");
    ASSERT_EQ(steps.size(), 9U);
    EXPECT_EQ(steps[0].origin, "a.steps:2");
    EXPECT_EQ(steps[0].source, "click 552 KL");
    EXPECT_EQ(steps[0].target.control, "552");
    EXPECT_EQ(steps[0].target.rowText, "KL");
    EXPECT_EQ(steps[1].target.rowText, ";");
    EXPECT_EQ(steps[2].origin, "a.steps:3");
    EXPECT_EQ(steps[2].target.control, "(   )");
    EXPECT_EQ(steps[3].target.rowText, "#1");
    EXPECT_EQ(steps[4].target.rowNumber, 3);
    EXPECT_EQ(steps[5].distance, CPoint(-30, 4));
    EXPECT_EQ(steps[5].target.control, "1316");
    EXPECT_EQ(steps[6].target.point, CPoint(5, -6));
    EXPECT_TRUE(steps[7].shift);
    EXPECT_EQ(steps[7].number, 3);
    EXPECT_TRUE(steps[8].text.IsEmpty());
    EXPECT_TRUE(ReadSteps(" ;\n# nothing").empty());
}

TEST(Steps, TellWhichIsWrongWhatAndHowItIsRight)
{
    const struct {
        const char* text;
        const char* said;
    } cases[] = {
        {"show; clik 552 KL", "step 2: clik 552 KL: unknown step \"clik\"; steps: click, double"},
        {"click", "step 1: click: the control or position is missing; write: click LIST ROW"},
        {"click 552 #x", "a row's number is #0, #1, ..., not \"#x\""},
        {"click 552 KL 3", "unexpected \"3\"; a text with blanks needs quotes"},
        {"click 552 \"KL\nshow", "step 1: click 552 \"KL: the closing quote is missing: \""},
        {"click \"KL\"x", "a blank is required after a closing quote"},
        {"drag 3", "the distance down is missing"},
        {"drag 3 99999", "the distance down is a whole number from -10000 to 10000, not \"99999\""},
        {"key F13", "unknown key \"F13\"; keys: esc, tab"},
        {"key tab 0", "the number of times is a whole number from 1 to 1000"},
        {"kind 9", "the kind is a whole number from -1 to 8, not \"9\""},
        {"type 1316 \xE2\x98\x83", "the text has a character that GBK lacks"},
        {"type 1316", "the text is missing; write: type BOX TEXT"},
        {"show now", "write: show"},
    };
    for (const auto& [text, said] : cases) {
        try {
            ADD_FAILURE() << text << " was taken as " << ReadSteps(text).size() << " steps";
        } catch (const Desk::Failure& failure) {
            EXPECT_NE(std::string(failure.what()).find(said), std::string::npos) << failure.what();
        }
    }
}

}  // namespace
