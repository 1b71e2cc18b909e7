// What the keys do while the layout overlay is up.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/MainController.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/app/AppFixture.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;
using States = StateManager::States;

class OverlayKeysTest : public AppFixture {
protected:
    // The overlay is up on that layout; what happened so far is forgotten.
    void open(const std::string& layout = "one_full_screen")
    {
        launch();
        controller().layoutsManager().selectLayoutWithID(layout);
        pressOverlayHotKey();
        desktop.drain();
        forget();
    }

    bool isOverlayUp() { return state() == States::overlayOn && blocker().blockedKeyCodes() == allKeyCodes(); }

    bool isWindowWhereItWas() const { return window.frame() == AxRect{100, 100, 800, 600}; }
};

TEST_F(OverlayKeysTest, ALetterChoosesItsFrame)
{
    open("three_side_by_side");
    type(keys::b);
    EXPECT_TRUE(nearlyEqual(window.frame(), AxRect{480, 25, 480, 875}, 1e-9));
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(OverlayKeysTest, ACapitalLetterChoosesTheSameFrame)
{
    open("three_side_by_side");
    type(keys::b, eventFlags::shift, "B");
    EXPECT_TRUE(nearlyEqual(window.frame(), AxRect{480, 25, 480, 875}, 1e-9));
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(OverlayKeysTest, ALetterCountsByWhatTheKeyTypesNotByItsPlace)
{
    open("three_side_by_side");
    type(keyCodes::a, 0, "c");
    EXPECT_TRUE(nearlyEqual(window.frame(), AxRect{960, 25, 480, 875}, 1e-9));
}

TEST_F(OverlayKeysTest, ALetterWithoutFrameClosesTheOverlay)
{
    open("three_side_by_side");
    type(keys::d);
    EXPECT_TRUE(isWindowWhereItWas());
    EXPECT_TRUE(isOverlayGone());
    EXPECT_EQ(desktop.log.lines(), (Lines{"Blocker blocked key: 2"}));
}

TEST_F(OverlayKeysTest, DownGoesToTheNextLayout)
{
    open();
    type(keyCodes::downArrow);
    EXPECT_EQ(layoutIndex(), 1);
    EXPECT_TRUE(isOverlayUp());
    EXPECT_EQ(shownLabels(), (Lines{"A"}));
    EXPECT_EQ(lastLine(), "Blocker blocked key: 125");
    type(keyCodes::downArrow);
    EXPECT_EQ(shownLabels(), (Lines{"A", "B"}));
}

TEST_F(OverlayKeysTest, FlagsThatAreNoModifiersAreIgnored)
{
    open();
    type(keyCodes::downArrow, 0xA00000);
    EXPECT_EQ(layoutIndex(), 1);
    type(keyCodes::downArrow, eventFlags::capsLock);
    EXPECT_EQ(layoutIndex(), 2);
    EXPECT_TRUE(isOverlayUp());
}

TEST_F(OverlayKeysTest, UpFromTheFirstLayoutGoesToTheLast)
{
    open();
    type(keyCodes::upArrow);
    EXPECT_EQ(layoutIndex(), 5);
    EXPECT_EQ(shownLabels(), (Lines{"A", "B", "C", "D"}));
    EXPECT_TRUE(isOverlayUp());
}

TEST_F(OverlayKeysTest, TheNewLettersCountAfterAStep)
{
    open();
    type(keyCodes::upArrow);
    type(keys::c);
    EXPECT_EQ(window.frame(), (AxRect{0, 462.5, 720, 437.5}));
}

TEST_F(OverlayKeysTest, AnArrowWithAModifierClosesTheOverlay)
{
    for (const auto& [arrow, flags] :
         {std::pair{keyCodes::downArrow, eventFlags::shift}, std::pair{keyCodes::rightArrow, eventFlags::control}}) {
        open();
        type(arrow, flags);
        EXPECT_TRUE(isOverlayGone());
        EXPECT_EQ(layoutIndex(), 0);
        app.reset();
    }
}

TEST_F(OverlayKeysTest, AShortcutReplacesItsArrowOnly)
{
    storeShortcut("nextLayout", 45, 256);
    desktop.hotKeys.holdElsewhere({45, 256}); // so that it is the overlay that sees the key
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    open();
    type(45, eventFlags::command);
    EXPECT_EQ(layoutIndex(), 1);
    type(keyCodes::upArrow);
    EXPECT_EQ(layoutIndex(), 0);
    type(keyCodes::rightArrow);
    type(keyCodes::leftArrow);
    EXPECT_TRUE(isOverlayUp());
    type(keyCodes::downArrow);
    EXPECT_TRUE(isOverlayGone());
}

TEST_F(OverlayKeysTest, AShortcutGoesBeforeALetter)
{
    storeShortcut("nextLayout", keys::b, 0);
    open("two_side_by_side");
    type(keys::b);
    EXPECT_EQ(layoutIndex(), 3);
    EXPECT_TRUE(isWindowWhereItWas());
    EXPECT_TRUE(isOverlayUp());
}

TEST_F(OverlayKeysTest, AShortcutGoesBeforeADigit)
{
    storeShortcut("nextLayout", keys::digit1, 0);
    open("two_side_by_side");
    type(keys::digit1);
    EXPECT_EQ(layoutIndex(), 3);
}

TEST_F(OverlayKeysTest, AShortcutGoesBeforeEscape)
{
    storeShortcut("previousScreen", 53, 0);
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    open();
    type(keyCodes::escape);
    EXPECT_TRUE(isOverlayUp());
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{1440, 25, 1440, 875}));
}

