#include "support/SystemTray.h"

namespace quorvel::xtest {

namespace {

constexpr auto selection = "_NET_SYSTEM_TRAY_S0";

}

SystemTray::SystemTray(const XServer& server, XClient& client) : client(client)
{
    client.watchSelection(selection);
    child = std::make_unique<ChildProcess>(
        Command{{"trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request", "--height", "24"},
                server.clientEnvironment()});
    client.waitFor("the tray", [&] { return client.selectionOwner(selection) != XCB_NONE; });
}

bool SystemTray::isInstalled()
{
    return findProgram("trayer").has_value();
}

std::optional<PixelRect> SystemTray::iconOf(pid_t process)
{
    // A tray that is finding its place lies outside of the display for a while.
    const auto icon = iconIn(client.root(), process);
    return icon && icon->x >= 0 && icon->y >= 0 ? icon : std::nullopt;
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
