#include "base/Geometry.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(Geometry, RectanglesThatOnlyTouchIntersectInAnEdgeOfNoArea)
{
    const ScreenRect left{0.0, 0.0, 100.0, 50.0};
    const ScreenRect right{100.0, 0.0, 30.0, 50.0};
    EXPECT_TRUE(left.intersects(right));
    EXPECT_EQ(left.intersectionWith(right), (ScreenRect{100.0, 0.0, 0.0, 50.0}));
    EXPECT_EQ(left.intersectionWith(right).area(), 0.0);
}

TEST(Geometry, DisjointRectanglesHaveANullIntersection)
{
    const ScreenRect left{0.0, 0.0, 100.0, 50.0};
    EXPECT_TRUE(left.intersectionWith({100.5, 0.0, 30.0, 50.0}).isNull());
    EXPECT_FALSE(left.intersects({0.0, 51.0, 30.0, 50.0}));
}

TEST(Geometry, TheNullRectangleIsNeutralForUnionsAndEmptyForIntersections)
{
    const ScreenRect rect{10.0, 20.0, 30.0, 40.0};
    EXPECT_EQ(ScreenRect::null().unitedWith(rect), rect);
    EXPECT_EQ(rect.unitedWith(ScreenRect::null()), rect);
    EXPECT_FALSE(rect.intersects(ScreenRect::null()));
    EXPECT_EQ(rect.unitedWith({-5.0, 30.0, 10.0, 100.0}), (ScreenRect{-5.0, 20.0, 45.0, 110.0}));
}

TEST(Geometry, ARectangleContainsItselfAndNothingThatSticksOut)
{
    const ScreenRect rect{0.0, 0.0, 10.0, 10.0};
    EXPECT_TRUE(rect.contains(rect));
    EXPECT_FALSE(rect.contains(ScreenRect{0.0, 0.0, 10.1, 10.0}));
    EXPECT_TRUE(rect.contains(ScreenPoint{0.0, 0.0}));
    EXPECT_FALSE(rect.contains(ScreenPoint{10.0, 5.0}));
}

TEST(Geometry, NearlyEqualExcludesTheToleranceItself)
{
    const AxRect rect{10.0, 10.0, 100.0, 100.0};
    EXPECT_TRUE(nearlyEqual(rect, {11.9, 8.1, 101.9, 98.1}, 2.0));
    EXPECT_FALSE(nearlyEqual(rect, {12.0, 10.0, 100.0, 100.0}, 2.0));
    EXPECT_FALSE(nearlyEqual(rect, {10.0, 10.0, 100.0, 98.0}, 2.0));
}

} // namespace
} // namespace quorvel
