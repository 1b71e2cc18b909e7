#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "x11/keys/KeysDisplay.h"

namespace quorvel::x11 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Modifier = xtest::KeyInjector::Modifier;

constexpr KeyCode keyB = 11;
constexpr KeyCode escape = keyCodes::escape;

class EventTapsTest : public testing::Test {
protected:
    EventTapsTest()
    {
        tap->createRunLoopSource();
        tap->addSourceToRunLoop();
        tap->setEnabled(true);
    }

    void expectSeen(const std::vector<KeyCode>& keyCodes)
    {
        desktop.waitFor("keys at the tap", [&] { return seen.size() >= keyCodes.size(); });
        EXPECT_EQ(seen, keyCodes);
    }

    // The window has the keyboard: what is typed now arrives there, after everything that was typed before.
    void expectOnlyArrives(const std::vector<xcb_keysym_t>& before, xcb_keysym_t last)
    {
        desktop.display.keyboard.tap(last);
        desktop.window.waitForPress(desktop.codeOf(last));
        std::vector<std::uint8_t> codes;
        for (const auto keysym : before) {
            codes.push_back(desktop.codeOf(keysym));
        }
        codes.push_back(desktop.codeOf(last));
        EXPECT_EQ(desktop.pressesInWindow(), codes);
    }

    // A mode ends on a key; another key comes before the loop's next turn, and then `meanwhile`.
    void typeAcrossTheEnd(const std::function<void()>& meanwhile)
    {
        ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
        keys.press(XKB_KEY_b);
        expectSeen({keyB});
        tap->setKeysOfInterest({});
        keys.press(XKB_KEY_x);
        meanwhile();
        desktop.settle();
        keys.release(XKB_KEY_b);
        keys.release(XKB_KEY_x);
        expectOnlyArrives({XKB_KEY_x}, XKB_KEY_y);
        EXPECT_TRUE(isKeyboardFree());
        EXPECT_THAT(seen, ElementsAre(keyB));
    }

    bool isKeyboardFree() { return desktop.display.grabs.isKeyboardFree(); }

    KeysDisplay desktop;
    xtest::KeyInjector& keys = desktop.display.keyboard;
    std::vector<KeyCode> seen;
    std::vector<KeyEvent> events;
    std::unique_ptr<EventTap> tap =
        desktop.adapters.eventTaps.createTap({.eventMask = keyDownEventMask}, [this](const TapEvent& event) {
            seen.push_back(event.keyCode());
            events.push_back(*event.keyEvent());
            return TapDecision::drop;
        });
};

TEST_F(EventTapsTest, NothingOfAKeyHeldBeyondTheEndOfAModeLeaksIntoTheWindow)
{
    int presses = 0;
    const auto watching = desktop.connection->addEventHandler(XCB_KEY_PRESS, [&](const auto&) { ++presses; });
    desktop.makeKeysRepeat();
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.press(XKB_KEY_Escape);
    desktop.waitFor("the first press", [&] { return !seen.empty(); });
    tap->setKeysOfInterest({});
    const int before = presses;
    desktop.waitFor("further repeats", [&] { return presses >= before + 5; });
    EXPECT_FALSE(isKeyboardFree());
    keys.release(XKB_KEY_Escape);
    desktop.waitFor("the keyboard to be free", [&] { return isKeyboardFree(); });
    expectOnlyArrives({}, XKB_KEY_x);
}

TEST_F(EventTapsTest, TheSameHoldsForAKeyOfASmallSet)
{
    desktop.makeKeysRepeat();
    int presses = 0;
    const auto watching = desktop.connection->addEventHandler(XCB_KEY_PRESS, [&](const auto&) { ++presses; });
    ASSERT_TRUE(tap->setKeysOfInterest({escape}));
    keys.press(XKB_KEY_Escape);
    desktop.waitFor("the first press", [&] { return !seen.empty(); });
    tap->setKeysOfInterest({});
    const int before = presses;
    desktop.waitFor("further repeats", [&] { return presses >= before + 5; });
    keys.release(XKB_KEY_Escape);
    expectOnlyArrives({}, XKB_KEY_x);
}

TEST_F(EventTapsTest, AKeyTypedWhileTheLastOneIsStillDownReachesTheWindow)
{
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.press(XKB_KEY_b);
    expectSeen({keyB});
    tap->setKeysOfInterest({});
    desktop.settle();
    keys.press(XKB_KEY_x);
    desktop.waitFor("the key to be handed on", [&] { return !desktop.pressesInWindow().empty(); });
    keys.release(XKB_KEY_b);
    keys.release(XKB_KEY_x);
    expectOnlyArrives({XKB_KEY_x}, XKB_KEY_y);
    EXPECT_TRUE(isKeyboardFree());
    EXPECT_THAT(seen, ElementsAre(keyB));
}

