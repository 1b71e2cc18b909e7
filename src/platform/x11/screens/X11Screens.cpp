#include "platform/x11/screens/X11Screens.h"

#include <algorithm>
#include <array>
#include <chrono>

#include <fmt/format.h>
#include <xcb/randr.h>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/Contains.h"
#include "platform/x11/Properties.h"
#include "platform/x11/RootProperties.h"

namespace quorvel::x11 {

namespace {

using namespace std::chrono_literals;

// Changes of monitors come as several events; one reading after them is enough.
constexpr auto quietTime = 50ms;

std::vector<RootRect> rectangles(const std::vector<std::uint32_t>& values)
{
    std::vector<RootRect> result;
    for (std::size_t i = 0; i + 4 <= values.size(); i += 4) {
        const auto value = [&](std::size_t index) { return static_cast<double>(static_cast<int>(values[i + index])); };
        result.push_back({value(0), value(1), value(2), value(3)});
    }
    return result;
}

} // namespace

X11Screens::X11Screens(Connection& connection, MainQueue& mainQueue, RootProperties& rootProperties)
    : connection(connection),
      mainQueue(mainQueue),
      rootProperties(rootProperties),
      struts(connection, rootProperties),
      i3Socket(connection.atom("I3_SOCKET_PATH")),
      rootSize{static_cast<double>(connection.screen().width_in_pixels),
               static_cast<double>(connection.screen().height_in_pixels)}
{
    watchRoot();
    watchPanels();
    watchMonitors();
}

void X11Screens::watchRoot()
{
    subscriptions.push_back(connection.selectEvents(connection.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY));
    subscriptions.push_back(connection.addHandler<xcb_configure_notify_event_t>(
        XCB_CONFIGURE_NOTIFY, [this](const auto& event) { handleConfigure(event); }));
    subscriptions.push_back(connection.addHandler<xcb_property_notify_event_t>(
        XCB_PROPERTY_NOTIFY, [this](const auto& event) { handlePropertyChange(event); }));
}

void X11Screens::watchPanels()
{
    const auto invalidateFor = [this](const auto& event) {
        if (struts.isPanel(event.window)) {
            invalidate();
        }
    };
    const auto socket = requestProperty(connection.xcb(), connection.root(), i3Socket).take();
    watchFrames(text(socket.get()).empty() ? Presence::absent : Presence::there);
    subscriptions.push_back(connection.addHandler<xcb_map_notify_event_t>(XCB_MAP_NOTIFY, [this](const auto& event) {
        const bool isTopLevel = event.event == this->connection.root() && event.override_redirect == 0;
        if (isTopLevel || struts.isPanel(event.window)) {
            invalidate();
        }
    }));
    subscriptions.push_back(connection.addHandler<xcb_unmap_notify_event_t>(XCB_UNMAP_NOTIFY, invalidateFor));
    subscriptions.push_back(connection.addHandler<xcb_destroy_notify_event_t>(XCB_DESTROY_NOTIFY, invalidateFor));
}

// i3 tells in no property that a panel has come, but its frame is mapped. With other window managers nobody has to wake
// up whenever any window moves.
void X11Screens::watchFrames(Presence i3)
{
    frameEvents = i3 == Presence::there ? connection.selectEvents(connection.root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY)
                                        : Subscription();
}

// Virtual monitors come and go with nothing but a ConfigureNotify of the root; RandR tells of outputs only.
void X11Screens::watchMonitors()
{
    const auto* const randr = connection.extension(&xcb_randr_id);
    if (randr == nullptr) {
        return;
    }
    xcb_randr_select_input(connection.xcb(), connection.root(),
                           XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                               XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
    for (const auto event : {XCB_RANDR_SCREEN_CHANGE_NOTIFY, XCB_RANDR_NOTIFY}) {
        subscriptions.push_back(connection.addEventHandler(static_cast<std::uint8_t>(randr->first_event + event),
                                                           [this](const auto&) { invalidate(); }));
    }
}

std::vector<Screen> X11Screens::screens()
{
    return currentLayout().screens;
}

const ScreenCoordinates& X11Screens::coordinates()
{
    return currentLayout().coordinates;
}

std::optional<Screen> X11Screens::mainScreen()
{
    const auto& current = currentLayout();
    if (current.screens.empty()) {
        return std::nullopt;
    }
    const auto focus = current.coordinates.screenPoint(focusPoint());
    const auto distance = [&](const Screen& screen) {
        const double dx = std::max({screen.frame.minX() - focus.x, 0.0, focus.x - screen.frame.maxX()});
        const double dy = std::max({screen.frame.minY() - focus.y, 0.0, focus.y - screen.frame.maxY()});
        return dx * dx + dy * dy;
    };
    return std::ranges::min(current.screens, {}, distance);
}

// The middle of the active window or, without one, the pointer.
RootPoint X11Screens::focusPoint()
{
    auto* const xcb = connection.xcb();
    const xcb_window_t active = rootProperties.activeWindow.value();
    PendingReply<xcb_query_pointer_reply> pointer(xcb, xcb_query_pointer(xcb, connection.root()));
    if (active != XCB_NONE) {
        PendingReply<xcb_get_geometry_reply> pendingGeometry(xcb, xcb_get_geometry(xcb, active));
        PendingReply<xcb_translate_coordinates_reply> pendingOrigin(
            xcb, xcb_translate_coordinates(xcb, active, connection.root(), 0, 0));
        const auto geometry = pendingGeometry.take();
        const auto origin = pendingOrigin.take();
        if (geometry && origin) {
            return {origin->dst_x + geometry->width / 2.0, origin->dst_y + geometry->height / 2.0};
        }
    }
    const auto position = pointer.take();
    return position ? RootPoint{static_cast<double>(position->root_x), static_cast<double>(position->root_y)}
                    : RootPoint{};
}

const ScreenLayout& X11Screens::currentLayout()
{
    if (!layout) {
        layout = readLayout();
    }
    return *layout;
}

ScreenLayout X11Screens::readLayout()
{
    return screenLayout(monitors());
}

std::vector<MonitorWithWorkArea> X11Screens::monitors()
{
    const auto present = readMonitors();
    const auto workAreas = readWorkAreas(present.size());
    const auto reserved = struts.read(rootSize);
    std::vector<MonitorWithWorkArea> result;
    for (const auto& monitor : present) {
        const auto left = workArea(monitor.area, reserved, rootSize);
        result.push_back({monitor, limitedToWorkArea(left, monitor.area, workAreas)});
    }
    return result;
}

std::vector<Monitor> X11Screens::readMonitors() const
{
    auto* const xcb = connection.xcb();
    const RootRect wholeRoot = RootRect::of({}, rootSize);
    if (connection.extension(&xcb_randr_id) == nullptr) {
        return {{connection.root(), wholeRoot}};
    }
    PendingReply<xcb_randr_get_monitors_reply> pending(xcb, xcb_randr_get_monitors(xcb, connection.root(), 1));
    const auto reply = pending.take();
    if (!reply) {
        return {{connection.root(), wholeRoot}};
    }
    std::vector<Monitor> monitors;
    for (auto entry = xcb_randr_get_monitors_monitors_iterator(reply.get()); entry.rem > 0;
         xcb_randr_monitor_info_next(&entry)) {
        const RootRect area{static_cast<double>(entry.data->x), static_cast<double>(entry.data->y),
                            static_cast<double>(entry.data->width), static_cast<double>(entry.data->height)};
        const bool mirrorsAnother = contains(monitors, area, &Monitor::area);
        if (mirrorsAnother || area.area() <= 0.0) {
            continue;
        }
        const auto place = entry.data->primary != 0 ? monitors.begin() : monitors.end();
        monitors.insert(place, {entry.data->name, area});
    }
    return monitors;
}

// A window manager's word on what is free, where it can be trusted: one rectangle for each monitor, or a single one
// that is about the only monitor.
std::vector<RootRect> X11Screens::readWorkAreas(std::size_t monitorCount)
{
    const auto desktop = rootProperties.currentDesktop.value();
    gtkWorkareas = connection.atom(fmt::format("_GTK_WORKAREAS_D{}", desktop));
    auto areas = rectangles(cardinals(requestProperty(connection.xcb(), connection.root(), gtkWorkareas).take().get()));
    if (areas.empty() && monitorCount == 1 &&
        contains(rootProperties.supported.values(), connection.atoms().netWorkarea)) {
        const auto ofDesktops = rectangles(rootProperties.workarea.values());
        if (desktop < ofDesktops.size()) {
            areas.push_back(ofDesktops[desktop]);
        }
    }
    return areas;
}

void X11Screens::invalidate()
{
    layout.reset();
    if (isRefreshDue) {
        return;
    }
    isRefreshDue = true;
    mainQueue.after(quietTime, weakGuard.guard([this] {
        isRefreshDue = false;
        currentLayout();
    }));
}

void X11Screens::handleConfigure(const xcb_configure_notify_event_t& event)
{
    if (event.window == connection.root()) {
        rootSize = {static_cast<double>(event.width), static_cast<double>(event.height)};
        invalidate();
    }
}

void X11Screens::handlePropertyChange(const xcb_property_notify_event_t& event)
{
    if (event.window == connection.root() && event.atom == i3Socket) {
        watchFrames(event.state == XCB_PROPERTY_NEW_VALUE ? Presence::there : Presence::absent);
        invalidate();
    }
    const auto& atoms = connection.atoms();
    const bool concernsPanel = event.atom == atoms.netWmStrut || event.atom == atoms.netWmStrutPartial;
    const bool concernsDesktop =
        event.window == connection.root() && contains(std::array{atoms.netClientList, atoms.netCurrentDesktop,
                                                                 atoms.netWorkarea, atoms.netSupported, gtkWorkareas},
                                                      event.atom);
    if (concernsPanel || concernsDesktop) {
        invalidate();
    }
}

} // namespace quorvel::x11
