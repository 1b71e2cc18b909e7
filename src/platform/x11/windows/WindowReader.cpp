#include "platform/x11/windows/WindowReader.h"

#include <algorithm>
#include <array>
#include <bit>

#include <xcb/res.h>

#include "platform/x11/Connection.h"
#include "platform/x11/Contains.h"
#include "platform/x11/Properties.h"
#include "platform/x11/windows/WindowAncestry.h"
#include "platform/x11/windows/WindowProperties.h"

namespace quorvel::x11 {

namespace {

constexpr std::uint32_t withdrawnState = 0;

// Where a window lies in the root, without its border.
struct Place {
    RootRect rect;
    std::int32_t border = 0;
};

class PendingGeometry {
public:
    PendingGeometry(Connection& connection, xcb_window_t window)
        : geometry(connection.xcb(), xcb_get_geometry(connection.xcb(), window)),
          origin(connection.xcb(), xcb_translate_coordinates(connection.xcb(), window, connection.root(), 0, 0))
    {}

    std::optional<Place> take()
    {
        const auto size = geometry.take();
        const auto corner = origin.take();
        if (!size || !corner) {
            return std::nullopt;
        }
        return Place{{static_cast<double>(corner->dst_x), static_cast<double>(corner->dst_y),
                      static_cast<double>(size->width), static_cast<double>(size->height)},
                     size->border_width};
    }

private:
    PendingReply<xcb_get_geometry_reply> geometry;
    PendingReply<xcb_translate_coordinates_reply> origin;
};

struct PendingWindow {
    PendingWindow(Connection& connection, xcb_window_t window)
        : place(connection, window),
          attributes(connection.xcb(), xcb_get_window_attributes(connection.xcb(), window)),
          frame(requestProperty(connection.xcb(), window, connection.atoms().netFrameExtents)),
          shadow(requestProperty(connection.xcb(), window, connection.atoms().gtkFrameExtents)),
          netState(requestProperty(connection.xcb(), window, connection.atoms().netWmState)),
          wmState(requestProperty(connection.xcb(), window, connection.atoms().wmState)),
          desktop(requestProperty(connection.xcb(), window, connection.atoms().netWmDesktop)),
          hints(requestProperty(connection.xcb(), window, XCB_ATOM_WM_NORMAL_HINTS)),
          netName(requestProperty(connection.xcb(), window, connection.atoms().netWmName)),
          name(requestProperty(connection.xcb(), window, XCB_ATOM_WM_NAME))
    {}

