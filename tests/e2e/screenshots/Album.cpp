#include "e2e/screenshots/Album.h"

#include <array>
#include <utility>

#include "e2e/StillPicture.h"

namespace quorvel::screenshots {
namespace {

using Modifier = xtest::KeyInjector::Modifier;

// The size that the preferences open with fits in, with the window manager's frame.
constexpr xtest::XServer::Options screen{.width = 1280, .height = 960};

} // namespace

Album::Album(const Look& look, const std::filesystem::path& program, const std::filesystem::path& folder)
    : look(look),
      folder(folder),
      display(screen),
      daemon(display.client, {{"Net/ThemeName", look.theme}, {"Gtk/FontName", "Inter 10"}})
{
    display.client.watchPainting();
    display.startWindowManager(xtest::WindowManager::openbox);
    menu.emplace(display, xtest::PixelRect{0, 0, screen.width, screen.height});
    quorvel = std::make_unique<e2e::RunningQuorvel>(
        display, program, configuration,
        // With somewhere to look for updates everything in the menu and in the panes can be chosen.
        xtest::ProgramUnderTest::Options{.environment = {{"QUORVEL_UPDATE_FEED", "http://127.0.0.1:9/"}}});
}

void Album::fill()
{
    takeAbout();
    preferences = open(e2e::TrayMenu::Entry::preferences);
    takeShortcuts();
    takeTabs();
    takeThemes();
    takeColors();
}

void Album::takeAbout()
{
    const auto about = open(e2e::TrayMenu::Entry::about);
    takePicture("about", about);
    tap(XKB_KEY_Escape);
    display.client.waitFor("the About window to close", [&] { return !display.client.isViewable(about); });
}

// Stores the standard shortcuts, which the pane then shows.
void Album::takeShortcuts()
{
    chooseTab(XKB_KEY_2);
    goBack(1); // to "Reset All Shortcuts"
    const auto question = expectWindow([&] { tap(XKB_KEY_space); });
    takePicture("question", question);
    expectChange(question, [&] { tap(XKB_KEY_Tab); }); // from "Cancel" to the other button
    expectWindow([&] { tap(XKB_KEY_space); });
}

void Album::takeTabs()
{
    constexpr std::array<std::pair<xcb_keysym_t, const char*>, 6> tabs{{{XKB_KEY_1, "general"},
                                                                        {XKB_KEY_2, "shortcuts"},
                                                                        {XKB_KEY_3, "layout-appearance"},
                                                                        {XKB_KEY_4, "window-switcher-appearance"},
                                                                        {XKB_KEY_5, "move-resize-appearance"},
                                                                        {XKB_KEY_6, "layouts"}}};
    for (const auto& [digit, name] : tabs) {
        chooseTab(digit);
        takePicture(name, preferences);
    }
}

void Album::takeThemes()
{
    chooseTab(XKB_KEY_3);
    goBack(3); // to "Save Current Theme"
    for (const auto& name : {std::vector<xcb_keysym_t>{XKB_KEY_d, XKB_KEY_a, XKB_KEY_w, XKB_KEY_n},
                             {XKB_KEY_n, XKB_KEY_o, XKB_KEY_o, XKB_KEY_n}}) {
        const auto question = expectWindow([&] { tap(XKB_KEY_space); });
        for (const xcb_keysym_t letter : name) {
            expectChange(question, [&] { tap(letter); });
        }
        takePicture("theme-name", question);
        expectWindow([&] { tap(XKB_KEY_Return); });
    }
    tap(XKB_KEY_Tab);
    const auto sheet = expectWindow([&] { tap(XKB_KEY_space); });
    takePicture("themes", sheet);
    expectWindow([&] { tap(XKB_KEY_Escape); });
}

void Album::takeColors()
{
    chooseTab(XKB_KEY_3);
    tap(XKB_KEY_Tab);
    const auto dialog = expectWindow([&] { tap(XKB_KEY_space); });
    takePicture("color", dialog);
    expectWindow([&] { tap(XKB_KEY_Escape); });
}

xcb_window_t Album::open(e2e::TrayMenu::Entry entry)
{
    menu->waitForIcon(*quorvel);
    // A tray goes on arranging itself for a moment.
    e2e::stillPicture(display.client, {0, 0, screen.width, screen.height});
    return expectWindow([&] { menu->choose(entry, *quorvel); });
}

xcb_window_t Album::expectWindow(const std::function<void()>& action)
{
    const auto before = display.client.activeWindow();
    xcb_window_t window = XCB_NONE;
    action();
    display.client.waitFor("another window of the program", [&] {
        window = display.client.activeWindow();
        return window != XCB_NONE && window != before && display.client.processOf(window) == quorvel->program().id() &&
               display.client.isViewable(window);
    });
    return window;
}

void Album::expectChange(xcb_window_t window, const std::function<void()>& action)
{
    const auto area = display.client.clientRect(window).value();
    const auto before = e2e::stillPicture(display.client, area);
    action();
    display.client.waitFor("the window to look different",
                           [&] { return xtest::Screenshot(display.client, area) != before; });
}

void Album::chooseTab(xcb_keysym_t digit)
{
    expectChange(preferences, [&] { display.keyboard.tap({Modifier::control}, digit); });
}

void Album::tap(xcb_keysym_t key, int times)
{
    for (int count = 0; count < times; ++count) {
        display.keyboard.tap(key);
    }
}

void Album::goBack(int controls)
{
    for (int count = 0; count < controls; ++count) {
        expectChange(preferences, [&] { display.keyboard.tap({Modifier::shift}, XKB_KEY_Tab); });
    }
}

void Album::takePicture(const std::string& name, xcb_window_t window)
{
    const auto area = display.client.clientRect(window).value();
    e2e::stillPicture(display.client, area).writePng(folder / (name + "-" + look.name + ".png"));
}

} // namespace quorvel::screenshots
