#include "app/AppDelegate.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/FatalErrors.h"
#include "tests/unit/app/AppFixture.h"

namespace quorvel {
namespace {

using Combination = SimulatedHotKeys::Combination;

class AppDelegateTest : public AppFixture {
protected:
    const Menu& menu() const { return desktop.statusBar.items().at(0)->menu; }

    const MenuItem& item(std::size_t place) const { return *menu().entries.at(place); }

    void choose(std::string_view title)
    {
        EXPECT_TRUE(desktop.statusBar.choose(title));
        desktop.drain();
    }
};

TEST_F(AppDelegateTest, HotKeysWorkFromTheConstructionOn)
{
    construct();
    EXPECT_EQ(desktop.hotKeys.registered(), (std::vector<Combination>{{31, 768}, {15, 2304}, {3, 768}}));
    EXPECT_TRUE(desktop.statusBar.items().empty());
    EXPECT_FALSE(blocker().hasEventTap());
    pressOverlayHotKey();
    EXPECT_EQ(state(), StateManager::States::overlayOn);
}

TEST_F(AppDelegateTest, ThePartsComeIntoBeingInOrder)
{
    construct().appDelegate().applicationDidFinishLaunching();
    const std::vector<std::string_view> milestones{"Bundle.resource",        "UserDefaults.setObject(selectedLayoutIDs",
                                                   "HotKeys.registerHotKey", "StatusBar.createItem",
                                                   "StatusItem.setMenu",     "Permissions.isGranted"};
    const std::string seed = "UserDefaults.setObject(selectedLayoutIDs, [\"one_full_screen\", \"centered\", "
                             "\"two_side_by_side\", \"two_stacked\", \"three_side_by_side\", \"four_tiled\"])";
    EXPECT_EQ(desktop.journal.entries(milestones),
              (std::vector<std::string>{"Bundle.resource(layouts, json)", seed, "HotKeys.registerHotKey(31, 768, 1)",
                                        "HotKeys.registerHotKey(15, 2304, 2)", "HotKeys.registerHotKey(3, 768, 3)",
                                        "StatusBar.createItem()", "StatusItem.setMenu(6)"}));
    desktop.turn();
    EXPECT_EQ(desktop.journal.entries({"Permissions.isGranted"}).at(0), "Permissions.isGranted(accessibility)");
}

TEST_F(AppDelegateTest, ASettingOfAWrongTypeIsNamedInOneLine)
{
    store("activateOverlayModifiers", "256");
    construct();
    forget();
    app->appDelegate().applicationDidFinishLaunching();
    desktop.drain();
    EXPECT_EQ(
        desktop.log.lines(),
        (std::vector<std::string>{"Setting \"activateOverlayModifiers\" holds a string where an integer is expected"}));
}

TEST_F(AppDelegateTest, SettingsOfTheRightTypesAreNotMentioned)
{
    storeShortcut("activateOverlay", 40, 768);
    store("textColor", "#FF0000");
    store("isTextBold", PropertyValue{false});
    store("textSize", PropertyValue{30.5});
    construct(); // stores a selection with its digits
    forget();
    app->appDelegate().applicationDidFinishLaunching();
    desktop.drain();
    EXPECT_TRUE(desktop.log.lines().empty());
}

TEST_F(AppDelegateTest, TheMenuHasSixEntries)
{
    launch();
    ASSERT_EQ(menu().entries.size(), 6U);
    EXPECT_EQ(item(0), (MenuItem{"About Quorvel...", "", MenuCommand::showAbout, true}));
    EXPECT_EQ(item(1), (MenuItem{"Check for Updates...", "", MenuCommand::checkForUpdates, true}));
    EXPECT_EQ(item(2), (MenuItem{"Preferences...", ",", MenuCommand::showPreferences, true}));
    EXPECT_EQ(item(3), (MenuItem{"User Guide", "", MenuCommand::showGuide, true}));
    EXPECT_FALSE(menu().entries[4]);
    EXPECT_EQ(item(5), (MenuItem{"Quit", "q", MenuCommand::terminate, true}));
}

TEST_F(AppDelegateTest, AStatusItemWithoutImageHasItsMenu)
{
    desktop.bundle.removeImage("MenuBarIcon");
    construct();
    desktop.log.clear();
    app->appDelegate().applicationDidFinishLaunching();
    EXPECT_FALSE(desktop.statusBar.items().at(0)->image);
    EXPECT_EQ(menu().entries.size(), 6U);
    EXPECT_TRUE(desktop.log.lines().empty());
}

TEST_F(AppDelegateTest, AStatusItemWithoutButtonHasItsMenu)
{
    desktop.statusBar.loseButtons();
    launch();
    EXPECT_FALSE(desktop.statusBar.items().at(0)->image);
    EXPECT_EQ(menu().entries.size(), 6U);
}

TEST_F(AppDelegateTest, TheImageIsATemplate)
{
    launch();
    EXPECT_EQ(desktop.statusBar.items().at(0)->image, (Image{"MenuBarIcon", true}));
}

TEST_F(AppDelegateTest, AllChecksForUpdatesUseOneController)
{
    construct().appDelegate().applicationDidFinishLaunching();
    choose("Check for Updates...");
    choose("Check for Updates...");
    EXPECT_EQ(desktop.journal.count("Updater.createController"), 1U);
    EXPECT_EQ(desktop.journal.count("UpdaterController.checkForUpdates"), 2U);
}

TEST_F(AppDelegateTest, WithBothPermissionsTheLaunchLeadsToOneEventTap)
{
    launch();
    EXPECT_EQ(desktop.eventTaps.taps().size(), 1U);
    EXPECT_TRUE(blocker().hasEventTap());
    EXPECT_TRUE(desktop.alerts.shown().empty());
}

TEST_F(AppDelegateTest, WithoutInputMonitoringThePanelTakesTheKeys)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    launch();
    EXPECT_FALSE(blocker().hasEventTap());
    pressOverlayHotKey();
    EXPECT_TRUE(isKeyCapturePanelShown());
}

TEST_F(AppDelegateTest, TerminationWhileThePanelIsUpGivesTheFocusBack)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    launch();
    pressOverlayHotKey();
    forget();
    app->appDelegate().applicationWillTerminate();
    EXPECT_FALSE(isKeyCapturePanelShown());
    EXPECT_EQ(desktop.journal.entries({"Workspace.activate"}), (std::vector<std::string>{"Workspace.activate(500)"}));
}

