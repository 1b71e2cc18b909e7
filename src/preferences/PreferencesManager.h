#pragma once

#include <memory>
#include <optional>

#include "platform/NotificationCenter.h"

namespace quorvel {

struct Platform;
class PreferencesWindowController;
class SharedUpdater;

// Owns the controller of the preferences window, one and the same from the first request to the end of the process.
class PreferencesManager {
public:
    // `updater` is null where there is none to ask. Both outlive the manager.
    PreferencesManager(const Platform& platform, SharedUpdater* updater);
    PreferencesManager(const PreferencesManager&) = delete;
    PreferencesManager& operator=(const PreferencesManager&) = delete;
    ~PreferencesManager();

    // Creates the controller on the first request and shows its window.
    void show();

    // The object of notifications about the window, if there is one.
    std::optional<NotificationObject> windowObject() const;

private:
    const Platform& platform;
    SharedUpdater* updater;
    std::unique_ptr<PreferencesWindowController> preferencesWindowController;
};

} // namespace quorvel
