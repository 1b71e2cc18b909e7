// Which windows get which letters, and what the start of the focus switcher says and shows.

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "app/MainController.h"
#include "tests/unit/app/FocusSwitcherFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Lines = std::vector<std::string>;

class FocusSwitcherLabelsTest : public FocusSwitcherFixture {
protected:
    SimulatedWindow& listedAs(const WindowListEntry& entry)
    {
        auto& other = desktop.openWindow(editor, "Other", entry.bounds.value_or(AxRect()));
        other.listAs(entry);
        return other;
    }
};

TEST_F(FocusSwitcherLabelsTest, OnlyOrdinaryWindowsOfOthersAboveTheSmallestSizeAreLabelled)
{
    desktop.closeWindow(window);
    desktop.openWindow(editor, "Narrow", {0, 0, 50, 400});
    desktop.openWindow(editor, "Low", {0, 0, 400, 50});
    desktop.openWindow(editor, "Just large enough", {0, 0, 51, 51});
    desktop.openWindow(editor, "Floating", {0, 0, 400, 300}).layer = 3;
    listedAs({SimulatedWindowServer::ownProcess, 0, AxRect{0, 0, 400, 300}});
    listedAs({std::nullopt, 0, AxRect{0, 0, 400, 300}});
    listedAs({editor.process(), std::nullopt, AxRect{0, 0, 400, 300}});
    listedAs({editor.process(), 0, std::nullopt});
    listedAs({editor.process(), 0, AxRect{0, 0, 0, 300}}); // a bounds record without width
    launch();
    pressSwitcherHotKey();
    EXPECT_THAT(shownLetters(), ElementsAre("A"));
    EXPECT_THAT(linesBeginningWith("🔍"), ElementsAre("🔍 Focus Switcher: Label A → Editor - Just large enough"));
    EXPECT_TRUE(isSwitcherUp());
}

TEST_F(FocusSwitcherLabelsTest, WindowsAreLabelledFrontToBack)
{
    desktop.openWindow(editor, "Second", {0, 0, 400, 300});
    auto& mail = desktop.launch("Mail");
    desktop.openWindow(mail, "Inbox", {500, 200, 600, 400});
    launch();
    desktop.activate(mail);
    pressSwitcherHotKey();
    EXPECT_THAT(linesBeginningWith("🔍"),
                ElementsAre("🔍 Focus Switcher: Label A → Mail - Inbox", "🔍 Focus Switcher: Label B → Editor - Second",
                            "🔍 Focus Switcher: Label C → Editor - Notes"));
    EXPECT_THAT(shownLetters(), ElementsAre("A", "B", "C"));
}

TEST_F(FocusSwitcherLabelsTest, TheLabelLiesOnItsWindow)
{
    desktop.moveWindow(window, {100, 50, 800, 600});
    launch();
    pressSwitcherHotKey();
    const auto border = desktop.overlayWindows.all().front();
    EXPECT_EQ(border->frame, (ScreenRect{100, 250, 800, 600}));
    EXPECT_EQ(textsOf(*desktop.overlayWindows.all()[1]), (Lines{"A", "Editor", "Notes"}));
}

TEST_F(FocusSwitcherLabelsTest, AnApplicationWithoutNameIsUnknown)
{
    editor.hideFromWorkspace();
    auto& nameless = desktop.launch({900, std::nullopt, ActivationPolicy::regular});
    desktop.openWindow(nameless, "Behind", {0, 0, 400, 300});
    launch();
    pressSwitcherHotKey();
    EXPECT_THAT(linesBeginningWith("🔍"), ElementsAre("🔍 Focus Switcher: Label A → Unknown - Notes",
                                                      "🔍 Focus Switcher: Label B → Unknown - Behind"));
}

TEST_F(FocusSwitcherLabelsTest, ATitleIsThatOfTheWindowWithinTwoPoints)
{
    window.listAs({editor.process(), 0, AxRect{101.9, 98.1, 801.9, 598.1}});
    launch();
    pressSwitcherHotKey();
    EXPECT_THAT(linesBeginningWith("🔍"), ElementsAre("🔍 Focus Switcher: Label A → Editor - Notes"));
}

TEST_F(FocusSwitcherLabelsTest, AWindowTwoPointsOffIsAnotherOne)
{
    for (const auto& bounds : {AxRect{102, 100, 800, 600}, AxRect{100, 98, 800, 600}, AxRect{100, 100, 802, 600},
                               AxRect{100, 100, 800, 598}}) {
        window.listAs({editor.process(), 0, bounds});
        launch();
        pressSwitcherHotKey();
        EXPECT_THAT(linesBeginningWith("🔍"), ElementsAre("🔍 Focus Switcher: Label A → Editor - "));
        app.reset();
    }
}

