#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

#include "contract/ContractTest.h"
#include "platform/EventTaps.h"
#include "platform/HotKeys.h"

namespace quorvel::contract {
namespace {

constexpr KeyCode keyA = 0;
constexpr KeyCode keyB = 11;
constexpr KeyCode keyN = 45;
constexpr auto hotKeyFlags = eventFlags::control | eventFlags::option;

using Keys = std::vector<KeyCode>;

KeyCodeSet allKeys()
{
    KeyCodeSet keys;
    for (KeyCode each = 0; each < 256; ++each) {
        keys.insert(each);
    }
    return keys;
}

class EventTapsContract : public ContractTest {
protected:
    // A tap that drops the keys of its interest.
    std::unique_ptr<EventTap> createTap()
    {
        return taps.createTap({.eventMask = keyDownEventMask}, [this](const TapEvent& event) {
            if (event.type() != TapEventType::keyDown || !interest.contains(event.keyCode())) {
                return TapDecision::pass;
            }
            seen.push_back(event.keyCode());
            events.push_back(event.keyEvent().value_or(KeyEvent{-1, {}, 0}));
            return TapDecision::drop;
        });
    }

    std::unique_ptr<EventTap> startTap(KeyCodeSet keys)
    {
        auto tap = createTap();
        EXPECT_TRUE(tap->createRunLoopSource());
        tap->addSourceToRunLoop();
        tap->setEnabled(true);
        EXPECT_TRUE(setInterest(*tap, std::move(keys)));
        return tap;
    }

    bool setInterest(EventTap& tap, KeyCodeSet keys)
    {
        interest = std::move(keys);
        return tap.setKeysOfInterest(interest);
    }

    bool sees(const Keys& keys)
    {
        return desktop->waitUntil([&] { return seen.size() >= keys.size(); }) && seen == keys;
    }

    bool editorReceives(const Keys& keys)
    {
        return desktop->waitUntil([&] { return desktop->keysReceivedBy(editor).size() >= keys.size(); }) &&
               desktop->keysReceivedBy(editor) == keys;
    }

    // A hot key on Control and Option with the key.
    void installHotKey(KeyCode keyCode)
    {
        auto& hotKeys = port(&ContractPorts::hotKeys);
        hotKeys.installHandler([this](HotKeyEvent& event) {
            ++hotKeyPresses;
            return event.callNextHandler();
        });
        const auto modifiers = hotKeyModifiers::control | hotKeyModifiers::option;
        ASSERT_EQ(hotKeys.registerHotKey(static_cast<std::uint32_t>(keyCode), modifiers, {7, 1}).status,
                  osStatus::success);
    }

    std::ptrdiff_t pressesSeen(KeyCode keyCode) const { return std::ranges::count(seen, keyCode); }

