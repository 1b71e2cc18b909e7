#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "x11/keys/KeysDisplay.h"

namespace quorvel::x11 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Modifier = xtest::KeyInjector::Modifier;

constexpr std::uint32_t keyB = 11;
constexpr std::uint32_t controlOption = hotKeyModifiers::control | hotKeyModifiers::option;
constexpr std::uint16_t controlAltMask = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
constexpr std::uint16_t numLockMask = XCB_MOD_MASK_2;
const std::vector<Modifier> controlAlt{Modifier::control, Modifier::option};

class HotKeysTest : public testing::Test {
protected:
    HotKeysTest()
    {
        hotKeys.installHandler([this](HotKeyEvent& event) {
            fired.push_back(event.hotKeyId()->id);
            return event.callNextHandler();
        });
    }

    void expectFired(const std::vector<std::uint32_t>& ids)
    {
        desktop.waitFor("a hot key", [&] { return fired.size() >= ids.size(); });
        EXPECT_EQ(fired, ids);
    }

    KeysDisplay desktop;
    HotKeys& hotKeys = desktop.adapters.hotKeys;
    std::vector<std::uint32_t> fired;
};

TEST_F(HotKeysTest, TheLocksDoNotMatter)
{
    ASSERT_EQ(hotKeys.registerHotKey(keyB, controlOption, {1, 1}).status, osStatus::success);
    desktop.toggleNumLock();
    desktop.display.keyboard.tap(controlAlt, XKB_KEY_b);
    desktop.toggleCapsLock();
    desktop.display.keyboard.tap(controlAlt, XKB_KEY_b);
    desktop.toggleNumLock();
    desktop.display.keyboard.tap(controlAlt, XKB_KEY_b);
    desktop.toggleCapsLock();
    desktop.display.keyboard.tap(controlAlt, XKB_KEY_b);
    expectFired({1, 1, 1, 1});
    EXPECT_THAT(desktop.pressesInWindow(), testing::Not(testing::Contains(desktop.codeOf(XKB_KEY_b))));
}

TEST_F(HotKeysTest, CommandIsSuper)
{
    ASSERT_EQ(hotKeys.registerHotKey(keyB, hotKeyModifiers::command | hotKeyModifiers::shift, {1, 1}).status,
              osStatus::success);
    desktop.display.keyboard.tap({Modifier::command, Modifier::shift}, XKB_KEY_b);
    expectFired({1});
}

TEST_F(HotKeysTest, ACombinationThatAnotherProgramHoldsWithOneLockOnlyLeavesNothingGrabbed)
{
    ASSERT_TRUE(desktop.holdElsewhere(controlAltMask | numLockMask, XKB_KEY_b));
    const auto registration = hotKeys.registerHotKey(keyB, controlOption, {1, 1});
    EXPECT_EQ(registration.status, osStatus::hotKeyExists);
    EXPECT_EQ(registration.ref, noHotKeyRef);
    for (const std::uint16_t locks : {0, XCB_MOD_MASK_LOCK + 0, XCB_MOD_MASK_LOCK | numLockMask}) {
        EXPECT_TRUE(desktop.holdElsewhere(controlAltMask | locks, XKB_KEY_b)) << locks;
    }
}

TEST_F(HotKeysTest, AnUnregisteredHotKeyLeavesNothingGrabbed)
{
    const auto registration = hotKeys.registerHotKey(keyB, controlOption, {1, 1});
    EXPECT_FALSE(desktop.holdElsewhere(controlAltMask, XKB_KEY_b));
    hotKeys.unregisterHotKey(registration.ref);
    for (const std::uint16_t locks : {0, XCB_MOD_MASK_LOCK + 0, numLockMask + 0, XCB_MOD_MASK_LOCK | numLockMask}) {
        EXPECT_TRUE(desktop.holdElsewhere(controlAltMask | locks, XKB_KEY_b)) << locks;
    }
}

TEST_F(HotKeysTest, AKeyThatTheKeyboardLacksAndAnUnknownModifierAreRefused)
{
    EXPECT_EQ(hotKeys.registerHotKey(200, controlOption, {1, 1}).status, osStatus::hotKeyInvalid);
    EXPECT_EQ(hotKeys.registerHotKey(0xFFFFFFFF, controlOption, {1, 1}).status, osStatus::hotKeyInvalid);
    EXPECT_EQ(hotKeys.registerHotKey(keyB, 0x400, {1, 1}).status, osStatus::parameterError);
}