TEST_F(FocusSwitcherLabelsTest, AttributesThatCannotBeReadLeaveTheTitleEmptyWithoutAWord)
{
    const auto titleWith = [&](const auto& misbehave) {
        misbehave();
        launch();
        pressSwitcherHotKey();
        const auto lines = desktop.log.lines();
        editor.behave();
        window.behave();
        app.reset();
        return lines;
    };
    const Lines untitled{"🔍 Focus Switcher: Label A → Editor - "};
    EXPECT_EQ(titleWith([&] { editor.failReading(axNames::windows, axErrors::cannotComplete); }), untitled);
    EXPECT_EQ(titleWith([&] { editor.answer(axNames::windows, std::string("none")); }), untitled);
    EXPECT_EQ(titleWith([&] { window.failReading(axNames::position, axErrors::failure); }), untitled);
    EXPECT_EQ(titleWith([&] { window.answer(axNames::size, AxPoint{800, 600}); }), untitled);
    EXPECT_EQ(titleWith([&] { window.failReading(axNames::title, axErrors::noValue); }), untitled);
    EXPECT_EQ(titleWith([&] { window.answer(axNames::title, true); }), untitled);
}

TEST_F(FocusSwitcherLabelsTest, WindowsOnOneAnotherHaveTheirOwnTitles)
{
    desktop.openWindow(editor, "Copy of Notes", {100, 100, 800, 600});
    launch();
    pressSwitcherHotKey();
    EXPECT_THAT(linesBeginningWith("🔍"), ElementsAre("🔍 Focus Switcher: Label A → Editor - Copy of Notes",
                                                      "🔍 Focus Switcher: Label B → Editor - Notes"));
}

TEST_F(FocusSwitcherLabelsTest, AnApplicationThatDoesNotAnswerIsAskedOnce)
{
    openWindows(editor, 5);
    launch();
    editor.hang();
    pressSwitcherHotKey();
    EXPECT_EQ(desktop.journal.count("Accessibility.copyAttribute("), 1U);
    EXPECT_THAT(shownLetters(), SizeIs(6));
    EXPECT_TRUE(isSwitcherUp());
}

TEST_F(FocusSwitcherLabelsTest, TheKeyOfTheMinimizedWindowsIsNoLabel)
{
    openWindows(editor, 25);
    open();
    const auto letters = shownLetters();
    EXPECT_THAT(letters, SizeIs(25));
    EXPECT_EQ(letters.back(), "Z");
    EXPECT_THAT(letters, testing::Not(testing::Contains("M")));
}

TEST_F(FocusSwitcherLabelsTest, AToggleOnADigitLeavesAllLetters)
{
    store("fsToggleMinimizedKeyCode", keys::digit1);
    openWindows(editor, 29);
    open();
    EXPECT_THAT(shownLetters(), SizeIs(26));
    EXPECT_THAT(shownLetters(), testing::Contains("M"));
}

TEST_F(FocusSwitcherLabelsTest, TwoTogglesOnOneLetterTakeOneLetter)
{
    store("fsToggleAllWindowsKeyCode", keys::m);
    openWindows(editor, 29);
    open();
    EXPECT_THAT(shownLetters(), SizeIs(25));
}

TEST_F(FocusSwitcherLabelsTest, TheLettersOfTheTogglesComeFromTheSystemsKeyboardLayout)
{
    store("keyboardLayoutProfile", "Dvorak");
    desktop.keyboardLayout.setKey(keys::m, {"j", "J"});
    store("fsToggleAllWindowsKeyCode", keys::q);
    openWindows(editor, 29);
    open();
    const auto letters = shownLetters();
    EXPECT_THAT(letters, SizeIs(24));
    EXPECT_THAT(letters, testing::Not(testing::Contains("J")));
    EXPECT_THAT(letters, testing::Not(testing::Contains("Q")));
    EXPECT_THAT(letters, testing::Contains("M"));
}

TEST_F(FocusSwitcherLabelsTest, MinimizedWindowsContinueTheLettersOfTheVisibleOnes)
{
    auto& minimized = desktop.openWindow(editor, "Draft", {0, 0, 400, 300});
    desktop.minimize(minimized);
    open();
    EXPECT_THAT(shownLetters(), ElementsAre("A"));
    EXPECT_EQ(textsOf(*minimizedPanel()), (Lines{"Minimized Windows", "B", "Editor", "Draft"}));
}

TEST_F(FocusSwitcherLabelsTest, MinimizedWindowsGetOnlyTheLettersThatAreLeft)
{
    openWindows(editor, 23);
    for (auto* each : openWindows(desktop.launch("Mail"), 3)) {
        desktop.minimize(*each);
    }
    open();
    EXPECT_THAT(shownLetters(), SizeIs(24));
    EXPECT_EQ(textsOf(*minimizedPanel()), (Lines{"Minimized Windows", "Z", "Mail", "Window 3"}));
}

TEST_F(FocusSwitcherLabelsTest, WithoutLettersLeftThereIsNoListOfMinimizedWindows)
{
    openWindows(editor, 30);
    desktop.minimize(*openWindows(desktop.launch("Mail"), 1).front());
    open();
    EXPECT_EQ(minimizedPanel(), nullptr);
}

