#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include <xcb/xcb.h>

#include "base/Subscription.h"

namespace quorvel::x11 {

class Connection;

// The desktop's settings daemon, which most desktops have and which publishes their settings on the X server.
class SettingsDaemon {
public:
    explicit SettingsDaemon(Connection& connection);

    // The value of a text setting; nothing where there is no daemon or no such setting. Waits for the server.
    std::optional<std::string> text(std::string_view name) const;

    // Calls the handler from the main loop whenever settings change, or the daemon itself, until the token goes.
    Subscription observe(std::function<void()> changed);

private:
    class Observation;

    xcb_window_t owner() const;

    Connection& connection;
    xcb_atom_t selection;
    xcb_atom_t settings;
};

} // namespace quorvel::x11
