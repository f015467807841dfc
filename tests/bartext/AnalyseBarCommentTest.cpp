// Wall bar texts of many shapes: what the pickers compose, what drawings hold, and what is neither.
#include <gtest/gtest.h>

#include <climits>

#include "RankerModule.h"

namespace {

struct Reading {
    const char* text;
    bool found;
    int grade, diameter, tight, normal, tenths;
};

constexpr Reading Readings[] = {
    {"A10@100/200", true, 1, 10, 100, 200, 0},
    {"B8@150", true, 2, 8, 150, 0, 0},
    {"A6.5@200", true, 1, 6, 200, 0, 5},
    {"C6.25", true, 3, 6, 0, 0, 2},
    {"D14", true, 4, 14, 0, 0, 0},
    {"A20@120", true, 1, 20, 120, 0, 0},
    {"2A8@200(2)", true, 1, 8, 200, 0, 0},
    {"A10@100/200(4)", true, 1, 10, 100, 200, 0},
    {"A8(2)@150/250", true, 1, 8, 150, 250, 0},
    {" C 16 @ 150 / 200 ", true, 3, 16, 150, 200, 0},
    // as drawings hold them, the grade sign lost or turned
    {"A6@600", true, 1, 6, 600, 0, 0},
    {"C18@150", true, 3, 18, 150, 0, 0},
    {"\xA6\xB5"
     "14@150",
     false, 0, 14, 150, 0, 0},
    // the letter that a digit follows is the grade
    {"DB10@100", true, 2, 10, 100, 0, 0},
    {"WALL A8@200", true, 1, 8, 200, 0, 0},
    {"DB16", true, 2, 16, 0, 0, 0},
    {"KZ1 C20", true, 3, 20, 0, 0, 0},
    // the number in front of the spacings is the diameter
    {"LB1 C10@150", true, 3, 10, 150, 0, 0},
    {"C25 A8@100/200", true, 1, 8, 100, 200, 0},
    {"WB2 D6.25 @200", true, 4, 6, 200, 0, 2},
    {"HPB300 8@200", true, 2, 8, 200, 0, 0},
    {"WALL 10@150", true, 1, 10, 150, 0, 0},
    {"A8@100(4)/150(2)", true, 1, 8, 100, 150, 0},
    {"A8@100(4", true, 1, 8, 100, 0, 0},
    {"A1.2.3@100", true, 1, 1, 100, 0, 2},
    // no grade, no diameter, nothing
    {"10@150", false, 0, 10, 150, 0, 0},
    {"A@100/200", false, 1, 0, 100, 200, 0},
    {"A10@/200", true, 1, 10, 0, 200, 0},
    {"A10@", true, 1, 10, 0, 0, 0},
    {"A.5", false, 1, 0, 0, 0, 5},
    {"", false, 0, 0, 0, 0, 0},
    {"\xCE\xDE", false, 0, 0, 0, 0, 0},
    {"A99999999999@88888888888/77777777777", true, 1, INT_MAX, INT_MAX, INT_MAX, 0},
};

TEST(AnalyseBarComment, WritesEveryOutputForEveryText)
{
    for (const Reading& reading : Readings) {
        SCOPED_TRACE(reading.text);
        int grade = -7, diameter = -7, tight = -7, normal = -7, tenths = -7;
        EXPECT_EQ(AnalyseBarComment(reading.text, grade, diameter, tight, normal, &tenths), reading.found);
        EXPECT_EQ(grade, reading.grade);
        EXPECT_EQ(diameter, reading.diameter);
        EXPECT_EQ(tight, reading.tight);
        EXPECT_EQ(normal, reading.normal);
        EXPECT_EQ(tenths, reading.tenths);
        EXPECT_EQ(AnalyseBarComment(reading.text, grade, diameter, tight, normal, nullptr), reading.found);
        EXPECT_EQ(diameter, reading.diameter);
    }
}

}  // namespace
