#include "platform/x11/windows/WindowManager.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/Contains.h"
#include "platform/x11/Properties.h"
#include "platform/x11/RootProperties.h"

namespace quorvel::x11 {

namespace {

// Requests are made on behalf of the user, as by a pager; window managers keep windows from doing by themselves what
// they let a pager do.
constexpr std::uint32_t sourceIsPager = 2;

constexpr std::uint32_t removeState = 0;
constexpr std::uint32_t iconicState = 3;

constexpr std::uint32_t gravityNorthWest = 1;
constexpr unsigned moveResizeFlagShift = 8;
constexpr unsigned moveResizeSourceShift = 12;

} // namespace

WindowManager::WindowManager(Connection& connection, MainQueue& mainQueue, RootProperties& rootProperties)
    : connection(connection), mainQueue(mainQueue), rootProperties(rootProperties)
{
    subscriptions.push_back(
        connection.addHandler<xcb_destroy_notify_event_t>(XCB_DESTROY_NOTIFY, [this](const auto& event) {
            if (event.window == checkWindow) {
                isGone = true;
                lookSoon();
            }
        }));
    subscriptions.push_back(
        connection.addHandler<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
            const bool isOnEitherWindow = event.window == this->connection.root() || event.window == checkWindow;
            if (isOnEitherWindow && event.atom == this->connection.atoms().netSupportingWmCheck) {
                isAnnounced = true;
                lookSoon();
            }
        }));
}

WindowManager::Identity WindowManager::identity()
{
    follow();
    return isGone ? 0 : latest;
}

Subscription WindowManager::observe(std::function<void()> changed)
{
    told = identity();
    return changes.observe(std::move(changed));
}

// Not at once: the look waits for the server.
void WindowManager::lookSoon()
{
    if (!std::exchange(isLookDue, true)) {
        mainQueue.async(weakGuard.guard([this] { tellOfChange(); }));
    }
}

void WindowManager::tellOfChange()
{
    isLookDue = false;
    const auto present = identity();
    if (std::exchange(told, present) != present) {
        changes.emit();
    }
}

// A window manager that ended without clearing up leaves its properties behind, but not its window. Its successor may
// get the same window number.
void WindowManager::follow()
{
    if (!std::exchange(isAnnounced, false)) {
        return;
    }
    const xcb_window_t announced = rootProperties.supportingWmCheck.value();
    if (announced == checkWindow && !isGone) {
        return;
    }
    checkWindow = announced;
    checkWindowSelection =
        connection.selectEvents(announced, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
    auto pending = requestProperty(connection.xcb(), announced, connection.atoms().netSupportingWmCheck);
    isGone = announced == XCB_NONE || cardinal(pending.take().get()) != announced;
    if (!isGone) {
        ++latest;
    }
}

bool WindowManager::supports(xcb_atom_t feature)
{
    return identity() != 0 && contains(rootProperties.supported.values(), feature);
}

void WindowManager::moveAndResize(xcb_window_t window, const Geometry& geometry)
{
    const std::array parts = {geometry.x, geometry.y, geometry.width, geometry.height};
    std::uint32_t mask = 0; // a bit each for x, y, width and height, the same in both kinds of request
    std::array<std::uint32_t, 5> message{};
    std::vector<std::uint32_t> present;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (parts[i]) {
            mask |= 1U << i;
            message[i + 1] = static_cast<std::uint32_t>(*parts[i]);
            present.push_back(message[i + 1]);
        }
    }
    if (!supports(connection.atoms().netMoveresizeWindow)) {
        xcb_configure_window(connection.xcb(), window, static_cast<std::uint16_t>(mask), present.data());
        connection.flush();
        return;
    }
    message[0] = gravityNorthWest | mask << moveResizeFlagShift | sourceIsPager << moveResizeSourceShift;
    send(window, connection.atoms().netMoveresizeWindow, message);
}

void WindowManager::leaveMaximizedAndFullscreen(xcb_window_t window)
{
    const auto& atoms = connection.atoms();
    send(window, atoms.netWmState, {removeState, atoms.netWmStateFullscreen, XCB_ATOM_NONE, sourceIsPager, 0});
    send(window, atoms.netWmState,
         {removeState, atoms.netWmStateMaximizedVert, atoms.netWmStateMaximizedHorz, sourceIsPager, 0});
}

void WindowManager::minimize(xcb_window_t window)
{
    send(window, connection.atoms().wmChangeState, {iconicState, 0, 0, 0, 0});
}

void WindowManager::showDesktop(std::uint32_t desktop)
{
    send(connection.root(), connection.atoms().netCurrentDesktop, {desktop, XCB_CURRENT_TIME, 0, 0, 0});
}

void WindowManager::activate(xcb_window_t window)
{
    send(window, connection.atoms().netActiveWindow, {sourceIsPager, XCB_CURRENT_TIME, XCB_NONE, 0, 0});
}

void WindowManager::send(xcb_window_t window, xcb_atom_t type, const std::array<std::uint32_t, 5>& data)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = type;
    std::ranges::copy(data, event.data.data32);
    xcb_send_event(connection.xcb(), 0, connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    connection.flush();
}

} // namespace quorvel::x11
