#include "system/GlobalEventBlocker.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "tests/unit/system/ScreenFixtures.h"

namespace quorvel {
namespace {

class GlobalEventBlockerTest : public testing::Test {
protected:
    CapturedKeyHandler collect()
    {
        return [this](const CapturedKey& key) { captured.push_back(key); };
    }

    std::vector<KeyCode> capturedCodes() const
    {
        std::vector<KeyCode> codes;
        for (const auto& key : captured) {
            codes.push_back(key.keyCode);
        }
        return codes;
    }

    std::vector<KeyCode> codesReceivedBy(const SimulatedApplication& application) const
    {
        std::vector<KeyCode> codes;
        for (const auto& event : application.receivedKeys()) {
            codes.push_back(event.keyCode);
        }
        return codes;
    }

    // The panel, or null while none was created.
    std::shared_ptr<const OverlayWindowRecord> panel() const
    {
        const auto windows = desktop.overlayWindows.all();
        return windows.empty() ? nullptr : windows.front();
    }

    bool isPanelVisible() const { return panel() && panel()->isVisible; }

    std::optional<ProcessId> frontmost()
    {
        const auto application = desktop.workspace.frontmostApplication();
        return application ? std::optional(application->process) : std::nullopt;
    }

    void startWithHandler(const std::set<KeyCode>& keyCodes)
    {
        blocker->start();
        blocker->setBlockedKeyCodes(keyCodes);
        blocker->setOnBlockKey(collect());
    }

