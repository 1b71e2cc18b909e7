#include "latency/TopLevels.h"

#include <algorithm>
#include <ranges>
#include <span>

#include "support/XReply.h"

namespace quorvel::bench {

using xtest::PixelRect;
using xtest::XReply;

namespace {

constexpr int leastSide = 8;

} // namespace

void TopLevels::read(xcb_connection_t* xcb, xcb_window_t root)
{
    rootWindow = root;
    const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(xcb, xcb_query_tree(xcb, root), nullptr));
    for (const auto window : std::span(xcb_query_tree_children(tree.get()),
                                       static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())))) {
        const XReply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(xcb, xcb_get_geometry(xcb, window), nullptr));
        const XReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(xcb, xcb_get_window_attributes(xcb, window), nullptr));
        if (geometry && attributes) {
            windows[window] = {{geometry->x, geometry->y, geometry->width, geometry->height},
                               attributes->map_state == XCB_MAP_STATE_VIEWABLE};
        }
    }
}

void TopLevels::follow(const xcb_generic_event_t& event)
{
    switch (event.response_type & 0x7F) {
    case XCB_CREATE_NOTIFY: {
        const auto& created = reinterpret_cast<const xcb_create_notify_event_t&>(event);
        windows[created.window] = {{created.x, created.y, created.width, created.height}, false};
        break;
    }
    case XCB_CONFIGURE_NOTIFY: {
        const auto& configured = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        windows[configured.window].frame = {configured.x, configured.y, configured.width, configured.height};
        break;
    }
    case XCB_MAP_NOTIFY:
        windows[reinterpret_cast<const xcb_map_notify_event_t&>(event).window].isMapped = true;
        break;
    case XCB_UNMAP_NOTIFY:
        windows[reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window].isMapped = false;
        break;
    case XCB_DESTROY_NOTIFY:
        windows.erase(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        break;
    case XCB_REPARENT_NOTIFY: {
        const auto& reparented = reinterpret_cast<const xcb_reparent_notify_event_t&>(event);
        if (reparented.parent != rootWindow) {
            windows.erase(reparented.window);
        }
        break;
    }
    default:
        break;
    }
}

PixelRect TopLevels::frameOf(xcb_window_t window) const
{
    const auto found = windows.find(window);
    return found == windows.end() ? PixelRect() : found->second.frame;
}

std::size_t TopLevels::visibleCount() const
{
    return static_cast<std::size_t>(std::ranges::count_if(windows | std::views::values, [](const TopLevel& window) {
        return window.isMapped && isLargeEnoughToSee(window.frame);
    }));
}

bool TopLevels::isLargeEnoughToSee(const PixelRect& frame)
{
    return frame.width >= leastSide && frame.height >= leastSide;
}

} // namespace quorvel::bench
