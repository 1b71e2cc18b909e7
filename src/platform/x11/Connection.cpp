#include "platform/x11/Connection.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <fmt/format.h>
#include <xcb/randr.h>
#include <xcb/res.h>
#include <xcb/shape.h>
#include <xcb/xfixes.h>
#include <xcb/xinput.h>

#include "platform/x11/ServerLoss.h"

namespace quorvel::x11 {

namespace {

constexpr std::uint8_t sentEventBit = 0x80;

struct Extension {
    xcb_extension_t* identity;
    const char* name;
};

// libxcb gives the extensions' names to nobody; these are the ones that the adapters use.
const std::array extensions = {
    Extension{&xcb_randr_id, "RANDR"},   Extension{&xcb_res_id, "X-Resource"}, Extension{&xcb_shape_id, "SHAPE"},
    Extension{&xcb_xfixes_id, "XFIXES"}, Extension{&xcb_input_id, "XInput"},
};

// Any client can send any event to any window. Only of these kinds some are meant to be sent: messages, and the places
// that window managers tell of. Nobody may take over what such an event says without asking the server.
bool isForged(const xcb_generic_event_t& event)
{
    const auto type = static_cast<std::uint8_t>(event.response_type & ~sentEventBit);
    return type != event.response_type && type != XCB_CLIENT_MESSAGE && type != XCB_CONFIGURE_NOTIFY;
}

std::string failureText(int error, const char* displayName)
{
    const char* const environment = std::getenv("DISPLAY");
    const char* const name = displayName != nullptr ? displayName : environment;
    if (name == nullptr || *name == '\0') {
        return "No X display: the environment variable DISPLAY is not set.";
    }
    switch (error) {
    case XCB_CONN_CLOSED_PARSE_ERR:
        return fmt::format("\"{}\" is not the name of an X display.", name);
    case XCB_CONN_CLOSED_INVALID_SCREEN:
        return fmt::format("The X display \"{}\" has no such screen.", name);
    default:
        return fmt::format("Cannot connect to the X display \"{}\".", name);
    }
}

} // namespace

std::expected<std::unique_ptr<Connection>, std::string> Connection::open(const char* displayName)
{
    int screenNumber = 0;
    auto* const connection = xcb_connect(displayName, &screenNumber);
    if (const int error = xcb_connection_has_error(connection); error != 0) {
        xcb_disconnect(connection);
        return std::unexpected(failureText(error, displayName));
    }
    std::unique_ptr<Connection> opened(new Connection(connection, screenNumber));
    if (xcb_connection_has_error(connection) != 0) {
        return std::unexpected(failureText(XCB_CONN_ERROR, displayName));
    }
    return opened;
}

Connection::Connection(xcb_connection_t* connection, int screenNumber)
    : connection(connection), defaultScreenNumber(screenNumber)
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int i = 0; i < screenNumber && screens.rem > 1; ++i) {
        xcb_screen_next(&screens);
    }
    defaultScreen = screens.data;
    for (const auto& known : extensions) {
        xcb_prefetch_extension_data(connection, known.identity);
    }
    internedAtoms = internAtoms(connection);
    for (const auto& known : extensions) {
        if (const auto* const present = extension(known.identity)) {
            extensionNames.push_back({present->major_opcode, known.name});
        }
    }
}

Connection::~Connection()
{
    xcb_disconnect(connection);
}

xcb_atom_t Connection::atom(std::string_view name)
{
    std::string key(name);
    if (const auto known = otherAtoms.find(key); known != otherAtoms.end()) {
        return known->second;
    }
    PendingReply<xcb_intern_atom_reply> pending(
        connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()));
    const auto reply = pending.take();
    const auto atom = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    otherAtoms.emplace(std::move(key), atom);
    return atom;
}

const xcb_query_extension_reply_t* Connection::extension(xcb_extension_t* identity) const
{
    const auto* const data = xcb_get_extension_data(connection, identity);
    return data != nullptr && data->present != 0 ? data : nullptr;
}

void Connection::flush()
{
    xcb_flush(connection);
}

void Connection::sync()
{
    PendingReply<xcb_get_input_focus_reply>(connection, xcb_get_input_focus(connection)).take();
}

void Connection::beginTurn()
{
    ++turnNumber;
    flush();
}

void Connection::catchUp()
{
    sync();
    takeArrived();
}

void Connection::takeArrived()
{
    while (receive(xcb_poll_for_queued_event(connection))) {
    }
}

Subscription Connection::addEventHandler(std::uint8_t type, EventHandler function)
{
    return add(handlers, type, std::move(function));
}

Subscription Connection::add(HandlerTable& table, std::uint8_t type, EventHandler function)
{
    auto handler = std::make_shared<Handler>(std::move(function));
    auto& list = table.at(type);
    list.push_back(handler);
    return Subscription([&list, handler = std::move(handler)] {
        handler->isActive = false;
        std::erase(list, handler);
    });
}

Subscription Connection::selectEvents(xcb_window_t window, std::uint32_t mask)
{
    changeEventMask(window, eventMasks.add(window, mask));
    return Subscription([this, window, mask] { changeEventMask(window, eventMasks.remove(window, mask)); });
}

void Connection::changeEventMask(xcb_window_t window, std::uint32_t mask)
{
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &mask);
}

bool Connection::hasQueuedEvent()
{
    while (arrived.empty()) {
        if (!receive(xcb_poll_for_queued_event(connection))) {
            return false;
        }
    }
    return true;
}

// Takes the event over; false if there is none.
bool Connection::receive(xcb_generic_event_t* event)
{
    if (event == nullptr) {
        return false;
    }
    Reply<xcb_generic_event_t> received(event);
    if (isForged(*received)) {
        return true;
    }
    arrived.push_back(std::move(received));
    if (event->response_type != 0) {
        call(arrivalHandlers, *event);
    }
    return true;
}

Reply<xcb_generic_event_t> Connection::nextEvent()
{
    while (arrived.empty()) {
        if (!receive(xcb_poll_for_event(connection))) {
            return nullptr;
        }
    }
    auto event = std::move(arrived.front());
    arrived.pop_front();
    return event;
}

void Connection::dispatchEvents()
{
    while (const auto event = nextEvent()) {
        handle(*event);
    }
    checkForLoss();
}

void Connection::handle(const xcb_generic_event_t& event)
{
    if (event.response_type == 0) {
        report(reinterpret_cast<const xcb_generic_error_t&>(event));
        return;
    }
    call(handlers, event);
}

void Connection::call(const HandlerTable& table, const xcb_generic_event_t& event)
{
    const auto& registered = table[event.response_type & ~sentEventBit];
    const std::vector called(registered.begin(), registered.end()); // handlers come and go meanwhile
    for (const auto& handler : called) {
        if (handler->isActive) {
            handler->function(event);
        }
    }
}

void Connection::report(const xcb_generic_error_t& error) const
{
    if (!isExpected(error)) {
        fmt::print(stderr, "{}\n", describe(error, extensionNames));
    }
}

void Connection::checkForLoss()
{
    if (!hasFailed()) {
        return;
    }
    lost = true;
    fmt::print(stderr, "{}\n", serverLossLine);
    if (auto handler = std::exchange(onLost, nullptr)) {
        handler();
    }
}

} // namespace quorvel::x11
