#include <optional>

#include "e2e/ProgramTest.h"
#include "e2e/TitledWindows.h"
#include "e2e/TrayMenu.h"

namespace quorvel::e2e {
namespace {

using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using xtest::PixelRect;
using Modifier = xtest::KeyInjector::Modifier;

// The preferences and the About window of the whole program, by the tray's menu and the keyboard alone.
class PreferencesJourney : public ProgramTest {
protected:
    void SetUp() override
    {
        if (!xtest::SystemTray::isInstalled()) {
            GTEST_SKIP() << "needs trayer";
        }
        menu.emplace(display, screen);
        // With somewhere to look for updates every entry of the menu down to the preferences can be chosen.
        start({.environment = {{"QUORVEL_UPDATE_FEED", "http://127.0.0.1:9/"}}});
    }

    xcb_window_t openPreferences()
    {
        menu->choose(TrayMenu::Entry::preferences, *quorvel);
        ++openings;
        return titled.waitUntilActive("Preferences");
    }

    void waitUntilResumed()
    {
        titled.waitUntilClosed("Preferences");
        quorvel->waitUntilHotKeysResume(openings);
    }

    // Whether a library of that name is in the program's memory.
    bool hasLoaded(const std::string& library)
    {
        const auto maps = xtest::contentOf("/proc/" + std::to_string(quorvel->program().id()) + "/maps");
        EXPECT_THAT(maps, HasSubstr("/quorvel"));
        return maps.find(library) != std::string::npos;
    }

    // The hot key shows the frames, and a letter puts the window into one.
    void expectHotKeyWorks(const xtest::KeyCombination& hotKey = RunningQuorvel::hotKey())
    {
        const auto window = openWindow();
        display.keyboard.tap(hotKey.modifiers, hotKey.keysym);
        quorvel->waitForFrames(fullScreen, workArea());
        display.keyboard.tap(XKB_KEY_a);
        quorvel->waitUntilPlaced(window->id(), workArea());
        quorvel->waitUntilIdle();
    }

    // What the tray leaves; the display goes on beside the screen.
    PixelRect workArea()
    {
        auto area = display.client.workArea();
        area.width = screen.width;
        return area;
    }

