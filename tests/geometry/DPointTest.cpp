// Points: equality within a tolerance, turning and transforming.
#include <gtest/gtest.h>

#include "RankerModule.h"

namespace {

TEST(DPoint, EqualityIsNearnessAndTheSameTag)
{
    EXPECT_TRUE(DPoint() == DPoint(-1000.0F, -1000.0F));
    EXPECT_TRUE(DPoint(1.0F, 1.0F) == DPoint(1.0005F, 1.0F));
    EXPECT_FALSE(DPoint(1.0F, 1.0F) == DPoint(1.002F, 1.0F));
    EXPECT_FALSE(DPoint(1.0F, 1.0F) == DPoint(1.0F, 1.002F));
    EXPECT_FALSE(DPoint(0.001F, 0.0F) == DPoint(0.0F, 0.0F));
    DPoint tagged(1.0F, 1.0F);
    tagged.m_nTag = 7;
    EXPECT_FALSE(tagged == DPoint(1.0F, 1.0F));
    DPoint copy;
    copy = tagged;
    EXPECT_TRUE(copy == tagged);
    EXPECT_EQ(copy.m_nTag, 7);
}

TEST(DPoint, MovesTurnsAndTransforms)
{
    DPoint point(1.0F, 0.0F);
    point.RotateMe(0.0, 0.0, 90.0);
    EXPECT_TRUE(point == DPoint(0.0F, 1.0F));
    point.RotateMe(0.0, 1.0, 33.0);
    EXPECT_TRUE(point == DPoint(0.0F, 1.0F));
    point.RotateMe(1.0, 1.0, -90.0);
    EXPECT_TRUE(point == DPoint(1.0F, 2.0F));
    DPoint far(1000.0F, 0.0F);
    far.RotateMe(0.0, 0.0, 180.0);
    EXPECT_TRUE(far == DPoint(-1000.0F, 0.0F));
    point.AdjustCoord(2.0F, -3.0F);
    EXPECT_TRUE(point == DPoint(3.0F, -1.0F));

    DPoint shifted(3.0F, 4.0F);
    shifted.TransformCoord(10.0F, 20.0F, 1.0F, 1.0F, 0.0F, 1.0F);
    EXPECT_TRUE(shifted == DPoint(13.0F, 24.0F));
    DPoint turned(1.0F, 0.0F);
    turned.TransformCoord(5.0F, 0.0F, 1.0F, 1.0F, 1.0F, 0.0F);
    EXPECT_TRUE(turned == DPoint(5.0F, 1.0F));
    DPoint scaled(1.0F, 1.0F);
    scaled.TransformCoord(0.0F, 0.0F, 2.0F, 3.0F, 0.6F, 0.8F);
    EXPECT_TRUE(scaled == DPoint(2.0F * 0.8F - 3.0F * 0.6F, 2.0F * 0.6F + 3.0F * 0.8F));
}

}  // namespace