TEST_F(AppDelegateTest, TerminationActivatesNobodyWhoHasQuit)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    launch();
    pressOverlayHotKey();
    desktop.terminate(editor);
    forget();
    app->appDelegate().applicationWillTerminate();
    EXPECT_FALSE(isKeyCapturePanelShown());
    EXPECT_EQ(desktop.journal.count("Workspace.activate"), 0U);
}

TEST_F(AppDelegateTest, TerminationEndsTheTap)
{
    launch();
    app->appDelegate().applicationWillTerminate();
    EXPECT_TRUE(desktop.eventTaps.taps().empty());
}

TEST_F(AppDelegateTest, NoTapIsMadeForADelegateThatIsGone)
{
    desktop.permissions.deny(Permission::accessibility);
    PermissionsOnboarding onboarding(platform);
    SharedUpdater updater(platform.updater);
    GlobalEventBlocker keyBlocker(platform);
    std::optional<AppDelegate> delegate(std::in_place, AppDelegateEnvironment{.platform = platform,
                                                                              .blocker = keyBlocker,
                                                                              .permissionsOnboarding = onboarding,
                                                                              .updater = updater,
                                                                              .userGuideAddress = {}});
    desktop.alerts.choose("Open System Settings");
    delegate->applicationDidFinishLaunching();
    desktop.drain();
    ASSERT_EQ(desktop.alerts.shown().size(), 1U);

    delegate.reset();
    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(1.0);
    EXPECT_FALSE(keyBlocker.hasEventTap());
    EXPECT_EQ(desktop.journal.count("EventTaps.createTap"), 0U);
}

TEST_F(AppDelegateTest, ADelegateThatGoesBeforeTheNextTurnChecksNothing)
{
    construct().appDelegate().applicationDidFinishLaunching();
    app.reset();
    desktop.drain();
    EXPECT_EQ(desktop.journal.count("Permissions.isGranted"), 0U);
}

TEST_F(AppDelegateTest, TheGuideOpensAtTheAddressOfTheBuild)
{
    launch();
    choose("User Guide");
    EXPECT_EQ(desktop.workspace.openedAddresses(), (std::vector<std::string>{"https://guide.example/"}));
}

TEST_F(AppDelegateTest, WithoutAnAddressTheInstalledGuideOpens)
{
    guideAddress.clear();
    desktop.bundle.guideAddress = "file:///usr/share/doc/quorvel/index.html";
    launch();
    choose("User Guide");
    EXPECT_EQ(desktop.workspace.openedAddresses(),
              (std::vector<std::string>{"file:///usr/share/doc/quorvel/index.html"}));
}

