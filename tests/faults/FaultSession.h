#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/QuorvelApp.h"
#include "system/FeedUpdater.h"
#include "tests/faults/FaultyDesktop.h"

namespace quorvel {

// A person at a desktop whose ports may fail: the whole program, three windows of two other applications, settings that
// must not get lost, and the steps that journeys are made of.
class FaultSession {
public:
    FaultSession();
    ~FaultSession();

    // Everything as it is before a journey, whatever an earlier one left; the program runs. Nothing fails meanwhile.
    void furnish();

    void start();
    void quit();

    // Steps of the person, each with everything that follows from it.
    void type(KeyCode keyCode, std::uint64_t flags = 0);
    void choose(std::string_view menuTitle);
    void closePreferences();
    // Leaves whatever is on, by the keys and buttons that do so.
    void leave();

    // The pane in a tab of the preferences; null while they are not open.
    FormModel* form(std::size_t tab) const;
    LayoutsPaneModel* layoutsPane() const;

    // What the person sees.
    std::size_t shownWindows() const { return desktop.overlayWindows.visible().size(); }
    std::string hotKeys() const;
    std::string frameOf(const SimulatedWindow& window) const;

    // What is not as it should be once everything has been left; nothing if all is well.
    std::optional<std::string> leftover();
    // The settings that are neither as before nor as in `after`, where a journey without a fault led.
    using Settings = std::map<std::string, PropertyValue, std::less<>>;
    std::optional<std::string> lostSetting(const Settings& after, std::string_view exempt) const;

    PortFaults faults;
    SimulatedDesktop desktop;
    SimulatedApplication& editor = desktop.launch("Editor");
    SimulatedApplication& browser = desktop.launch("Browser");
    SimulatedWindow& mail = desktop.openWindow(browser, "Mail", {0, 0, 300, 300});
    SimulatedWindow& page = desktop.openWindow(browser, "Page", {0, 0, 300, 300});
    SimulatedWindow& notes = desktop.openWindow(editor, "Notes", {0, 0, 300, 300});
    std::optional<QuorvelApp> app;

private:
    void storeSettings();
    bool isModeOn();

    FaultyDesktop ports{desktop, faults};
    SimulatedUserDefaults updateStore{desktop.journal, desktop.mainQueue};
    FaultyUserDefaults faultyUpdateStore{updateStore, faults};
    FeedUpdater updater;
    Platform platform = ports.platform();
    Settings before;
};

} // namespace quorvel