TEST_F(EventTapsTest, AKeyTypedInTheMomentOfTheEndReachesTheWindow)
{
    typeAcrossTheEnd([] {});
}

TEST_F(EventTapsTest, AKeyTypedInTheTurnOfTheEndReachesTheWindow)
{
    typeAcrossTheEnd([this] {
        desktop.connection->sync();
        desktop.connection->dispatchEvents();
    });
}

TEST_F(EventTapsTest, AKeyTypedBetweenTwoModesReachesNeitherAndDoesNotStopTheKeyboard)
{
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    tap->setKeysOfInterest({});
    keys.tap(XKB_KEY_x);
    desktop.connection->sync();
    desktop.connection->dispatchEvents();
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.tap(XKB_KEY_b);
    expectSeen({keyB});
    EXPECT_THAT(desktop.pressesInWindow(), IsEmpty());
}

TEST_F(EventTapsTest, AKeyTypedWhileAKeyOfASmallSetIsDownReachesTheWindow)
{
    ASSERT_TRUE(tap->setKeysOfInterest({keyB, escape}));
    keys.press(XKB_KEY_b);
    expectSeen({keyB});
    keys.press(XKB_KEY_x);
    desktop.waitFor("the key to be handed on", [&] { return !desktop.pressesInWindow().empty(); });
    keys.release(XKB_KEY_x);
    keys.release(XKB_KEY_b);
    keys.tap(XKB_KEY_b);
    expectSeen({keyB, keyB});
    expectOnlyArrives({XKB_KEY_x}, XKB_KEY_y);
}

TEST_F(EventTapsTest, TwoKeysOfASmallSetCanBeDownAtATime)
{
    ASSERT_TRUE(tap->setKeysOfInterest({keyB, escape}));
    keys.press(XKB_KEY_b);
    keys.press(XKB_KEY_Escape);
    keys.release(XKB_KEY_b);
    keys.release(XKB_KEY_Escape);
    expectSeen({keyB, escape});
    expectOnlyArrives({}, XKB_KEY_x);
}

TEST_F(EventTapsTest, AModifierHeldWhileLeavingDoesNotEndTheWait)
{
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.press(XKB_KEY_b);
    expectSeen({keyB});
    tap->setKeysOfInterest({});
    desktop.settle();
    keys.pressModifier(Modifier::shift);
    desktop.settle();
    EXPECT_FALSE(isKeyboardFree());
    keys.release(XKB_KEY_b);
    desktop.waitFor("the keyboard to be free", [&] { return isKeyboardFree(); });
    keys.releaseModifier(Modifier::shift);
}

TEST_F(EventTapsTest, AModeThatBeginsAnewBeforeTheLastKeyIsUpHasTheKeyboardAtOnce)
{
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.press(XKB_KEY_b);
    expectSeen({keyB});
    tap->setKeysOfInterest({});
    desktop.settle();
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.tap(XKB_KEY_Escape);
    keys.release(XKB_KEY_b);
    expectSeen({keyB, escape});
    desktop.settle();
    EXPECT_FALSE(isKeyboardFree());
    EXPECT_THAT(desktop.pressesInWindow(), IsEmpty());
}

TEST_F(EventTapsTest, TheKeyboardIsGivenBackAfterWhatTheLastKeyCaused)
{
    bool wasFree = true;
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    auto& queue = desktop.loop.mainLoop();
    queue.async([&] { queue.async([&] { wasFree = isKeyboardFree(); }); }); // a window to move, and the request for it
    tap->setKeysOfInterest({});
    desktop.settle();
    EXPECT_FALSE(wasFree);
    EXPECT_TRUE(isKeyboardFree());
}

TEST_F(EventTapsTest, AReleaseThatGotLostInAModeDoesNotKeepTheKeyboardAfterIt)
{
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.press(XKB_KEY_b);
    expectSeen({keyB});
    keys.release(XKB_KEY_b);
    desktop.loseEvents();
    tap->setKeysOfInterest({});
    desktop.settle();
    EXPECT_FALSE(isKeyboardFree()) << "for all that is known the key is still down";
    desktop.waitFor("the keyboard to be free", [&] { return isKeyboardFree(); });
    expectOnlyArrives({}, XKB_KEY_x);
}

