#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "e2e/RunningQuorvel.h"
#include "e2e/TrayMenu.h"
#include "support/SettingsDaemon.h"
#include "support/TemporaryDirectory.h"
#include "support/TestDisplay.h"

namespace quorvel::screenshots {

// A look of the desktop: the name that its pictures begin with, and what its settings daemon calls its theme.
struct Look {
    std::string name;
    std::string theme;
};

// Pictures of the windows of the real program on a desktop of their own, which is used with the keyboard.
class Album {
public:
    Album(const Look& look, const std::filesystem::path& program, const std::filesystem::path& folder);

    // Each tab of the preferences, what opens over them, and the About window.
    void fill();

private:
    void takeTabs();
    void takeThemes();
    void takeColors();
    void takeShortcuts();
    void takeAbout();

    // Chooses the entry and waits for its window.
    xcb_window_t open(e2e::TrayMenu::Entry entry);

    // Does something and waits until another window of the program is in front; returns it.
    xcb_window_t expectWindow(const std::function<void()>& action);

    // Does something and waits until the window looks different.
    void expectChange(xcb_window_t window, const std::function<void()>& action);

    void chooseTab(xcb_keysym_t digit);
    void tap(xcb_keysym_t key, int times = 1);
    void goBack(int controls);
    void takePicture(const std::string& name, xcb_window_t window);

    Look look;
    std::filesystem::path folder;
    xtest::TestDisplay display;
    xtest::SettingsDaemon daemon;
    std::optional<e2e::TrayMenu> menu;
    xtest::TemporaryDirectory configuration;
    std::unique_ptr<e2e::RunningQuorvel> quorvel;
    xcb_window_t preferences = XCB_NONE;
};

} // namespace quorvel::screenshots
