// Whole ways of a person through the program, from the hot key to the window in its place.

#include <string>
#include <vector>

#include "tests/unit/app/AppFixture.h"

namespace quorvel {
namespace {

class JourneyTest : public AppFixture {
protected:
    std::vector<std::string> writes() const { return desktop.journal.entries({"Accessibility.setAttribute"}); }
};

TEST_F(JourneyTest, AHotKeyAndALetterPutTheWindowIntoTheFrame)
{
    launch();
    controller().layoutsManager().selectLayoutWithID("three_side_by_side");
    pressOverlayHotKey();
    EXPECT_EQ(shownLabels(), (std::vector<std::string>{"A", "B", "C"}));
    forget();

    type(keys::b);
    EXPECT_EQ(writes(), (std::vector<std::string>{"Accessibility.setAttribute(window 1, AXPosition, (480.0, 25.0))",
                                                  "Accessibility.setAttribute(window 1, AXSize, (480.0, 875.0))",
                                                  "Accessibility.setAttribute(window 1, AXPosition, (480.0, 25.0))",
                                                  "Accessibility.setAttribute(window 1, AXSize, (480.0, 875.0))"}));
    EXPECT_TRUE(nearlyEqual(window.frame(), AxRect{480, 25, 480, 875}, 1e-9));
    EXPECT_TRUE(isOverlayGone());
    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(JourneyTest, WithoutATapThePanelTakesTheLetterAndGivesTheFocusBack)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    launch();
    pressOverlayHotKey();
    ASSERT_TRUE(isKeyCapturePanelShown());
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
    EXPECT_TRUE(isOverlayGone());
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
}

TEST_F(JourneyTest, AnotherScreenThenALetter)
{
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    launch();
    pressOverlayHotKey();
    type(keyCodes::rightArrow);
    EXPECT_EQ(shownLabels(), (std::vector<std::string>{"A"}));
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{1440, 25, 1440, 875}));
}

TEST_F(JourneyTest, AnotherLayoutThenADigitThenALetter)
{
    launch();
    pressOverlayHotKey();
    type(keyCodes::downArrow);
    type(keys::digit3);
    EXPECT_EQ(shownLabels(), (std::vector<std::string>{"A", "B"}));
    type(keys::b);
    EXPECT_EQ(window.frame(), (AxRect{720, 25, 720, 875}));
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(JourneyTest, AWindowThatClosesBeforeTheLetterLeavesALineInTheLog)
{
    launch();
    pressOverlayHotKey();
    desktop.closeWindow(window);
    desktop.drain();
    forget();
    type(keyCodes::a);
    EXPECT_TRUE(writes().empty());
    EXPECT_EQ(linesBeginningWith("Window is gone").size(), 1U);
    EXPECT_EQ(linesBeginningWith("Window is gone").at(0), "Window is gone; nothing was placed");
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(JourneyTest, AWindowThatIsPlacedIsNotCalledGone)
{
    launch();
    pressOverlayHotKey();
    type(keyCodes::a);
    EXPECT_TRUE(linesBeginningWith("Window is gone").empty());
}

TEST_F(JourneyTest, AWindowThatClosesWhileItIsMovedLeavesALineInTheLog)
{
    launch();
    pressOverlayHotKey();
    desktop.journal.duringNext("Accessibility.setAttribute", [this] { desktop.closeWindow(window); });
    type(keyCodes::a);
    EXPECT_EQ(linesBeginningWith("Failed to set window position").at(0), "Failed to set window position: -25202");
    EXPECT_EQ(linesBeginningWith("Window is gone"), (std::vector<std::string>{"Window is gone; nothing was placed"}));
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(JourneyTest, AnApplicationThatHangsKeepsNoKeys)
{
    launch();
    pressOverlayHotKey();
    editor.hang();
    type(keyCodes::a);
    EXPECT_EQ(linesBeginningWith("Failed to set window position").at(0), "Failed to set window position: -25204");
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(JourneyTest, AWindowThatRefusesTheSizeIsMovedAllTheSame)
{
    launch();
    window.failWriting(axNames::size, axErrors::failure);
    pressOverlayHotKey();
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 800, 600}));
    EXPECT_EQ(linesBeginningWith("Failed to set window size"),
              (std::vector<std::string>{"Failed to set window size: -25200", "Failed to set window size: -25200"}));
}

TEST_F(JourneyTest, KeysReachTheApplicationAgainAfterTheOverlay)
{
    launch();
    pressOverlayHotKey();
    type(keyCodes::escape);
    type(keys::b);
    ASSERT_EQ(editor.receivedKeys().size(), 1U);
    EXPECT_EQ(editor.receivedKeys()[0].keyCode, keys::b);
}

TEST_F(JourneyTest, AHeldHotKeyOpensTheOverlayOnce)
{
    launch();
    desktop.hold(keys::o, commandShift);
    desktop.drain();
    desktop.repeatKey(keys::o);
    desktop.drain();
    EXPECT_EQ(state(), StateManager::States::overlayOn);
    desktop.releaseKey(keys::o);
    desktop.drain();
    EXPECT_EQ(state(), StateManager::States::overlayOn);
    EXPECT_EQ(desktop.journal.count("Log.line(Activate overlay shortcut fired)"), 1U);
}

TEST_F(JourneyTest, TheOverlayOpensAgainForTheWindowThatIsInFrontThen)
{
    launch();
    pressOverlayHotKey();
    type(keyCodes::a);
    auto& browser = desktop.launch("Browser");
    auto& page = desktop.openWindow(browser, "Page", {50, 50, 500, 500});
    desktop.drain();
    pressOverlayHotKey();
    type(keyCodes::a);
    EXPECT_EQ(page.frame(), (AxRect{0, 25, 1440, 875}));
}

TEST_F(JourneyTest, AScreenUnpluggedUnderTheOverlayIsLeftForTheOneOfTheWindow)
{
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    launch();
    pressOverlayHotKey();
    type(keyCodes::rightArrow);
    desktop.screens.remove(fixtures::rightSameSize.id);
    type(keyCodes::rightArrow);
    EXPECT_EQ(shownLabels(), (std::vector<std::string>{"A"}));
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
}

TEST_F(JourneyTest, WithAllScreensUnpluggedTheKeyboardIsGivenBack)
{
    launch();
    pressOverlayHotKey();
    desktop.screens.connect({});
    type(keyCodes::leftArrow);
    EXPECT_EQ(linesBeginningWith("No screens model"),
              (std::vector<std::string>{"No screens model; cannot show overlay"}));
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(JourneyTest, TheProgramMayGoWhileTheOverlayIsUp)
{
    launch();
    pressOverlayHotKey();
    app->appDelegate().applicationWillTerminate();
    app.reset();
    EXPECT_EQ(shownWindowCount(), 0U);
    type(keys::b);
    EXPECT_EQ(editor.receivedKeys().size(), 1U);
}

TEST_F(JourneyTest, AKeyThatIsOnItsWayWhenTheProgramGoesIsDropped)
{
    launch();
    pressOverlayHotKey();
    desktop.press(keyCodes::a);
    desktop.turn();
    app->appDelegate().applicationWillTerminate();
    app.reset();
    desktop.drain();
    EXPECT_EQ(window.frame(), (AxRect{100, 100, 800, 600}));
}

} // namespace
} // namespace quorvel
