// What keys and clicks do while the focus switcher is up.

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "app/MainController.h"
#include "tests/unit/app/FocusSwitcherFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

class FocusSwitcherKeysTest : public FocusSwitcherFixture {
protected:
    ModeState& modes() { return controller().modeState(); }
};

TEST_F(FocusSwitcherKeysTest, ALetterActivatesItsApplicationAndRaisesNothing)
{
    auto& mail = desktop.launch("Mail");
    desktop.openWindow(mail, "Inbox", {500, 200, 600, 400});
    open(); // A: the editor's window, for the launch ends with the editor in front; B: the mail
    type(keys::b);
    EXPECT_THAT(activations(), ElementsAre("Workspace.activate(501)"));
    EXPECT_EQ(desktop.journal.count("Accessibility.performAction"), 0U);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), mail.process());
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherKeysTest, ACapitalLetterChoosesTheSameWindow)
{
    open();
    type(keyCodes::a, eventFlags::shift, "A");
    EXPECT_THAT(activations(), ElementsAre("Workspace.activate(500)"));
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherKeysTest, TheExactWindowIsRaisedBeforeItsApplicationIsActivated)
{
    store("fsFocusExactWindow", PropertyValue{true});
    desktop.openWindow(editor, "Front", {0, 0, 400, 300});
    open();
    type(keys::b);
    EXPECT_EQ(desktop.journal.entries({"Accessibility.performAction", "Workspace.activate("}),
              (Lines{"Accessibility.performAction(window 1, AXRaise)", "Workspace.activate(500)"}));
    EXPECT_EQ(desktop.windowServer.onScreenWindows().front(), &window);
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherKeysTest, WithoutASettingThePlatformSaysWhetherTheExactWindowIsRaised)
{
    auto exact = desktop.platform();
    exact.focusesExactWindow = true;
    app.emplace(exact, guideAddress);
    app->appDelegate().applicationDidFinishLaunching();
    desktop.drain();
    pressSwitcherHotKey();
    forget();
    type(keyCodes::a);
    EXPECT_EQ(desktop.journal.count("Accessibility.performAction(window 1, AXRaise)"), 1U);

    store("fsFocusExactWindow", PropertyValue{false});
    pressSwitcherHotKey();
    forget();
    type(keyCodes::a);
    EXPECT_EQ(desktop.journal.count("Accessibility.performAction"), 0U);
    app.reset(); // before the platform that it holds on to
}

TEST_F(FocusSwitcherKeysTest, OfWindowsOnOneAnotherTheVeryOneIsRaised)
{
    store("fsFocusExactWindow", PropertyValue{true});
    auto& copy = desktop.openWindow(editor, "Copy", {100, 100, 800, 600});
    open();
    type(keys::b);
    EXPECT_EQ(desktop.windowServer.onScreenWindows().front(), &window);
    pressSwitcherHotKey();
    type(keys::b);
    EXPECT_EQ(desktop.windowServer.onScreenWindows().front(), &copy);
}

TEST_F(FocusSwitcherKeysTest, AWindowThatMovedMeanwhileIsRaisedNevertheless)
{
    store("fsFocusExactWindow", PropertyValue{true});
    desktop.openWindow(editor, "Front", {0, 0, 400, 300});
    open();
    desktop.moveWindow(window, {300, 300, 800, 600});
    type(keys::b);
    EXPECT_EQ(desktop.windowServer.onScreenWindows().front(), &window);
}

TEST_F(FocusSwitcherKeysTest, AWindowThatClosedMeanwhileLeavesItsApplication)
{
    store("fsFocusExactWindow", PropertyValue{true});
    auto& mail = desktop.launch("Mail");
    desktop.openWindow(mail, "Inbox", {500, 200, 600, 400});
    auto& letter = desktop.openWindow(mail, "Letter", {0, 0, 400, 300});
    open();
    desktop.closeWindow(letter);
    type(keys::b);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), mail.process());
    EXPECT_THAT(desktop.log.lines(), IsEmpty());
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherKeysTest, AMinimizedWindowIsRestoredRaisedAndActivated)
{
    auto& mail = desktop.launch("Mail");
    desktop.openWindow(mail, "Inbox", {500, 200, 600, 400});
    auto& draft = desktop.openWindow(mail, "Draft", {0, 0, 400, 300});
    desktop.minimize(draft);
    open();
    type(keys::c);
    EXPECT_EQ(desktop.journal.entries({"Accessibility.", "Workspace.activate(", "EventMonitors"}),
              (Lines{"Accessibility.setAttribute(window 3, AXMinimized, false)",
                     "Accessibility.performAction(window 3, AXRaise)", "Workspace.activate(501)",
                     "EventMonitors.remove(1)"}));
    EXPECT_FALSE(draft.isMinimized());
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherKeysTest, AnyOtherKeyDismissesAndActivatesNothing)
{
    for (const auto& [keyCode, characters] :
         {std::pair{keys::q, "q"}, std::pair{44, "?"}, std::pair{23, "5"}, std::pair{keyCodes::upArrow, ""}}) {
        open();
        type(keyCode, 0, characters);
        EXPECT_THAT(activations(), IsEmpty());
        EXPECT_TRUE(isSwitcherGone());
        app.reset();
    }
}

