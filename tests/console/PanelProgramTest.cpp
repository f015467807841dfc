// beamdesk panel and beamdesk events as a person calls them: what each panel delivers, and wrong use.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/console/Shell.h"

namespace {

struct PanelCase {
    const char* words;
    std::vector<const char*> parts;  // in this order
};

void ExpectParts(const std::string& text, const std::vector<const char*>& parts)
{
    std::size_t at = 0;
    for (const char* const part : parts) {
        at = text.find(part, at);
        ASSERT_NE(at, std::string::npos) << part << " is not, or not there, in:\n" << text;
    }
}

TEST(PanelProgram, DeliversWhatWasComposed)
{
    const PanelCase cases[] = {
        {"name --do 'type 1316 L; type 1643 3; clear 1643; type 1643 12; type 1654 2; right'",
         {"message box: 跨数有误", "-> item: SetValue \"L12(2)\"", "(hidden, as before)"}},
        {"name --to parent --quiet --text 'KL3(2A)' --do 'double 1062 0; right 5,5'",
         {"callback: parent window, 1, \"KL0(2A)\", 8"}},
        {"name --quiet --text 'KL3(2)' --do 'key esc; text WKL7; show; right'",
         {"4. right", "SetValue \"WKL7(2)\""}},
        {"section --to host --quiet --text '300*600' --do 'double 1317 400'",
         {"callback: host data, 0, \"400*600\", 0"}},
        {"section --text '' --do 'right'", {"-> hidden, nothing delivered"}},
        {"elevation --to host --quiet --do 'type 1320 1.5; right'", {"callback: host data, 2, \"1.5\", 7"}},
        {"elevation --quiet --text '(0.3)' --do 'click -; click 1367; right'", {"SetValue \"(-0.31)\""}},
        {"stirrup --to parent --quiet --text 'A8@200(2)' --do 'click 1356 100; right'",
         {"callback: parent window, 1, \"A8@100/200(2)\", 1"}},
        {"bar --kind 4 --to parent --quiet --do 'click 1338 #1; click 1340 12; right'",
         {"callback: parent window, 1, \"G2B12 \", 24", "group 4: \"G2B12 \", pieces \"G2B12 \""}},
        {"bars --quiet --do 'click 1345 #1; kind 2; click 1338 2; click 1340 12; click 删除; right'",
         {"6. right", "SetValue \"\"", "mode: new piece"}},
        {"hbars --text B8@150 --do 'right; show; right; text C12@100; show; click 1116 200; key esc'",
         {"2. show", "3. right", "hidden, nothing delivered", "\"C12@100\", bound", "[200 ]", "7. key esc",
          "nothing delivered"}},
        {"hbars --quiet --text A6.5@50 --do right", {"SetValue \"A6.5@50\"", "not bound"}},
        {"vbars --quiet --do 'click 1306 B; click 1307 28; right'", {"SetValue \"B28\""}},
        {"bars --kind -1 --do 'drag 30 -4; drag 1 1 1347'", {"(at 30,-4)", "(at 31,-3)"}},
    };
    for (const PanelCase& one : cases) {
        SCOPED_TRACE(one.words);
        const Answer answer = RunShell(std::string("beamdesk panel ") + one.words);
        EXPECT_EQ(answer.status, 0);
        ExpectParts(answer.out, one.parts);
    }
}

TEST(PanelProgram, RefusesWrongUseWithStatusTwo)
{
    const PanelCase cases[] = {
        {"panel", {"name, section, elevation, stirrup, bars"}},
        {"panel name --to host", {"item or parent is required, not \"host\""}},
        {"panel bars --kind 9", {"-1 to 8"}},
        {"panel bars --text 2B25", {"--text"}},
        {"panel vbars --to host", {"--to"}},
        {"panel name --do show --script x", {"excludes"}},
        {"panel name --script /nowhere/x", {"/nowhere/x: this script cannot be read"}},
        {"panel name --script /", {"this script cannot be read"}},
        {"panel name --text '\xE2\x98\x83'", {"--text", "GBK"}},
        {"panel bars --do 'text 2B25'", {"step 1: text 2B25: the bar panel takes no text"}},
        {"panel name --do 'kind 1'", {"only the bar panel"}},
        {"panel name --do 'right; click 552 KL'",
         {"1. right", "step 2: click 552 KL: the panel is hidden"}},
        {"panel name --do 'click 552'", {"which row of list 552? it has \"KL\", \"KZL\""}},
        {"panel name --do 'click 552 #9'", {"no row #9; the last one is #8"}},
        {"panel bars --do 'click 1346 x'", {"list 1346 has no row \"x\"; it has no rows"}},
        {"panel name --do 'click 1316 x'", {"box 1316 has no rows; write: click 1316"}},
        {"panel name --do 'type 552 x'", {"list 552 takes no text"}},
        {"panel elevation --do 'click 77'", {"no control \"77\"; it has boxes 1320; buttons 1311 \"7\""}},
        {"panel name --do 'click 146,5'", {"outside the panel, which is 146,164 pixels"}},
        {"events section --do 'double'", {"the control or position is missing"}},
    };
    for (const PanelCase& one : cases) {
        SCOPED_TRACE(one.words);
        const Answer answer = RunShell(std::string("beamdesk ") + one.words);
        EXPECT_EQ(answer.status, 2);
        ExpectParts(answer.out, one.parts);
    }
}

TEST(PanelProgram, TakesAScriptFromStandardInput)
{
    const Answer answer = RunShell("printf '# one row\\r\\nclick 1338 2\\n\\nclick 1340 99\\n' | "
                                   "beamdesk panel bars --quiet --script -");
    EXPECT_EQ(answer.status, 2);
    EXPECT_EQ(answer.out,
              "standard input:4: click 1340 99: list 1340 has no row \"99\"; it has \"10\", \"12\", "
              "\"14\", \"16\", \"18\", \"20\", \"22\", \"25\"\n");
}

// The wheel brings the row into view, and the events tell of it.
TEST(PanelProgram, ReachesARowOutOfView)
{
    const Answer answer = RunShell("beamdesk events bars --do 'click 1345 #1'");
    ExpectParts(answer.out, {"WM_MOUSEWHEEL   list 1345", "1345 from row #1", "LBN_SELCHANGE 1345"});
}

TEST(PanelProgram, PrintsTheSameForPrograms)
{
    const Answer answer = RunShell("beamdesk events name --json --text 'KL3(2)' --do 'key tab; right 552'");
    const nlohmann::json all = nlohmann::json::parse(answer.out);
    EXPECT_EQ(all.at("start").at("text"), "KL3(2)");
    EXPECT_EQ(all.at("steps").at(0).at("events").at(0).at("finished by"), "panel");
    const auto& last = all.at("steps").at(1);
    EXPECT_EQ(last.at("outcome").dump(), "[{\"delivered\":\"item\",\"text\":\"KL3(2)\"}]");
    EXPECT_EQ(last.at("panel").at("shown"), false);
    EXPECT_EQ(last.at("panel").at("controls").at(2).at("selected"), 0);
}

}  // namespace
