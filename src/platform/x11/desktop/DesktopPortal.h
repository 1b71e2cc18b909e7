#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <gio/gio.h>

#include "base/Subscription.h"
#include "platform/x11/desktop/DesktopStyle.h"

namespace quorvel::x11 {

// The desktop's portal on the session bus, where newer desktops tell whether windows should be light or dark. Connects
// when it is made, which takes memory and a thread; without a session bus it knows nothing.
class DesktopPortal {
public:
    // The address of the session's bus; empty where there is none. GLib would start one, which nobody asked for.
    static std::string sessionBus();

    explicit DesktopPortal(const std::string& busAddress);
    DesktopPortal(const DesktopPortal&) = delete;
    DesktopPortal& operator=(const DesktopPortal&) = delete;
    ~DesktopPortal();

    // Nothing where no portal answers within a moment.
    std::optional<PortalPreference> preference() const;

    // Calls the handler from the main loop whenever the preference changes, until the token goes.
    Subscription observe(std::function<void()> changed);

private:
    struct Disconnect {
        void operator()(GDBusConnection* bus) const { g_object_unref(bus); }
    };

    std::unique_ptr<GDBusConnection, Disconnect> bus;
};

} // namespace quorvel::x11
