#include "app/WindowPlacement.h"

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "base/LogText.h"
#include "tests/unit/app/AppScreens.h"

namespace quorvel {
namespace {

struct PlacementCase {
    std::string name;
    Screen target;
    WindowModel frame;
    AxRect expected;
};

std::ostream& operator<<(std::ostream& stream, const PlacementCase& placementCase)
{
    return stream << placementCase.name;
}

class WindowPlacementTest : public testing::TestWithParam<PlacementCase> {};

TEST_P(WindowPlacementTest, TheWindowFillsTheFrame)
{
    const auto& [name, target, frame, expected] = GetParam();
    const auto rect = placeWindowInFrame(frame, target.frame, target.visibleFrame, fixtures::primary.frame).rect;
    EXPECT_TRUE(nearlyEqual(rect, expected, 1e-9)) << logText(rect);
}

constexpr WindowModel full{0, 0, 1, 1};
constexpr WindowModel centered{.125, .1, .875, .9};
constexpr WindowModel bottomRight{.5, 0, 1, .5};
constexpr WindowModel topLeft{0, .5, .5, 1};
constexpr WindowModel leftHalf{0, 0, .5, 1};
constexpr WindowModel middleThird{1.0 / 3, 0, 2.0 / 3, 1};

INSTANTIATE_TEST_SUITE_P(
    Screens, WindowPlacementTest,
    testing::Values(PlacementCase{"Primary", fixtures::primary, full, {0, 25, 1440, 875}},
                    PlacementCase{"PrimaryThird", fixtures::primary, middleThird, {480, 25, 480, 875}},
                    PlacementCase{"BottomDock", fixtures::bottomDock, bottomRight, {720, 497.5, 720, 402.5}},
                    PlacementCase{"LeftDock", fixtures::leftDock, centered, {172.5, 112.5, 1035, 700}},
                    PlacementCase{"Right", fixtures::right, full, {1440, -155, 1920, 1055}},
                    PlacementCase{"RightQuarter", fixtures::right, bottomRight, {2400, 372.5, 960, 527.5}},
                    PlacementCase{"RightTaller", fixtures::rightTaller, full, {1440, -515, 2560, 1415}},
                    PlacementCase{"RightLower",
                                  {9, {1440, -180, 1920, 1080}, {1440, -180, 1920, 1055}},
                                  leftHalf,
                                  {1440, 25, 960, 1055}},
                    PlacementCase{"Above", fixtures::above, full, {0, -1055, 1920, 1055}},
                    PlacementCase{"AboveCentered", fixtures::above, centered, {240, -949.5, 1440, 844}},
                    PlacementCase{"Below", fixtures::below, topLeft, {0, 925, 960, 527.5}},
                    PlacementCase{"Left", fixtures::left, leftHalf, {-1920, -105, 960, 1005}}),
    [](const auto& instance) { return instance.param.name; });

TEST(WindowPlacement, TheDistancesAreThoseOfTheScreens)
{
    const auto placement =
        placeWindowInFrame(full, fixtures::right.frame, fixtures::right.visibleFrame, fixtures::primary.frame);
    EXPECT_EQ(placement.diffX, -1920.0);
    EXPECT_EQ(placement.diffY, -180.0);
    EXPECT_EQ(placement.menuBarHeight, 25.0);
}

TEST(WindowPlacement, TheMenuBarHeightCountsADockAtTheBottom)
{
    const auto& screen = fixtures::bottomDock;
    EXPECT_EQ(placeWindowInFrame(full, screen.frame, screen.visibleFrame, screen.frame).menuBarHeight, 95.0);
}

TEST(WindowPlacement, WithoutAnyScreenEverythingIsZero)
{
    EXPECT_EQ(placeWindowInFrame(full, {}, {}, {}), WindowPlacement());
}

} // namespace
} // namespace quorvel
