// Positions on the plan: caught by what is near, or typed.
#include <gtest/gtest.h>

#include "desk/plan/Points.h"
#include "tests/support/Made.h"

namespace {

using namespace Desk;

TEST(Points, APressIsCaughtByWhatIsNear)
{
    Project project;
    project.axesAcross = {{"1", 0}, {"2", 8000}};
    project.axesUp = {{"A", 0}, {"B", 6000}};
    project.beams = {MadeBeam("L1", {1000, 1000}, {5000, 4000}),
                     MadeBeam("L2", {2000, 3000}, {4000, 3000})};
    project.walls = {MadeWall("Q1", {7000, -2000}, {7000, 2000})};
    const PlanPoint from{3500, 7000};
    const struct {
        PlanPoint at, to;
        std::optional<PlanPoint> from = std::nullopt;
    } cases[] = {
        {{8080, 5910}, {8000, 6000}},        // a crossing of axes
        {{1050, 950}, {1000, 1000}},         // a beam's start
        {{4950, 4080}, {5000, 4000}},        // its end
        {{7060, 40}, {7000, 0}},             // a wall across an axis
        {{3640, 3050}, {3666.6667, 3000}},   // two beams
        {{6000, 60}, {6000, 0}},             // an axis alone
        {{7070, 1000}, {7000, 1000}},        // a wall alone
        {{3000.4, 5000.6}, {3000, 5001}},    // bare ground
        {{3560, 5000}, {3560, 5000}},        // not upright without a first position
        {{3560, 5000}, {3500, 5000}, from},  // upright with it
        {{3560, 6060}, {3500, 6000}, from},  // and where that meets an axis
        {{9000, 9000}, {9000, 9000}},        // beyond a beam's end is no beam
        {{9000, 7000}, {9000, 7000}},
    };
    for (const auto& each : cases) {
        const PlanPoint to = Caught(project, each.at, 150.0, each.from);
        EXPECT_NEAR(to.x, each.to.x, 0.001) << each.at.x << ' ' << each.at.y;
        EXPECT_NEAR(to.y, each.to.y, 0.001) << each.at.x << ' ' << each.at.y;
    }
}

TEST(Points, TypedOnesAreAbsoluteRelativeOrAlong)
{
    const PlanPoint from{1000, 2000};
    const PlanPoint towards{1000, 9000};
    const struct {
        const char* text;
        PlanPoint at;
    } right[] = {
        {"8000,0", {8000, 0}},       {" -8000.5 , 12 ", {-8000.5, 12}},
        {"@6000,0", {7000, 2000}},   {"@6000<90", {1000, 8000}},
        {"@1000<180", {0, 2000}},    {"500<0", {1500, 2000}},
        {"@-100,-200", {900, 1800}}, {"6000", {1000, 8000}},
    };
    for (const auto& [text, at] : right) {
        const std::optional<PlanPoint> typed = TypedPoint(text, from, towards);
        ASSERT_TRUE(typed) << text;
        EXPECT_EQ(typed->x, at.x) << text;
        EXPECT_EQ(typed->y, at.y) << text;
    }
    for (const char* const wrong :
         {"", "@", "x", "1,", ",1", "1,2,3", "@1<", "1e12,0", "nan,0", "2B25", "<90"}) {
        EXPECT_FALSE(TypedPoint(wrong, from, towards)) << wrong;
    }
    for (const char* const needsFirst : {"@1,2", "@1<2", "1<2", "6000"}) {
        EXPECT_FALSE(TypedPoint(needsFirst, std::nullopt, towards)) << needsFirst;
    }
    EXPECT_FALSE(TypedPoint("6000", from, from)) << "no direction";
}

}  // namespace
