#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

#include "base/Color.h"
#include "base/Subscription.h"
#include "platform/x11/painting/PixelImage.h"

namespace quorvel::x11 {

class Connection;

// An icon in the display's system tray (the protocol of trays that embed windows). It appears as soon as a tray runs
// and again in the next one.
class TrayIcon {
public:
    // Draws the icon over the background, which is transparent or what the tray shows there. `textColor` is that of the
    // tray's other icons, if it tells.
    using Drawing = std::function<void(PixelImage& background, const std::optional<Color>& textColor)>;

    TrayIcon(Connection& connection, Drawing drawing, std::function<void()> onClick);
    TrayIcon(const TrayIcon&) = delete;
    TrayIcon& operator=(const TrayIcon&) = delete;
    ~TrayIcon();

    // Draws anew.
    void update();

    // Whether it sits in a tray.
    bool isDocked() const { return window != XCB_WINDOW_NONE; }

private:
    struct Look {
        xcb_visualid_t visual = XCB_NONE;
        std::uint8_t depth = 0;
    };

    void addHandlers();
    void findTray();
    void dock();
    void undock();
    Look readLook() const;
    std::optional<Color> readTextColor() const;
    void createWindow(const Look& look);
    void describeWindow();
    void requestDock() const;
    std::optional<PixelImage> readBackground() const;
    void forgetTray();

    Connection& connection;
    Drawing drawing;
    std::function<void()> onClick;
    xcb_atom_t selection;
    xcb_window_t tray = XCB_WINDOW_NONE;
    xcb_window_t window = XCB_WINDOW_NONE;
    xcb_colormap_t colormap = XCB_COLORMAP_NONE;
    xcb_gcontext_t context = XCB_NONE;
    std::uint8_t depth = 0;
    PixelSize size;
    Subscription trayEvents;
    Subscription windowEvents;
    std::vector<Subscription> handlers;
};

} // namespace quorvel::x11
