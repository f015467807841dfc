// Stirrup texts and their fields in each other's place; random texts compare cutting and measuring.
#include <gtest/gtest.h>

#include "tests/support/Texts.h"

using StirrupText::Fields;

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

TEST(StirrupText, TheTextMayBeAField)
{
    const Fields whole{"A", "10", "100", "4", "200", "2"};
    for (CString Fields::*const field :
         {&Fields::grade, &Fields::diameter, &Fields::tightSpacing, &Fields::spacing, &Fields::legs}) {
        Fields fields;
        fields.*field = "A10@100(4)/200(2)";
        EXPECT_TRUE(StirrupText::Decompose(fields.*field, fields));
        EXPECT_EQ(fields, whole);
    }
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
        {{"A", "8", "", "4", "", "2"}, nullptr},
        {{"A", "8", "", "", "200", " "}, nullptr},
    };
    for (const Case& c : cases) {
        Fields boxes = c.boxes;
        CString text("old");
        EXPECT_EQ(StirrupText::ComposeFromBoxes(boxes, text), c.text != nullptr);
        EXPECT_EQ(text, c.text != nullptr ? c.text : "old");
        if (!boxes.diameter.IsEmpty() && boxes.tightSpacing.IsEmpty()) {
            EXPECT_EQ(boxes.tightLegs, "");
        }
    }
}

}  // namespace
