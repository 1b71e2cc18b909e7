#include "support/SystemTray.h"

#include <string>

namespace quorvel::xtest {

namespace {

constexpr auto selection = "_NET_SYSTEM_TRAY_S0";
constexpr int height = 24;

} // namespace

SystemTray::SystemTray(const XServer& server, XClient& client, const PixelRect& monitor)
    : client(client), monitor(monitor)
{
    client.watchSelection(selection);
    child = std::make_unique<ChildProcess>(Command{{"trayer", "--edge", "bottom", "--align", "right", "--widthtype",
                                                    "request", "--height", std::to_string(height)},
                                                   server.clientEnvironment()});
    client.waitFor("the tray", [&] { return client.selectionOwner(selection) != XCB_NONE; });
}

bool SystemTray::isInstalled()
{
    return findProgram("trayer").has_value();
}

std::optional<PixelRect> SystemTray::iconOf(pid_t process)
{
    // A tray that is finding its place lies elsewhere for a while.
    const auto isInCorner = [this](const PixelRect& rect) {
        const int right = monitor.x + monitor.width - (rect.x + rect.width);
        const int below = monitor.y + monitor.height - (rect.y + rect.height);
        return right >= 0 && right < height && below >= 0 && below < height;
    };
    const auto icon = iconIn(client.root(), process);
    return icon && isInCorner(*icon) ? icon : std::nullopt;
}

std::optional<PixelRect> SystemTray::iconIn(xcb_window_t window, pid_t process)
{
    const bool isOwn = client.processOf(window) == child->id();
    for (const xcb_window_t inner : client.children(window)) {
        if (isOwn && client.processOf(inner) == process && client.isViewable(inner)) {
            return client.clientRect(inner);
        }
        if (const auto icon = iconIn(inner, process)) {
            return icon;
        }
    }
    return std::nullopt;
}

} // namespace quorvel::xtest
