#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "tests/unit/app/AppFixture.h"

namespace quorvel {

namespace keys {
inline constexpr KeyCode q = 12;
} // namespace keys

// The program with the focus switcher's key at hand. The editor of the base class has one window.
class FocusSwitcherFixture : public AppFixture {
protected:
    static constexpr int labelLevel = windowLevels::popUpMenu + 1;
    static constexpr int panelLevel = windowLevels::popUpMenu + 2;

    void pressSwitcherHotKey() { type(3, commandShift); }

    // The switcher is up; what the desktop was asked so far is forgotten, the log too.
    void open()
    {
        launch();
        pressSwitcherHotKey();
        forget();
    }

    // A window for every title, the last one in front.
    std::vector<SimulatedWindow*> openWindows(SimulatedApplication& application, std::size_t count)
    {
        std::vector<SimulatedWindow*> windows;
        for (std::size_t i = 0; i < count; ++i) {
            const double offset = 10.0 * static_cast<double>(i);
            windows.push_back(
                &desktop.openWindow(application, "Window " + std::to_string(i + 1), {offset, offset, 400, 300}));
        }
        return windows;
    }

    static std::vector<std::string> textsOf(const OverlayWindowRecord& window)
    {
        std::vector<std::string> texts;
        for (const auto& command : window.content.commands) {
            if (const auto* text = std::get_if<TextCommand>(&command)) {
                texts.push_back(text->text);
            }
        }
        return texts;
    }

    // The letters on windows, in the order in which they were given.
    std::vector<std::string> shownLetters() const
    {
        std::vector<std::string> letters;
        for (const auto& each : desktop.overlayWindows.all()) {
            if (each->isVisible && each->description.level == labelLevel) {
                letters.push_back(textsOf(*each).front());
            }
        }
        return letters;
    }

    // Of this run, whether or not it shows; null if there is none.
    SimulatedOverlayWindows::Record panel(const std::string& title) const
    {
        for (const auto& each : desktop.overlayWindows.all()) {
            if (!each->isClosed && each->description.level == panelLevel && textsOf(*each).front() == title) {
                return each;
            }
        }
        return nullptr;
    }

    SimulatedOverlayWindows::Record allWindowsPanel() const { return panel("All Windows"); }
    SimulatedOverlayWindows::Record minimizedPanel() const { return panel("Minimized Windows"); }

    bool isSwitcherUp()
    {
        return state() == StateManager::States::overlayOn && blocker().blockedKeyCodes() == allKeyCodes() &&
               desktop.eventMonitors.mouseMonitorCount() == 1;
    }

    bool isSwitcherGone()
    {
        const auto& modes = controller().modeState();
        return isOverlayGone() && desktop.eventMonitors.mouseMonitorCount() == 0 &&
               modes.minimizedWindowsPanels.empty() && modes.allWindowsListPanels.empty() &&
               !modes.isMinimizedPanelVisible && !modes.isAllWindowsPanelVisible;
    }

    std::vector<std::string> activations() const { return desktop.journal.entries({"Workspace.activate("}); }
};

} // namespace quorvel