TEST_F(EventTapsTest, AReleaseThatGetsLostWhileLeavingDoesNotKeepTheKeyboard)
{
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.press(XKB_KEY_b);
    expectSeen({keyB});
    tap->setKeysOfInterest({});
    desktop.settle();
    EXPECT_FALSE(isKeyboardFree());
    keys.release(XKB_KEY_b);
    desktop.loseEvents();
    keys.tap(XKB_KEY_x); // the server keeps it back until the release has been dealt with
    desktop.waitFor("the keyboard to be free", [&] { return isKeyboardFree(); });
    expectOnlyArrives({XKB_KEY_x}, XKB_KEY_y);
}

TEST_F(EventTapsTest, AReleaseThatGotLostInASmallSetKeepsNoKeyFromAnybody)
{
    ASSERT_TRUE(tap->setKeysOfInterest({keyB, escape}));
    keys.press(XKB_KEY_b);
    expectSeen({keyB});
    keys.release(XKB_KEY_b);
    desktop.loseEvents();
    keys.tap(XKB_KEY_x);
    desktop.window.waitForPress(desktop.codeOf(XKB_KEY_x));
    keys.tap(XKB_KEY_Escape);
    expectSeen({keyB, escape});
    tap->setKeysOfInterest({});
    desktop.settle();
    EXPECT_TRUE(isKeyboardFree());
    expectOnlyArrives({XKB_KEY_x}, XKB_KEY_y);
}

TEST_F(EventTapsTest, AHotKeyPressedWhileLeavingIsNotHandedOn)
{
    int fired = 0;
    desktop.adapters.hotKeys.installHandler([&](HotKeyEvent&) {
        ++fired;
        return osStatus::success;
    });
    desktop.adapters.hotKeys.registerHotKey(keyCodes::tab, hotKeyModifiers::control, {1, 1});
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.press(XKB_KEY_b);
    expectSeen({keyB});
    tap->setKeysOfInterest({});
    desktop.settle();
    keys.tap({Modifier::control}, XKB_KEY_Tab);
    desktop.waitFor("the hot key", [&] { return fired == 1; });
    keys.release(XKB_KEY_b);
    desktop.waitFor("the keyboard to be free", [&] { return isKeyboardFree(); });
    expectOnlyArrives({}, XKB_KEY_x);
}

TEST_F(EventTapsTest, ClearingAndSettingInOneTurnKeepsTheKeyboard)
{
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    tap->setKeysOfInterest({});
    EXPECT_FALSE(isKeyboardFree());
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    desktop.settle();
    EXPECT_FALSE(isKeyboardFree());
    tap->setKeysOfInterest({});
    desktop.settle();
    EXPECT_TRUE(isKeyboardFree());
}