TEST_F(OverlayKeysTest, ShortcutsCountAsTheyAreStoredAtThatMoment)
{
    open();
    storeShortcut("nextLayout", 45, 0);
    type(45);
    EXPECT_EQ(layoutIndex(), 1);
}

TEST_F(OverlayKeysTest, LeftAndRightGoAroundTheScreens)
{
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    open();
    type(keyCodes::leftArrow);
    EXPECT_EQ(desktop.overlayWindows.visible().back()->frame.x, 1441.0);
    type(keyCodes::leftArrow);
    EXPECT_EQ(desktop.overlayWindows.visible().back()->frame.x, 1.0);
    type(keyCodes::rightArrow);
    EXPECT_EQ(desktop.overlayWindows.visible().back()->frame.x, 1441.0);
    EXPECT_TRUE(isOverlayUp());
}

TEST_F(OverlayKeysTest, RightGoesOnThroughTheScreensAndLeftBack)
{
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize, fixtures::left});
    open();
    type(keyCodes::rightArrow);
    EXPECT_EQ(desktop.overlayWindows.visible().back()->frame.x, 1441.0);
    type(keyCodes::rightArrow);
    EXPECT_EQ(desktop.overlayWindows.visible().back()->frame.x, -1919.0);
    type(keyCodes::leftArrow);
    EXPECT_EQ(desktop.overlayWindows.visible().back()->frame.x, 1441.0);
    type(keyCodes::leftArrow);
    type(keyCodes::leftArrow);
    EXPECT_EQ(desktop.overlayWindows.visible().back()->frame.x, -1919.0);
}

TEST_F(OverlayKeysTest, AnotherLayoutShowsOnTheScreenThatWasChosen)
{
    desktop.screens.connect({fixtures::primary, fixtures::rightSameSize});
    open();
    type(keyCodes::rightArrow);
    type(keyCodes::downArrow);
    type(keyCodes::upArrow);
    type(keys::digit3);
    EXPECT_EQ(shownLabels(), (Lines{"A", "B"}));
    type(keys::b);
    EXPECT_EQ(window.frame(), (AxRect{2160, 25, 720, 875}));
}

TEST_F(OverlayKeysTest, AStepKeepsTheWindowWhoeverComesToTheFront)
{
    open();
    auto& browser = desktop.launch("Browser");
    auto& page = desktop.openWindow(browser, "Page", {50, 50, 500, 500});
    desktop.drain();
    type(keyCodes::downArrow);
    type(keyCodes::upArrow);
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
    EXPECT_EQ(page.frame(), (AxRect{50, 50, 500, 500}));
}

TEST_F(OverlayKeysTest, WithOneScreenTheOverlayStaysOnIt)
{
    open();
    type(keyCodes::rightArrow);
    EXPECT_TRUE(isOverlayUp());
    EXPECT_EQ(desktop.overlayWindows.visible().back()->frame.x, 1.0);
}

TEST_F(OverlayKeysTest, ADigitJumpsToItsLayout)
{
    open();
    type(keys::digit3);
    EXPECT_EQ(layoutIndex(), 2);
    EXPECT_EQ(shownLabels(), (Lines{"A", "B"}));
    EXPECT_TRUE(isOverlayUp());
}

TEST_F(OverlayKeysTest, ADigitCountsWithModifiersTooIfItTypesTheDigit)
{
    open();
    type(keys::digit3, eventFlags::command, "3");
    EXPECT_EQ(layoutIndex(), 2);
    EXPECT_TRUE(isOverlayUp());
}

