#include "platform/x11/overlays/SpareWindows.h"

#include <utility>

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

void SpareWindows::keep(xcb_window_t window)
{
    if (windows.size() == mostWindows) {
        xcb_destroy_window(connection.xcb(), window);
        return;
    }
    xcb_unmap_window(connection.xcb(), window);
    windows.push_back(window);
}

std::optional<xcb_window_t> SpareWindows::take()
{
    if (windows.empty()) {
        return std::nullopt;
    }
    const auto window = windows.front();
    windows.erase(windows.begin());
    return window;
}

void SpareWindows::destroyAll()
{
    for (const auto window : std::exchange(windows, {})) {
        xcb_destroy_window(connection.xcb(), window);
    }
}

} // namespace quorvel::x11
