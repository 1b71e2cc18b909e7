#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>

#include "base/Subscription.h"
#include "platform/AboutContent.h"
#include "platform/Alerts.h"
#include "platform/EventMonitors.h"
#include "platform/StatusBar.h"
#include "platform/x11/desktop/DesktopStyle.h"

namespace quorvel {
class PreferencesWindowModel;
}

namespace quorvel::x11 {

class TextLayouts;

// What the toolkit asks of the program that loaded it. It outlives the toolkit.
struct ToolkitHost {
    // The file of a bundle image that has at least that many pixels a side; empty if there is none.
    std::function<std::filesystem::path(std::string_view name, int pixels)> imageFile;

    // Brings a window of the toolkit to the front with the keyboard.
    std::function<void(std::uint32_t window)> activate;

    // A key goes down in a window of the toolkit, given by its X key code and state.
    std::function<EventHandling(std::uint8_t keycode, std::uint16_t state)> keyDown;

    const TextLayouts& textLayouts;

    // How the desktop wants windows to look, and a registration for whenever that may have changed. Without the two the
    // toolkit looks as it likes.
    std::function<DesktopStyle()> style = {};
    std::function<Subscription(std::function<void()> changed)> observeStyle = {};
};

// A window of the toolkit; destroying it closes it.
class ToolkitWindow {
public:
    ToolkitWindow() = default;
    ToolkitWindow(const ToolkitWindow&) = delete;
    ToolkitWindow& operator=(const ToolkitWindow&) = delete;
    virtual ~ToolkitWindow() = default;

    // Centred, in front, with the keyboard.
    virtual void show() = 0;
};

// What a window tells of itself, from the main loop.
struct ToolkitWindowCallbacks {
    std::function<void()> didBecomeActive;
    std::function<void()> willClose; // it was shown, and may be shown again
};

// What needs a toolkit's widgets.
class ToolkitUi {
public:
    ToolkitUi() = default;
    ToolkitUi(const ToolkitUi&) = delete;
    ToolkitUi& operator=(const ToolkitUi&) = delete;
    virtual ~ToolkitUi() = default;

    // Opens the menu at the mouse pointer. `onCommand` runs from the main loop if an entry is chosen.
    virtual void openMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) = 0;

    // Shows the alert, with the picture in that file if there is one, and turns the main loop until it is answered.
    // Returns the index of the chosen button; closing the alert otherwise counts as its last one.
    virtual std::size_t runAlert(const Alert& alert, const std::filesystem::path& icon) = 0;

    // A window that is not shown yet, or null where the toolkit is missing. `model` outlives it.
    virtual std::unique_ptr<ToolkitWindow> createPreferencesWindow(PreferencesWindowModel& model,
                                                                   ToolkitWindowCallbacks callbacks) = 0;
    virtual std::unique_ptr<ToolkitWindow> createAboutWindow(const AboutContent& content) = 0;

    // The display has gone: whatever keeps the toolkit in a loop of its own, an alert or a drag, ends with this turn.
    virtual void endInnerLoops() = 0;
};

// The function that the toolkit's module exports under toolkitEntryName. The name of the display may be empty for the
// one of the environment. The result belongs to the caller; null if the toolkit cannot start.
using ToolkitEntry = ToolkitUi*(const char* displayName, const ToolkitHost& host);

inline constexpr const char* toolkitEntryName = "quorvelCreateToolkit";

} // namespace quorvel::x11