TEST_F(FocusSwitcherKeysTest, EscapeDismissesWithAnyModifiers)
{
    for (const auto flags : {std::uint64_t{0}, eventFlags::shift, eventFlags::command | eventFlags::option}) {
        open();
        type(keyCodes::escape, flags);
        EXPECT_THAT(activations(), IsEmpty());
        EXPECT_TRUE(isSwitcherGone());
        app.reset();
    }
}

TEST_F(FocusSwitcherKeysTest, EscapeGoesBeforeATogglePutOnIt)
{
    store("fsToggleMinimizedKeyCode", keyCodes::escape);
    desktop.minimize(desktop.openWindow(editor, "Draft", {0, 0, 400, 300}));
    open();
    type(keyCodes::escape);
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherKeysTest, ATogglePutOnALettersKeyGoesBeforeTheLetter)
{
    store("fsToggleMinimizedKeyCode", keyCodes::a);
    desktop.minimize(desktop.openWindow(editor, "Draft", {0, 0, 400, 300}));
    open();
    EXPECT_THAT(shownLetters(), ElementsAre("B"));
    type(keyCodes::a, 0, "b"); // whatever it types by now
    EXPECT_TRUE(minimizedPanel()->isVisible);
    EXPECT_TRUE(isSwitcherUp());
}

TEST_F(FocusSwitcherKeysTest, TheKeyOfTheMinimizedWindowsShowsAndHidesTheirList)
{
    desktop.minimize(desktop.openWindow(editor, "Draft", {0, 0, 400, 300}));
    open();
    ASSERT_FALSE(minimizedPanel()->isVisible);
    ASSERT_FALSE(allWindowsPanel()->isVisible);
    type(keys::m);
    EXPECT_TRUE(minimizedPanel()->isVisible);
    EXPECT_TRUE(modes().isMinimizedPanelVisible);
    EXPECT_FALSE(allWindowsPanel()->isVisible);
    type(keys::m);
    EXPECT_FALSE(minimizedPanel()->isVisible);
    EXPECT_FALSE(modes().isMinimizedPanelVisible);
    EXPECT_THAT(shownLetters(), ElementsAre("A"));
    EXPECT_TRUE(isSwitcherUp());
}

TEST_F(FocusSwitcherKeysTest, ModifiersDoNotMatter)
{
    desktop.minimize(desktop.openWindow(editor, "Draft", {0, 0, 400, 300}));
    open();
    type(keys::m, eventFlags::command);
    EXPECT_TRUE(minimizedPanel()->isVisible);
}

TEST_F(FocusSwitcherKeysTest, WithoutMinimizedWindowsTheirKeyDoesNothing)
{
    open();
    type(keys::m);
    EXPECT_FALSE(modes().isMinimizedPanelVisible);
    EXPECT_TRUE(isSwitcherUp());
    EXPECT_EQ(desktop.journal.count("OverlayWindow"), 0U);
    EXPECT_THAT(desktop.log.lines(), IsEmpty());
}

TEST_F(FocusSwitcherKeysTest, TabShowsAndHidesTheListOfAllWindows)
{
    open();
    type(keyCodes::tab);
    EXPECT_TRUE(allWindowsPanel()->isVisible);
    EXPECT_TRUE(modes().isAllWindowsPanelVisible);
    type(keyCodes::tab);
    EXPECT_FALSE(allWindowsPanel()->isVisible);
    EXPECT_FALSE(modes().isAllWindowsPanelVisible);
    EXPECT_TRUE(isSwitcherUp());
}