    std::optional<TrayMenu> menu;
    TitledWindows titled{display};
    int openings = 0;
};

TEST_F(PreferencesJourney, QtIsLoadedByTheFirstWindowAndNotBefore)
{
    expectHotKeyWorks();
    EXPECT_FALSE(hasLoaded("quorvel-qt.so"));
    EXPECT_FALSE(hasLoaded("libQt6"));
    openPreferences();
    EXPECT_TRUE(hasLoaded("quorvel-qt.so"));
    EXPECT_TRUE(hasLoaded("libQt6Widgets"));
    display.keyboard.tap(XKB_KEY_Escape);
    waitUntilResumed();
    endCleanly();
}

TEST_F(PreferencesJourney, HotKeysRestWhileThePreferencesAreOpenAndComeBackByEveryWayOfClosing)
{
    const std::vector<std::pair<std::string, std::function<void(xcb_window_t)>>> ways{
        {"Escape", [&](xcb_window_t) { display.keyboard.tap(XKB_KEY_Escape); }},
        {"Ctrl+W", [&](xcb_window_t) { display.keyboard.tap({Modifier::control}, XKB_KEY_w); }},
        {"the title bar", [&](xcb_window_t window) {
             display.client.sendToWindowManager(window, "_NET_CLOSE_WINDOW", {XCB_CURRENT_TIME, 2, 0, 0, 0});
         }}};
    for (const auto& [name, close] : ways) {
        SCOPED_TRACE(name);
        const auto window = openPreferences();
        EXPECT_TRUE(display.grabs.isFree(RunningQuorvel::hotKey()));
        close(window);
        waitUntilResumed();
        expectHotKeyWorks();
    }
    endCleanly();
}

// As input methods do for the keys that they give back.
TEST_F(PreferencesJourney, KeysThatAnotherProgramSendsAreHeardAsInAnyWindow)
{
    const auto window = openPreferences();
    xcb_key_press_event_t event{};
    event.detail = display.keyboard.codeOf(XKB_KEY_Escape);
    event.root = display.client.root();
    event.event = window;
    event.same_screen = 1;
    for (const std::uint8_t type : {XCB_KEY_PRESS, XCB_KEY_RELEASE}) {
        event.response_type = type;
        xcb_send_event(display.client.connection(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char*>(&event));
    }
    xcb_flush(display.client.connection());
    waitUntilResumed();
    endCleanly();
}

TEST_F(PreferencesJourney, TheProgramMayEndWithItsWindowsOpen)
{
    openPreferences();
    menu->choose(TrayMenu::Entry::about, *quorvel);
    titled.waitUntilActive("About Quorvel");
    endCleanly();
}

TEST_F(PreferencesJourney, AServerThatGoesAwayEndsTheProgramWithALine)
{
    openPreferences();
    display.server.kill();
    EXPECT_EQ(quorvel->program().waitForEnd(), 1);
    EXPECT_THAT(quorvel->program().errorLines(), ElementsAre(HasSubstr("X server")));
}

TEST_F(PreferencesJourney, AServerThatGoesAwayUnderAnAlertEndsTheProgramWithALine)
{
    menu->choose(TrayMenu::Entry::checkForUpdates, *quorvel); // nobody answers there
    titled.waitUntilActive("Quorvel");
    display.server.kill();
    EXPECT_EQ(quorvel->program().waitForEnd(), 1);
    EXPECT_THAT(quorvel->program().errorLines(), ElementsAre(HasSubstr("X server")));
}

TEST_F(PreferencesJourney, ThePreferencesAreOneWindowThatComesBackToTheFront)
{
    const auto first = openPreferences();
    const auto other = openWindow();
    EXPECT_EQ(display.client.activeWindow(), other->id());
    EXPECT_EQ(openPreferences(), first);
    display.keyboard.tap(XKB_KEY_Escape);
    waitUntilResumed();
    const auto second = openPreferences();
    EXPECT_EQ(titled.with("Preferences"), std::vector{second});
    display.keyboard.tap(XKB_KEY_Escape);
    waitUntilResumed();
    expectHotKeyWorks();
    endCleanly();
}

TEST_F(PreferencesJourney, ThePreferencesStandInTheMiddleAndNeverGetSmallerThanTheyAllow)
{
    const auto window = openPreferences();
    const auto rect = display.client.clientRect(window).value();
    EXPECT_EQ(rect.width, 1050);
    EXPECT_EQ(rect.height, 785);
    const auto outer = display.client.outerRect(window).value();
    const auto area = workArea();
    EXPECT_NEAR(outer.x + outer.width / 2.0, area.x + area.width / 2.0, 2.0);
    EXPECT_NEAR(outer.y + outer.height / 2.0, area.y + area.height / 2.0, 20.0); // with or without the title bar

    constexpr std::uint32_t widthAndHeight = 3U << 10U | 2U << 12U;
    display.client.sendToWindowManager(window, "_NET_MOVERESIZE_WINDOW", {widthAndHeight, 0, 0, 900, 700});
    display.client.waitFor("the smallest size", [&] {
        const auto size = display.client.clientRect(window).value();
        return size.width == 950 && size.height == 705;
    });
    display.keyboard.tap(XKB_KEY_Escape);
    waitUntilResumed();
    endCleanly();
}

TEST_F(PreferencesJourney, TheAboutWindowOpensFromTheTrayAndClosesByTheKeyboard)
{
    for (const bool byEscape : {true, false}) {
        menu->choose(TrayMenu::Entry::about, *quorvel);
        titled.waitUntilActive("About Quorvel");
        display.keyboard.tap(byEscape ? std::vector<Modifier>{} : std::vector{Modifier::control},
                             byEscape ? XKB_KEY_Escape : XKB_KEY_w);
        titled.waitUntilClosed("About Quorvel");
    }
    expectHotKeyWorks(); // it has not paused them
    endCleanly();
}

TEST_F(PreferencesJourney, AShortcutRecordedByTheKeyboardAloneWorksOnceTheWindowIsClosed)
{
    const xtest::KeyCombination recorded{{Modifier::command, Modifier::option}, XKB_KEY_p};
    openPreferences();
    display.keyboard.tap({Modifier::control}, XKB_KEY_2); // the tab of the shortcuts
    display.keyboard.tap(XKB_KEY_Tab);                    // the keyboard's layout
    display.keyboard.tap(XKB_KEY_Tab);                    // "Record" of the first shortcut
    display.keyboard.tap(XKB_KEY_space);
    display.keyboard.tap(recorded.modifiers, recorded.keysym);
    display.keyboard.tap(XKB_KEY_Escape);
    waitUntilResumed();
    EXPECT_THAT(storedSettings(), ContainsRegex("<key>activateOverlayKeyCode</key>[[:space:]]*<integer>35</integer>"));
    EXPECT_TRUE(display.grabs.isFree(RunningQuorvel::hotKey()));
    expectHotKeyWorks(recorded);
    endCleanly();
}

} // namespace
} // namespace quorvel::e2e
