// Going on to other windows, and minimizing them.

#include <string>
#include <vector>

#include "tests/unit/app/MoveResizeFixture.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;

class MoveResizeCyclingTest : public MoveResizeFixture {
protected:
    void beginWithThree() { begin(first, {second, third}); }

    static constexpr AxRect first{100, 100, 300, 300};
    static constexpr AxRect second{600, 100, 300, 300};
    static constexpr AxRect third{1000, 500, 300, 300};
};

TEST_F(MoveResizeCyclingTest, ItGoesFromFrontToBackAndRound)
{
    beginWithThree();
    cycle();
    EXPECT_TRUE(isFramed(other(0)));
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), other(0).process());
    cycle();
    EXPECT_TRUE(isFramed(other(1)));
    cycle();
    EXPECT_TRUE(isFramed(window));
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
}

TEST_F(MoveResizeCyclingTest, TheOldFrameGoesOutBeforeTheNewOneShows)
{
    beginWithThree();
    forget();
    cycle();
    EXPECT_EQ(desktop.journal.entries({"Accessibility.performAction", "Workspace.activate", "OverlayWindow.order"}),
              (Lines{"Accessibility.performAction(window 3, AXRaise)", "Workspace.activate(502)",
                     "OverlayWindow.orderOut(1)", "OverlayWindow.orderFrontRegardless(2)"}));
}

TEST_F(MoveResizeCyclingTest, TheResizeModifierGoesBackwardsRoundTheBeginning)
{
    beginWithThree();
    cycle(eventFlags::shift);
    EXPECT_TRUE(isFramed(other(1)));
    cycle(eventFlags::shift);
    EXPECT_TRUE(isFramed(other(0)));
}

TEST_F(MoveResizeCyclingTest, AWindowThatIsNotListedCountsAsTheFirstPlace)
{
    furnish(first, {second, third});
    window.listAs({std::nullopt, 0, first});
    launch();
    pressHotKey();
    cycle();
    EXPECT_TRUE(isCurrent(other(1)));
}

TEST_F(MoveResizeCyclingTest, WithoutWindowsNothingHappens)
{
    furnish(first);
    window.listAs({std::nullopt, 0, first});
    launch();
    pressHotKey();
    forget();
    cycle();
    EXPECT_EQ(desktop.journal.count("Accessibility"), 0U);
    EXPECT_TRUE(isFramed(window));
}

TEST_F(MoveResizeCyclingTest, AMovedWindowIsFoundAgain)
{
    beginWithThree();
    down();
    cycle();
    cycle();
    cycle();
    EXPECT_TRUE(isCurrent(window));
    down();
    EXPECT_EQ(window.frame(), (AxRect{100, 140, 300, 300}));
}

TEST_F(MoveResizeCyclingTest, AWindowThatMovedByItselfIsStoodAsideForTheNext)
{
    beginWithThree();
    desktop.moveWindow(other(0), {700, 400, 300, 300});
    cycle();
    EXPECT_TRUE(isFramed(window));
    cycle();
    EXPECT_TRUE(isFramed(other(1)));
}

TEST_F(MoveResizeCyclingTest, ASnapEndsWithTheWindow)
{
    begin({265, 100, 300, 300}, {neighbour});
    right();
    ASSERT_TRUE(isSnapTargetShown());
    cycle();
    EXPECT_FALSE(isSnapTargetShown());
    down();
    EXPECT_EQ(other(0).frame(), (AxRect{600, 120, 400, 400}));
}

TEST_F(MoveResizeCyclingTest, TheWindowThatWasLeftAttractsFromWhereItIsNow)
{
    begin({100, 100, 300, 300}, {{500, 100, 300, 300}});
    right();
    right();
    cycle();
    left();
    EXPECT_EQ(other(0).frame().x, 480);
    left();
    EXPECT_EQ(other(0).frame().x, 440);
    EXPECT_TRUE(isSnapTargetShown());
}

TEST_F(MoveResizeCyclingTest, AnApplicationThatTheWorkspaceDoesNotKnowIsNotActivated)
{
    beginWithThree();
    other(0).application.hideFromWorkspace();
    forget();
    cycle();
    EXPECT_TRUE(isFramed(other(0)));
    EXPECT_EQ(desktop.journal.count("Workspace.activate"), 0U);
}

TEST_F(MoveResizeCyclingTest, OfTwoWindowsOnOneAnotherTheFirstOneIsTaken)
{
    furnish(first);
    auto& twin = desktop.openWindow(editor, "Twin", second);
    desktop.openWindow(editor, "Front twin", second);
    desktop.focus(window);
    launch();
    pressHotKey();
    cycle();
    EXPECT_FALSE(isCurrent(twin));
    EXPECT_TRUE(isFramed(twin));
}

class MoveResizeMinimizingTest : public MoveResizeCyclingTest {};

TEST_F(MoveResizeMinimizingTest, TheNextWindowBecomesCurrent)
{
    begin(first, {second});
    minimize();
    EXPECT_TRUE(window.isMinimized());
    EXPECT_TRUE(isFramed(other(0)));
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), other(0).process());
    cycle();
    EXPECT_TRUE(isFramed(other(0)));
}

