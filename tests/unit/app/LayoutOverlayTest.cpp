// Showing the layout overlay and placing a window.

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/LayoutOverlayMode.h"
#include "app/MainController.h"
#include "system/WindowElementModel.h"
#include "tests/unit/app/AppFixture.h"
#include "tests/unit/app/AppScreens.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;
using States = StateManager::States;

class LayoutOverlayTest : public AppFixture {
protected:
    void show() { controller().showOverlay(std::nullopt, nullptr); }

    void expectNothingHappened()
    {
        EXPECT_TRUE(isOverlayGone());
        EXPECT_EQ(desktop.overlayWindows.all().size(), 0U);
    }
};

TEST_F(LayoutOverlayTest, FramesAreLabelledInTheirOrderAndTheLegendFollows)
{
    launch();
    controller().layoutsManager().selectLayoutWithID("three_side_by_side");
    show();
    const auto windows = desktop.overlayWindows.all();
    ASSERT_EQ(windows.size(), 4U);
    EXPECT_EQ(shownLabels(), (Lines{"A", "B", "C"}));
    EXPECT_EQ(windows[0]->frame, (ScreenRect{1, 1, 478, 873}));
    EXPECT_EQ(windows[3]->description.level, windowLevels::popUpMenu + 2);
    EXPECT_EQ(state(), States::overlayOn);
}

TEST_F(LayoutOverlayTest, NobodyWatchesTheWindowAfterTheOverlay)
{
    launch();
    show();
    EXPECT_EQ(desktop.accessibility.observerCount(), 1U);
    type(keyCodes::escape);
    EXPECT_EQ(desktop.accessibility.observerCount(), 0U);
    show();
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
    EXPECT_EQ(desktop.accessibility.observerCount(), 0U);
}

TEST_F(LayoutOverlayTest, ALateKeyAfterTheEndDoesNothing)
{
    launch();
    show();
    desktop.press(keyCodes::escape);
    desktop.press(keyCodes::a);
    desktop.drain();
    EXPECT_EQ(window.frame(), (AxRect{100, 100, 800, 600}));
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(LayoutOverlayTest, EqualFramesShowTheLaterLetterAndBothLettersWork)
{
    desktop.bundle.addResource("layouts", "json", R"({"layouts": [{"id": "twins", "name": "Twins", "windows": [
        {"bottom_left_x": 0, "bottom_left_y": 0, "top_right_x": 1, "top_right_y": 1},
        {"bottom_left_x": 0, "bottom_left_y": 0, "top_right_x": 1, "top_right_y": 1}]}]})");
    select({"twins"});
    launch();
    for (const auto letter : {keyCodes::a, keys::b}) {
        desktop.moveWindow(window, {100, 100, 800, 600});
        show();
        EXPECT_EQ(shownLabels(), (Lines{"B", "B"}));
        type(letter);
        EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
    }
}