    ContractWindow editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    EventTaps& taps = port(&ContractPorts::eventTaps);
    KeyCodeSet interest;
    Keys seen;
    std::vector<KeyEvent> events;
    int hotKeyPresses = 0;
};

TEST_F(EventTapsContract, DroppedKeysReachTheTapAndNoApplication)
{
    const auto tap = startTap({keyA, keyB});

    desktop->pressKey(keyB);
    desktop->pressKey(keyA);

    EXPECT_TRUE(sees({keyB, keyA}));
    desktop->settle();
    EXPECT_EQ(desktop->keysReceivedBy(editor), Keys{});
}

TEST_F(EventTapsContract, OtherKeysReachTheApplication)
{
    const auto tap = startTap({keyA, keyB});

    desktop->pressKey(keyN);
    desktop->pressKey(keyA);

    EXPECT_TRUE(editorReceives({keyN}));
    EXPECT_TRUE(sees({keyA}));
}

TEST_F(EventTapsContract, KeysOfInterestAreDroppedWithWhateverModifiers)
{
    const auto tap = startTap({keyB});

    desktop->pressKey(keyB, eventFlags::shift);
    desktop->pressKey(keyB, eventFlags::control);
    desktop->pressKey(keyB, eventFlags::command | eventFlags::option);

    EXPECT_TRUE(sees({keyB, keyB, keyB}));
    desktop->settle();
    EXPECT_EQ(desktop->keysReceivedBy(editor), Keys{});
}

TEST_F(EventTapsContract, AnEventHoldsItsCharactersAndModifiers)
{
    const auto tap = startTap({keyB});

    desktop->pressKey(keyB);
    desktop->pressKey(keyB, eventFlags::shift);
    ASSERT_TRUE(sees({keyB, keyB}));

    EXPECT_EQ(events[0].characters, "b");
    EXPECT_EQ(events[0].flags & eventFlags::deviceIndependentMask, 0U);
    EXPECT_EQ(events[1].characters, "B");
    EXPECT_EQ(events[1].flags & eventFlags::deviceIndependentMask, eventFlags::shift);
    EXPECT_EQ(events[1].keyCode, keyB);
}

TEST_F(EventTapsContract, AnArrowKeyHasNoModifiersOfItsOwn)
{
    const auto tap = startTap({keyCodes::downArrow});

    desktop->pressKey(keyCodes::downArrow);
    ASSERT_TRUE(sees({keyCodes::downArrow}));

    EXPECT_EQ(events[0].flags & eventFlags::deviceIndependentMask, 0U);
}

TEST_F(EventTapsContract, AllKeysCanBeDropped)
{
    const auto tap = startTap(allKeys());

    desktop->pressKey(keyN);
    desktop->pressKey(keyCodes::escape);
    desktop->pressKey(keyA, eventFlags::shift);

    EXPECT_TRUE(sees({keyN, keyCodes::escape, keyA}));
    desktop->settle();
    EXPECT_EQ(desktop->keysReceivedBy(editor), Keys{});
}

TEST_F(EventTapsContract, AHotKeyGoesBeforeTheTap)
{
    installHotKey(keyB);
    const auto tap = startTap(allKeys());

    desktop->pressKey(keyB, hotKeyFlags);
    desktop->pressKey(keyB);

    EXPECT_TRUE(desktop->waitUntil([&] { return hotKeyPresses == 1 && pressesSeen(keyB) == 1; }));
}

// A mode that starts on a hot key takes all keys while that key is still held.
TEST_F(EventTapsContract, TheRepetitionOfAHeldHotKeyIsNotSeen)
{
    installHotKey(keyB);
    desktop->holdKey(keyB, hotKeyFlags);
    ASSERT_TRUE(desktop->waitUntil([&] { return hotKeyPresses == 1; }));
    const auto tap = startTap(allKeys());

    desktop->repeatKey(keyB);
    desktop->repeatKey(keyB);
    desktop->settle();

    EXPECT_EQ(pressesSeen(keyB), 0);
    EXPECT_EQ(hotKeyPresses, 1);
    desktop->releaseKey(keyB);
    desktop->pressKey(keyN);
    EXPECT_TRUE(desktop->waitUntil([&] { return pressesSeen(keyN) == 1; }));
    EXPECT_EQ(desktop->keysReceivedBy(editor), Keys{});
}

TEST_F(EventTapsContract, EachAutoRepeatOfADroppedKeyIsSeenAndDropped)
{
    const auto tap = startTap({keyB});

    desktop->holdKey(keyB, 0);
    desktop->repeatKey(keyB);
    desktop->repeatKey(keyB);
    desktop->releaseKey(keyB);

    EXPECT_TRUE(sees({keyB, keyB, keyB}));
    desktop->settle();
    EXPECT_EQ(desktop->keysReceivedBy(editor), Keys{});
}

TEST_F(EventTapsContract, AReleaseIsNotSeen)
{
    const auto tap = startTap({keyB});

    desktop->holdKey(keyB, 0);
    EXPECT_TRUE(sees({keyB}));
    desktop->releaseKey(keyB);
    desktop->settle();

    EXPECT_EQ(seen, Keys{keyB});
}

TEST_F(EventTapsContract, WithoutInterestEveryKeyReachesTheApplication)
{
    const auto tap = startTap({keyA, keyB});
    EXPECT_TRUE(setInterest(*tap, {}));

    desktop->pressKey(keyA);
    desktop->pressKey(keyB);

    EXPECT_TRUE(editorReceives({keyA, keyB}));
    EXPECT_EQ(seen, Keys{});
}

TEST_F(EventTapsContract, AChangedInterestHoldsForTheNextKey)
{
    const auto tap = startTap(allKeys());
    EXPECT_TRUE(setInterest(*tap, {keyB}));

    desktop->pressKey(keyA);
    desktop->pressKey(keyB);

    EXPECT_TRUE(sees({keyB}));
    EXPECT_TRUE(editorReceives({keyA}));
}

// A mode that ends on the press of a key must not let that key's repetition type into the application.
TEST_F(EventTapsContract, AKeyHeldBeyondTheEndOfTheInterestReachesNobodyUntilItIsReleased)
{
    if (!desktop->can(Capability::keepKeysOfATap)) {
        GTEST_SKIP() << "On this platform a tap decides about each repetition anew.";
    }
    const auto tap = startTap(allKeys());
    desktop->holdKey(keyB, 0);
    ASSERT_TRUE(sees({keyB}));

    EXPECT_TRUE(setInterest(*tap, {}));
    desktop->repeatKey(keyB);
    desktop->settle();
    EXPECT_EQ(desktop->keysReceivedBy(editor), Keys{});

    desktop->releaseKey(keyB);
    desktop->settle();
    desktop->pressKey(keyN);
    EXPECT_TRUE(editorReceives({keyN}));
    EXPECT_EQ(seen, Keys{keyB});
}

TEST_F(EventTapsContract, ADisabledTapLetsEveryKeyThroughUntilItIsEnabledAgain)
{
    const auto tap = startTap({keyB});
    tap->setEnabled(false);
    desktop->pressKey(keyB);
    EXPECT_TRUE(editorReceives({keyB}));
    EXPECT_EQ(seen, Keys{});

    tap->setEnabled(true);
    desktop->pressKey(keyB);
    EXPECT_TRUE(sees({keyB}));
}

TEST_F(EventTapsContract, ADestroyedTapLetsEveryKeyThrough)
{
    auto tap = startTap(allKeys());
    tap.reset();

    desktop->pressKey(keyB);

    EXPECT_TRUE(editorReceives({keyB}));
    EXPECT_EQ(seen, Keys{});
}

TEST_F(EventTapsContract, ATapWhoseSourceWasRemovedSeesNothing)
{
    const auto tap = startTap({keyB});
    EXPECT_TRUE(setInterest(*tap, {}));
    tap->setEnabled(false);
    tap->removeSourceFromRunLoop();

    desktop->pressKey(keyB);

    EXPECT_TRUE(editorReceives({keyB}));
    EXPECT_EQ(seen, Keys{});
}

TEST_F(EventTapsContract, ATapThatWasNotStartedSeesNothing)
{
    const auto tap = createTap();

    desktop->pressKey(keyB);

    EXPECT_TRUE(editorReceives({keyB}));
    EXPECT_EQ(seen, Keys{});
}

TEST_F(EventTapsContract, WithoutAPermissionThereIsNoTap)
{
    if (!desktop->can(Capability::denyPermissions)) {
        GTEST_SKIP() << "This platform knows no such permission.";
    }
    desktop->deny(Permission::inputMonitoring);

    EXPECT_EQ(createTap(), nullptr);
}

} // namespace
} // namespace quorvel::contract