TEST_F(MoveResizeMinimizingTest, TheFrameIsRefreshedOnceAMomentLater)
{
    begin(first, {second});
    minimize();
    EXPECT_EQ(desktop.mainQueue.pendingCount(), 1U);
    store("mrSelectionBorderWidth", PropertyValue{9.0});
    desktop.advance(0.049);
    EXPECT_EQ(desktop.mainQueue.pendingCount(), 1U);
    forget();
    desktop.advance(0.001);
    EXPECT_EQ(desktop.mainQueue.pendingCount(), 0U);
    EXPECT_EQ(desktop.journal.count("OverlayWindow.setFrame"), 1U);
}

TEST_F(MoveResizeMinimizingTest, TheRefreshIsForThatWindowOnly)
{
    begin(first, {second});
    minimize();
    type(keyCodes::escape);
    forget();
    desktop.advance(1.0);
    EXPECT_EQ(desktop.journal.count("OverlayWindow"), 0U);
    EXPECT_TRUE(isModeGone());
}

TEST_F(MoveResizeMinimizingTest, MinimizingTheOnlyWindowEndsTheMode)
{
    begin(first);
    minimize();
    EXPECT_TRUE(window.isMinimized());
    EXPECT_TRUE(isModeGone());
    EXPECT_EQ(desktop.mainQueue.pendingCount(), 0U);
}

TEST_F(MoveResizeMinimizingTest, ASnapEndsWithTheWindow)
{
    begin({265, 100, 300, 300}, {neighbour});
    right();
    minimize();
    EXPECT_FALSE(isSnapTargetShown());
    down();
    EXPECT_EQ(other(0).frame().y, 120);
}

TEST_F(MoveResizeMinimizingTest, TheSamePlaceInTheListComesNext)
{
    beginWithThree();
    cycle();
    minimize();
    EXPECT_TRUE(isFramed(other(1)));
    minimize();
    EXPECT_TRUE(isFramed(window));
}

TEST_F(MoveResizeMinimizingTest, AWindowThatIsGoneIsPassedOver)
{
    beginWithThree();
    desktop.closeWindow(other(0));
    minimize();
    EXPECT_TRUE(isFramed(other(1)));
    cycle();
    EXPECT_TRUE(isFramed(other(1)));
}

TEST_F(MoveResizeMinimizingTest, FromTheLastPlaceItGoesOnFromTheBeginning)
{
    beginWithThree();
    cycle(eventFlags::shift);
    ASSERT_TRUE(isCurrent(other(1)));
    desktop.closeWindow(other(0));
    minimize();
    EXPECT_TRUE(isFramed(window));
}

TEST_F(MoveResizeMinimizingTest, WithoutAnyWindowLeftTheModeEnds)
{
    beginWithThree();
    desktop.closeWindow(other(0));
    desktop.closeWindow(other(1));
    minimize();
    EXPECT_TRUE(isModeGone());
}

TEST_F(MoveResizeMinimizingTest, AMovedWindowIsMinimizedWhereItIsAndLeavesTheList)
{
    beginWithThree();
    down();
    minimize();
    EXPECT_TRUE(window.isMinimized());
    cycle();
    cycle();
    EXPECT_TRUE(isFramed(other(0)));
}

TEST_F(MoveResizeMinimizingTest, OfTwoWindowsOnOneAnotherItsOwnOneIsMinimized)
{
    furnish(first);
    auto& twin = desktop.openWindow(editor, "Twin", first);
    desktop.focus(window);
    launch();
    pressHotKey();
    desktop.focus(twin);
    minimize();
    EXPECT_TRUE(window.isMinimized());
    EXPECT_FALSE(twin.isMinimized());
}

TEST_F(MoveResizeMinimizingTest, ARefusalLeavesEverythingAsItWas)
{
    begin(first, {second});
    window.failWriting(axNames::minimized, axErrors::attributeUnsupported);
    minimize();
    EXPECT_EQ(lastLine(), "Failed to minimize window: -25205");
    EXPECT_TRUE(isFramed(window));
    cycle();
    EXPECT_TRUE(isFramed(other(0)));
}

TEST_F(MoveResizeMinimizingTest, UnreadableWindowsAreReported)
{
    begin(first, {second});
    editor.failReading(axNames::windows, axErrors::cannotComplete);
    minimize();
    EXPECT_EQ(lastLine(), "Failed to get windows for PID 500");
    EXPECT_TRUE(isFramed(window));
}

TEST_F(MoveResizeMinimizingTest, AWindowThatIsNotWhereItShouldBeIsReported)
{
    begin(first, {second});
    window.answer(axNames::position, AxPoint{102, 100});
    minimize();
    EXPECT_EQ(lastLine(), "Failed to find matching AX window element");
    EXPECT_FALSE(window.isMinimized());
    window.answer(axNames::position, AxPoint{101.9, 100});
    minimize();
    EXPECT_TRUE(window.isMinimized());
}

TEST_F(MoveResizeMinimizingTest, AWindowThatIsGoneIsReported)
{
    begin(first, {second});
    desktop.closeWindow(window);
    desktop.drain();
    minimize();
    EXPECT_EQ(lastLine(), "Failed to find PID for current window");
    EXPECT_EQ(blocker().blockedKeyCodes(), sevenKeys());
}

} // namespace
} // namespace quorvel
