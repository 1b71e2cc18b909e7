#pragma once

#include <map>
#include <vector>

#include <xcb/xcb.h>

#include "base/Geometry.h"
#include "base/Subscription.h"
#include "platform/x11/screens/MonitorLayout.h"

namespace quorvel::x11 {

class Connection;
class RootProperties;

// Finds what panels reserve. Some panels are clients that the window manager lists; some it does not list: its own
// windows, which are children of the root, and with i3 all others, which are children of a frame.
class StrutReader {
public:
    StrutReader(Connection& connection, RootProperties& rootProperties);

    // The struts of all mapped panels. `root` in pixels. From now on the connection delivers changes of
    // these panels and of all other docks.
    std::vector<Strut> read(Size root);

    // Whether the last reading found the window to be a panel or a dock.
    bool isPanel(xcb_window_t window) const { return panels.contains(window); }

private:
    std::vector<xcb_window_t> candidates();
    std::vector<xcb_window_t> childrenOf(const std::vector<xcb_window_t>& parents);

    Connection& connection;
    RootProperties& rootProperties;
    std::map<xcb_window_t, Subscription> panels;
};

} // namespace quorvel::x11
