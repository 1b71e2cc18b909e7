#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "x11/keys/EventTapsFixture.h"

namespace quorvel::x11 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Modifier = xtest::KeyInjector::Modifier;

constexpr KeyCode keyB = 11;
constexpr KeyCode escape = keyCodes::escape;

// What becomes of the keyboard, and of what is typed, when a mode ends.
class KeyboardReleaseTest : public EventTapsFixture {
protected:
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
};

TEST_F(KeyboardReleaseTest, NothingOfAKeyHeldBeyondTheEndOfAModeLeaksIntoTheWindow)
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

TEST_F(KeyboardReleaseTest, NothingOfAKeyOfASmallSetHeldBeyondItsEndLeaksIntoTheWindow)
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

TEST_F(KeyboardReleaseTest, AKeyTypedWhileTheLastOneIsStillDownReachesTheWindow)
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

TEST_F(KeyboardReleaseTest, AKeyTypedInTheMomentOfTheEndReachesTheWindow)
{
    typeAcrossTheEnd([] {});
}

TEST_F(KeyboardReleaseTest, AKeyTypedInTheTurnOfTheEndReachesTheWindow)
{
    typeAcrossTheEnd([this] {
        desktop.connection->sync();
        desktop.connection->dispatchEvents();
    });
}

TEST_F(KeyboardReleaseTest, AKeyTypedBetweenTwoModesReachesNeitherAndDoesNotStopTheKeyboard)
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

TEST_F(KeyboardReleaseTest, AModifierHeldWhileLeavingDoesNotEndTheWait)
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

TEST_F(KeyboardReleaseTest, AModeThatBeginsAnewBeforeTheLastKeyIsUpHasTheKeyboardAtOnce)
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

TEST_F(KeyboardReleaseTest, TheKeyboardIsGivenBackAfterWhatTheLastKeyCaused)
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

TEST_F(KeyboardReleaseTest, AReleaseThatGotLostInAModeDoesNotKeepTheKeyboardAfterIt)
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

TEST_F(KeyboardReleaseTest, AReleaseThatGetsLostWhileLeavingDoesNotKeepTheKeyboard)
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

TEST_F(KeyboardReleaseTest, AHotKeyPressedWhileLeavingIsNotHandedOn)
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

TEST_F(KeyboardReleaseTest, ClearingAndSettingInOneTurnKeepsTheKeyboard)
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

} // namespace
} // namespace quorvel::x11
