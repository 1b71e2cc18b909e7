// Registering the global hot keys, and giving them up while the preferences are open.

#include <string>
#include <variant>
#include <vector>

#include "app/MainController.h"
#include "platform/FormModel.h"
#include "platform/simulated/SimulatedPreferencesWindow.h"
#include "settings/Settings.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/app/AppFixture.h"

namespace quorvel {
namespace {

using Combination = SimulatedHotKeys::Combination;
using Lines = std::vector<std::string>;

class MainControllerShortcutsTest : public AppFixture {
protected:
    std::vector<Combination> registered() const { return desktop.hotKeys.registered(); }

    void post(std::string_view name)
    {
        desktop.notificationCenter.post(name, noNotificationObject);
        desktop.drain();
    }

    void closePreferences()
    {
        desktop.preferencesUi.closeWindows();
        desktop.drain();
    }

    std::vector<std::string> hotKeyCalls() const { return desktop.journal.entries({"HotKeys."}); }
};

TEST_F(MainControllerShortcutsTest, ConstructionRegistersTheThreeMainHotKeys)
{
    construct();
    EXPECT_EQ(
        desktop.log.lines(),
        (Lines{"Registering shortcuts: keyCode=31, modifiers=768", "Registered hotkey id=1 keyCode=31 modifiers=768",
               "Registered hotkey id=2 keyCode=15 modifiers=2304", "Registered hotkey id=3 keyCode=3 modifiers=768"}));
    EXPECT_EQ(state(), StateManager::States::normal);
}

TEST_F(MainControllerShortcutsTest, NavigationHotKeysFollowInTheirOrder)
{
    storeShortcut("previousScreen", 123, 2816);
    storeShortcut("nextScreen", 124, 2816);
    storeShortcut("previousLayout", 35, 256);
    storeShortcut("nextLayout", 45, 256);
    construct();
    EXPECT_EQ(registered(), (std::vector<Combination>{
                                {31, 768}, {15, 2304}, {3, 768}, {45, 256}, {35, 256}, {124, 2816}, {123, 2816}}));
    EXPECT_EQ(desktop.hotKeys.idOf({123, 2816})->id, 7U);
}

TEST_F(MainControllerShortcutsTest, ALoneNavigationHotKeyHasTheNextId)
{
    storeShortcut("nextScreen", 124, 2816);
    construct();
    EXPECT_EQ(desktop.hotKeys.idOf({124, 2816})->id, 4U);
    EXPECT_EQ(registered().size(), 4U);
}

TEST_F(MainControllerShortcutsTest, NavigationKeysWithoutModifiersOrKeyAreNotGlobal)
{
    storeShortcut("nextLayout", 125, 0);
    storeShortcut("previousLayout", 0, 256);
    construct();
    EXPECT_EQ(registered().size(), 3U);
}

TEST_F(MainControllerShortcutsTest, StoredMainShortcutsReplaceTheDefaults)
{
    storeShortcut("activateOverlay", 40, 4096);
    store("focusSwitcherKeyCode", 9);
    construct();
    EXPECT_EQ(registered(), (std::vector<Combination>{{40, 4096}, {15, 2304}, {9, 768}}));
}

TEST_F(MainControllerShortcutsTest, ModifiersThatAreATextCountAsAbsent)
{
    store("activateOverlayModifiers", "256");
    construct();
    EXPECT_EQ(registered().at(0), (Combination{31, 768}));
}

TEST_F(MainControllerShortcutsTest, AMainHotKeyMayHaveNoModifiers)
{
    store("activateOverlayModifiers", std::int64_t{0});
    construct();
    EXPECT_EQ(desktop.log.lines().at(0), "Registering shortcuts: keyCode=31, modifiers=0");
    EXPECT_EQ(registered().at(0), (Combination{31, 0}));
}

TEST_F(MainControllerShortcutsTest, AClearedMainShortcutTakesNoKey)
{
    storeShortcut("activateOverlay", 0, 0);
    storeShortcut("focusSwitcher", 0, 768);
    construct();
    EXPECT_EQ(registered(), (std::vector<Combination>{{15, 2304}}));
    EXPECT_EQ(desktop.log.lines(), (Lines{"Registering shortcuts: keyCode=0, modifiers=0",
                                          "Registered hotkey id=1 keyCode=15 modifiers=2304"}));
}

TEST_F(MainControllerShortcutsTest, AKeyCodeThatIsNoNumberTakesNoKey)
{
    store("activateOverlayKeyCode", PropertyValue{PropertyArray{}});
    construct();
    EXPECT_EQ(registered(), (std::vector<Combination>{{15, 2304}, {3, 768}}));
}

TEST_F(MainControllerShortcutsTest, ANegativeKeyCodeIsAFatalError)
{
    store("moveResizeKeyCode", -1);
    EXPECT_EQ(fatalErrorOf([&] { construct(); }), "Setting \"moveResizeKeyCode\" holds -1, which is out of range");
}

TEST_F(MainControllerShortcutsTest, AKeyCodeBeyond32BitsIsAFatalError)
{
    store("focusSwitcherKeyCode", 4294967296);
    EXPECT_EQ(fatalErrorOf([&] { construct(); }),
              "Setting \"focusSwitcherKeyCode\" holds 4294967296, which is out of range");
}

TEST_F(MainControllerShortcutsTest, NavigationModifiersOutOfRangeAreAFatalError)
{
    storeShortcut("nextLayout", 45, -256);
    EXPECT_EQ(fatalErrorOf([&] { construct(); }), "Setting \"nextLayoutModifiers\" holds -256, which is out of range");
}

TEST_F(MainControllerShortcutsTest, AHotKeyHeldElsewhereLeavesTheOthers)
{
    desktop.hotKeys.holdElsewhere({31, 768});
    construct();
    EXPECT_EQ(
        desktop.log.lines(),
        (Lines{"Registering shortcuts: keyCode=31, modifiers=768", "Failed to register hotkey with status: -9878",
               "Registered hotkey id=1 keyCode=15 modifiers=2304", "Registered hotkey id=2 keyCode=3 modifiers=768"}));
}

TEST_F(MainControllerShortcutsTest, AChangedShortcutCountsAtOnce)
{
    launch();
    store("activateOverlayKeyCode", 40);
    forget();
    post("ShortcutDidChangeNotification");
    EXPECT_EQ(hotKeyCalls(), (Lines{"HotKeys.unregisterHotKey(1)", "HotKeys.unregisterHotKey(2)",
                                    "HotKeys.unregisterHotKey(3)", "HotKeys.registerHotKey(40, 768, 1)",
                                    "HotKeys.registerHotKey(15, 2304, 2)", "HotKeys.registerHotKey(3, 768, 3)"}));
    pressOverlayHotKey();
    EXPECT_EQ(state(), StateManager::States::normal);
    type(40, commandShift);
    EXPECT_EQ(state(), StateManager::States::overlayOn);
}

TEST_F(MainControllerShortcutsTest, TheNewShortcutIsLoggedBeforeTheOldOnesGo)
{
    launch();
    store("activateOverlayKeyCode", 40);
    forget();
    post("ShortcutDidChangeNotification");
    EXPECT_EQ(desktop.journal.entries({"Log.line", "HotKeys."}).at(0),
              "Log.line(Registering shortcuts: keyCode=40, modifiers=768)");
}

TEST_F(MainControllerShortcutsTest, ChangesOfOtherSettingsRegisterNothing)
{
    launch();
    Settings settings(desktop.userDefaults);
    settings.setString("textColor", "#FF0000");
    settings.setReal("wsTextSize", 40.0);
    settings.setInteger("mrCornerRadius", 4);
    settings.setBoolean("mrSnapEnabled", false);
    desktop.drain();
    EXPECT_TRUE(hotKeyCalls().empty());
    EXPECT_EQ(desktop.journal.count("NotificationCenter.post"), 0U);
    EXPECT_TRUE(desktop.log.lines().empty());
}

TEST_F(MainControllerShortcutsTest, WhilePreferencesAreOpenAChangeRegistersNothing)
{
    launch();
    controller().openPreferences();
    forget();
    post("ShortcutDidChangeNotification");
    EXPECT_EQ(desktop.log.lines(), (Lines{"Shortcuts paused; not registering."}));
    EXPECT_TRUE(hotKeyCalls().empty());
}

TEST_F(MainControllerShortcutsTest, OpeningPreferencesGivesUpTheHotKeysBeforeTheWindowShows)
{
    launch();
    controller().openPreferences();
    EXPECT_EQ(desktop.journal.entries({"HotKeys.", "Preferences", "NotificationCenter.observe"}),
              (Lines{"HotKeys.unregisterHotKey(1)", "HotKeys.unregisterHotKey(2)", "HotKeys.unregisterHotKey(3)",
                     "PreferencesUi.createWindow()", "PreferencesWindow.show()",
                     "NotificationCenter.observe(preferencesWillCloseNotification)",
                     "NotificationCenter.observe(NSWindowWillCloseNotification)"}));
}

TEST_F(MainControllerShortcutsTest, ClosingPreferencesResumesTwice)
{
    launch();
    controller().openPreferences();
    forget();
    closePreferences();
    EXPECT_EQ(desktop.journal.count("HotKeys.registerHotKey"), 6U);
    EXPECT_EQ(linesBeginningWith("Preferences").size(), 2U);
    EXPECT_EQ(linesBeginningWith("Preferences close notification received; resuming shortcuts").size(), 1U);
    EXPECT_EQ(linesBeginningWith("Preferences window will close; resuming shortcuts").size(), 1U);
    EXPECT_EQ(registered().size(), 3U);
    EXPECT_EQ(lastLine(), "Registered hotkey id=3 keyCode=3 modifiers=768");
}

TEST_F(MainControllerShortcutsTest, AShortcutRecordedInThePreferencesIsRegisteredOnceTheyAreClosed)
{
    launch();
    controller().openPreferences();
    auto& model = desktop.preferencesUi.preferencesWindows().at(0)->model;
    model.selectTab(1);
    const auto shortcuts = std::get<FormModel*>(model.content().tabs.at(1).pane);
    shortcuts->press("activateOverlayKeyCode.record");
    desktop.press(40, eventFlags::command);
    desktop.drain();
    EXPECT_TRUE(registered().empty());
    EXPECT_EQ(desktop.userDefaults.contents().at("activateOverlayKeyCode"), PropertyValue{std::int64_t{40}});

    closePreferences();
    EXPECT_EQ(registered().at(0), (SimulatedHotKeys::Combination{40, hotKeyModifiers::command}));
}

TEST_F(MainControllerShortcutsTest, EachOpeningAddsAnotherPairOfObservers)
{
    launch();
    controller().openPreferences();
    controller().openPreferences();
    EXPECT_EQ(desktop.preferencesUi.createdWindows(), 1U);
    forget();
    closePreferences();
    EXPECT_EQ(linesBeginningWith("Registering shortcuts").size(), 4U);

    controller().openPreferences();
    forget();
    closePreferences();
    EXPECT_EQ(linesBeginningWith("Registering shortcuts").size(), 6U);
    EXPECT_EQ(registered().size(), 3U);
}

TEST_F(MainControllerShortcutsTest, WithoutAWindowTheNotificationAloneResumes)
{
    desktop.preferencesUi.refuseWindows();
    launch();
    controller().openPreferences();
    EXPECT_EQ(lastLine(), "Preferences window not available to observe; relying on notification to resume shortcuts");
    EXPECT_EQ(desktop.journal.count("NotificationCenter.observe"), 1U);
    post("preferencesWillCloseNotification");
    EXPECT_EQ(linesBeginningWith("Registering shortcuts").size(), 1U);
}

TEST_F(MainControllerShortcutsTest, AnotherWindowThatClosesResumesNothing)
{
    launch();
    controller().openPreferences();
    forget();
    desktop.notificationCenter.post("NSWindowWillCloseNotification", NotificationObject{1});
    desktop.drain();
    EXPECT_TRUE(desktop.log.lines().empty());
}

TEST_F(MainControllerShortcutsTest, OpeningPreferencesReleasesTheKeyboard)
{
    launch();
    pressOverlayHotKey();
    controller().openPreferences();
    EXPECT_TRUE(blocker().blockedKeyCodes().empty());
}

TEST_F(MainControllerShortcutsTest, TheFocusIsGivenBackBeforePreferencesShow)
{
    launch();
    blocker().stop();
    pressOverlayHotKey();
    ASSERT_TRUE(isKeyCapturePanelShown());
    forget();
    controller().openPreferences();
    EXPECT_EQ(desktop.journal.entries({"HotKeys.", "OverlayPanel.", "Workspace.activate(", "PreferencesWindow.show"}),
              (Lines{"HotKeys.unregisterHotKey(1)", "HotKeys.unregisterHotKey(2)", "HotKeys.unregisterHotKey(3)",
                     "OverlayPanel.orderOut(3)", "Workspace.activate(500)", "PreferencesWindow.show()"}));
}

TEST_F(MainControllerShortcutsTest, TheOverlayIsSuppressedWhilePreferencesAreOpen)
{
    launch();
    controller().openPreferences();
    forget();
    controller().handleAction(Action::activateOverlay, {});
    EXPECT_EQ(desktop.log.lines(), (Lines{"Overlay suppressed: shortcuts paused"}));
    EXPECT_EQ(shownWindowCount(), 0U);
    EXPECT_TRUE(blocker().blockedKeyCodes().empty());
}

TEST_F(MainControllerShortcutsTest, AControllerThatIsGoneHearsNothing)
{
    launch();
    controller().openPreferences();
    closePreferences();
    desktop.notificationCenter.post("ShortcutDidChangeNotification", noNotificationObject);
    desktop.notificationCenter.post("preferencesWillCloseNotification", noNotificationObject);
    app.reset();
    forget();
    desktop.drain();
    post("ShortcutDidChangeNotification");
    EXPECT_TRUE(desktop.log.lines().empty());
    EXPECT_TRUE(registered().empty());
}

} // namespace
} // namespace quorvel
