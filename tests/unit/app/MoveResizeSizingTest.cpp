// Resizing a window in steps, its limits, and how its moving edge snaps.

#include <vector>

#include "tests/unit/app/AppScreens.h"
#include "tests/unit/app/MoveResizeFixture.h"

namespace quorvel {
namespace {

using Values = std::vector<double>;

class MoveResizeSizingTest : public MoveResizeFixture {
protected:
    void beginOn(const std::vector<Screen>& screens, const AxRect& frame)
    {
        desktop.screens.connect(screens);
        begin(frame);
    }

    static Screen rightAt(double x, double y = 0) { return {9, {x, y, 1440, 900}, {x, y, 1440, 875}}; }
};

TEST_F(MoveResizeSizingTest, EachKeyMovesTheRightOrTheBottomEdge)
{
    begin({100, 100, 400, 300});
    resize(keyCodes::rightArrow);
    EXPECT_EQ(window.frame(), (AxRect{100, 100, 420, 300}));
    resize(keyCodes::downArrow);
    EXPECT_EQ(window.frame(), (AxRect{100, 100, 420, 320}));
    resize(keyCodes::leftArrow);
    EXPECT_EQ(window.frame(), (AxRect{100, 100, 400, 320}));
    resize(keyCodes::upArrow);
    EXPECT_EQ(window.frame(), (AxRect{100, 100, 400, 300}));
}

TEST_F(MoveResizeSizingTest, NoWindowGetsNarrowerThanAHundredPoints)
{
    begin({100, 100, 130, 150});
    EXPECT_EQ(after(3, [this] { resize(keyCodes::leftArrow); }, &AxRect::width), (Values{110, 100, 100}));
    EXPECT_EQ(window.frame().origin(), (AxPoint{100, 100}));
}

TEST_F(MoveResizeSizingTest, NoWindowGetsLowerThanAHundredPoints)
{
    begin({100, 100, 130, 150});
    EXPECT_EQ(after(4, [this] { resize(keyCodes::upArrow); }, &AxRect::height), (Values{130, 110, 100, 100}));
}

TEST_F(MoveResizeSizingTest, ASmallerWindowGrowsToTheLeastSizeBothWays)
{
    begin({100, 100, 80, 60});
    resize(keyCodes::rightArrow);
    EXPECT_EQ(window.frame(), (AxRect{100, 100, 100, 100}));
}

TEST_F(MoveResizeSizingTest, TheMovingEdgeSnapsAndResists)
{
    begin({100, 100, 460, 300}, {neighbour});
    EXPECT_EQ(widthsAfterGrowing(4), (Values{500, 500, 500, 520}));
}

TEST_F(MoveResizeSizingTest, TheOtherEdgeDoesNotSnap)
{
    begin({610, 520, 300, 200}, {{600, 500, 150, 100}});
    resize(keyCodes::leftArrow);
    EXPECT_EQ(window.frame().width, 280);
    EXPECT_FALSE(isSnapTargetShown());
}

TEST_F(MoveResizeSizingTest, TheBottomEdgeSnapsToo)
{
    begin({650, 100, 300, 285}, {{600, 400, 400, 300}});
    resize(keyCodes::downArrow);
    EXPECT_EQ(window.frame(), (AxRect{650, 100, 300, 300}));
    EXPECT_TRUE(isSnapTargetShown());
}

TEST_F(MoveResizeSizingTest, AShrunkEdgeIsNotDrawnBackBehindWhereItWas)
{
    store("mrMoveStep", PropertyValue{5.0});
    begin({100, 100, 499, 300}, {neighbour});
    resize(keyCodes::leftArrow);
    EXPECT_EQ(window.frame().width, 494);
    EXPECT_FALSE(isSnapTargetShown());
}

TEST_F(MoveResizeSizingTest, TheWindowEndsAtTheScreensRightEdge)
{
    begin({1100, 100, 330, 300});
    EXPECT_EQ(widthsAfterGrowing(2), (Values{340, 340}));
}

TEST_F(MoveResizeSizingTest, TheWindowGoesOnToTheScreenOnTheRight)
{
    beginOn({fixtures::primary, fixtures::rightSameSize}, {1100, 100, 330, 300});
    EXPECT_EQ(widthsAfterGrowing(2), (Values{350, 370}));
}

TEST_F(MoveResizeSizingTest, AScreenAcrossTheCornerDoesNotCount)
{
    beginOn({fixtures::primary, rightAt(1440, -900)}, {1100, 100, 330, 300});
    EXPECT_EQ(widthsAfterGrowing(1), (Values{340}));
}

TEST_F(MoveResizeSizingTest, AScreenTwoPointsOverThisOneDoesNotCount)
{
    beginOn({fixtures::primary, rightAt(1438)}, {1100, 100, 330, 300});
    EXPECT_EQ(widthsAfterGrowing(1), (Values{340}));
}

TEST_F(MoveResizeSizingTest, AScreenWithAGapCounts)
{
    beginOn({fixtures::primary, rightAt(1442)}, {1100, 100, 330, 300});
    EXPECT_EQ(widthsAfterGrowing(1), (Values{350}));
}

TEST_F(MoveResizeSizingTest, TheWindowEndsAtTheScreensBottom)
{
    begin({100, 600, 330, 290});
    resize(keyCodes::downArrow);
    EXPECT_EQ(window.frame().height, 300);
}

TEST_F(MoveResizeSizingTest, TheDockIsNotCovered)
{
    beginOn({fixtures::bottomDock}, {100, 600, 330, 220});
    resize(keyCodes::downArrow);
    EXPECT_EQ(window.frame().height, 230);
}

TEST_F(MoveResizeSizingTest, TheWindowGoesOnToTheScreenBelow)
{
    beginOn({fixtures::primary, {9, {0, -900, 1440, 900}, {0, -900, 1440, 875}}}, {100, 600, 330, 290});
    EXPECT_EQ(after(2, [this] { resize(keyCodes::downArrow); }, &AxRect::height), (Values{310, 330}));
}

TEST_F(MoveResizeSizingTest, TheLeastSizeCountsMoreThanTheScreensEdge)
{
    begin({1380, 100, 330, 300});
    resize(keyCodes::rightArrow);
    EXPECT_EQ(window.frame(), (AxRect{1380, 100, 100, 300}));
}

TEST_F(MoveResizeSizingTest, AKeyForOneDimensionLimitsTheOtherToo)
{
    begin({1100, 100, 400, 300});
    resize(keyCodes::downArrow);
    EXPECT_EQ(window.frame(), (AxRect{1100, 100, 340, 320}));
}

TEST_F(MoveResizeSizingTest, TheScreenIsFoundByTheTopOfAllScreens)
{
    // With a screen above, a window low on the primary one counts as lying above where it is drawn.
    desktop.screens.connect({fixtures::primary, fixtures::above});
    begin({1100, 950, 400, 300});
    resize(keyCodes::rightArrow);
    EXPECT_NE(desktop.log.lines().end(),
              std::ranges::find(desktop.log.lines(), "normalizedWindowRect: (1100.0, 730.0, 420.0, 300.0)"));
}

TEST_F(MoveResizeSizingTest, OutsideOfAllScreensTheLastOneStillLimits)
{
    begin({1100, 100, 330, 300});
    resize(keyCodes::rightArrow);
    ASSERT_EQ(window.frame().width, 340);
    desktop.moveWindow(window, {3000, 100, 330, 300});
    desktop.drain();
    resize(keyCodes::rightArrow);
    EXPECT_EQ(window.frame().width, 100);
}

TEST_F(MoveResizeSizingTest, WithoutAnyScreenEverThereIsNoLimit)
{
    begin({3000, 100, 330, 300});
    EXPECT_EQ(widthsAfterGrowing(1), (Values{350}));
}

} // namespace
} // namespace quorvel