TEST_F(LayoutOverlayTest, EveryLetterOfTheAlphabetHasAFrameInALayoutOf26)
{
    std::string columns;
    for (int column = 0; column < 26; ++column) {
        columns += std::string(column == 0 ? "" : ",") + R"({"bottom_left_x": )" + std::to_string(column) +
                   R"(e-2, "bottom_left_y": 0, "top_right_x": )" + std::to_string(column + 1) +
                   R"(e-2, "top_right_y": 1})";
    }
    desktop.bundle.addResource("layouts", "json",
                               R"({"layouts": [{"id": "columns", "name": "Columns", "windows": [)" + columns + "]}]}");
    select({"columns"});
    launch();
    show();
    std::string labels;
    for (const auto& label : shownLabels()) {
        labels += label;
    }
    EXPECT_EQ(labels, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    type(6); // Z
    EXPECT_TRUE(nearlyEqual(window.frame(), AxRect{360, 25, 14.4, 875}, 1e-9));
}

TEST_F(LayoutOverlayTest, ATapTakesAllKeysWithoutAPanel)
{
    launch();
    show();
    EXPECT_EQ(blocker().blockedKeyCodes(), allKeyCodes());
    EXPECT_FALSE(isKeyCapturePanelShown());
}

TEST_F(LayoutOverlayTest, WithoutATapThePanelTakesAllKeys)
{
    launch();
    blocker().stop();
    show();
    EXPECT_EQ(blocker().blockedKeyCodes(), allKeyCodes());
    EXPECT_TRUE(isKeyCapturePanelShown());
}

TEST_F(LayoutOverlayTest, ATapThatIsRefusedTheKeyboardLeavesItToThePanel)
{
    launch();
    desktop.eventTaps.refuseKeys();
    show();
    EXPECT_TRUE(isKeyCapturePanelShown());
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(LayoutOverlayTest, TheScreenThatHoldsTheWindowIsChosen)
{
    desktop.screens.connect({fixtures::primary, fixtures::right});
    desktop.moveWindow(window, {1500, 0, 400, 300});
    launch();
    show();
    EXPECT_EQ(desktop.overlayWindows.all().at(0)->frame, (ScreenRect{1441, 1, 1918, 1053}));
}

TEST_F(LayoutOverlayTest, AnIndexOutsideOfTheSelectionShowsTheLegendOnly)
{
    launch();
    controller().layoutsManager().selectLayoutWithID("three_side_by_side");
    select({"one_full_screen", "centered", "two_side_by_side"});
    show();
    EXPECT_EQ(shownLabels(), Lines());
    EXPECT_EQ(shownWindowCount(), 1U);
    for (const auto& entry : controller().layoutsManager().legendEntries()) {
        EXPECT_FALSE(entry.isActive);
    }
    EXPECT_EQ(state(), States::normal);
    EXPECT_EQ(blocker().blockedKeyCodes(), allKeyCodes());
    type(keyCodes::escape);
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(LayoutOverlayTest, TheLegendAloneGoesWhenAnotherModeBegins)
{
    launch();
    controller().layoutsManager().selectLayoutWithID("three_side_by_side");
    select({"one_full_screen", "centered", "two_side_by_side"});
    for (const Action action : {Action::moveResizeFrontmost, Action::focusSwitcher}) {
        show();
        ASSERT_EQ(shownWindowCount(), 1U);
        controller().handleAction(action, {});
        type(keyCodes::escape);
        EXPECT_TRUE(isOverlayGone());
    }
}

TEST_F(LayoutOverlayTest, TheLegendAloneIsShownOnceHoweverOftenItIsAskedFor)
{
    launch();
    controller().layoutsManager().selectLayoutWithID("three_side_by_side");
    select({"one_full_screen", "centered", "two_side_by_side"});
    for (int time = 0; time < 3; ++time) {
        controller().handleAction(Action::activateOverlay, {});
        EXPECT_EQ(shownWindowCount(), 1U);
    }
    type(keyCodes::escape);
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(LayoutOverlayTest, AnEmptyLayoutGivesTheKeyboardBackAtALetter)
{
    select({"unknown"});
    launch();
    show();
    EXPECT_EQ(shownWindowCount(), 0U);
    EXPECT_EQ(blocker().blockedKeyCodes(), allKeyCodes());
    type(keyCodes::a);
    EXPECT_TRUE(blocker().blockedKeyCodes().empty());
    EXPECT_EQ(window.frame(), (AxRect{100, 100, 800, 600}));
}

TEST_F(LayoutOverlayTest, WithoutCatalogueTheKeyboardIsTakenAndGivenBack)
{
    desktop.bundle.addResource("layouts", "json", "damaged");
    launch();
    show();
    EXPECT_EQ(blocker().blockedKeyCodes(), allKeyCodes());
    type(keyCodes::escape);
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(LayoutOverlayTest, NobodyInFrontEndsIt)
{
    launch();
    desktop.leaveNobodyInFront();
    show();
    EXPECT_EQ(desktop.log.lines(), (Lines{"Frontmost element invalid; cannot show overlay"}));
    expectNothingHappened();
}

TEST_F(LayoutOverlayTest, AnApplicationWithoutWindowEndsIt)
{
    launch();
    desktop.closeWindow(window);
    desktop.drain();
    show();
    EXPECT_EQ(desktop.log.lines(),
              (Lines{"Window is nil or not a valid AXUIElement", "Frontmost element invalid; cannot show overlay"}));
    expectNothingHappened();
}

TEST_F(LayoutOverlayTest, AWindowWhoseSizeCannotBeReadEndsItWithoutAnotherLine)
{
    launch();
    window.failReading(axNames::size, axErrors::failure);
    show();
    EXPECT_TRUE(linesBeginningWith("Frontmost").empty());
    EXPECT_TRUE(linesBeginningWith("No screens").empty());
    expectNothingHappened();
}

TEST_F(LayoutOverlayTest, AWindowOnNoScreenEndsIt)
{
    launch();
    desktop.moveWindow(window, {5000, 100, 400, 300});
    show();
    EXPECT_EQ(lastLine(), "No screens model; cannot show overlay");
    expectNothingHappened();
}

TEST_F(LayoutOverlayTest, AHungApplicationEndsIt)
{
    launch();
    editor.hang();
    pressOverlayHotKey();
    EXPECT_EQ(lastLine(), "Frontmost element invalid; cannot show overlay");
    expectNothingHappened();
}

TEST_F(LayoutOverlayTest, GivenScreensAreNotChosenAnew)
{
    launch();
    auto current = std::make_shared<CurrentScreen>();
    current->screen = fixtures::above;
    controller().showOverlay(ScreensModel(platform, current), WindowElementModel::frontmostWindow(platform));
    EXPECT_TRUE(linesBeginningWith("windowRect: ").empty());
    EXPECT_EQ(desktop.overlayWindows.all().at(0)->frame, (ScreenRect{1, 901, 1918, 1053}));
}

TEST_F(LayoutOverlayTest, OnGivenScreensAWindowNeedsNoKnownPlace)
{
    launch();
    window.failReading(axNames::size, axErrors::failure);
    const auto element = WindowElementModel::frontmostWindow(platform);
    ASSERT_FALSE(element->windowRect());
    auto current = std::make_shared<CurrentScreen>();
    current->screen = fixtures::primary;
    controller().showOverlay(ScreensModel(platform, current), element);
    EXPECT_EQ(shownLabels(), (Lines{"A"}));
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
}

TEST_F(LayoutOverlayTest, ScreensWithoutCurrentOneShowFramesOfNoSizeAndNoLegend)
{
    launch();
    const ScreensModel nowhere(platform, std::make_shared<CurrentScreen>());
    controller().showOverlay(nowhere, WindowElementModel::frontmostWindow(platform));
    const auto windows = desktop.overlayWindows.all();
    ASSERT_EQ(windows.size(), 1U);
    EXPECT_EQ(windows[0]->frameAutosaveName, "A");
    EXPECT_EQ(state(), States::overlayOn);
}

TEST_F(LayoutOverlayTest, PlacementIsLoggedStepByStep)
{
    desktop.screens.connect({fixtures::primary, fixtures::right});
    desktop.moveWindow(window, {1500, 0, 400, 300});
    launch();
    show();
    forget();
    type(keyCodes::a);
    EXPECT_EQ(desktop.log.lines(),
              (Lines{"screenFrame: (1440.0, 0.0, 1920.0, 1080.0)", "visibleFrame: (1440.0, 0.0, 1920.0, 1055.0)",
                     "mainFrame: (0.0, 0.0, 1440.0, 900.0)", "windowModel: (0.0, 0.0, 1.0, 1.0)", "diffX: -1920.0",
                     "diffY: -180.0", "menuBarHeight: 25.0", "x: 1440.0, y: -155.0, w: 1920.0, h: 1055.0",
                     "rect origin: (1440.0, -155.0), rect size: (1920.0, 1055.0)",
                     "rect origin: (1440.0, -155.0), rect size: (1920.0, 1055.0)", "Blocker blocked key: 0",
                     "window position: (1440.0, -155.0)", "window position: (1440.0, -155.0)"}));
}

TEST_F(LayoutOverlayTest, WithoutScreensAWindowIsPlacedNowhere)
{
    launch();
    const auto element = WindowElementModel::frontmostWindow(platform);
    desktop.screens.connect({});
    const ScreensModel nowhere(platform, std::make_shared<CurrentScreen>());
    controller().handleAction(Action::moveClientWindow, {WindowModel{0, 0, 1, 1}, nowhere, element});
    desktop.drain();
    EXPECT_EQ(window.frame(), (AxRect{0, 0, 0, 0}));
}

TEST_F(LayoutOverlayTest, WithoutBlockerTheOverlayShowsAndTakesNoKeys)
{
    MainController withoutBlocker(platform, nullptr);
    withoutBlocker.showOverlay(std::nullopt, nullptr);
    EXPECT_EQ(withoutBlocker.stateManager().currentState, States::overlayOn);
    EXPECT_EQ(shownWindowCount(), 2U);
    withoutBlocker.handleAction(Action::activateOverlay, {});
    EXPECT_EQ(shownWindowCount(), 0U);
}

} // namespace
} // namespace quorvel
