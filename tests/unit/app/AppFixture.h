#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "app/QuorvelApp.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "tests/unit/layouts/CatalogueFixture.h"
#include "tests/unit/system/ScreenFixtures.h"

namespace quorvel {

namespace keys {
inline constexpr KeyCode b = 11;
inline constexpr KeyCode c = 8;
inline constexpr KeyCode d = 2;
inline constexpr KeyCode m = 46;
inline constexpr KeyCode o = 31;
inline constexpr KeyCode digit1 = 18;
inline constexpr KeyCode digit3 = 20;
} // namespace keys

inline constexpr std::uint64_t commandShift = eventFlags::command | eventFlags::shift;

// The whole program on a simulated desktop with seven layouts, an editor with one window in front and, unless a test
// changes it first, one screen of 1440 by 900 points.
class AppFixture : public testing::Test {
protected:
    AppFixture() { desktop.bundle.addResource("layouts", "json", std::string(sevenLayouts)); }

    // Up to the point where the delegate exists.
    QuorvelApp& construct()
    {
        app.emplace(platform, guideAddress);
        return *app;
    }

    // Up to the point where the program waits for keys. What it did so far is forgotten.
    void launch()
    {
        construct().appDelegate().applicationDidFinishLaunching();
        desktop.drain();
        desktop.activate(editor); // the alerts of a start without permissions have taken the focus
        forget();
    }

    void forget()
    {
        desktop.journal.clear();
        desktop.log.clear();
    }

    MainController& controller() { return app->mainController(); }
    GlobalEventBlocker& blocker() { return app->blocker(); }
    StateManager::States state() { return controller().stateManager().currentState; }
    std::ptrdiff_t layoutIndex() { return controller().layoutsManager().selectedLayoutIndex(); }

    // A whole keystroke, with everything that follows from it.
    void type(KeyCode keyCode, std::uint64_t flags = 0, std::optional<std::string> characters = std::nullopt)
    {
        desktop.press(keyCode, flags, std::move(characters));
        desktop.drain();
    }

    void pressOverlayHotKey() { type(keys::o, commandShift); }

    void store(std::string_view key, PropertyValue value) { desktop.userDefaults.setObject(key, std::move(value)); }
    void store(std::string_view key, std::int64_t value) { store(key, PropertyValue{value}); }
    void store(std::string_view key, const char* value) { store(key, PropertyValue{std::string(value)}); }

    void storeShortcut(const std::string& name, std::int64_t keyCode, std::int64_t modifiers)
    {
        store(name + "KeyCode", keyCode);
        store(name + "Modifiers", modifiers);
    }

    void select(const std::vector<std::string>& ids)
    {
        PropertyArray array;
        for (const auto& id : ids) {
            array.push_back({id});
        }
        store("selectedLayoutIDs", PropertyValue{array});
    }

    // The labels of the frames on screen, in the order in which they were shown.
    std::vector<std::string> shownLabels() const
    {
        std::vector<std::string> labels;
        for (const auto& window : desktop.overlayWindows.all()) {
            if (window->isVisible && !window->frameAutosaveName.empty()) {
                labels.push_back(window->frameAutosaveName);
            }
        }
        return labels;
    }

    // Everything of this program that is on screen, the legend and the panel for keys too.
    std::size_t shownWindowCount() const { return desktop.overlayWindows.visible().size(); }

    bool isKeyCapturePanelShown() const
    {
        for (const auto& window : desktop.overlayWindows.visible()) {
            if (window->kind == OverlayKind::panel) {
                return true;
            }
        }
        return false;
    }

    bool isOverlayGone()
    {
        return shownWindowCount() == 0 && blocker().blockedKeyCodes().empty() &&
               state() == StateManager::States::normal;
    }

    std::vector<std::string> linesBeginningWith(std::string_view prefix) const
    {
        std::vector<std::string> lines;
        for (const auto& line : desktop.log.lines()) {
            if (line.starts_with(prefix)) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    std::string lastLine() const { return desktop.log.lines().empty() ? std::string() : desktop.log.lines().back(); }

    std::string guideAddress = "https://guide.example/";
    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    SimulatedApplication& editor = desktop.launch("Editor");
    SimulatedWindow& window = desktop.openWindow(editor, "Notes", {100, 100, 800, 600});
    std::optional<QuorvelApp> app;
};

inline KeyCodeSet allKeyCodes()
{
    KeyCodeSet keyCodes;
    for (KeyCode keyCode = 0; keyCode < 256; ++keyCode) {
        keyCodes.insert(keyCode);
    }
    return keyCodes;
}

} // namespace quorvel
