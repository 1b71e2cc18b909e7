#include "app/SnapSearch.h"

#include <vector>

#include <gtest/gtest.h>

#include "tests/unit/app/AppScreens.h"

namespace quorvel {
namespace {

class SnapSearchTest : public testing::Test {
protected:
    // What a step of 20 points from `before` in the key's direction snaps to.
    std::optional<Snap> press(const AxRect& before, ArrowKey key, ArrowEffect effect = ArrowEffect::move)
    {
        const auto after = changedBy(before, key, effect, distance * signOf(key));
        return searchSnap({before, after, key, effect}, {windows, ownEntry, screens}, threshold);
    }

    void place(const std::vector<AxRect>& frames)
    {
        for (const auto& frame : frames) {
            windows.push_back({7, frame});
        }
    }

    double distance = 20.0;
    double threshold = 20.0;
    std::vector<WindowInfo> windows;
    std::optional<std::size_t> ownEntry;
    std::vector<Screen> screens{fixtures::primary};
};

constexpr AxRect wide{500, 400, 400, 300};

TEST_F(SnapSearchTest, NothingAttractsOnAnEmptyDesktop)
{
    EXPECT_EQ(press({265, 100, 300, 300}, ArrowKey::right), std::nullopt);
}

TEST_F(SnapSearchTest, TheRightEdgeGoesToALeftEdge)
{
    place({{600, 100, 400, 400}});
    EXPECT_EQ(press({265, 100, 300, 300}, ArrowKey::right), (Snap{{300, 100, 300, 300}, {600, 100, 0, 400}}));
}

TEST_F(SnapSearchTest, TheLeftEdgeGoesToARightEdge)
{
    place({wide});
    EXPECT_EQ(press({935, 450, 300, 200}, ArrowKey::left), (Snap{{900, 450, 300, 200}, {900, 400, 0, 300}}));
}

TEST_F(SnapSearchTest, LeftEdgesAlign)
{
    place({wide});
    EXPECT_EQ(press({545, 550, 300, 200}, ArrowKey::left), std::nullopt);
    EXPECT_EQ(press({525, 550, 300, 200}, ArrowKey::left), (Snap{{500, 550, 300, 200}, {500, 400, 0, 300}}));
}

TEST_F(SnapSearchTest, RightEdgesAlign)
{
    place({wide});
    EXPECT_EQ(press({565, 450, 300, 200}, ArrowKey::right), (Snap{{600, 450, 300, 200}, {900, 400, 0, 300}}));
}

TEST_F(SnapSearchTest, VerticalKeysGoToTopAndBottomEdges)
{
    place({wide});
    EXPECT_EQ(press({550, 165, 300, 200}, ArrowKey::down), (Snap{{550, 200, 300, 200}, {500, 400, 400, 0}}));
    EXPECT_EQ(press({550, 735, 300, 200}, ArrowKey::up), (Snap{{550, 700, 300, 200}, {500, 700, 400, 0}}));
}

TEST_F(SnapSearchTest, ADistanceOfTheThresholdStillCounts)
{
    place({{100, 100, 300, 405}});
    threshold = 5.0;
    ASSERT_TRUE(press({200, 530, 400, 200}, ArrowKey::up));
    EXPECT_EQ(press({200, 530, 400, 200}, ArrowKey::up)->rect.y, 505);
    threshold = 4.9;
    EXPECT_EQ(press({200, 530, 400, 200}, ArrowKey::up), std::nullopt);
}

TEST_F(SnapSearchTest, TheNearestEdgeWins)
{
    place({{600, 100, 400, 400}, {596, 350, 300, 300}});
    EXPECT_EQ(press({265, 100, 300, 300}, ArrowKey::right)->rect.x, 296);
}

TEST_F(SnapSearchTest, OfEqualDistancesTheFirstWindowWins)
{
    place({{595, 100, 400, 400}, {575, 120, 400, 400}});
    EXPECT_EQ(press({265, 100, 300, 300}, ArrowKey::right)->targetEdge, (AxRect{595, 100, 0, 400}));
    windows = {windows[1], windows[0]};
    EXPECT_EQ(press({265, 100, 300, 300}, ArrowKey::right)->targetEdge, (AxRect{575, 120, 0, 400}));
}

TEST_F(SnapSearchTest, OfEqualDistancesTheLowEdgeWins)
{
    // After the step the window reaches from 285 to 585: 10 from one edge on either side.
    place({{100, 100, 195, 400}, {595, 100, 300, 400}});
    EXPECT_EQ(press({265, 100, 300, 300}, ArrowKey::right)->targetEdge.x, 295);
}

TEST_F(SnapSearchTest, WindowsThatLieNotBesideDoNotAttract)
{
    place({{600, 100, 400, 400}});
    EXPECT_EQ(press({265, 600, 300, 200}, ArrowKey::right), std::nullopt);
}

TEST_F(SnapSearchTest, TouchingIsNotLyingBeside)
{
    place({{600, 100, 400, 400}});
    EXPECT_EQ(press({265, 500, 300, 200}, ArrowKey::right), std::nullopt);
    EXPECT_TRUE(press({265, 499, 300, 200}, ArrowKey::right));
    EXPECT_EQ(press({300, 485, 300, 200}, ArrowKey::up), std::nullopt);
}

TEST_F(SnapSearchTest, TheEdgeThatTheWindowIsOnLetsItGo)
{
    place({{600, 100, 400, 400}});
    EXPECT_EQ(press({300, 100, 300, 300}, ArrowKey::right), std::nullopt);
    EXPECT_EQ(press({300, 100, 300, 300}, ArrowKey::left), std::nullopt);
}

TEST_F(SnapSearchTest, LessThanAPointFurtherIsNoStep)
{
    place({{600, 100, 400, 400}});
    EXPECT_EQ(press({299.5, 100, 300, 300}, ArrowKey::right), std::nullopt);
    EXPECT_EQ(press({299, 100, 300, 300}, ArrowKey::right)->rect.x, 300);
}

TEST_F(SnapSearchTest, NoEdgeDrawsTheWindowBackBehindWhereItStood)
{
    place({{600, 100, 400, 400}});
    distance = 5.0;
    EXPECT_EQ(press({305, 100, 300, 300}, ArrowKey::right), std::nullopt);
    EXPECT_EQ(press({295, 100, 300, 300}, ArrowKey::left), std::nullopt);
}

TEST_F(SnapSearchTest, TheOwnEntryDoesNotAttract)
{
    place({{300, 100, 300, 300}});
    ASSERT_TRUE(press({270, 150, 300, 300}, ArrowKey::right));
    ownEntry = 0;
    EXPECT_EQ(press({270, 150, 300, 300}, ArrowKey::right), std::nullopt);
}

TEST_F(SnapSearchTest, AWindowAtTheSameOriginDoesNotAttract)
{
    place({{286.9, 101.9, 310, 300}});
    EXPECT_EQ(press({265, 100, 300, 300}, ArrowKey::right), std::nullopt);
    windows[0].bounds.x = 287;
    EXPECT_EQ(press({265, 100, 300, 300}, ArrowKey::right)->rect.x, 287);
    windows[0].bounds = {286.9, 102, 310, 300};
    EXPECT_TRUE(press({265, 100, 300, 300}, ArrowKey::right));
}

TEST_F(SnapSearchTest, OnlyTheMovingEdgeIsResized)
{
    place({{90, 100, 300, 300}});
    EXPECT_EQ(press({100, 150, 500, 200}, ArrowKey::left, ArrowEffect::resize), std::nullopt);
    EXPECT_EQ(press({100, 150, 310, 200}, ArrowKey::left, ArrowEffect::resize)->rect, (AxRect{100, 150, 290, 200}));
}

TEST_F(SnapSearchTest, ResizingGoesToBothEdgesOfAnotherWindow)
{
    place({{600, 100, 400, 400}});
    EXPECT_EQ(press({100, 100, 470, 300}, ArrowKey::right, ArrowEffect::resize)->rect.width, 500);
    EXPECT_EQ(press({100, 100, 870, 300}, ArrowKey::right, ArrowEffect::resize)->rect.width, 900);
    EXPECT_EQ(press({650, 150, 300, 325}, ArrowKey::down, ArrowEffect::resize)->rect.height, 350);
}

TEST_F(SnapSearchTest, WindowsOfAnotherScreenDoNotAttract)
{
    screens = {fixtures::primary, fixtures::rightSameSize};
    place({{1410, 100, 62, 400}});
    EXPECT_EQ(press({1095, 100, 285, 300}, ArrowKey::right), std::nullopt);
    windows[0].bounds.width = 58;
    EXPECT_EQ(press({1095, 100, 285, 300}, ArrowKey::right)->rect.x, 1125);
}

TEST_F(SnapSearchTest, TheScreenIsThatOfTheStepsEnd)
{
    screens = {fixtures::primary, fixtures::rightSameSize};
    place({{1600, 100, 400, 400}});
    // Half of it is over there already, and with the step most of it.
    EXPECT_EQ(press({1290, 100, 300, 300}, ArrowKey::right)->rect.x, 1300);
}

// After the step half of the window, from 1290 to 1590, is on either screen.
TEST_F(SnapSearchTest, OnTwoScreensAlikeTheEarlierOneCounts)
{
    screens = {fixtures::primary, fixtures::rightSameSize};
    place({{1600, 100, 400, 400}});
    EXPECT_EQ(press({1270, 100, 300, 300}, ArrowKey::right), std::nullopt);
    place({{1300, 100, 100, 400}});
    EXPECT_EQ(press({1270, 100, 300, 300}, ArrowKey::right)->rect.x, 1300);
    screens = {fixtures::rightSameSize, fixtures::primary};
    EXPECT_EQ(press({1270, 100, 300, 300}, ArrowKey::right)->targetEdge.x, 1600);
}

TEST_F(SnapSearchTest, AScreenAboveIsCountedFromThePrimaryOne)
{
    screens = {fixtures::primary, fixtures::above};
    place({{600, -500, 400, 400}});
    EXPECT_EQ(press({265, -400, 300, 300}, ArrowKey::right)->rect.x, 300);
}

TEST_F(SnapSearchTest, OutsideOfAllScreensEveryWindowAttracts)
{
    place({{3600, 100, 400, 400}});
    EXPECT_EQ(press({3265, 100, 300, 300}, ArrowKey::right)->rect.x, 3300);
}

TEST_F(SnapSearchTest, WithoutScreensEveryWindowAttracts)
{
    screens.clear();
    place({{600, 100, 400, 400}});
    EXPECT_EQ(press({265, 100, 300, 300}, ArrowKey::right)->rect.x, 300);
}

} // namespace
} // namespace quorvel
