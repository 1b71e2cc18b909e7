#include "platform/x11/screens/StrutReader.h"

#include <algorithm>
#include <utility>

#include "platform/x11/Connection.h"
#include "platform/x11/Contains.h"
#include "platform/x11/Properties.h"
#include "platform/x11/RootProperties.h"

namespace quorvel::x11 {

namespace {

constexpr std::uint32_t panelEvents = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

struct PendingPanel {
    PendingPanel(Connection& connection, xcb_window_t window)
        : window(window),
          attributes(connection.xcb(), xcb_get_window_attributes(connection.xcb(), window)),
          partial(requestProperty(connection.xcb(), window, connection.atoms().netWmStrutPartial)),
          plain(requestProperty(connection.xcb(), window, connection.atoms().netWmStrut)),
          type(requestProperty(connection.xcb(), window, connection.atoms().netWmWindowType))
    {}

    xcb_window_t window;
    PendingReply<xcb_get_window_attributes_reply> attributes;
    PendingProperty partial;
    PendingProperty plain;
    PendingProperty type;
};

} // namespace

StrutReader::StrutReader(Connection& connection, RootProperties& rootProperties)
    : connection(connection), rootProperties(rootProperties)
{}

std::vector<Strut> StrutReader::read(Size root)
{
    std::vector<PendingPanel> pending;
    for (const auto window : candidates()) {
        pending.emplace_back(connection, window);
    }
    std::vector<Strut> struts;
    std::map<xcb_window_t, Subscription> watched;
    for (auto& panel : pending) {
        const auto attributes = panel.attributes.take();
        const auto partial = cardinals(panel.partial.take().get());
        const auto plain = cardinals(panel.plain.take().get());
        const auto types = cardinals(panel.type.take().get());
        if (!attributes) {
            continue;
        }
        const auto strut = strutOf(partial.size() >= 12 ? partial : plain, root);
        if (strut || contains(types, connection.atoms().netWmWindowTypeDock)) {
            watched.emplace(panel.window, connection.selectEvents(panel.window, panelEvents));
        }
        // A panel in a frame that its window manager has taken off the screen comes back when a full-screen window
        // goes.
        if (strut && attributes->map_state != XCB_MAP_STATE_UNMAPPED) {
            struts.push_back(*strut);
        }
    }
    panels = std::move(watched); // the new ones are in place before the old ones go
    return struts;
}

std::vector<xcb_window_t> StrutReader::candidates()
{
    const auto topLevels = childrenOf({connection.root()});
    const auto framed = childrenOf(topLevels);
    auto windows = rootProperties.clientList.values();
    windows.insert(windows.end(), topLevels.begin(), topLevels.end());
    windows.insert(windows.end(), framed.begin(), framed.end());
    std::ranges::sort(windows);
    const auto repeated = std::ranges::unique(windows);
    windows.erase(repeated.begin(), repeated.end());
    return windows;
}

std::vector<xcb_window_t> StrutReader::childrenOf(const std::vector<xcb_window_t>& parents)
{
    std::vector<PendingReply<xcb_query_tree_reply>> pending;
    pending.reserve(parents.size());
    for (const auto parent : parents) {
        pending.emplace_back(connection.xcb(), xcb_query_tree(connection.xcb(), parent));
    }
    std::vector<xcb_window_t> windows;
    for (auto& tree : pending) {
        if (const auto reply = tree.take()) {
            const auto* const children = xcb_query_tree_children(reply.get());
            windows.insert(windows.end(), children, children + reply->children_len);
        }
    }
    return windows;
}

} // namespace quorvel::x11
