#include "platform/x11/overlays/SpareWindows.h"

#include <algorithm>
#include <utility>

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

void SpareWindows::keep(const Window& window)
{
    if (windows.size() == mostWindows) {
        xcb_destroy_window(connection.xcb(), window.id);
        return;
    }
    xcb_unmap_window(connection.xcb(), window.id);
    windows.push_back(window);
}

std::optional<SpareWindows::Window> SpareWindows::take(Blending blending)
{
    const auto found = std::ranges::find(windows, blending, &Window::blending);
    if (found == windows.end()) {
        return std::nullopt;
    }
    const auto window = *found;
    windows.erase(found);
    return window;
}

void SpareWindows::destroyAll()
{
    for (const auto& window : std::exchange(windows, {})) {
        xcb_destroy_window(connection.xcb(), window.id);
    }
}

} // namespace quorvel::x11
