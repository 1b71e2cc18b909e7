#include "platform/simulated/SimulatedEventTaps.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

using Decision = SimulatedEventTaps::Decision;

class SimulatedEventTapsTest : public testing::Test {
protected:
    std::unique_ptr<EventTap> createTap(const std::string& name = "tap", TapDecision answer = TapDecision::drop)
    {
        return taps.createTap({.eventMask = keyDownEventMask}, [this, name, answer](const TapEvent& event) {
            seen.push_back(name);
            hadConversion = event.keyEvent().has_value();
            return answer;
        });
    }

    static void start(EventTap& tap, const KeyCodeSet& keys)
    {
        tap.createRunLoopSource();
        tap.addSourceToRunLoop();
        tap.setEnabled(true);
        tap.setKeysOfInterest(keys);
    }

    SimulatedDesktop desktop;
    SimulatedEventTaps& taps = desktop.eventTaps;
    SimulatedApplication& editor = desktop.launch("Editor");
    std::vector<std::string> seen;
    bool hadConversion = false;
};

TEST_F(SimulatedEventTapsTest, ATapIsRefusedOnDemandAndWithoutEitherPermission)
{
    taps.refuseTaps();
    EXPECT_EQ(createTap(), nullptr);
    taps.behave();
    EXPECT_NE(createTap(), nullptr);

    desktop.permissions.deny(Permission::inputMonitoring);
    EXPECT_EQ(createTap(), nullptr);
    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.permissions.deny(Permission::accessibility);
    EXPECT_EQ(createTap(), nullptr);
}

TEST_F(SimulatedEventTapsTest, WithoutSourceATapSeesNothing)
{
    taps.refuseSources();
    const auto tap = createTap();
    EXPECT_FALSE(tap->createRunLoopSource());
    start(*tap, {31});

    desktop.press(31);
    desktop.drain();

    EXPECT_TRUE(seen.empty());
    EXPECT_EQ(editor.receivedKeys().size(), 1U);
}

TEST_F(SimulatedEventTapsTest, RefusedKeysLeaveTheTapWithoutAnyAndAnEmptySetSucceeds)
{
    const auto tap = createTap();
    start(*tap, {31});
    taps.refuseKeys();

    EXPECT_FALSE(tap->setKeysOfInterest({31, 32}));
    EXPECT_TRUE(tap->setKeysOfInterest({}));
    desktop.press(31);
    desktop.drain();

    EXPECT_TRUE(seen.empty());
}

TEST_F(SimulatedEventTapsTest, AnEventMayLackItsConversion)
{
    taps.refuseConversions();
    const auto tap = createTap();
    start(*tap, {31});
    hadConversion = true;

    desktop.press(31);
    desktop.drain();

    EXPECT_FALSE(hadConversion);
    EXPECT_EQ(taps.decisions(), (std::vector<Decision>{{TapEventType::keyDown, 31, TapDecision::drop}}));
}

TEST_F(SimulatedEventTapsTest, ADisablingComesWithAnEventThatTheDisabledTapStillSees)
{
    const auto tap = createTap("tap", TapDecision::pass);
    start(*tap, {31});

    taps.send(TapEventType::disabledByTimeout, 0);
    EXPECT_TRUE(taps.taps()[0]->isEnabled);
    desktop.drain();

    EXPECT_FALSE(taps.taps()[0]->isEnabled);
    EXPECT_EQ(taps.decisions(), (std::vector<Decision>{{TapEventType::disabledByTimeout, 0, TapDecision::pass}}));
}

TEST_F(SimulatedEventTapsTest, TheNewestTapIsAskedFirstAndADropIsFinal)
{
    const auto first = createTap("first");
    const auto second = createTap("second", TapDecision::pass);
    const auto third = createTap("third", TapDecision::pass);
    for (auto* tap : {first.get(), second.get(), third.get()}) {
        start(*tap, {31});
    }
    desktop.press(31);
    desktop.drain();
    EXPECT_EQ(seen, (std::vector<std::string>{"third", "second", "first"}));
    EXPECT_TRUE(editor.receivedKeys().empty());

    first->setEnabled(false);
    desktop.press(31);
    desktop.drain();
    EXPECT_EQ(editor.receivedKeys().size(), 1U);
}

TEST_F(SimulatedEventTapsTest, TapsCanBeMadeToSeeEveryKey)
{
    taps.visibility = SimulatedEventTaps::Visibility::everyKey;
    const auto tap = createTap("tap", TapDecision::pass);
    start(*tap, {});

    desktop.press(31);
    desktop.drain();

    EXPECT_EQ(seen.size(), 1U);
    EXPECT_EQ(editor.receivedKeys().size(), 1U);
}

TEST_F(SimulatedEventTapsTest, ATapMayGoInItsOwnCallback)
{
    std::unique_ptr<EventTap> tap;
    tap = taps.createTap({.eventMask = keyDownEventMask}, [&](const TapEvent&) {
        tap.reset();
        return TapDecision::drop;
    });
    start(*tap, {31});

    desktop.press(31);
    desktop.press(31);
    desktop.drain();

    EXPECT_TRUE(taps.taps().empty());
    EXPECT_EQ(editor.receivedKeys().size(), 1U);
}

} // namespace
} // namespace quorvel
