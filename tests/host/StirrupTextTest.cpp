// Cutting stirrup texts into fields, measuring them and putting them together again.
#include <gtest/gtest.h>

#include "tests/support/Texts.h"

using StirrupText::Fields;
using StirrupText::Measures;

namespace StirrupText {
void PrintTo(const Fields& fields, std::ostream* out)
{
    for (const CString* field : {&fields.grade, &fields.diameter, &fields.tightSpacing, &fields.tightLegs,
                                 &fields.spacing, &fields.legs}) {
        *out << '"' << field->View() << "\" ";
    }
}
}  // namespace StirrupText

namespace {

TEST(StirrupText, DecomposesWhatItReaches)
{
    struct Case {
        const char* text;
        bool reachesLegs;
        Fields fields;  // starting from "?" in every field
    };
    const Fields untouched{"?", "?", "?", "?", "?", "?"};
    const Case cases[] = {
        {"A8-200(2)", true, {"A", "8", "", "", "200", "2"}},
        {"A10@100(4)/200(2)", true, {"A", "10", "100", "4", "200", "2"}},
        {"B10@100/200(2)", true, {"B", "10", "100", "", "200", "2"}},
        {"A8@200(12)", true, {"A", "8", "", "", "200", "12"}},
        {"", false, untouched},
        {"A8 200(2)", false, untouched},
        {"C8@200(2)", false, untouched},
        {"A8@200", false, {"A", "8", "", "", "?", "?"}},
        {"A8@100/200", false, {"A", "8", "100", "", "?", "?"}},
        {"A8@100(4)/200", false, {"A", "8", "100", "4", "?", "?"}},
        // "@" wins over an earlier "-", "A" over an earlier "B".
        {"A8-1@200(2)", true, {"A", "8-1", "", "", "200", "2"}},
        {"B8A6@200(2)", true, {"A", "6", "", "", "200", "2"}},
        // Parts that stand the wrong way round are empty.
        {"8@A200(2)", true, {"A", "", "", "", "A200", "2"}},
        {"A/8@200(2)", true, {"A", "/8", "", "", "8@200", "2"}},
        {"A8@200(", true, {"A", "8", "", "", "200", ""}},
        {"A8@200(4", true, {"A", "8", "", "", "200", ""}},
    };
    for (const Case& c : cases) {
        Fields fields = untouched;
        EXPECT_EQ(StirrupText::Decompose(c.text, fields), c.reachesLegs) << c.text;
        EXPECT_EQ(fields, c.fields) << c.text;
    }
    const Fields whole{"A", "10", "100", "4", "200", "2"};
    for (CString Fields::*const field :
         {&Fields::grade, &Fields::diameter, &Fields::tightSpacing, &Fields::spacing, &Fields::legs}) {
        Fields fields = untouched;
        fields.*field = "A10@100(4)/200(2)";
        EXPECT_TRUE(StirrupText::Decompose(fields.*field, fields));
        EXPECT_EQ(fields, whole);
    }
}

TEST(StirrupText, MeasuresForTheOrder)
{
    struct Case {
        const char* text;
        Measures measures;
    };
    const Case cases[] = {
        {"A10@100(4)/200(2)", {10, 200, 100, 2}},
        {"A8@200(4", {8, 200, 0, 4}},
        {"A8@200(12)", {8, 200, 0, 1}},
        {"A8@200", {8, 0, 0, 0}},
        {"8@200(2)", {0, 0, 0, 0}},
        {"", {0, 0, 0, 0}},
        {"A8@x/200(y)", {8, 200, 0, 0}},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(StirrupText::Measure(c.text) == c.measures) << c.text;
    }
}

TEST(StirrupText, ComposesFromRows)
{
    EXPECT_EQ(StirrupText::ComposeFromRows({"A", "8", "", "", "200", "(2)"}), "A8@200(2)");
    EXPECT_EQ(StirrupText::ComposeFromRows({"A", "8", "100", "", "200", "(2)"}), "A8@100/200(2)");
    EXPECT_EQ(StirrupText::ComposeFromRows({"B", "10", "100", "(4)", "200", "(2)"}), "B10@100(4)/200(2)");
    EXPECT_EQ(StirrupText::ComposeFromRows({"A", "8", "", "(3)", "200", "(2)"}), "A8@200(2)");
}

TEST(StirrupText, ComposesFromBoxesOrLeavesTheText)
{
    struct Case {
        Fields boxes;
        const char* text;  // null when nothing can be composed
    };
    const Case cases[] = {
        {{" A ", " 8 ", " 100 ", " 4 ", " 200 ", " 2 "}, "A8@100(4)/200(2)"},
        {{"A", "8", "100", "(4)", "200", "(2)"}, "A8@100(4)/200(2)"},
        {{"A", "8", "", "4", "200", "2"}, "A8@200(2)"},
        {{"A", "8", " ", "4", "180", "2"}, "A8@180(2)"},
        {{"", "8", "", "", "200", "2"}, nullptr},
        {{"A", " ", "", "", "200", "2"}, nullptr},
        {{"A", "8", "", "", "", "2"}, nullptr},
        {{"A", "8", "", "", "200", " "}, nullptr},
    };
    for (const Case& c : cases) {
        Fields boxes = c.boxes;
        CString text("old");
        EXPECT_EQ(StirrupText::ComposeFromBoxes(boxes, text), c.text != nullptr);
        EXPECT_EQ(text, c.text != nullptr ? c.text : "old");
    }
}

TEST(StirrupText, TightForm)
{
    EXPECT_EQ(StirrupText::TightForm("A6@150(3)"), "A6@100/150(3)");
    EXPECT_EQ(StirrupText::TightForm("A6@150@(3)"), "A6@100/150@(3)");
    EXPECT_EQ(StirrupText::TightForm("A6-150"), "100/A6-150");
    EXPECT_EQ(StirrupText::TightForm(""), "100/");
}

}  // namespace
