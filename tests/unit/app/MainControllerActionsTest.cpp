// What the dispatcher makes of actions and their arguments, and how modes end.

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/MainController.h"
#include "system/OverlayFrameWindowController.h"
#include "system/WindowElementModel.h"
#include "tests/unit/app/AppFixture.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;
using States = StateManager::States;

class MainControllerActionsTest : public AppFixture {
protected:
    MainControllerActionsTest() { launch(); }

    void perform(Action action, const ActionArguments& arguments = {}) { controller().handleAction(action, arguments); }

    std::shared_ptr<WindowElementModel> frontmost() { return WindowElementModel::frontmostWindow(platform); }

    ScreensModel screensAt(const Screen& screen)
    {
        auto current = std::make_shared<CurrentScreen>();
        current->screen = screen;
        return ScreensModel(platform, current);
    }

    // As the move/resize mode leaves things while it is on.
    void enterMoveResize()
    {
        auto& modes = controller().modeState();
        modes.moveResizeElement = frontmost();
        modes.moveResizeElement->showOverlayFrame();
        modes.snapTargetOverlay = std::make_unique<OverlayFrameWindowController>(platform, FrameAppearance());
        modes.snapTargetOverlay->show();
        blocker().setBlockedKeyCodes({123, 124, 125, 126, 48, 53, 46});
        ASSERT_EQ(shownWindowCount(), 2U);
    }

    // As the focus switcher leaves things while it is up. Windows 1 and 2 are panels.
    void enterFocusSwitcher()
    {
        auto& modes = controller().modeState();
        modes.minimizedWindowsPanels.push_back(desktop.overlayWindows.createWindow({}));
        modes.allWindowsListPanels.push_back(desktop.overlayWindows.createWindow({}));
        modes.allWindowsListPanels.back()->orderFrontRegardless();
        modes.isMinimizedPanelVisible = true;
        modes.isAllWindowsPanelVisible = true;
        modes.focusSwitcherMouseMonitor = desktop.eventMonitors.addGlobalMouseDownMonitor([] {});
        controller().stateManager().currentState = States::overlayOn;
        blocker().setBlockedKeyCodes(allKeyCodes());
        forget();
    }

    bool isFocusSwitcherGone()
    {
        const auto& modes = controller().modeState();
        return !modes.focusSwitcherMouseMonitor.isActive() && modes.minimizedWindowsPanels.empty() &&
               modes.allWindowsListPanels.empty() && !modes.isMinimizedPanelVisible && !modes.isAllWindowsPanelVisible;
    }
};

TEST_F(MainControllerActionsTest, TheHotKeyIsLoggedBeforeAnythingElse)
{
    pressOverlayHotKey();
    EXPECT_EQ(desktop.log.lines().front(), "Activate overlay shortcut fired");
    EXPECT_EQ(state(), States::overlayOn);
    EXPECT_EQ(shownLabels(), (Lines{"A"}));
}

TEST_F(MainControllerActionsTest, TheActionByItselfIsNotLoggedAsAHotKey)
{
    perform(Action::activateOverlay);
    EXPECT_TRUE(linesBeginningWith("Activate").empty());
    EXPECT_EQ(state(), States::overlayOn);
}

