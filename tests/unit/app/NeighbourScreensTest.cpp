#include "app/NeighbourScreens.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "app/ResizeLimits.h"
#include "tests/unit/app/AppScreens.h"

namespace quorvel {
namespace {

constexpr std::array allSides{ScreenSide::left, ScreenSide::right, ScreenSide::above, ScreenSide::below};

// The sides of the primary screen, which is 1440 by 900 points, on which a screen of this frame lies.
std::vector<ScreenSide> sidesOf(const ScreenRect& frame)
{
    const std::vector<Screen> screens{fixtures::primary, {2, frame, frame}};
    std::vector<ScreenSide> sides;
    for (const auto side : allSides) {
        if (hasNeighbour(screens.front(), side, screens)) {
            sides.push_back(side);
        }
    }
    return sides;
}

using Sides = std::vector<ScreenSide>;

TEST(NeighbourScreens, AScreenIsNotItsOwnNeighbour)
{
    const std::vector<Screen> screens{fixtures::primary};
    for (const auto side : allSides) {
        EXPECT_FALSE(hasNeighbour(screens.front(), side, screens));
    }
}

TEST(NeighbourScreens, EachSideHasItsOwn)
{
    EXPECT_EQ(sidesOf({-1920, 0, 1920, 1080}), (Sides{ScreenSide::left}));
    EXPECT_EQ(sidesOf({1440, 0, 1920, 1080}), (Sides{ScreenSide::right}));
    EXPECT_EQ(sidesOf({0, 900, 1920, 1080}), (Sides{ScreenSide::above}));
    EXPECT_EQ(sidesOf({0, -1080, 1920, 1080}), (Sides{ScreenSide::below}));
}

TEST(NeighbourScreens, APointOverTheEdgeIsTolerated)
{
    EXPECT_EQ(sidesOf({-1919, 0, 1920, 1080}), (Sides{ScreenSide::left}));
    EXPECT_EQ(sidesOf({1439, 0, 1920, 1080}), (Sides{ScreenSide::right}));
    EXPECT_EQ(sidesOf({0, 899, 1920, 1080}), (Sides{ScreenSide::above}));
    EXPECT_EQ(sidesOf({0, -1079, 1920, 1080}), (Sides{ScreenSide::below}));
}

TEST(NeighbourScreens, MoreThanAPointIsNot)
{
    EXPECT_EQ(sidesOf({-1918.9, 0, 1920, 1080}), Sides());
    EXPECT_EQ(sidesOf({1438.9, 0, 1920, 1080}), Sides());
    EXPECT_EQ(sidesOf({0, 898.9, 1920, 1080}), Sides());
    EXPECT_EQ(sidesOf({0, -1078.9, 1920, 1080}), Sides());
}

TEST(NeighbourScreens, AGapDoesNotMatter)
{
    EXPECT_EQ(sidesOf({1440.5, 0, 1920, 1080}), (Sides{ScreenSide::right}));
    EXPECT_EQ(sidesOf({2000, 0, 1920, 1080}), (Sides{ScreenSide::right}));
}

TEST(NeighbourScreens, ACornerIsNoSide)
{
    EXPECT_EQ(sidesOf({1440, -900, 1440, 900}), Sides());
    EXPECT_EQ(sidesOf({-1440, 900, 1440, 900}), Sides());
    EXPECT_EQ(sidesOf({1440, -899, 1440, 900}), (Sides{ScreenSide::right}));
}

TEST(ResizeLimits, TheLeastSizeIsAHundredPointsEachWay)
{
    EXPECT_EQ(withLeastSize({5, 6, 80, 60}), (AxRect{5, 6, 100, 100}));
    EXPECT_EQ(withLeastSize({5, 6, 100, 60}), (AxRect{5, 6, 100, 100}));
    EXPECT_EQ(withLeastSize({5, 6, 101, 300}), (AxRect{5, 6, 101, 300}));
}

TEST(ResizeLimits, AWindowEndsAtTheVisibleFrame)
{
    const std::vector<Screen> screens{fixtures::bottomDock};
    EXPECT_EQ(endingOnScreen({1000, 500, 500, 400}, screens.front(), screens), (AxRect{1000, 500, 440, 330}));
    EXPECT_EQ(endingOnScreen({1000, 500, 440, 330}, screens.front(), screens), (AxRect{1000, 500, 440, 330}));
}

TEST(ResizeLimits, OnlyTheFarEdgesLimit)
{
    const std::vector<Screen> screens{fixtures::leftDock};
    EXPECT_EQ(endingOnScreen({-50, -30, 300, 300}, screens.front(), screens), (AxRect{-50, -30, 300, 300}));
}

TEST(ResizeLimits, AScreenOnTheOtherSideDoesNotLiftALimit)
{
    const std::vector<Screen> screens{fixtures::primary, fixtures::left, fixtures::above};
    EXPECT_EQ(endingOnScreen({1000, 500, 500, 500}, screens.front(), screens), (AxRect{1000, 500, 440, 400}));
}

TEST(ResizeLimits, ASecondScreenLimitsByItsOwnFrame)
{
    const std::vector<Screen> screens{fixtures::primary, fixtures::below};
    EXPECT_EQ(endingOnScreen({1800, 1900, 500, 500}, screens[1], screens), (AxRect{1800, 1900, 120, 80}));
}

TEST(ResizeLimits, AScreenThatIsNoLongerThereStillLimits)
{
    const std::vector<Screen> screens{fixtures::primary};
    EXPECT_EQ(endingOnScreen({1500, 100, 2000, 300}, fixtures::right, screens), (AxRect{1500, 100, 1860, 300}));
}

} // namespace
} // namespace quorvel
