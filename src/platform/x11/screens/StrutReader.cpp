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
        if (strut && attributes->map_state == XCB_MAP_STATE_VIEWABLE) {
            struts.push_back(*strut);
        }
    }
    panels = std::move(watched); // the new ones are in place before the old ones go
    return struts;
}

std::vector<xcb_window_t> StrutReader::candidates()
{
    PendingReply<xcb_query_tree_reply> tree(connection.xcb(), xcb_query_tree(connection.xcb(), connection.root()));
    auto windows = rootProperties.clientList.values();
    if (const auto reply = tree.take()) {
        const auto* const children = xcb_query_tree_children(reply.get());
        windows.insert(windows.end(), children, children + reply->children_len);
    }
    std::ranges::sort(windows);
    const auto repeated = std::ranges::unique(windows);
    windows.erase(repeated.begin(), repeated.end());
    return windows;
}

} // namespace quorvel::x11
