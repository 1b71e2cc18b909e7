#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "platform/x11/Connection.h"
#include "platform/x11/ConnectionSource.h"
#include "platform/x11/desktop/X11Bundle.h"
#include "support/Screenshot.h"
#include "support/SystemTray.h"
#include "support/TestDisplay.h"
#include "x11/windows/AdapterLoop.h"

namespace quorvel::x11 {

// A display with the adapters' connection, and what the desktop around them may have.
class DesktopTest : public testing::Test {
protected:
    std::unique_ptr<xtest::SystemTray> startTray()
    {
        const auto& root = display.client.screen();
        return std::make_unique<xtest::SystemTray>(display.server, display.client,
                                                   xtest::PixelRect{0, 0, root.width_in_pixels, root.height_in_pixels});
    }

    // The windows of the adapters' connection that can be seen, wherever they are embedded.
    std::vector<xcb_window_t> ownWindows() { return ownWindowsIn(display.client.root()); }

    // Windows that lie directly on the root and are neither the adapters' nor of these processes.
    std::vector<xcb_window_t> othersThan(pid_t process)
    {
        auto windows = display.client.children(display.client.root());
        std::erase_if(windows, [&](xcb_window_t window) {
            return !display.client.isViewable(window) || isOwn(window) || display.client.processOf(window) == process;
        });
        return windows;
    }

    bool isOwn(xcb_window_t window) const
    {
        const auto& setup = *xcb_get_setup(connection->xcb());
        return (window & ~setup.resource_id_mask) == setup.resource_id_base;
    }

    // Where the window lies on the root.
    xtest::PixelRect rectOf(xcb_window_t window) { return display.client.clientRect(window).value(); }

    xtest::TestDisplay display;
    AdapterLoop loop{display.client};
    std::unique_ptr<Connection> connection = Connection::open(display.server.display().c_str()).value();
    ConnectionSource source{*connection};
    X11Bundle bundle{X11Bundle::standardDirectories()};

private:
    std::vector<xcb_window_t> ownWindowsIn(xcb_window_t parent)
    {
        std::vector<xcb_window_t> windows;
        for (const auto child : display.client.children(parent)) {
            if (isOwn(child) && display.client.isViewable(child)) {
                windows.push_back(child);
            }
            const auto inner = ownWindowsIn(child);
            windows.insert(windows.end(), inner.begin(), inner.end());
        }
        return windows;
    }
};

} // namespace quorvel::x11
