#pragma once

#include <cstddef>
#include <vector>

#include "platform/PreferencesUi.h"

namespace quorvel {

class Journal;
class SimulatedPreferencesWindow;
class SimulatedWindowServer;

class SimulatedPreferencesUi final : public PreferencesUi {
public:
    SimulatedPreferencesUi(Journal& journal, NotificationCenter& notificationCenter,
                           SimulatedWindowServer& windowServer);
    ~SimulatedPreferencesUi() override;

    std::unique_ptr<PreferencesWindow> createWindow() override;

    // Since the beginning.
    std::size_t createdWindows() const { return created; }
    bool isWindowVisible() const;
    void closeWindows();

    void refuseWindows() { windowsRefused = true; }

private:
    friend class SimulatedPreferencesWindow;

    Journal& journal;
    NotificationCenter& notificationCenter;
    SimulatedWindowServer& windowServer;
    std::vector<SimulatedPreferencesWindow*> windows; // the existing ones
    std::size_t created = 0;
    bool windowsRefused = false;
};

} // namespace quorvel