TEST_F(HotKeysTest, APressWhileAnotherProgramHasTheKeyboardIsNotOursAndTheNextOneIs)
{
    hotKeys.registerHotKey(keyB, controlOption, {1, 1});
    ASSERT_TRUE(desktop.holdKeyboardElsewhere());
    desktop.display.keyboard.tap(controlAlt, XKB_KEY_b);
    desktop.settle();
    EXPECT_THAT(fired, IsEmpty());
    desktop.giveKeyboardBackElsewhere();
    desktop.display.keyboard.tap(controlAlt, XKB_KEY_b);
    expectFired({1});
}

TEST_F(HotKeysTest, AHeldHotKeyFiresOnceHoweverOftenItRepeats)
{
    int presses = 0;
    const auto watching = desktop.connection->addEventHandler(XCB_KEY_PRESS, [&](const auto&) { ++presses; });
    hotKeys.registerHotKey(keyB, controlOption, {1, 1});
    desktop.makeKeysRepeat();
    desktop.display.keyboard.pressModifier(Modifier::control);
    desktop.display.keyboard.pressModifier(Modifier::option);
    desktop.display.keyboard.press(XKB_KEY_b);
    desktop.waitFor("the key to repeat", [&] { return presses >= 5; });
    EXPECT_THAT(fired, ElementsAre(1));
    desktop.display.keyboard.release(XKB_KEY_b);
    desktop.settle();
    desktop.display.keyboard.press(XKB_KEY_b);
    expectFired({1, 1});
}

TEST_F(HotKeysTest, AHeldHotKeyTypesNothingAfterItsModifiersAreUp)
{
    int presses = 0;
    const auto watching = desktop.connection->addEventHandler(XCB_KEY_PRESS, [&](const auto&) { ++presses; });
    std::vector<KeyCode> seen;
    const auto tap = desktop.adapters.eventTaps.createTap({.eventMask = keyDownEventMask}, [&](const TapEvent& event) {
        seen.push_back(event.keyCode());
        return TapDecision::drop;
    });
    tap->addSourceToRunLoop();
    tap->setEnabled(true);
    hotKeys.installHandler([&](HotKeyEvent&) {
        fired.push_back(1);
        tap->setKeysOfInterest(allKeyCodes());
        return osStatus::success;
    });
    hotKeys.registerHotKey(keyB, controlOption, {1, 1});
    desktop.makeKeysRepeat();
    desktop.display.keyboard.pressModifier(Modifier::control);
    desktop.display.keyboard.pressModifier(Modifier::option);
    desktop.display.keyboard.press(XKB_KEY_b);
    expectFired({1});
    desktop.display.keyboard.releaseModifier(Modifier::option);
    desktop.display.keyboard.releaseModifier(Modifier::control);
    const int before = presses;
    desktop.waitFor("the key to repeat", [&] { return presses >= before + 5; });
    desktop.display.keyboard.release(XKB_KEY_b);
    desktop.settle();
    EXPECT_THAT(seen, IsEmpty());
    EXPECT_THAT(desktop.pressesInWindow(), testing::Not(testing::Contains(desktop.codeOf(XKB_KEY_b))));
}

TEST_F(HotKeysTest, AHotKeyMovesWithItsModifierWhenTheMapChanges)
{
    hotKeys.registerHotKey(keyB, hotKeyModifiers::command, {1, 1});
    desktop.run({"xmodmap", "-e", "clear mod4", "-e", "add mod3 = Super_L"});
    desktop.waitFor("the hot key on its new modifier",
                    [&] { return !desktop.holdElsewhere(XCB_MOD_MASK_3, XKB_KEY_b); });
    EXPECT_TRUE(desktop.holdElsewhere(XCB_MOD_MASK_4, XKB_KEY_b));
    desktop.display.keyboard.tap({Modifier::command}, XKB_KEY_b);
    expectFired({1});
}

TEST_F(HotKeysTest, AHotKeyStaysWhereItIsWhenPeopleSwitchLayouts)
{
    const auto physicalQ = desktop.codeOf(XKB_KEY_q);
    hotKeys.registerHotKey(12, controlOption, {1, 1});
    desktop.run({"setxkbmap", "fr"});
    desktop.display.keyboard.tapCode(controlAlt, physicalQ);
    expectFired({1});
}

TEST_F(HotKeysTest, AHandlerMayRegisterAnew)
{
    HotKeyRef ref = hotKeys.registerHotKey(keyB, controlOption, {1, 1}).ref;
    hotKeys.installHandler([&](HotKeyEvent& event) {
        fired.push_back(event.hotKeyId()->id);
        hotKeys.unregisterHotKey(ref);
        ref = hotKeys.registerHotKey(keyB, controlOption, {1, fired.back() + 1}).ref;
        return osStatus::success;
    });
    desktop.display.keyboard.tap(controlAlt, XKB_KEY_b);
    desktop.display.keyboard.tap(controlAlt, XKB_KEY_b);
    expectFired({1, 2});
}

} // namespace
} // namespace quorvel::x11
