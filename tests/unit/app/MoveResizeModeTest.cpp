// How the move/resize mode begins and ends, and which keys it takes.

#include <string>
#include <vector>

#include "tests/support/FatalErrors.h"
#include "tests/unit/app/MoveResizeFixture.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;

class MoveResizeModeTest : public MoveResizeFixture {
protected:
    static constexpr AxRect frame{100, 100, 400, 300};
};

TEST_F(MoveResizeModeTest, TheHotKeyTakesSevenKeysAndFramesTheWindow)
{
    begin(frame);
    EXPECT_EQ(blocker().blockedKeyCodes(), sevenKeys());
    EXPECT_TRUE(isCurrent(window));
    EXPECT_TRUE(isFramed(window));
    EXPECT_EQ(state(), StateManager::States::normal);
}

TEST_F(MoveResizeModeTest, OtherKeysKeepReachingTheApplication)
{
    begin(frame);
    type(keys::b);
    type(keyCodes::rightArrow);
    ASSERT_EQ(editor.receivedKeys().size(), 1U);
    EXPECT_EQ(editor.receivedKeys().front().keyCode, keys::b);
    EXPECT_EQ(blocker().blockedKeyCodes(), sevenKeys());
}

TEST_F(MoveResizeModeTest, AKeyThatIsNoneOfTheSevenIsIgnored)
{
    begin(frame);
    blocker().setBlockedKeyCodes(allKeyCodes());
    type(keys::b);
    EXPECT_EQ(window.frame(), frame);
    EXPECT_EQ(blocker().blockedKeyCodes(), allKeyCodes());
    EXPECT_TRUE(isCurrent(window));
}

TEST_F(MoveResizeModeTest, WithoutAFrontmostWindowItStaysOff)
{
    furnish(frame);
    launch();
    desktop.leaveNobodyInFront();
    pressHotKey();
    EXPECT_EQ(lastLine(), "No valid frontmost window to move/resize");
    EXPECT_TRUE(isModeGone());
}

TEST_F(MoveResizeModeTest, AnApplicationWithoutWindowsLeavesItOff)
{
    launch();
    desktop.minimize(window);
    pressHotKey();
    EXPECT_EQ(desktop.log.lines(),
              (Lines{"Window is nil or not a valid AXUIElement", "No valid frontmost window to move/resize"}));
    EXPECT_TRUE(isModeGone());
}

TEST_F(MoveResizeModeTest, TheHotKeyEndsItAndLetsTheWindowGo)
{
    begin(frame);
    const auto handle = element();
    pressHotKey();
    EXPECT_TRUE(isModeGone());
    EXPECT_EQ(handle->axWindowElement(), nullptr);
    EXPECT_EQ(desktop.journal.count("AxObserver.removeNotification"), 3U);
}

TEST_F(MoveResizeModeTest, TheExitKeyOnlyOrdersTheFrameOut)
{
    begin(frame);
    const auto handle = element();
    type(keyCodes::escape);
    EXPECT_TRUE(isModeGone());
    EXPECT_NE(handle->axWindowElement(), nullptr);
}

TEST_F(MoveResizeModeTest, AfterTheExitKeyItStartsAfresh)
{
    begin({280, 100, 300, 300}, {neighbour});
    right();
    right();
    ASSERT_EQ(window.frame().x, 300);
    ASSERT_TRUE(isSnapTargetShown());
    type(keyCodes::escape);
    EXPECT_TRUE(isModeGone());
    pressHotKey();
    EXPECT_EQ(xAfterRights(2), (std::vector<double>{320, 340}));
}

TEST_F(MoveResizeModeTest, TheOverlayMakesWayForIt)
{
    furnish(frame);
    launch();
    pressOverlayHotKey();
    ASSERT_EQ(state(), StateManager::States::overlayOn);
    pressHotKey();
    EXPECT_EQ(state(), StateManager::States::normal);
    EXPECT_EQ(blocker().blockedKeyCodes(), sevenKeys());
    EXPECT_TRUE(isFramed(window));
}

TEST_F(MoveResizeModeTest, ItMakesWayForTheOverlay)
{
    begin(frame);
    pressOverlayHotKey();
    EXPECT_EQ(element(), nullptr);
    EXPECT_EQ(state(), StateManager::States::overlayOn);
    type(keyCodes::escape);
    EXPECT_TRUE(isModeGone());
}

TEST_F(MoveResizeModeTest, AKeyThatArrivesAfterTheEndDoesNothing)
{
    begin(frame);
    desktop.press(keyCodes::escape);
    desktop.press(keyCodes::rightArrow);
    desktop.drain();
    EXPECT_EQ(window.frame(), frame);
    EXPECT_TRUE(isModeGone());
}

TEST_F(MoveResizeModeTest, TheWindowIsLetGoOfWithTheMode)
{
    begin(frame);
    const std::weak_ptr handle = element();
    type(keyCodes::escape);
    EXPECT_TRUE(handle.expired());
}

TEST_F(MoveResizeModeTest, CyclingIsComparedBeforeLeaving)
{
    store("mrExitModeKeyCode", keyCodes::tab);
    begin(frame, {neighbour});
    EXPECT_EQ(blocker().blockedKeyCodes().size(), 6U);
    cycle();
    EXPECT_TRUE(isCurrent(other(0)));
}