TEST_F(OverlayKeysTest, ADigitWithoutLayoutLeavesTheOverlayAsItIs)
{
    for (const KeyCode digit : {25, 29}) { // 9 and 0
        open();
        const auto shown = desktop.overlayWindows.all().size();
        type(digit);
        EXPECT_TRUE(isOverlayUp());
        EXPECT_EQ(desktop.overlayWindows.all().size(), shown);
        EXPECT_EQ(desktop.log.lines(), (Lines{"Blocker blocked key: " + std::to_string(digit)}));
        app.reset();
    }
}

TEST_F(OverlayKeysTest, ADigitOfAnUnselectedLayoutLeavesTheOverlayAsItIs)
{
    open();
    store("layoutShortcuts", PropertyValue{PropertyDictionary{{"extra", {std::string("9")}}}});
    type(25);
    EXPECT_TRUE(isOverlayUp());
    EXPECT_EQ(layoutIndex(), 0);
}

TEST_F(OverlayKeysTest, DigitsOfAWrongTypeAreBoundToNothing)
{
    open();
    store("layoutShortcuts", PropertyValue{PropertyDictionary{{"centered", {std::int64_t{2}}}}});
    type(19, 0, "2");
    EXPECT_TRUE(isOverlayUp());
    EXPECT_EQ(layoutIndex(), 0);
}

TEST_F(OverlayKeysTest, ANumberThatIsNoDigitLeavesTheOverlayAsItIs)
{
    open();
    type(keys::digit1, eventFlags::option, "½");
    EXPECT_TRUE(isOverlayUp());
}

TEST_F(OverlayKeysTest, AShiftedDigitTypesASignAndClosesTheOverlay)
{
    open();
    type(keys::digit1, eventFlags::shift, "!");
    EXPECT_TRUE(isOverlayGone());
    EXPECT_TRUE(isWindowWhereItWas());
}

TEST_F(OverlayKeysTest, EscapeClosesTheOverlay)
{
    open();
    type(keyCodes::escape);
    EXPECT_TRUE(isOverlayGone());
    EXPECT_EQ(desktop.log.lines(), (Lines{"Blocker blocked key: 53"}));
}

TEST_F(OverlayKeysTest, EscapeClosesTheOverlayWhateverItTypes)
{
    open();
    type(keyCodes::escape, eventFlags::shift, "3");
    EXPECT_TRUE(isOverlayGone());
    EXPECT_EQ(layoutIndex(), 0);
}

TEST_F(OverlayKeysTest, AKeyThatTypesNothingClosesTheOverlay)
{
    open();
    type(33, 0, "");
    EXPECT_TRUE(isOverlayGone());
    EXPECT_TRUE(isWindowWhereItWas());
}

TEST_F(OverlayKeysTest, AShortcutOutOfRangeIsAFatalErrorAtTheNextKey)
{
    open();
    store("nextLayoutKeyCode", 70000);
    desktop.press(keyCodes::a);
    EXPECT_EQ(fatalErrorOf([&] { desktop.drain(); }),
              "Setting \"nextLayoutKeyCode\" holds 70000, which is out of range");
    desktop.drain();
}

TEST_F(OverlayKeysTest, AHeldArrowStepsOnWithEachRepeat)
{
    open();
    desktop.hold(keyCodes::downArrow);
    desktop.drain();
    desktop.repeatKey(keyCodes::downArrow);
    desktop.drain();
    desktop.repeatKey(keyCodes::downArrow);
    desktop.drain();
    desktop.releaseKey(keyCodes::downArrow);
    desktop.drain();
    EXPECT_EQ(layoutIndex(), 3);
    EXPECT_TRUE(editor.receivedKeys().empty());
}

TEST_F(OverlayKeysTest, SteppingWithoutTapGivesTheFocusBackAndTakesItAgain)
{
    launch();
    blocker().stop();
    pressOverlayHotKey();
    forget();
    type(keyCodes::downArrow);
    EXPECT_EQ(desktop.journal.entries(
                  {"OverlayWindow.close", "OverlayWindow.orderFront", "OverlayPanel.", "Workspace.activate"}),
              (Lines{"OverlayWindow.close(1)", "OverlayWindow.close(2)", "OverlayPanel.orderOut(3)",
                     "Workspace.activate(500)", "OverlayWindow.orderFrontRegardless(4)",
                     "OverlayWindow.orderFrontRegardless(5)", "OverlayPanel.orderFrontRegardless(3)",
                     "Workspace.activateSelf()", "OverlayPanel.makeKey(3)"}));
    EXPECT_TRUE(isOverlayUp());
    type(keyCodes::escape);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
}

} // namespace
} // namespace quorvel
