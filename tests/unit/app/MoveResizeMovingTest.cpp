// Moving a window in steps, and how it snaps to the edges of others.

#include <string>
#include <vector>

#include "tests/unit/app/AppScreens.h"
#include "tests/unit/app/MoveResizeFixture.h"

namespace quorvel {
namespace {

using Values = std::vector<double>;

class MoveResizeMovingTest : public MoveResizeFixture {};

TEST_F(MoveResizeMovingTest, EachKeyGoesAStepInItsDirection)
{
    store("mrSnapEnabled", PropertyValue{false});
    begin({100, 100, 400, 300});
    right();
    EXPECT_EQ(window.frame(), (AxRect{120, 100, 400, 300}));
    right();
    EXPECT_EQ(window.frame(), (AxRect{140, 100, 400, 300}));
    down();
    EXPECT_EQ(window.frame(), (AxRect{140, 120, 400, 300}));
    up();
    EXPECT_EQ(window.frame(), (AxRect{140, 100, 400, 300}));
    left();
    EXPECT_EQ(window.frame(), (AxRect{120, 100, 400, 300}));
}

TEST_F(MoveResizeMovingTest, TheFrameIsThereBeforeTheWindow)
{
    begin({100, 100, 400, 300});
    desktop.press(keyCodes::rightArrow);
    while (linesBeginningWith("rect origin").empty()) {
        desktop.turn();
    }
    EXPECT_EQ(window.frame().x, 100);
    EXPECT_EQ(desktop.overlayWindows.visible().front()->frame, (ScreenRect{120, 500, 400, 300}));
    desktop.drain();
    EXPECT_TRUE(isFramed(window));
    EXPECT_EQ(window.frame().x, 120);
}

TEST_F(MoveResizeMovingTest, AKeyIsLoggedAndWrittenOnce)
{
    begin({100, 100, 400, 300});
    forget();
    right();
    EXPECT_EQ(desktop.log.lines(), (std::vector<std::string>{"rect origin: (120.0, 100.0), rect size: (400.0, 300.0)",
                                                             "window position: (120.0, 100.0)"}));
    EXPECT_EQ(desktop.journal.count("Accessibility.setAttribute"), 2U);
}

TEST_F(MoveResizeMovingTest, AStepThatIsNotPositiveIsTwentyPoints)
{
    for (const double step : {0.0, -5.0}) {
        store("mrMoveStep", PropertyValue{step});
        if (!app) {
            begin({100, 100, 400, 300});
        } else {
            pressHotKey();
            desktop.moveWindow(window, {100, 100, 400, 300});
            pressHotKey();
        }
        right();
        EXPECT_EQ(window.frame().x, 120);
    }
}

TEST_F(MoveResizeMovingTest, AStepMayHaveAFraction)
{
    store("mrMoveStep", PropertyValue{7.5});
    begin({100, 100, 400, 300});
    right();
    EXPECT_EQ(window.frame().x, 107.5);
}

TEST_F(MoveResizeMovingTest, TheEdgeOfTheScreenHoldsNothing)
{
    begin({1200, 100, 400, 300});
    right();
    EXPECT_EQ(window.frame(), (AxRect{1220, 100, 400, 300}));
}

TEST_F(MoveResizeMovingTest, ASnappedWindowIsPulledFreeByTheThirdPress)
{
    begin({145, 100, 300, 300}, {neighbour});
    EXPECT_EQ(xAfterRights(10), (Values{165, 185, 205, 225, 245, 265, 300, 300, 300, 320}));
    EXPECT_FALSE(isSnapTargetShown());
    EXPECT_EQ(xAfterRights(2), (Values{340, 360}));
}

TEST_F(MoveResizeMovingTest, PressesAgainstTheEdgeAreIgnoredWithoutATrace)
{
    begin({265, 100, 300, 300}, {neighbour});
    right();
    ASSERT_TRUE(isSnapTargetShown());
    forget();
    right();
    up();
    EXPECT_TRUE(desktop.log.lines().empty());
    EXPECT_EQ(desktop.journal.count("Accessibility"), 0U);
    EXPECT_EQ(window.frame(), (AxRect{300, 100, 300, 300}));
}

TEST_F(MoveResizeMovingTest, ASnappedWindowCanBeMovedBack)
{
    begin({265, 100, 300, 300}, {neighbour});
    right();
    EXPECT_EQ(xAfterLefts(4), (Values{300, 300, 280, 260}));
}

TEST_F(MoveResizeMovingTest, EveryDirectionCountsAgainstTheResistance)
{
    begin({265, 100, 300, 300}, {neighbour});
    right();
    up();
    resize(keyCodes::leftArrow);
    EXPECT_EQ(window.frame(), (AxRect{300, 100, 300, 300}));
    down();
    EXPECT_EQ(window.frame(), (AxRect{300, 120, 300, 300}));
}

TEST_F(MoveResizeMovingTest, AFreedWindowGetsAwayWithSmallStepsToo)
{
    store("mrMoveStep", PropertyValue{5.0});
    begin({298, 100, 300, 300}, {neighbour});
    right();
    ASSERT_EQ(window.frame().x, 300);
    EXPECT_EQ(xAfterLefts(6), (Values{300, 300, 295, 290, 285, 280}));
    EXPECT_FALSE(isSnapTargetShown());
}

TEST_F(MoveResizeMovingTest, AResistanceOfOneIgnoresNothing)
{
    store("mrSnapResistance", PropertyValue{1.0});
    begin({245, 100, 300, 300}, {neighbour});
    EXPECT_EQ(xAfterRights(4), (Values{265, 300, 320, 340}));
}

TEST_F(MoveResizeMovingTest, AResistanceLosesItsFraction)
{
    store("mrSnapResistance", PropertyValue{2.9});
    begin({265, 100, 300, 300}, {neighbour});
    EXPECT_EQ(xAfterRights(3), (Values{300, 300, 320}));
}

TEST_F(MoveResizeMovingTest, AResistanceBelowOneIsThree)
{
    store("mrSnapResistance", PropertyValue{0.4});
    begin({265, 100, 300, 300}, {neighbour});
    EXPECT_EQ(xAfterRights(4), (Values{300, 300, 300, 320}));
}

TEST_F(MoveResizeMovingTest, WithoutSnappingNothingHolds)
{
    store("mrSnapEnabled", PropertyValue{false});
    begin({145, 100, 300, 300}, {neighbour});
    EXPECT_EQ(xAfterRights(8), (Values{165, 185, 205, 225, 245, 265, 285, 305}));
    EXPECT_EQ(controller().modeState().snapTargetOverlay, nullptr);
}

TEST_F(MoveResizeMovingTest, AnythingButABooleanTurnsSnappingOn)
{
    store("mrSnapEnabled", "no");
    begin({265, 100, 300, 300}, {neighbour});
    EXPECT_EQ(xAfterRights(1), (Values{300}));
}

TEST_F(MoveResizeMovingTest, AThresholdOfNoneIsTwentyPoints)
{
    store("mrSnapThreshold", PropertyValue{0.0});
    begin({260, 100, 300, 300}, {neighbour});
    EXPECT_EQ(xAfterRights(1), (Values{300}));
}

TEST_F(MoveResizeMovingTest, TheOwnEntryDoesNotAttractTheWindowBack)
{
    store("mrMoveStep", PropertyValue{15.0});
    begin({400, 300, 300, 300});
    EXPECT_EQ(xAfterRights(3), (Values{415, 430, 445}));
    EXPECT_EQ(xAfterLefts(4), (Values{430, 415, 400, 385}));
}

TEST_F(MoveResizeMovingTest, WindowsOnAnotherScreenDoNotAttract)
{
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    begin({1095, 100, 285, 300}, {{1410, 100, 62, 400}});
    EXPECT_EQ(xAfterRights(1), (Values{1115}));
}

TEST_F(MoveResizeMovingTest, AWindowThatIsMostlyOnThisScreenAttracts)
{
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    begin({1095, 100, 285, 300}, {{1410, 100, 58, 400}});
    EXPECT_EQ(xAfterRights(1), (Values{1125}));
}

TEST_F(MoveResizeMovingTest, WindowsAreAttractedWhereTheyWereWhenTheModeBegan)
{
    begin({265, 100, 300, 300}, {neighbour});
    desktop.moveWindow(other(0), {900, 100, 400, 400});
    EXPECT_EQ(xAfterRights(1), (Values{300}));
}

class SnapTargetFrameTest : public MoveResizeFixture {
protected:
    const OverlayFrameWindowController& overlay() { return *controller().modeState().snapTargetOverlay; }
    ScreenRect shownFrame() { return controller().modeState().snapTargetOverlay->window().frame(); }
};

TEST_F(SnapTargetFrameTest, ItSurroundsTheWholeEdgeWithItsBorderOutside)
{
    begin({265, 200, 300, 200}, {neighbour});
    right();
    ASSERT_TRUE(isSnapTargetShown());
    // A strip from 597 to 603, 400 high from 100 on, with 3 points of border around it.
    EXPECT_EQ(shownFrame(), (ScreenRect{594, 900 - 503, 12, 406}));
}

TEST_F(SnapTargetFrameTest, ItLiesAlongAHorizontalEdgeToo)
{
    begin({650, 515, 300, 200}, {neighbour});
    up();
    ASSERT_EQ(window.frame().y, 500);
    EXPECT_EQ(shownFrame(), (ScreenRect{597, 900 - 506, 406, 12}));
}

TEST_F(SnapTargetFrameTest, ItLooksAsTheSettingsHaveIt)
{
    store("mrSnapTargetColorHex", "#11223344");
    store("mrSnapTargetBorderWidth", PropertyValue{5.0});
    store("mrSnapTargetGlow", PropertyValue{false});
    store("mrCornerRadius", 4);
    begin({265, 100, 300, 300}, {neighbour});
    right();
    const auto& view = overlay().overlayView();
    EXPECT_EQ(view.borderColor, Color::bytes(0x11, 0x22, 0x33).withAlpha(0x44 / 255.0));
    EXPECT_EQ(view.borderWidth, 5.0);
    EXPECT_EQ(view.cornerRadius, 4.0);
    EXPECT_FALSE(view.glow);
}

TEST_F(SnapTargetFrameTest, WhatTheSettingsDoNotTellIsGreenThreePointsWideAndGlows)
{
    store("mrSnapTargetColorHex", "green");
    store("mrSnapTargetBorderWidth", PropertyValue{0.0});
    store("mrSnapTargetGlow", "no");
    begin({265, 100, 300, 300}, {neighbour});
    right();
    const auto& view = overlay().overlayView();
    EXPECT_EQ(view.borderColor, Color::bytes(0x30, 0xD1, 0x58).withAlpha(0.8));
    EXPECT_EQ(view.borderWidth, 3.0);
    EXPECT_EQ(view.cornerRadius, 10.0);
    EXPECT_TRUE(view.glow);
}

TEST_F(SnapTargetFrameTest, AChangeOfItsLooksCountsAtTheNextSnap)
{
    store("mrSnapResistance", 1);
    begin({265, 100, 300, 300}, {neighbour, {990, 100, 200, 400}});
    right();
    store("mrSnapTargetBorderWidth", PropertyValue{6.0});
    while (!isSnapTargetShown() || window.frame().x == 300) {
        right();
        ASSERT_LT(window.frame().x, 800);
    }
    EXPECT_EQ(overlay().overlayView().borderWidth, 6.0);
    EXPECT_EQ(desktop.journal.count("OverlayWindows.createWindow"), 2U);
}

TEST_F(SnapTargetFrameTest, BothFramesLetClicksThrough)
{
    begin({265, 100, 300, 300}, {neighbour});
    right();
    ASSERT_EQ(shownWindowCount(), 2U);
    for (const auto& shown : desktop.overlayWindows.visible()) {
        EXPECT_TRUE(shown->description.ignoresMouseEvents);
        EXPECT_EQ(shown->description.level, windowLevels::status);
    }
}

} // namespace
} // namespace quorvel
