#include "e2e/TitledWindows.h"

namespace quorvel::e2e {

std::vector<xcb_window_t> TitledWindows::with(const std::string& title)
{
    auto windows = display.client.managedWindows();
    std::erase_if(windows, [&](xcb_window_t window) {
        return display.client.textProperty(window, "_NET_WM_NAME") != title || !display.client.isViewable(window);
    });
    return windows;
}

xcb_window_t TitledWindows::waitUntilActive(const std::string& title)
{
    xcb_window_t active = XCB_NONE;
    display.client.waitFor("the window \"" + title + "\"", [&] {
        const auto windows = with(title);
        active = windows.size() == 1 ? windows.front() : xcb_window_t{XCB_NONE};
        return active != XCB_NONE && display.client.activeWindow() == active &&
               display.client.focusedWindow() == active;
    });
    return active;
}

void TitledWindows::waitUntilClosed(const std::string& title)
{
    display.client.waitFor("\"" + title + "\" to close", [&] { return with(title).empty(); });
}

} // namespace quorvel::e2e