    PendingGeometry place;
    PendingReply<xcb_get_window_attributes_reply> attributes;
    PendingProperty frame;
    PendingProperty shadow;
    PendingProperty netState;
    PendingProperty wmState;
    PendingProperty desktop;
    PendingProperty hints;
    PendingProperty netName;
    PendingProperty name;
};

struct PendingIdentity {
    PendingIdentity(Connection& connection, xcb_window_t window)
        : window(window),
          type(requestProperty(connection.xcb(), window, connection.atoms().netWmWindowType)),
          wmClass(requestProperty(connection.xcb(), window, XCB_ATOM_WM_CLASS)),
          namedProcess(requestProperty(connection.xcb(), window, connection.atoms().netWmPid))
    {
        if (connection.extension(&xcb_res_id) != nullptr) {
            const xcb_res_client_id_spec_t spec{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
            clientIds = {connection.xcb(), xcb_res_query_client_ids(connection.xcb(), 1, &spec)};
        }
    }

    xcb_window_t window;
    PendingProperty type;
    PendingProperty wmClass;
    PendingProperty namedProcess;
    PendingReply<xcb_res_query_client_ids_reply> clientIds;
};

std::optional<ProcessId> localProcess(const xcb_res_query_client_ids_reply_t* reply)
{
    if (reply == nullptr) {
        return std::nullopt;
    }
    for (auto ids = xcb_res_query_client_ids_ids_iterator(reply); ids.rem > 0; xcb_res_client_id_value_next(&ids)) {
        if ((ids.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0 &&
            xcb_res_client_id_value_value_length(ids.data) > 0) {
            return static_cast<ProcessId>(*xcb_res_client_id_value_value(ids.data));
        }
    }
    return std::nullopt;
}

} // namespace

WindowReader::WindowReader(Connection& connection, const WindowAncestry& ancestry)
    : connection(connection),
      ancestry(ancestry),
      destructions(connection.addArrivalHandler<xcb_destroy_notify_event_t>(
          XCB_DESTROY_NOTIFY, [this](const auto& event) { identities.erase(event.window); }))
{}

std::vector<std::optional<WindowSnapshot>> WindowReader::read(std::span<const xcb_window_t> windows)
{
    const auto& atoms = connection.atoms();
    std::vector<PendingWindow> pending;
    pending.reserve(windows.size());
    for (const auto window : windows) {
        pending.emplace_back(connection, window);
    }
    readIdentities(windows);

    std::vector<std::optional<WindowSnapshot>> snapshots(windows.size());
    std::vector<std::size_t> undescribed;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        auto& source = pending[i];
        const auto place = source.place.take();
        const auto attributes = source.attributes.take();
        if (!place || !attributes) {
            identities.erase(windows[i]);
            continue;
        }
        auto& snapshot = snapshots[i].emplace();
        snapshot.identity = identities[windows[i]].identity;
        snapshot.client = place->rect;
        snapshot.mapState = attributes->map_state;
        const auto frame = extentsOf(cardinals(source.frame.take().get()));
        if (frame && *frame != Extents{}) {
            snapshot.frame = *frame;
            snapshot.isFrameDescribed = true;
        } else {
            undescribed.push_back(i);
        }
        snapshot.shadow = shadowOf(cardinals(source.shadow.take().get()), snapshot.client.size());
        const auto states = cardinals(source.netState.take().get());
        snapshot.isHidden = contains(states, atoms.netWmStateHidden);
        snapshot.isFullscreen = contains(states, atoms.netWmStateFullscreen);
        snapshot.isMaximized =
            contains(states, atoms.netWmStateMaximizedHorz) || contains(states, atoms.netWmStateMaximizedVert);
        snapshot.isManaged = cardinal(source.wmState.take().get()) != withdrawnState;
        const auto desktop = cardinals(source.desktop.take().get());
        snapshot.desktop = desktop.empty() ? allDesktops : desktop.front();
        snapshot.hasSizeIncrements = hasSizeIncrements(cardinals(source.hints.take().get()));
        const auto netName = text(source.netName.take().get());
        snapshot.title = netName.empty() ? text(source.name.take().get()) : netName;
    }
    measureFrames(windows, snapshots, undescribed);
    return snapshots;
}

// Where the window manager does not say how wide its frame is, or says that it is nothing, the frame is measured:
// client and frame at the same moment, for either may be moving.
void WindowReader::measureFrames(std::span<const xcb_window_t> windows,
                                 std::vector<std::optional<WindowSnapshot>>& snapshots,
                                 std::span<const std::size_t> undescribed)
{
    std::vector<PendingGeometry> pendingClients;
    std::vector<PendingGeometry> pendingFrames;
    for (const auto i : undescribed) {
        pendingClients.emplace_back(connection, windows[i]);
        pendingFrames.emplace_back(connection, ancestry.topLevel(windows[i]));
    }
    for (std::size_t i = 0; i < undescribed.size(); ++i) {
        const auto client = pendingClients[i].take();
        const auto frame = pendingFrames[i].take();
        if (client && frame) {
            const double border = frame->border;
            const auto outer = frame->rect.insetBy(-border, -border);
            auto& snapshot = *snapshots[undescribed[i]];
            snapshot.client = client->rect;
            snapshot.border = client->border;
            snapshot.frame = {static_cast<std::int32_t>(client->rect.minX() - outer.minX()),
                              static_cast<std::int32_t>(outer.maxX() - client->rect.maxX()),
                              static_cast<std::int32_t>(client->rect.minY() - outer.minY()),
                              static_cast<std::int32_t>(outer.maxY() - client->rect.maxY())};
        }
    }
}

std::vector<xcb_window_t> WindowReader::topLevels()
{
    PendingReply<xcb_query_tree_reply> pending(connection.xcb(), xcb_query_tree(connection.xcb(), connection.root()));
    const auto tree = pending.take();
    if (!tree) {
        return {};
    }
    const auto* const children = xcb_query_tree_children(tree.get());
    return {children, children + tree->children_len};
}

void WindowReader::readIdentities(std::span<const xcb_window_t> windows)
{
    std::vector<PendingIdentity> pending;
    for (const auto window : windows) {
        if (!identities.contains(window)) {
            identities[window].selection = connection.selectEvents(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
            pending.emplace_back(connection, window);
        }
    }
    for (auto& source : pending) {
        auto& identity = identities[source.window].identity;
        identity.kind = kindOf(cardinals(source.type.take().get()));
        const auto names = classNamesOf(text(source.wmClass.take().get()));
        identity.instance = names.instance;
        identity.className = names.className;
        const auto named = static_cast<ProcessId>(cardinal(source.namedProcess.take().get()));
        const auto stranger = named > 0 ? named : clientNumber(source.window);
        identity.process = localProcess(source.clientIds.take().get()).value_or(stranger);
    }
}

// A window lists its types in order of preference; those that nobody knows are passed over.
WindowKind WindowReader::kindOf(std::span<const std::uint32_t> types) const
{
    const auto& atoms = connection.atoms();
    const std::array kinds = {
        std::pair{atoms.netWmWindowTypeNormal, WindowKind::normal},
        std::pair{atoms.netWmWindowTypeDialog, WindowKind::dialog},
        std::pair{atoms.netWmWindowTypeUtility, WindowKind::utility},
        std::pair{atoms.netWmWindowTypeDock, WindowKind::dock},
        std::pair{atoms.netWmWindowTypeDesktop, WindowKind::desktop},
        std::pair{atoms.netWmWindowTypeToolbar, WindowKind::other},
        std::pair{atoms.netWmWindowTypeMenu, WindowKind::other},
        std::pair{atoms.netWmWindowTypeSplash, WindowKind::other},
        std::pair{atoms.netWmWindowTypeNotification, WindowKind::other},
    };
    for (const auto type : types) {
        const auto known = std::ranges::find(kinds, type, &std::pair<xcb_atom_t, WindowKind>::first);
        if (known != kinds.end()) {
            return known->second;
        }
    }
    return WindowKind::normal;
}

// A client's windows share the upper bits of their numbers.
ProcessId WindowReader::clientNumber(xcb_window_t window) const
{
    const auto ownBits = xcb_get_setup(connection.xcb())->resource_id_mask;
    return -static_cast<ProcessId>(window >> std::bit_width(ownBits));
}

} // namespace quorvel::x11
