#pragma once

#include <cstddef>
#include <vector>

#include "platform/PreferencesUi.h"

namespace quorvel {

class Journal;
class SimulatedAboutWindow;
class SimulatedMainQueue;
class SimulatedPreferencesWindow;
class SimulatedWindowServer;

class SimulatedPreferencesUi final : public PreferencesUi {
public:
    SimulatedPreferencesUi(Journal& journal, SimulatedMainQueue& mainQueue, NotificationCenter& notificationCenter,
                           SimulatedWindowServer& windowServer);
    ~SimulatedPreferencesUi() override;

    std::unique_ptr<PreferencesWindow> createWindow(PreferencesWindowModel& model) override;
    std::unique_ptr<AboutWindow> createAboutWindow(const AboutContent& content) override;

    // The existing ones, in the order in which they were made.
    const std::vector<SimulatedPreferencesWindow*>& preferencesWindows() const { return windows; }
    const std::vector<SimulatedAboutWindow*>& aboutWindows() const { return abouts; }

    // Since the beginning.
    std::size_t createdWindows() const { return created; }
    bool isWindowVisible() const;
    void closeWindows();

    void refuseWindows() { windowsRefused = true; }

private:
    friend class SimulatedAboutWindow;
    friend class SimulatedPreferencesWindow;

    Journal& journal;
    SimulatedMainQueue& mainQueue;
    NotificationCenter& notificationCenter;
    SimulatedWindowServer& windowServer;
    std::vector<SimulatedPreferencesWindow*> windows;
    std::vector<SimulatedAboutWindow*> abouts;
    std::size_t created = 0;
    bool windowsRefused = false;
};

} // namespace quorvel
