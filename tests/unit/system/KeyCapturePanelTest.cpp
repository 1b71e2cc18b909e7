#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "system/GlobalEventBlocker.h"
#include "tests/unit/system/EventBlockerFixture.h"
#include "tests/unit/system/ScreenFixtures.h"

namespace quorvel {
namespace {

class KeyCapturePanelTest : public EventBlockerFixture {};

TEST_F(KeyCapturePanelTest, ThePanelNeedsKeysAndAHandler)
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

TEST_F(KeyCapturePanelTest, WithATapThereIsNoPanel)
{
    startWithHandler({31});
    EXPECT_EQ(panel(), nullptr);
}

TEST_F(KeyCapturePanelTest, ThePanelIsAnInvisibleFloatingWindowOnTheMainScreen)
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

TEST_F(KeyCapturePanelTest, WithoutMainScreenThePanelIsSmall)
{
    desktop.screens.connect({});
    startRefused({31});
    EXPECT_EQ(panel()->description.contentRect, (ScreenRect{0, 0, 100, 100}));
}

TEST_F(KeyCapturePanelTest, ThePanelTakesTheFocusFromTheFrontmostApplication)
{
    startRefused({31});
    EXPECT_EQ(desktop.journal.entries({"Workspace", "OverlayPanel"}),
              (std::vector<std::string>{"Workspace.frontmostApplication()", "OverlayPanel.orderFrontRegardless(1)",
                                        "Workspace.activateSelf()", "OverlayPanel.makeKey(1)"}));
    EXPECT_EQ(frontmost(), desktop.workspace.ownProcess());
}

TEST_F(KeyCapturePanelTest, ThePanelDeliversBlockedKeysAtOnceAndIgnoresOthers)
{
    startRefused({31});
    desktop.press(31, eventFlags::shift | 0x2, "O");
    desktop.press(32);
    desktop.turn();
    EXPECT_EQ(captured, (std::vector<CapturedKey>{{31, "O", eventFlags::shift}}));
    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(KeyCapturePanelTest, APanelWithTheFocusIsLeftAlone)
{
    startRefused({31});
    desktop.journal.clear();
    blocker->showKeyCapturePanel();
    EXPECT_EQ(desktop.journal.count("Workspace"), 0U);
    EXPECT_EQ(desktop.journal.count("OverlayPanel"), 0U);
}

TEST_F(KeyCapturePanelTest, ClearingTheKeysGivesTheFocusBackOnce)
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

TEST_F(KeyCapturePanelTest, TheKeysAreClearedBeforeThePanelGoes)
{
    startRefused({31});
    std::optional<std::size_t> blockedWhenHidden;
    desktop.journal.duringNext("OverlayPanel.orderOut", [&] { blockedWhenHidden = blocker->blockedKeyCodes().size(); });
    blocker->clearBlockedKeys();
    EXPECT_EQ(blockedWhenHidden, 0U);
}

TEST_F(KeyCapturePanelTest, StoppingGivesTheFocusBackAndKeepsTheKeys)
{
    startRefused({31});
    blocker->stop();
    EXPECT_FALSE(isPanelVisible());
    EXPECT_EQ(frontmost(), editor.process());
    EXPECT_EQ(blocker->blockedKeyCodes(), (KeyCodeSet{31}));
}

TEST_F(KeyCapturePanelTest, AnApplicationThatQuitMeanwhileIsNotActivatedAndForgotten)
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

TEST_F(KeyCapturePanelTest, WhenThisProgramIsFrontmostTheEarlierApplicationIsRemembered)
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

TEST_F(KeyCapturePanelTest, WithNobodyInFrontNobodyIsRemembered)
{
    startRefused({31});
    desktop.leaveNobodyInFront();
    blocker->showKeyCapturePanel();
    blocker->clearBlockedKeys();
    EXPECT_EQ(desktop.journal.count("Workspace.activate("), 0U);
}

TEST_F(KeyCapturePanelTest, TheFocusCanGoToAnotherApplicationThanTheEarlierOne)
{
    auto& mail = desktop.launch("Mail");
    startRefused({31});
    blocker->setPreviousApp(editor.process());
    blocker->clearBlockedKeys();
    EXPECT_EQ(frontmost(), editor.process());

    blocker->setPreviousApp(editor.process()); // without effect: no panel holds the focus
    desktop.activate(mail);
    blocker->setBlockedKeyCodes({31});
    desktop.leaveNobodyInFront();
    blocker->showKeyCapturePanel();
    blocker->clearBlockedKeys();
    EXPECT_NE(frontmost(), editor.process());
}

TEST_F(KeyCapturePanelTest, BlockingAllKeysShowsThePanelWithoutATapOnly)
{
    blocker->start();
    blocker->blockAllKeys();
    EXPECT_EQ(blocker->blockedKeyCodes().size(), 256U);
    EXPECT_FALSE(isPanelVisible());
    blocker->stop();
    blocker->blockAllKeys();
    EXPECT_TRUE(isPanelVisible());
}

TEST_F(KeyCapturePanelTest, ThePanelIsCreatedOnceAndNeverClosed)
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

TEST_F(KeyCapturePanelTest, ATapThatIsRefusedItsKeysGivesWayToThePanelForThisMode)
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

TEST_F(KeyCapturePanelTest, ARefusalEndsWithTheTap)
{
    desktop.eventTaps.refuseKeys();
    startWithHandler({31});
    blocker->stop();
    desktop.eventTaps.refuseSources();
    blocker->start();
    EXPECT_TRUE(blocker->hasEventTap());
}

TEST_F(KeyCapturePanelTest, ATapMayComeUpWhileThePanelStandsIn)
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