TEST_F(MoveResizeModeTest, DirectionKeysAreComparedFirst)
{
    store("mrMoveRightKeyCode", keys::m);
    store("mrCycleWindowsKeyCode", keys::m);
    begin(frame, {neighbour});
    minimize();
    EXPECT_EQ(window.frame().x, 120);
    EXPECT_TRUE(isCurrent(window));
}

TEST_F(MoveResizeModeTest, AStoredKeyReplacesTheDefaultEvenTheAKey)
{
    store("mrMoveRightKeyCode", keyCodes::a);
    begin(frame);
    EXPECT_FALSE(blocker().blockedKeyCodes().contains(keyCodes::rightArrow));
    type(keyCodes::a);
    EXPECT_EQ(window.frame().x, 120);
}

TEST_F(MoveResizeModeTest, KeysAndStepsAreThoseOfTheBeginning)
{
    begin(frame);
    store("mrMoveStep", PropertyValue{50.0});
    store("mrMoveRightKeyCode", keys::b);
    right();
    EXPECT_EQ(window.frame().x, 120);
}

TEST_F(MoveResizeModeTest, AnotherResizeModifierReplacesShift)
{
    store("mrResizeModifierFlags", 524288);
    begin(frame);
    type(keyCodes::rightArrow, eventFlags::option);
    EXPECT_EQ(window.frame(), (AxRect{100, 100, 420, 300}));
    type(keyCodes::rightArrow, eventFlags::shift);
    EXPECT_EQ(window.frame(), (AxRect{120, 100, 420, 300}));
}

TEST_F(MoveResizeModeTest, AResizeModifierOfNoneMeansShift)
{
    store("mrResizeModifierFlags", std::int64_t{0});
    begin(frame);
    resize(keyCodes::rightArrow);
    EXPECT_EQ(window.frame().width, 420);
    right();
    EXPECT_EQ(window.frame().x, 120);
}

TEST_F(MoveResizeModeTest, FurtherModifiersMakeItAMove)
{
    begin(frame);
    type(keyCodes::rightArrow, eventFlags::shift | eventFlags::control);
    EXPECT_EQ(window.frame(), (AxRect{120, 100, 400, 300}));
}

TEST_F(MoveResizeModeTest, ANegativeResizeModifierIsAFatalError)
{
    store("mrResizeModifierFlags", -1);
    furnish(frame);
    launch();
    EXPECT_TRUE(fatalErrorOf([this] { controller().handleAction(Action::moveResizeFrontmost, {}); }));
}

TEST_F(MoveResizeModeTest, AWindowThatClosesTakesItsFrameAlongAndLeavesTheModeOn)
{
    begin(frame, {neighbour});
    desktop.closeWindow(window);
    desktop.drain();
    EXPECT_EQ(shownWindowCount(), 0U);
    right();
    resize(keyCodes::downArrow);
    EXPECT_EQ(shownWindowCount(), 0U);
    cycle();
    EXPECT_TRUE(isFramed(other(0)));
}

TEST_F(MoveResizeModeTest, AWindowOfUnknownPlaceCannotBeMoved)
{
    furnish(frame);
    launch();
    window.failReading(axNames::position, axErrors::failure);
    pressHotKey();
    EXPECT_EQ(blocker().blockedKeyCodes(), sevenKeys());
    right();
    EXPECT_EQ(window.frame(), frame);
    EXPECT_EQ(shownWindowCount(), 0U);
    minimize();
    EXPECT_EQ(lastLine(), "Failed to get current window rect for minimization");
    type(keyCodes::escape);
    EXPECT_TRUE(isModeGone());
}

TEST_F(MoveResizeModeTest, OpeningThePreferencesReleasesTheKeys)
{
    begin(frame);
    controller().openPreferences();
    EXPECT_TRUE(blocker().blockedKeyCodes().empty());
}

TEST_F(MoveResizeModeTest, WithoutABlockerItStillComesAndGoes)
{
    launch();
    MainController alone(platform, nullptr);
    alone.handleAction(Action::moveResizeFrontmost, {});
    EXPECT_NE(alone.modeState().moveResizeElement, nullptr);
    alone.handleAction(Action::moveResizeFrontmost, {});
    EXPECT_EQ(alone.modeState().moveResizeElement, nullptr);
}

class MoveResizeFallbackTest : public MoveResizeFixture {
protected:
    MoveResizeFallbackTest()
    {
        desktop.permissions.deny(Permission::inputMonitoring);
        begin({100, 100, 400, 300}, {neighbour});
    }
};

TEST_F(MoveResizeFallbackTest, ThePanelTakesTheKeysAndGivesTheFocusBack)
{
    EXPECT_TRUE(isKeyCapturePanelShown());
    right();
    EXPECT_EQ(window.frame().x, 120);
    type(keyCodes::escape);
    EXPECT_TRUE(isModeGone());
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
}

TEST_F(MoveResizeFallbackTest, ThePanelTakesTheKeysAgainAfterCycling)
{
    cycle();
    ASSERT_NE(desktop.overlayWindows.keyPanel(), nullptr);
    right();
    EXPECT_EQ(other(0).frame().x, 620);
    EXPECT_TRUE(other(0).application.receivedKeys().empty());
}

TEST_F(MoveResizeFallbackTest, TheFocusGoesToTheWindowThatWasCycledToLast)
{
    cycle();
    type(keyCodes::escape);
    EXPECT_TRUE(isModeGone());
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), other(0).process());
}

} // namespace
} // namespace quorvel
