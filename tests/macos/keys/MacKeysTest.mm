#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/keys/MacEventMonitors.h"
#include "platform/macos/keys/MacEventTaps.h"
#include "platform/macos/keys/MacHotKeys.h"
#include "platform/macos/keys/MacKeyboardLayout.h"

namespace quorvel::macos {
namespace {

using testing::ElementsAre;

constexpr KeyCode keyB = 11;
constexpr KeyCode keypad5 = 87;
constexpr KeyCode f1 = 122;
constexpr std::uint64_t functionFlag = 0x800000;

class MacKeysTest : public testing::Test {
protected:
    std::unique_ptr<EventTap> startTap()
    {
        auto tap = taps.createTap({.eventMask = keyDownEventMask}, [this](const TapEvent& event) {
            types.push_back(event.type());
            seen.push_back(event.keyEvent());
            return TapDecision::drop;
        });
        EXPECT_TRUE(tap->createRunLoopSource());
        tap->addSourceToRunLoop();
        tap->setEnabled(true);
        return tap;
    }

    // The flags that a tap sees with the key while these are held.
    std::uint64_t flagsSeen(KeyCode keyCode, std::uint64_t held)
    {
        seen.clear();
        desktop.press(keyCode, held);
        desktop.drain();
        return seen.at(0).value().flags;
    }

