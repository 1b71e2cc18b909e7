#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "x11/keys/EventTapsFixture.h"

namespace quorvel::x11 {
namespace {

using testing::IsEmpty;
using Modifier = xtest::KeyInjector::Modifier;

constexpr KeyCode keyB = 11;
constexpr KeyCode escape = keyCodes::escape;

class EventTapsTest : public EventTapsFixture {};

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
    EXPECT_EQ(events[0].flags, 0U);
    EXPECT_EQ(events[1].flags, eventFlags::control | eventFlags::shift);
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
