#pragma once

#include <memory>
#include <optional>

#include "platform/NotificationCenter.h"

namespace quorvel {

struct Platform;
class PreferencesWindowController;

// Owns the controller of the preferences window, one and the same from the first request to the end of the process.
class PreferencesManager {
public:
    // `platform` outlives the manager.
    explicit PreferencesManager(const Platform& platform);
    PreferencesManager(const PreferencesManager&) = delete;
    PreferencesManager& operator=(const PreferencesManager&) = delete;
    ~PreferencesManager();

    // Creates the controller on the first request and shows its window.
    void show();

    // The object of notifications about the window, if there is one.
    std::optional<NotificationObject> windowObject() const;

private:
    const Platform& platform;
    std::unique_ptr<PreferencesWindowController> preferencesWindowController;
};

} // namespace quorvel
