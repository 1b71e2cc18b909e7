#pragma once

#include <functional>
#include <optional>

#include "base/Subscription.h"
#include "platform/x11/desktop/DesktopPortal.h"
#include "platform/x11/desktop/DesktopStyle.h"
#include "platform/x11/desktop/SettingsDaemon.h"

namespace quorvel::x11 {

// The desktop's style, from its portal and its settings daemon. Asks neither before it is asked itself.
class DesktopStyles {
public:
    explicit DesktopStyles(Connection& connection) : connection(connection) {}
    DesktopStyles(const DesktopStyles&) = delete;
    DesktopStyles& operator=(const DesktopStyles&) = delete;

    // Waits a moment for those who know.
    DesktopStyle current();

    // Calls the handler from the main loop whenever the style may have changed, until the token goes.
    Subscription observe(std::function<void()> changed);

private:
    struct Sources {
        explicit Sources(Connection& connection) : daemon(connection), portal(DesktopPortal::sessionBus()) {}

        SettingsDaemon daemon;
        DesktopPortal portal;
    };

    Sources& sources();

    Connection& connection;
    std::optional<Sources> opened;
};

} // namespace quorvel::x11
