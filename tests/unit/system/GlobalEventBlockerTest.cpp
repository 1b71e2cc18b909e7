#include "system/GlobalEventBlocker.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/unit/system/EventBlockerFixture.h"

namespace quorvel {
namespace {

class GlobalEventBlockerTest : public EventBlockerFixture {};

TEST_F(GlobalEventBlockerTest, ThereIsNoTapBeforeTheStart)
{
    EXPECT_FALSE(blocker->hasEventTap());
    EXPECT_TRUE(blocker->blockedKeyCodes().empty());
    EXPECT_EQ(desktop.journal.count("EventTaps"), 0U);
}

TEST_F(GlobalEventBlockerTest, StartingTwiceMakesOneTapForKeyDownsOfTheSession)
{
    blocker->start();
    blocker->start();
    EXPECT_EQ(desktop.journal.count("EventTaps.createTap"), 1U);
    const auto taps = desktop.eventTaps.taps();
    ASSERT_EQ(taps.size(), 1U);
    EXPECT_EQ(taps[0]->description, (EventTapDescription{EventTapLocation::session, EventTapPlacement::headInsert,
                                                         EventTapOptions::canDropEvents, 1U << 10U}));
    EXPECT_TRUE(taps[0]->isInRunLoop);
    EXPECT_TRUE(taps[0]->isEnabled);
    EXPECT_TRUE(blocker->hasEventTap());
}

TEST_F(GlobalEventBlockerTest, AMissingTapIsLogged)
{
    desktop.eventTaps.refuseTaps();
    blocker->start();
    EXPECT_FALSE(blocker->hasEventTap());
    EXPECT_EQ(desktop.log.lines(),
              (std::vector<std::string>{"Failed to create event tap (Accessibility permission likely missing). "
                                        "Key-capture panel will be used as fallback."}));
}

TEST_F(GlobalEventBlockerTest, AFailedStartIsTriedAgain)
{
    desktop.eventTaps.refuseTaps();
    blocker->start();
    desktop.eventTaps.behave();
    blocker->start();
    EXPECT_TRUE(blocker->hasEventTap());
}

TEST_F(GlobalEventBlockerTest, ATapWithoutSourceStaysAndDoesNothing)
{
    desktop.eventTaps.refuseSources();
    startWithHandler({31});
    EXPECT_EQ(desktop.log.lines(), (std::vector<std::string>{"Failed to create run loop source"}));
    EXPECT_TRUE(blocker->hasEventTap());
    ASSERT_EQ(desktop.eventTaps.taps().size(), 1U);
    EXPECT_FALSE(desktop.eventTaps.taps()[0]->isEnabled);
    EXPECT_EQ(desktop.journal.count("EventTap.setKeysOfInterest"), 0U);
    EXPECT_EQ(panel(), nullptr);

    blocker->stop();
    EXPECT_EQ(desktop.journal.count("EventTap.removeSourceFromRunLoop"), 0U);
    EXPECT_FALSE(blocker->hasEventTap());
}

TEST_F(GlobalEventBlockerTest, ABlockedKeyIsDroppedAndDeliveredLater)
{
    startWithHandler({31});
    desktop.press(31);
    desktop.turn();
    EXPECT_TRUE(editor.receivedKeys().empty());
    EXPECT_TRUE(captured.empty());

    desktop.turn();
    EXPECT_EQ(captured, (std::vector<CapturedKey>{{31, "o", 0}}));
    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(GlobalEventBlockerTest, OtherKeysAndEventsPass)
{
    desktop.eventTaps.visibility = SimulatedEventTaps::Visibility::everyKey;
    startWithHandler({31});
    desktop.press(32);
    desktop.drain();
    EXPECT_EQ(codesReceivedBy(editor), (std::vector<KeyCode>{32}));

    desktop.eventTaps.send(TapEventType::keyUp, 31);
    desktop.eventTaps.send(TapEventType::flagsChanged, 31);
    desktop.eventTaps.send(TapEventType::other, 31);
    desktop.drain();
    for (const auto& decision : desktop.eventTaps.decisions()) {
        EXPECT_EQ(decision.decision, TapDecision::pass);
    }
    EXPECT_EQ(desktop.eventTaps.decisions().size(), 4U);
    EXPECT_TRUE(captured.empty());
}

TEST_F(GlobalEventBlockerTest, TheCharacterIsTheFirstOneAndFlagsAreThoseOfEveryDevice)
{
    startWithHandler({31});
    desktop.press(31, 0x20102, "é!");
    desktop.press(31, eventFlags::shift, "O");
    desktop.press(31, 0, "");
    desktop.press(31, 0, "e\xCC\x81x");
    desktop.drain();
    EXPECT_EQ(captured,
              (std::vector<CapturedKey>{{31, "é", 0x20000}, {31, "O", 0x20000}, {31, "?", 0}, {31, "e\xCC\x81", 0}}));
}

TEST_F(GlobalEventBlockerTest, AKeyThatCannotBeConvertedIsAQuestionMarkWithoutFlags)
{
    desktop.eventTaps.refuseConversions();
    startWithHandler({31});
    desktop.press(31, eventFlags::shift, "O");
    desktop.drain();
    EXPECT_EQ(captured, (std::vector<CapturedKey>{{31, "?", 0}}));
    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(GlobalEventBlockerTest, RepeatsAreDroppedAndDeliveredLikeTheFirstPress)
{
    startWithHandler({31});
    desktop.hold(31);
    desktop.repeatKey(31);
    desktop.repeatKey(31);
    desktop.drain();
    EXPECT_EQ(capturedCodes(), (std::vector<KeyCode>{31, 31, 31}));
    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(GlobalEventBlockerTest, ADisabledTapIsEnabledAgain)
{
    startWithHandler({31});
    for (const auto type : {TapEventType::disabledByTimeout, TapEventType::disabledByUserInput}) {
        desktop.eventTaps.send(type, 31);
        desktop.drain();
        EXPECT_TRUE(desktop.eventTaps.taps()[0]->isEnabled);
        EXPECT_EQ(desktop.eventTaps.decisions().back().decision, TapDecision::pass);
    }
    EXPECT_TRUE(captured.empty());
}

TEST_F(GlobalEventBlockerTest, WithoutHandlerBlockedKeysAreDroppedAllTheSame)
{
    blocker->start();
    blocker->setBlockedKeyCodes({31});
    desktop.press(31);
    desktop.drain();
    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(GlobalEventBlockerTest, TheTapLearnsOfEveryChangeOfTheKeys)
{
    blocker->setBlockedKeyCodes({1});
    blocker->start();
    blocker->setBlockedKeyCodes({31, 32});
    blocker->setBlockedKeyCodes({31, 32});
    blocker->clearBlockedKeys();
    EXPECT_EQ(desktop.journal.entries({"EventTap.setKeysOfInterest"}),
              (std::vector<std::string>{"EventTap.setKeysOfInterest(1)", "EventTap.setKeysOfInterest(31, 32)",
                                        "EventTap.setKeysOfInterest()"}));
}

TEST_F(GlobalEventBlockerTest, AKeyCodeBeyondEveryKeyboardIsBlockedToo)
{
    startWithHandler({-1, 255, 256, 70000});
    desktop.press(255, 0, "a");
    desktop.press(256, 0, "b");
    desktop.press(70000, 0, "c");
    desktop.press(254, 0, "d");
    desktop.drain();
    EXPECT_EQ(capturedCodes(), (std::vector<KeyCode>{255, 256, 70000}));
    EXPECT_EQ(codesReceivedBy(editor), (std::vector<KeyCode>{254}));
}

TEST_F(GlobalEventBlockerTest, AHandlerMayReplaceItself)
{
    blocker->start();
    blocker->setBlockedKeyCodes({31});
    auto property = std::make_shared<int>(0);
    const std::weak_ptr<int> watched = property;
    bool keptItsPropertyThroughout = false;
    blocker->setOnBlockKey([&, property = std::move(property)](const CapturedKey&) {
        blocker->setOnBlockKey(collect());
        keptItsPropertyThroughout = !watched.expired();
    });
    desktop.press(31);
    desktop.press(31);
    desktop.drain();
    EXPECT_TRUE(keptItsPropertyThroughout);
    EXPECT_EQ(capturedCodes(), (std::vector<KeyCode>{31}));
}

TEST_F(GlobalEventBlockerTest, AKeyUnderWayReachesTheHandlerOfItsDelivery)
{
    startWithHandler({31});
    desktop.press(31);
    desktop.turn();
    blocker->clearBlockedKeys();
    desktop.drain();
    EXPECT_EQ(capturedCodes(), (std::vector<KeyCode>{31}));
}

TEST_F(GlobalEventBlockerTest, AKeyUnderWayIsForgottenWithTheBlocker)
{
    startWithHandler({31});
    desktop.press(31);
    desktop.turn();
    blocker.reset();
    desktop.drain();
    EXPECT_TRUE(captured.empty());
    EXPECT_TRUE(desktop.eventTaps.taps().empty());
}

TEST_F(GlobalEventBlockerTest, StoppingGivesUpTheTapAndKeepsTheKeys)
{
    startWithHandler({31});
    desktop.journal.clear();
    blocker->stop();
    EXPECT_EQ(desktop.journal.entries({"EventTap"}),
              (std::vector<std::string>{"EventTap.setEnabled(false)", "EventTap.removeSourceFromRunLoop()",
                                        "EventTap.destroy()"}));
    EXPECT_FALSE(blocker->hasEventTap());
    EXPECT_EQ(blocker->blockedKeyCodes(), (KeyCodeSet{31}));

    desktop.press(31);
    desktop.drain();
    EXPECT_EQ(codesReceivedBy(editor), (std::vector<KeyCode>{31}));
}

TEST_F(GlobalEventBlockerTest, StartingAfterAStopMakesANewTapForTheKeptKeys)
{
    startWithHandler({31});
    blocker->stop();
    blocker->start();
    desktop.press(31);
    desktop.drain();
    EXPECT_EQ(desktop.journal.count("EventTaps.createTap"), 2U);
    EXPECT_EQ(capturedCodes(), (std::vector<KeyCode>{31}));
}

TEST_F(GlobalEventBlockerTest, StoppingBeforeTheStartDoesNothing)
{
    blocker->stop();
    EXPECT_EQ(desktop.journal.count("EventTap"), 0U);
}

} // namespace
} // namespace quorvel