TEST_F(AppDelegateTest, AnAddressThatIsNoneOpensNothing)
{
    guideAddress = "not an address";
    launch();
    choose("User Guide");
    EXPECT_EQ(desktop.journal.count("Workspace.open(not an address)"), 1U);
    EXPECT_TRUE(desktop.workspace.openedAddresses().empty());
}

TEST_F(AppDelegateTest, WithoutAnyGuideItsEntryIsDisabled)
{
    guideAddress.clear();
    desktop.bundle.guideAddress.clear();
    launch();
    EXPECT_FALSE(item(3).isEnabled);
}

TEST_F(AppDelegateTest, AboutShowsOneWindowHoweverOften)
{
    launch();
    choose("About Quorvel...");
    choose("About Quorvel...");
    EXPECT_EQ(desktop.journal.count("PreferencesUi.createAboutWindow"), 1U);
    EXPECT_EQ(desktop.journal.count("AboutWindow.show"), 2U);
}

TEST_F(AppDelegateTest, PreferencesOpenWithTheHotKeysGivenUp)
{
    launch();
    choose("Preferences...");
    EXPECT_TRUE(desktop.preferencesUi.isWindowVisible());
    EXPECT_TRUE(desktop.hotKeys.registered().empty());
}

TEST_F(AppDelegateTest, PreferencesWithoutMainControllerAreAFatalError)
{
    PermissionsOnboarding onboarding(platform);
    SharedUpdater updater(platform.updater);
    GlobalEventBlocker keyBlocker(platform);
    AppDelegate delegate({.platform = platform,
                          .blocker = keyBlocker,
                          .mainController = nullptr,
                          .permissionsOnboarding = onboarding,
                          .updater = updater,
                          .userGuideAddress = {}});
    EXPECT_EQ(fatalErrorOf([&] { delegate.onShowPreferences(); }),
              "There is no main controller to open the preferences");
}

TEST_F(AppDelegateTest, EntriesOfWhatABuildLacksAreDisabled)
{
    auto ports = desktop.platform();
    ports.preferencesUi = nullptr;
    ports.updater = nullptr;
    QuorvelApp small(ports);
    small.appDelegate().applicationDidFinishLaunching();
    EXPECT_FALSE(item(0).isEnabled);
    EXPECT_FALSE(item(1).isEnabled);
    EXPECT_FALSE(item(2).isEnabled);
    EXPECT_TRUE(item(3).isEnabled);
    EXPECT_TRUE(item(5).isEnabled);
}

TEST_F(AppDelegateTest, ABuildThatDoesNotUpdateItselfSaysSoInItsMenu)
{
    auto ports = desktop.platform();
    ports.updater = nullptr;
    QuorvelApp small(ports);
    small.appDelegate().applicationDidFinishLaunching();
    EXPECT_EQ(item(1), (MenuItem{"Check for Updates...", "", MenuCommand::checkForUpdates, false,
                                 "This build does not update itself."}));
}

TEST_F(AppDelegateTest, TheMenuCanSayThatAnotherApplicationReadsTheKeyboardAlone)
{
    launch();
    EXPECT_EQ(menu().secureInputNotice, "Another application reads the keyboard alone");
}

TEST_F(AppDelegateTest, ACommandWithoutActionDoesNothing)
{
    auto ports = desktop.platform();
    ports.preferencesUi = nullptr;
    QuorvelApp small(ports);
    small.appDelegate().applicationDidFinishLaunching();
    const auto before = desktop.journal.entries().size();
    desktop.statusBar.items().at(0)->onCommand(MenuCommand::showAbout);
    EXPECT_EQ(desktop.journal.entries().size(), before);
}

TEST_F(AppDelegateTest, QuittingAsksTheMainLoopToEnd)
{
    launch();
    choose("Quit");
    EXPECT_EQ(desktop.workspace.terminationRequests(), 1U);
}

TEST_F(AppDelegateTest, TheStatusItemGoesWithTheProgram)
{
    launch();
    app.reset();
    EXPECT_TRUE(desktop.statusBar.items().empty());
    EXPECT_TRUE(desktop.hotKeys.registered().empty());
    EXPECT_FALSE(desktop.hotKeys.hasHandler());
}

} // namespace
} // namespace quorvel