TEST_F(FocusSwitcherKeysTest, TheFirstTabHidesTheListOfTheListDisplay)
{
    store("fsDefaultDisplayMode", "list");
    open();
    type(keyCodes::tab);
    EXPECT_FALSE(allWindowsPanel()->isVisible);
    EXPECT_TRUE(isSwitcherUp());
}

TEST_F(FocusSwitcherKeysTest, EveryRefreshPlacesTheListOfMinimizedWindowsAnew)
{
    desktop.minimize(desktop.openWindow(editor, "Draft", {0, 0, 400, 300}));
    open();
    type(keys::m);
    EXPECT_EQ(desktop.log.lines(), (Lines{"🔧 Minimized panel positioning: visible windows=1, minimized=1"}));
    const auto alone = minimizedPanel()->frame;
    type(keyCodes::tab);
    const auto below = minimizedPanel()->frame;
    EXPECT_LT(below.maxY(), allWindowsPanel()->frame.minY());
    EXPECT_EQ(desktop.log.lines().size(), 2U);
    type(keyCodes::tab);
    EXPECT_EQ(minimizedPanel()->frame, alone);
}

TEST_F(FocusSwitcherKeysTest, AClickAnywhereElseDismisses)
{
    open();
    desktop.clickMouse({1200, 800});
    desktop.drain();
    EXPECT_TRUE(isSwitcherGone());
    EXPECT_THAT(activations(), IsEmpty());
}

TEST_F(FocusSwitcherKeysTest, ASecondPressOfTheHotKeyOnlyCloses)
{
    open();
    pressSwitcherHotKey();
    EXPECT_TRUE(isSwitcherGone());
    EXPECT_EQ(desktop.journal.count("WindowList"), 0U);
    pressSwitcherHotKey();
    EXPECT_TRUE(isSwitcherUp());
}

TEST_F(FocusSwitcherKeysTest, TheOverlayHotKeyClosesTheSwitcher)
{
    open();
    pressOverlayHotKey();
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherKeysTest, TheHotKeyReachesTheSwitcherOnlyThroughTheOverlaysClosing)
{
    launch();
    pressOverlayHotKey();
    pressSwitcherHotKey();
    EXPECT_TRUE(isSwitcherGone());
    pressSwitcherHotKey();
    EXPECT_TRUE(isSwitcherUp());
}

TEST_F(FocusSwitcherKeysTest, ALateKeyAfterTheDismissalDoesNothing)
{
    open();
    desktop.press(keyCodes::escape);
    desktop.press(keyCodes::a);
    desktop.drain();
    EXPECT_THAT(activations(), IsEmpty());
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherKeysTest, WithoutAMouseMonitorTheKeysWorkAllTheSame)
{
    desktop.eventMonitors.refuseMouseMonitors();
    auto& mail = desktop.launch("Mail");
    desktop.openWindow(mail, "Inbox", {500, 200, 600, 400});
    open(); // A: the editor, B: the mail
    type(keyCodes::tab);
    EXPECT_TRUE(allWindowsPanel()->isVisible);
    type(keys::b);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), mail.process());
    EXPECT_TRUE(isSwitcherGone());
    pressSwitcherHotKey();
    type(keyCodes::escape);
    EXPECT_TRUE(isSwitcherGone());
}

// Where there is no event tap, a panel takes the keyboard and this program becomes the active one.
class FocusSwitcherFallbackTest : public FocusSwitcherKeysTest {
protected:
    FocusSwitcherFallbackTest() { desktop.eventTaps.refuseTaps(); }
};

TEST_F(FocusSwitcherFallbackTest, TheChosenApplicationEndsUpActive)
{
    auto& mail = desktop.launch("Mail");
    desktop.openWindow(mail, "Inbox", {500, 200, 600, 400});
    open();
    ASSERT_TRUE(isKeyCapturePanelShown());
    type(keys::b);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), mail.process());
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherFallbackTest, ARestoredWindowsApplicationEndsUpActive)
{
    auto& mail = desktop.launch("Mail");
    desktop.minimize(desktop.openWindow(mail, "Inbox", {500, 200, 600, 400}));
    open();
    type(keys::b);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), mail.process());
}

TEST_F(FocusSwitcherFallbackTest, EscapeGivesTheFocusBack)
{
    auto& mail = desktop.launch("Mail");
    desktop.openWindow(mail, "Inbox", {500, 200, 600, 400});
    open();
    type(keyCodes::escape);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
    EXPECT_TRUE(isSwitcherGone());
}

} // namespace
} // namespace quorvel
