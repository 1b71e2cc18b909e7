#pragma once

#include <memory>
#include <optional>

#include "support/ChildProcess.h"
#include "support/PixelRect.h"
#include "support/XClient.h"
#include "support/XServer.h"

namespace quorvel::xtest {

// A panel with a system tray at the bottom right of the primary monitor, in charge when the constructor returns.
class SystemTray {
public:
    SystemTray(const XServer& server, XClient& client, const PixelRect& monitor);

    static bool isInstalled();

    pid_t process() const { return child->id(); }

    // Where the process's icon lies on the root, once the tray shows it.
    std::optional<PixelRect> iconOf(pid_t process);

private:
    // The first one inside of the window.
    std::optional<PixelRect> iconIn(xcb_window_t window, pid_t process);

    XClient& client;
    PixelRect monitor;
    std::unique_ptr<ChildProcess> child;
};

} // namespace quorvel::xtest