TEST_F(FocusSwitcherLabelsTest, OnlyRegularApplicationsHaveMinimizedWindows)
{
    auto& agent = desktop.launch({900, "Agent", ActivationPolicy::accessory});
    desktop.minimize(desktop.openWindow(agent, "Hidden", {0, 0, 400, 300}));
    open();
    EXPECT_EQ(minimizedPanel(), nullptr);
    EXPECT_THAT(shownLetters(), SizeIs(1));
}

TEST_F(FocusSwitcherLabelsTest, AWindowWhoseStateCannotBeReadIsNotMinimized)
{
    auto& draft = desktop.openWindow(editor, "Draft", {0, 0, 400, 300});
    desktop.minimize(draft);
    draft.answer(axNames::minimized, std::string("yes"));
    open();
    EXPECT_EQ(minimizedPanel(), nullptr);
}

TEST_F(FocusSwitcherLabelsTest, WithoutAnyWindowNothingHappens)
{
    desktop.closeWindow(window);
    launch();
    pressSwitcherHotKey();
    EXPECT_EQ(desktop.log.lines(), (Lines{"No windows found for focus switcher"}));
    EXPECT_TRUE(isSwitcherGone());
    EXPECT_EQ(desktop.journal.count("EventMonitors"), 0U);
}

TEST_F(FocusSwitcherLabelsTest, MinimizedWindowsAloneAreEnough)
{
    desktop.minimize(window);
    launch();
    pressSwitcherHotKey();
    EXPECT_EQ(shownWindowCount(), 0U);
    EXPECT_TRUE(isSwitcherUp());
    type(keyCodes::a);
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherLabelsTest, TheListTakesThePlaceOfTheLabels)
{
    store("fsDefaultDisplayMode", "list");
    launch();
    pressSwitcherHotKey();
    EXPECT_THAT(shownLetters(), IsEmpty());
    EXPECT_EQ(shownWindowCount(), 1U);
    EXPECT_TRUE(allWindowsPanel()->isVisible);
    EXPECT_TRUE(controller().modeState().isAllWindowsPanelVisible);
    EXPECT_EQ(textsOf(*allWindowsPanel()), (Lines{"All Windows", "A", "Editor", "Notes"}));
    EXPECT_THAT(linesBeginningWith("🔍"), IsEmpty());
    EXPECT_TRUE(isSwitcherUp());
    forget();
    type(keyCodes::a);
    EXPECT_THAT(activations(), ElementsAre("Workspace.activate(500)"));
    EXPECT_TRUE(isSwitcherGone());
}

TEST_F(FocusSwitcherLabelsTest, AListOfNothingVisibleShowsWhatIsMinimized)
{
    store("fsDefaultDisplayMode", "list");
    desktop.minimize(window);
    open();
    EXPECT_EQ(textsOf(*allWindowsPanel()), (Lines{"All Windows", "A", "Editor", "Notes"}));
}

TEST_F(FocusSwitcherLabelsTest, AnyOtherDisplayModeMeansLabels)
{
    store("fsDefaultDisplayMode", "List");
    open();
    EXPECT_THAT(shownLetters(), ElementsAre("A"));
    EXPECT_FALSE(allWindowsPanel()->isVisible);
}

TEST_F(FocusSwitcherLabelsTest, TheStartGoesThroughItsStepsInOrder)
{
    desktop.minimize(desktop.openWindow(editor, "Draft", {0, 0, 400, 300}));
    launch();
    pressSwitcherHotKey();
    EXPECT_EQ(desktop.journal.entries({"WindowList", "Workspace.runningApplications", "KeyboardLayout",
                                       "OverlayWindow.orderFront", "EventMonitors"}),
              (Lines{"WindowList.onScreenWindows()", "Workspace.runningApplications()", "KeyboardLayout.characters(46)",
                     "KeyboardLayout.characters(48)", "OverlayWindow.orderFrontRegardless(1)",
                     "OverlayWindow.orderFrontRegardless(2)", "EventMonitors.addGlobalMouseDownMonitor(1)"}));
    EXPECT_THAT(desktop.journal.entries({"EventTap.setKeysOfInterest"}), SizeIs(1));
    EXPECT_EQ(desktop.log.lines(), (Lines{"🔍 Focus Switcher: Label A → Editor - Notes",
                                          "🔧 Minimized panel positioning: visible windows=1, minimized=1"}));
}

TEST_F(FocusSwitcherLabelsTest, TheCountsOfTheWindowsAreLogged)
{
    openWindows(editor, 3);
    for (auto* each : openWindows(desktop.launch("Mail"), 2)) {
        desktop.minimize(*each);
    }
    launch();
    pressSwitcherHotKey();
    EXPECT_THAT(linesBeginningWith("🔧"),
                ElementsAre("🔧 Minimized panel positioning: visible windows=4, minimized=2"));
}

} // namespace
} // namespace quorvel