TEST_F(EventTapsTest, AKeyboardThatAnotherProgramHasCannotBeHad)
{
    ASSERT_TRUE(desktop.holdKeyboardElsewhere());
    EXPECT_FALSE(tap->setKeysOfInterest(allKeyCodes()));
    desktop.giveKeyboardBackElsewhere();
    keys.tap(XKB_KEY_b);
    expectOnlyArrives({XKB_KEY_b}, XKB_KEY_x);
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(EventTapsTest, AKeyThatAnotherProgramHoldsByItselfCannotBeHadAndLeavesNothingGrabbed)
{
    ASSERT_TRUE(desktop.holdElsewhere(0, XKB_KEY_Escape));
    EXPECT_FALSE(tap->setKeysOfInterest({keyB, escape}));
    EXPECT_TRUE(desktop.holdElsewhere(0, XKB_KEY_b));
    EXPECT_TRUE(desktop.holdElsewhere(XCB_MOD_MASK_SHIFT, XKB_KEY_Escape));
}

TEST_F(EventTapsTest, AShortcutOfAnotherProgramDoesNotKeepTheRestOfTheKeyAway)
{
    ASSERT_TRUE(desktop.holdElsewhere(XCB_MOD_MASK_4, XKB_KEY_b));
    ASSERT_TRUE(tap->setKeysOfInterest({keyB}));
    keys.tap(XKB_KEY_b);
    keys.tap({Modifier::shift}, XKB_KEY_b);
    expectSeen({keyB, keyB});
}

TEST_F(EventTapsTest, AKeyMapWithSuperAndAltOnOneModifierCountsNoCombinationTwice)
{
    desktop.run({"xmodmap", "-e", "clear Mod1", "-e", "add Mod4 = Alt_L"});
    desktop.waitFor("the new map", [&] {
        return desktop.keyboard->mapping().state(hotKeyModifiers::option) ==
               desktop.keyboard->mapping().state(hotKeyModifiers::command);
    });
    ASSERT_TRUE(desktop.holdElsewhere(XCB_MOD_MASK_4, XKB_KEY_b));
    ASSERT_TRUE(tap->setKeysOfInterest({keyB}));
    EXPECT_TRUE(tap->setKeysOfInterest({}));
    EXPECT_TRUE(desktop.holdElsewhere(0, XKB_KEY_b));
}

TEST_F(EventTapsTest, KeysOfASmallSetAreDroppedWhateverTheLocks)
{
    ASSERT_TRUE(tap->setKeysOfInterest({keyB}));
    desktop.toggleNumLock();
    desktop.toggleCapsLock();
    keys.tap(XKB_KEY_b);
    keys.tap({Modifier::control, Modifier::shift}, XKB_KEY_b);
    expectSeen({keyB, keyB});
    EXPECT_EQ(events[0].characters, "B");
    EXPECT_EQ(events[0].flags, eventFlags::capsLock);
    EXPECT_EQ(events[1].flags, eventFlags::capsLock | eventFlags::control | eventFlags::shift);
    desktop.toggleNumLock();
    desktop.toggleCapsLock();
}

TEST_F(EventTapsTest, ModifiersAndLocksAreNoKeyDowns)
{
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    for (const auto modifier : {Modifier::command, Modifier::option, Modifier::control, Modifier::shift}) {
        keys.pressModifier(modifier);
        keys.releaseModifier(modifier);
    }
    desktop.toggleCapsLock();
    desktop.toggleCapsLock();
    keys.tap(XKB_KEY_b);
    expectSeen({keyB});
}

TEST_F(EventTapsTest, AHotKeyOnAKeyOfTheSetSurvivesTheEndOfTheSet)
{
    int fired = 0;
    desktop.adapters.hotKeys.installHandler([&](HotKeyEvent&) {
        ++fired;
        return osStatus::success;
    });
    desktop.adapters.hotKeys.registerHotKey(keyB, hotKeyModifiers::control, {1, 1});
    ASSERT_TRUE(tap->setKeysOfInterest({keyB}));
    keys.tap({Modifier::control}, XKB_KEY_b);
    desktop.waitFor("the hot key", [&] { return fired == 1; });
    tap->setKeysOfInterest({});
    keys.tap({Modifier::control}, XKB_KEY_b);
    desktop.waitFor("the hot key again", [&] { return fired == 2; });
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(EventTapsTest, EverythingIsGivenBackWhenTheTapGoes)
{
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    keys.press(XKB_KEY_b);
    expectSeen({keyB});
    tap.reset();
    EXPECT_TRUE(isKeyboardFree());
    keys.release(XKB_KEY_b);
}

TEST_F(EventTapsTest, EverythingIsGivenBackWhenTheTapIsDisabled)
{
    ASSERT_TRUE(tap->setKeysOfInterest({keyB}));
    tap->setEnabled(false);
    EXPECT_TRUE(desktop.holdElsewhere(0, XKB_KEY_b));
}

TEST_F(EventTapsTest, ADisabledTapTakesItsKeysWhenItIsEnabled)
{
    tap->setEnabled(false);
    EXPECT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    EXPECT_TRUE(isKeyboardFree());
    tap->setEnabled(true);
    EXPECT_FALSE(isKeyboardFree());
}

TEST_F(EventTapsTest, CharactersFollowALayoutThatIsLoadedMeanwhile)
{
    const auto physicalY = desktop.codeOf(XKB_KEY_y);
    ASSERT_TRUE(tap->setKeysOfInterest(allKeyCodes()));
    for (const auto& [layout, character] : {std::pair{"us", "y"}, {"de", "z"}, {"fr", "y"}, {"ru", "н"}}) {
        desktop.run({"setxkbmap", layout});
        const auto count = seen.size();
        keys.tapCode({}, physicalY);
        desktop.waitFor("the key", [&] { return seen.size() > count; });
        EXPECT_EQ(events.back().keyCode, 16) << layout;
        EXPECT_EQ(events.back().characters, character) << layout;
    }
    EXPECT_FALSE(isKeyboardFree());
}

} // namespace
} // namespace quorvel::x11
