#pragma once

#include <string>
#include <string_view>

#include "base/Signal.h"
#include "platform/LoginItem.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"

namespace quorvel {

// Whether the program starts at login: what the session says counts, the setting only mirrors the last request.
class StartupLaunchManager {
public:
    static constexpr std::string_view userDefaultsKey = settingsKeys::startAtLoginEnabled;

    // Reads the session's state. `loginItem` is null where sessions start no programs.
    StartupLaunchManager(LoginItem* loginItem, Settings settings);

    bool isAvailable() const { return loginItem != nullptr; }
    bool isEnabled() const { return enabled; }

    // One line about why the program does not start at login although that was wanted; empty for none.
    const std::string& explanation() const { return reason; }

    // Calls `changed` after one of these has changed, until the token goes.
    Subscription observe(std::function<void()> changed) { return stateChanged.observe(std::move(changed)); }

    void setEnabled(bool requested);

    // Reads the session's state again.
    void refresh();

private:
    void enable();
    void disable();
    void readStatus();

    LoginItem* loginItem;
    Settings settings;
    bool enabled = false;
    std::string reason;
    std::string refusal; // of the last request, as long as the status stays what it was then
    LoginItemStatus statusAtRefusal = LoginItemStatus::notRegistered;
    Signal<> stateChanged;
};

} // namespace quorvel