TEST_F(MainControllerActionsTest, TheOverlayHotKeyClosesTheOverlay)
{
    pressOverlayHotKey();
    pressOverlayHotKey();
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(MainControllerActionsTest, TheOverlayHotKeyLeavesMoveResizeForTheOverlay)
{
    enterMoveResize();
    perform(Action::activateOverlay);
    EXPECT_FALSE(desktop.overlayWindows.all()[0]->isVisible);
    EXPECT_FALSE(desktop.overlayWindows.all()[1]->isVisible);
    EXPECT_EQ(controller().modeState().moveResizeElement, nullptr);
    EXPECT_NE(controller().modeState().snapTargetOverlay, nullptr);
    EXPECT_EQ(state(), States::overlayOn);
    EXPECT_EQ(blocker().blockedKeyCodes(), allKeyCodes());
}

TEST_F(MainControllerActionsTest, TheFocusSwitcherHotKeyOnlyClosesTheOverlay)
{
    pressOverlayHotKey();
    forget();
    type(3, commandShift);
    EXPECT_TRUE(isOverlayGone());
    EXPECT_EQ(desktop.journal.count("WindowList"), 0U);
}

TEST_F(MainControllerActionsTest, TheFocusSwitcherTakesThePlaceOfMoveResize)
{
    enterMoveResize();
    perform(Action::focusSwitcher);
    EXPECT_EQ(controller().modeState().moveResizeElement, nullptr);
    EXPECT_FALSE(desktop.overlayWindows.all()[0]->isVisible);
    EXPECT_FALSE(desktop.overlayWindows.all()[1]->isVisible);
    EXPECT_EQ(state(), States::overlayOn);
    EXPECT_EQ(blocker().blockedKeyCodes(), allKeyCodes());
    EXPECT_TRUE(controller().modeState().focusSwitcherMouseMonitor.isActive());
}

TEST_F(MainControllerActionsTest, MoveResizeLeavesTheOverlay)
{
    pressOverlayHotKey();
    type(15, eventFlags::command | eventFlags::option);
    EXPECT_TRUE(shownLabels().empty());
    EXPECT_EQ(state(), States::normal);
    EXPECT_NE(controller().modeState().moveResizeElement, nullptr);
}

TEST_F(MainControllerActionsTest, EveryHotKeyTakesTheWholeFocusSwitcherDown)
{
    for (const auto action : {Action::activateOverlay, Action::focusSwitcher, Action::moveResizeFrontmost}) {
        enterFocusSwitcher();
        perform(action);
        EXPECT_TRUE(isFocusSwitcherGone());
        perform(Action::cancel);
        EXPECT_TRUE(isOverlayGone());
    }
}

TEST_F(MainControllerActionsTest, ANavigationHotKeyLeavesTheFocusSwitcherForTheOverlay)
{
    for (const auto action : {Action::nextLayout, Action::previousLayout, Action::nextScreen, Action::previousScreen}) {
        enterFocusSwitcher();
        perform(action);
        EXPECT_TRUE(isFocusSwitcherGone());
        EXPECT_EQ(state(), States::overlayOn);
        perform(Action::cancel);
        EXPECT_TRUE(isOverlayGone());
    }
}

TEST_F(MainControllerActionsTest, CancelEndsTheOverlay)
{
    pressOverlayHotKey();
    perform(Action::cancel);
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(MainControllerActionsTest, CancelWithoutAModeChangesNothing)
{
    perform(Action::cancel);
    EXPECT_TRUE(isOverlayGone());
    EXPECT_TRUE(desktop.log.lines().empty());
}

TEST_F(MainControllerActionsTest, ExitRemovesTheEventMonitorOnce)
{
    controller().modeState().eventMonitor =
        desktop.eventMonitors.addLocalKeyDownMonitor([](const KeyEvent&) { return EventHandling::pass; });
    controller().exitCurrentMode();
    EXPECT_EQ(desktop.eventMonitors.keyMonitorCount(), 0U);
    EXPECT_FALSE(controller().modeState().eventMonitor.isActive());
    forget();
    controller().exitCurrentMode();
    EXPECT_EQ(desktop.journal.count("EventMonitors"), 0U);
}

TEST_F(MainControllerActionsTest, ExitGoesThroughItsStepsInOrder)
{
    blocker().stop();
    enterMoveResize();
    const auto element = controller().modeState().moveResizeElement;
    controller().showOverlay(std::nullopt, element);
    controller().modeState().eventMonitor =
        desktop.eventMonitors.addLocalKeyDownMonitor([](const KeyEvent&) { return EventHandling::pass; });
    ASSERT_EQ(shownWindowCount(), 5U);
    forget();
    controller().exitCurrentMode();
    EXPECT_EQ(desktop.journal.entries({"OverlayWindow.", "OverlayPanel.", "Workspace.activate", "EventMonitors."}),
              (Lines{"OverlayWindow.close(3)", "OverlayWindow.close(4)", "OverlayPanel.orderOut(5)",
                     "Workspace.activate(500)", "OverlayWindow.orderOut(1)", "OverlayWindow.orderOut(2)",
                     "EventMonitors.remove(1)"}));
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(MainControllerActionsTest, AnActionOutsideOfTheEnumerationIsIgnored)
{
    const auto entries = desktop.journal.entries().size();
    perform(static_cast<Action>(10));
    perform(static_cast<Action>(-1));
    EXPECT_EQ(desktop.journal.entries().size(), entries);
}

TEST_F(MainControllerActionsTest, PlacingWantsFrameScreensAndElement)
{
    const WindowModel frame{0, 0, 1, 1};
    const auto screens = screensAt(fixtures::primary);
    const auto element = frontmost();
    forget();
    perform(Action::moveClientWindow, {frame, screens});
    perform(Action::moveClientWindow, {std::string("A"), screens, element});
    perform(Action::moveClientWindow, {frame, element, screens});
    perform(Action::moveClientWindow, {frame, screens, std::shared_ptr<WindowElementModel>()});
    perform(Action::moveClientWindow, {});
    desktop.drain();
    EXPECT_EQ(desktop.journal.count("Accessibility.setAttribute"), 0U);
    EXPECT_TRUE(desktop.log.lines().empty());

    perform(Action::moveClientWindow, {frame, screens, element, std::string("further ones do not matter")});
    desktop.drain();
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
}

TEST_F(MainControllerActionsTest, SteppingTakesWrongArgumentsForAbsentOnes)
{
    perform(Action::nextLayout, {std::string("x"), std::int64_t{3}});
    EXPECT_EQ(layoutIndex(), 1);
    EXPECT_EQ(state(), States::overlayOn);
    type(keyCodes::a);
    EXPECT_TRUE(nearlyEqual(window.frame(), AxRect{180, 112.5, 1080, 700}, 1e-9));
}

TEST_F(MainControllerActionsTest, SteppingBackFromTheFirstLayoutGoesToTheLast)
{
    perform(Action::previousLayout);
    EXPECT_EQ(layoutIndex(), 5);
    EXPECT_EQ(shownLabels(), (Lines{"A", "B", "C", "D"}));
}

TEST_F(MainControllerActionsTest, JumpingGoesToASelectedLayout)
{
    perform(Action::jumpToLayout, {std::string("two_stacked")});
    EXPECT_EQ(layoutIndex(), 3);
    EXPECT_EQ(shownLabels(), (Lines{"A", "B"}));
}

TEST_F(MainControllerActionsTest, JumpingAnywhereElseDoesNothing)
{
    const auto screens = screensAt(fixtures::primary);
    const auto element = frontmost();
    forget();
    perform(Action::jumpToLayout, {std::int64_t{7}, screens, element});
    perform(Action::jumpToLayout, {std::string("nope"), screens, element});
    perform(Action::jumpToLayout, {std::string("extra"), screens, element});
    perform(Action::jumpToLayout, {});
    EXPECT_EQ(layoutIndex(), 0);
    EXPECT_EQ(shownWindowCount(), 0U);
}

TEST_F(MainControllerActionsTest, AJumpToAnUnselectedLayoutLeavesTheOverlayUp)
{
    pressOverlayHotKey();
    const auto shown = desktop.overlayWindows.all().size();
    perform(Action::jumpToLayout, {std::string("extra")});
    EXPECT_EQ(desktop.overlayWindows.all().size(), shown);
    EXPECT_EQ(state(), States::overlayOn);
}

TEST_F(MainControllerActionsTest, DismissingTheFocusSwitcherGoesThroughItsStepsInOrder)
{
    controller().showOverlay(std::nullopt, nullptr);
    ASSERT_EQ(shownWindowCount(), 2U); // stand for labels
    enterFocusSwitcher();
    controller().dismissFocusSwitcher();
    EXPECT_EQ(desktop.journal.entries({"OverlayWindow.close", "EventTap.setKeysOfInterest", "EventMonitors"}),
              (Lines{"OverlayWindow.close(1)", "OverlayWindow.close(2)", "EventTap.setKeysOfInterest()",
                     "EventMonitors.remove(1)", "OverlayWindow.close(3)", "OverlayWindow.close(4)"}));
    EXPECT_TRUE(isFocusSwitcherGone());
    EXPECT_EQ(state(), States::normal);
}

class NavigationHotKeysTest : public AppFixture {
protected:
    NavigationHotKeysTest()
    {
        storeShortcut("nextLayout", 45, 256);
        storeShortcut("previousLayout", 35, 256);
        storeShortcut("nextScreen", 124, 2816);
        storeShortcut("previousScreen", 123, 2816);
        desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
        launch();
    }

    static constexpr std::uint64_t commandShiftOption = commandShift | eventFlags::option;
};

TEST_F(NavigationHotKeysTest, TheLayoutHotKeysOpenTheOverlayOnAnotherLayout)
{
    type(45, eventFlags::command);
    EXPECT_EQ(layoutIndex(), 1);
    EXPECT_EQ(state(), States::overlayOn);
    type(35, eventFlags::command);
    EXPECT_EQ(layoutIndex(), 0);
    EXPECT_EQ(state(), States::overlayOn);
    EXPECT_EQ(shownLabels(), (Lines{"A"}));
}

TEST_F(NavigationHotKeysTest, TheScreenHotKeysStayOnTheScreenOfTheWindow)
{
    for (const KeyCode arrow : {124, 123}) {
        type(arrow, commandShiftOption);
        EXPECT_EQ(state(), States::overlayOn);
        type(keyCodes::a);
        EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
    }
}

} // namespace
} // namespace quorvel