    SimulatedDesktop desktop;
    fakes::FakeDesktop mac{desktop};
    MacEventTaps taps;
    MacHotKeys hotKeys;
    MacEventMonitors monitors;
    MacKeyboardLayout layout;
    std::vector<TapEventType> types;
    std::vector<std::optional<KeyEvent>> seen;
};

TEST_F(MacKeysTest, FlagsThatBelongToAKeyAreCleared)
{
    const auto tap = startTap();

    EXPECT_EQ(flagsSeen(keyCodes::leftArrow, eventFlags::shift), eventFlags::shift);
    EXPECT_EQ(flagsSeen(f1, 0), 0U);
    EXPECT_EQ(flagsSeen(keypad5, eventFlags::command), eventFlags::command);
}

TEST_F(MacKeysTest, TheFunctionKeyAsAModifierStays)
{
    const auto tap = startTap();

    EXPECT_EQ(flagsSeen(keyB, functionFlag | eventFlags::option), functionFlag | eventFlags::option);
}

TEST_F(MacKeysTest, ALockIsNothingThatAPersonHolds)
{
    const auto tap = startTap();

    EXPECT_EQ(flagsSeen(keyB, eventFlags::capsLock | eventFlags::shift), eventFlags::shift);
}

TEST_F(MacKeysTest, ATapHearsThatItWasDisabledAndCanBeEnabledAgain)
{
    const auto tap = startTap();
    desktop.eventTaps.send(TapEventType::disabledByTimeout, 0);
    desktop.eventTaps.send(TapEventType::disabledByUserInput, 0);
    desktop.drain();
    EXPECT_THAT(types, ElementsAre(TapEventType::disabledByTimeout, TapEventType::disabledByUserInput));
    types.clear();
    desktop.press(keyB);
    desktop.drain();
    EXPECT_TRUE(types.empty());

    tap->setEnabled(true);
    desktop.press(keyB);
    desktop.drain();
    EXPECT_THAT(types, ElementsAre(TapEventType::keyDown));
}

TEST_F(MacKeysTest, AnEventThatCannotBeConvertedHasNoKeyEvent)
{
    const auto tap = startTap();
    desktop.eventTaps.refuseConversions();

    desktop.press(keyB);
    desktop.drain();

    ASSERT_EQ(seen.size(), 1U);
    EXPECT_FALSE(seen[0].has_value());
}

TEST_F(MacKeysTest, ASourceThatCannotBeMadeIsReported)
{
    const auto tap = taps.createTap({.eventMask = keyDownEventMask}, [](const TapEvent&) { return TapDecision::pass; });
    desktop.eventTaps.refuseSources();

    EXPECT_FALSE(tap->createRunLoopSource());
}

TEST_F(MacKeysTest, ATapIsInvalidWhenItIsGoneAlsoIfItWasNeverStarted)
{
    startTap().reset();
    taps.createTap({.eventMask = keyDownEventMask}, [](const TapEvent&) { return TapDecision::pass; }).reset();

    EXPECT_TRUE(desktop.eventTaps.taps().empty());
    EXPECT_EQ(mac.runLoopSources, 0U);
}

TEST_F(MacKeysTest, AHotKeyKeepsItsSignatureAndId)
{
    std::vector<HotKeyId> pressed;
    hotKeys.installHandler([&](HotKeyEvent& event) {
        pressed.push_back(event.hotKeyId().value());
        return event.callNextHandler();
    });
    constexpr std::uint32_t signature = 0x7276656C;
    EXPECT_EQ(hotKeys.registerHotKey(keyB, hotKeyModifiers::command, {signature, 3}).status, osStatus::success);

    desktop.press(keyB, eventFlags::command);
    desktop.drain();

    EXPECT_THAT(pressed, ElementsAre(HotKeyId{signature, 3}));
    EXPECT_EQ(desktop.hotKeys.deliveries().at(0).result, osStatus::eventNotHandled);
}

TEST_F(MacKeysTest, TheSystemsStatusesOfHotKeysArePassedOn)
{
    desktop.hotKeys.failInstallation(osStatus::parameterError);
    EXPECT_EQ(hotKeys.installHandler([](HotKeyEvent&) { return osStatus::success; }), osStatus::parameterError);
    desktop.hotKeys.failRegistration(-9877);
    EXPECT_EQ(hotKeys.registerHotKey(keyB, 0, {1, 1}).status, -9877);
    desktop.hotKeys.behave();

    desktop.hotKeys.loseReferences();
    const auto lost = hotKeys.registerHotKey(keyB, 0, {1, 1});
    EXPECT_EQ(lost.status, osStatus::success);
    EXPECT_EQ(lost.ref, noHotKeyRef);
    EXPECT_FALSE(desktop.hotKeys.hasHandler());
}

TEST_F(MacKeysTest, APressWhoseIdCannotBeReadSaysWhy)
{
    std::vector<std::expected<HotKeyId, OsStatus>> pressed;
    hotKeys.installHandler([&](HotKeyEvent& event) {
        pressed.push_back(event.hotKeyId());
        return osStatus::success;
    });

    desktop.hotKeys.send(std::unexpected(-9870));
    desktop.drain();

    EXPECT_EQ(pressed.at(0), std::unexpected(-9870));
}

TEST_F(MacKeysTest, AHandlerTakesTheEarlierOnesPlace)
{
    int first = 0;
    int second = 0;
    hotKeys.installHandler([&](HotKeyEvent&) { return ++first, osStatus::success; });
    hotKeys.installHandler([&](HotKeyEvent&) { return ++second, osStatus::success; });

    desktop.hotKeys.send(HotKeyId{1, 1});
    desktop.drain();

    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST_F(MacKeysTest, AnInputMethodTypesByTheLayoutBelowIt)
{
    mac.typesByInputMethod = true;

    EXPECT_EQ(layout.characters(keyB), "b");
}

TEST_F(MacKeysTest, ADeadKeyTypesNothing)
{
    desktop.keyboardLayout.makeDead(keyB);

    EXPECT_EQ(layout.characters(keyB), "");
}

TEST_F(MacKeysTest, ALayoutMayTypeSeveralCharactersAndOnesOutsideOfAscii)
{
    desktop.keyboardLayout.setKey(keyB, {"ñ", "Ñ"});
    EXPECT_EQ(layout.characters(keyB), "ñ");
    desktop.keyboardLayout.setKey(keyB, {"👩", "👩"});
    EXPECT_EQ(layout.characters(keyB), "👩");
}

TEST_F(MacKeysTest, AKeyDownIsPassedOnOrSwallowedAsItsMonitorSays)
{
    auto handling = EventHandling::swallow;
    std::vector<KeyEvent> typed;
    const auto monitor = monitors.addLocalKeyDownMonitor([&](const KeyEvent& event) {
        typed.push_back(event);
        return handling;
    });

    EXPECT_EQ(desktop.eventMonitors.keyDown({keyB, "b", eventFlags::command}), EventHandling::swallow);
    handling = EventHandling::pass;
    EXPECT_EQ(desktop.eventMonitors.keyDown({keyCodes::upArrow, "", 0}), EventHandling::pass);

    EXPECT_EQ(typed.at(0).characters, "b");
    EXPECT_EQ(typed.at(0).flags, eventFlags::command);
    EXPECT_EQ(typed.at(1).flags, 0U);
}

TEST_F(MacKeysTest, AMonitorMayEndItself)
{
    int keys = 0;
    int presses = 0;
    Subscription keyMonitor;
    Subscription mouseMonitor;
    keyMonitor = monitors.addLocalKeyDownMonitor([&](const KeyEvent&) {
        keyMonitor.reset();
        ++keys;
        return EventHandling::pass;
    });
    mouseMonitor = monitors.addGlobalMouseDownMonitor([&] {
        mouseMonitor.reset();
        ++presses;
    });

    for (int round = 0; round < 2; ++round) {
        desktop.eventMonitors.keyDown({keyB, "b", 0});
        desktop.eventMonitors.mouseDown();
    }

    EXPECT_EQ(keys, 1);
    EXPECT_EQ(presses, 1);
}

} // namespace
} // namespace quorvel::macos