    // No tap can be had, so the panel stands in.
    void startRefused(const std::set<KeyCode>& keyCodes)
    {
        desktop.eventTaps.refuseTaps();
        startWithHandler(keyCodes);
    }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    SimulatedApplication& editor = desktop.launch("Editor");
    std::unique_ptr<GlobalEventBlocker> blocker = std::make_unique<GlobalEventBlocker>(platform);
    std::vector<CapturedKey> captured;
};

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
    EXPECT_EQ(blocker->blockedKeyCodes(), (std::set<KeyCode>{31}));

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

// The key-capture panel.

TEST_F(GlobalEventBlockerTest, ThePanelNeedsKeysAndAHandler)
{
    desktop.eventTaps.refuseTaps();
    blocker->start();
    blocker->setOnBlockKey(collect());
    EXPECT_EQ(panel(), nullptr);
    blocker->setBlockedKeyCodes({31});
    EXPECT_EQ(panel(), nullptr);
    blocker->setOnBlockKey(nullptr);
    EXPECT_EQ(panel(), nullptr);
    blocker->setOnBlockKey(collect());
    EXPECT_TRUE(isPanelVisible());
}

TEST_F(GlobalEventBlockerTest, WithATapThereIsNoPanel)
{
    startWithHandler({31});
    EXPECT_EQ(panel(), nullptr);
}

TEST_F(GlobalEventBlockerTest, ThePanelIsAnInvisibleFloatingWindowOnTheMainScreen)
{
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    desktop.openWindow(editor, "Notes", {1500, 100, 400, 300});
    startRefused({31});
    const WindowDescription expected{
        .contentRect = fixtures::rightSameSize.frame,
        .styleMask = 0,
        .level = 3,
        .collectionBehavior = 321,
        .hasShadow = false,
        .ignoresMouseEvents = true,
        .isOpaque = false,
        .isReleasedWhenClosed = false,
        .isDeferred = false,
    };
    EXPECT_EQ(panel()->description, expected);
    EXPECT_EQ(panel()->content, DrawList{});
}

TEST_F(GlobalEventBlockerTest, WithoutMainScreenThePanelIsSmall)
{
    desktop.screens.connect({});
    startRefused({31});
    EXPECT_EQ(panel()->description.contentRect, (ScreenRect{0, 0, 100, 100}));
}

TEST_F(GlobalEventBlockerTest, ThePanelTakesTheFocusFromTheFrontmostApplication)
{
    startRefused({31});
    EXPECT_EQ(desktop.journal.entries({"Workspace", "OverlayPanel"}),
              (std::vector<std::string>{"Workspace.frontmostApplication()", "OverlayPanel.orderFrontRegardless(1)",
                                        "Workspace.activateSelf()", "OverlayPanel.makeKey(1)"}));
    EXPECT_EQ(frontmost(), desktop.workspace.ownProcess());
}

TEST_F(GlobalEventBlockerTest, ThePanelDeliversBlockedKeysAtOnceAndIgnoresOthers)
{
    startRefused({31});
    desktop.press(31, eventFlags::shift | 0x2, "O");
    desktop.press(32);
    desktop.turn();
    EXPECT_EQ(captured, (std::vector<CapturedKey>{{31, "O", eventFlags::shift}}));
    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(GlobalEventBlockerTest, APanelWithTheFocusIsLeftAlone)
{
    startRefused({31});
    desktop.journal.clear();
    blocker->showKeyCapturePanel();
    EXPECT_EQ(desktop.journal.count("Workspace"), 0U);
    EXPECT_EQ(desktop.journal.count("OverlayPanel"), 0U);
}

TEST_F(GlobalEventBlockerTest, ClearingTheKeysGivesTheFocusBackOnce)
{
    startRefused({31});
    desktop.journal.clear();
    blocker->clearBlockedKeys();
    EXPECT_TRUE(blocker->blockedKeyCodes().empty());
    EXPECT_EQ(desktop.journal.entries({"Workspace.activate", "OverlayPanel"}),
              (std::vector<std::string>{"OverlayPanel.orderOut(1)", "Workspace.activate(500)"}));
    EXPECT_EQ(frontmost(), editor.process());

    blocker->clearBlockedKeys();
    EXPECT_EQ(desktop.journal.count("Workspace.activate"), 1U);
}

TEST_F(GlobalEventBlockerTest, TheKeysAreClearedBeforeThePanelGoes)
{
    startRefused({31});
    std::optional<std::size_t> blockedWhenHidden;
    desktop.journal.duringNext("OverlayPanel.orderOut", [&] { blockedWhenHidden = blocker->blockedKeyCodes().size(); });
    blocker->clearBlockedKeys();
    EXPECT_EQ(blockedWhenHidden, 0U);
}

TEST_F(GlobalEventBlockerTest, StoppingGivesTheFocusBackAndKeepsTheKeys)
{
    startRefused({31});
    blocker->stop();
    EXPECT_FALSE(isPanelVisible());
    EXPECT_EQ(frontmost(), editor.process());
    EXPECT_EQ(blocker->blockedKeyCodes(), (std::set<KeyCode>{31}));
}

TEST_F(GlobalEventBlockerTest, AnApplicationThatQuitMeanwhileIsNotActivatedAndForgotten)
{
    startRefused({31});
    desktop.terminate(editor);
    blocker->clearBlockedKeys();
    EXPECT_EQ(desktop.journal.count("Workspace.activate("), 0U);

    // Another application gets the same process id; this program in front leaves whom it remembers alone.
    desktop.launch(RunningApplication{editor.process(), "Another", ActivationPolicy::regular});
    desktop.workspace.activateSelf();
    blocker->setBlockedKeyCodes({31});
    blocker->setOnBlockKey(collect());
    blocker->clearBlockedKeys();
    EXPECT_EQ(desktop.journal.count("Workspace.activate("), 0U);
}

TEST_F(GlobalEventBlockerTest, WhenThisProgramIsFrontmostTheEarlierApplicationIsRemembered)
{
    startRefused({31});
    desktop.leaveNobodyInFront();
    desktop.workspace.activateSelf();
    // The panel is shown but lost the focus; showing it again must not make this program its own predecessor.
    const auto other = desktop.overlayWindows.createPanel({}, [](const KeyEvent&) {});
    other->orderFrontRegardless();
    other->makeKey();
    blocker->showKeyCapturePanel();
    blocker->clearBlockedKeys();
    EXPECT_EQ(frontmost(), editor.process());
}

TEST_F(GlobalEventBlockerTest, WithNobodyInFrontNobodyIsRemembered)
{
    startRefused({31});
    desktop.leaveNobodyInFront();
    blocker->showKeyCapturePanel();
    blocker->clearBlockedKeys();
    EXPECT_EQ(desktop.journal.count("Workspace.activate("), 0U);
}

TEST_F(GlobalEventBlockerTest, ThePanelIsCreatedOnceAndNeverClosed)
{
    startRefused({31});
    blocker->clearBlockedKeys();
    blocker->setBlockedKeyCodes({32});
    blocker->setOnBlockKey(collect());
    EXPECT_TRUE(isPanelVisible());
    blocker->clearBlockedKeys();
    EXPECT_EQ(desktop.journal.count("OverlayWindows.createPanel"), 1U);
    EXPECT_EQ(desktop.journal.count("OverlayPanel.close"), 0U);
}

TEST_F(GlobalEventBlockerTest, ATapThatIsRefusedItsKeysGivesWayToThePanelForThisMode)
{
    desktop.eventTaps.refuseKeys();
    startWithHandler({31});
    EXPECT_FALSE(blocker->hasEventTap());
    EXPECT_TRUE(isPanelVisible());
    desktop.press(31);
    desktop.turn();
    EXPECT_EQ(capturedCodes(), (std::vector<KeyCode>{31}));

    blocker->clearBlockedKeys();
    EXPECT_TRUE(blocker->hasEventTap());
    EXPECT_FALSE(isPanelVisible());
    EXPECT_EQ(frontmost(), editor.process());

    desktop.eventTaps.behave();
    blocker->setBlockedKeyCodes({31});
    blocker->setOnBlockKey(collect());
    EXPECT_TRUE(blocker->hasEventTap());
    EXPECT_FALSE(isPanelVisible());
}

TEST_F(GlobalEventBlockerTest, ARefusalEndsWithTheTap)
{
    desktop.eventTaps.refuseKeys();
    startWithHandler({31});
    blocker->stop();
    desktop.eventTaps.refuseSources();
    blocker->start();
    EXPECT_TRUE(blocker->hasEventTap());
}

TEST_F(GlobalEventBlockerTest, ATapMayComeUpWhileThePanelStandsIn)
{
    startRefused({31});
    desktop.eventTaps.behave();
    blocker->start();
    desktop.press(31);
    desktop.drain();
    EXPECT_EQ(capturedCodes(), (std::vector<KeyCode>{31}));

    blocker->clearBlockedKeys();
    EXPECT_FALSE(isPanelVisible());
    EXPECT_EQ(frontmost(), editor.process());
}

} // namespace
} // namespace quorvel
