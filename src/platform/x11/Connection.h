#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <expected>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "platform/x11/Atoms.h"
#include "platform/x11/EventMasks.h"
#include "platform/x11/Reply.h"
#include "platform/x11/RequestErrors.h"

namespace quorvel::x11 {

// The program's one connection to the X server. Main thread only.
//
// Requests are sent with the plain xcb functions on xcb(); they leave when the loop is about to wait, or at flush().
// Errors of unchecked requests are reported in one line on standard error each, unless they are of the kinds that a
// window causes by vanishing (see isExpected()). Events that other clients have forged are dropped.
class Connection {
public:
    using EventHandler = std::function<void(const xcb_generic_event_t&)>;

    // Connects to the display of that name, or for null to the one that $DISPLAY names. The error is a text for people.
    static std::expected<std::unique_ptr<Connection>, std::string> open(const char* displayName);

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    xcb_connection_t* xcb() const { return connection; }
    const xcb_screen_t& screen() const { return *defaultScreen; }
    int screenNumber() const { return defaultScreenNumber; }
    xcb_window_t root() const { return defaultScreen->root; }
    const Atoms& atoms() const { return internedAtoms; }

    // An atom that is not among atoms(); waits for the server the first time.
    xcb_atom_t atom(std::string_view name);

    // What the server says about an extension (&xcb_randr_id and its like), or null if it lacks it.
    const xcb_query_extension_reply_t* extension(xcb_extension_t* identity) const;

    void flush();

    // Waits until the server has carried out every request so far.
    void sync();

    // Calls the handler from the main loop with every event of that type (a response type without the bit that marks
    // sent events; for extensions their first event plus the event's number; XCB_GE_GENERIC for generic events).
    Subscription addEventHandler(std::uint8_t type, EventHandler handler);

    // The same, with the event as its own type.
    template <class Event>
    Subscription addHandler(std::uint8_t type, std::function<void(const Event&)> handler)
    {
        return addEventHandler(type, typed(std::move(handler)));
    }

    // Calls the handler with every event of that type as soon as it has been read from the server, which may be long
    // before its turn has come: for those who must not believe any longer what they know.
    template <class Event>
    Subscription addArrivalHandler(std::uint8_t type, std::function<void(const Event&)> handler)
    {
        return add(arrivalHandlers, type, typed(std::move(handler)));
    }

    // Waits until the server has carried out every request so far, and lets the events that it has sent by then arrive.
    // They are handled in their turn.
    void catchUp();

    // The same without waiting: the events that came before the last reply arrive.
    void takeArrived();

    // Asks for events of a window until the token goes. All that select on one window get what they asked for; nobody
    // may set an event mask in any other way.
    Subscription selectEvents(xcb_window_t window, std::uint32_t mask);

    // Runs once, from the main loop, when the server went away. Nothing can be asked of it any more then.
    void setLostHandler(std::function<void()> handler) { onLost = std::move(handler); }

    // For the loop: whether an event has been read that nobody has handled yet. Never reads from the server.
    bool hasQueuedEvent();

    // For the loop: reads what the server sent and calls the handlers of every event.
    void dispatchEvents();

    // For the loop: the server went away and nobody was told yet.
    bool hasFailed() const { return !lost && xcb_connection_has_error(connection) != 0; }

    // For the loop: it is about to wait. Sends what is waiting to be sent.
    void beginTurn();

    // Counts the loop's turns. What was read in this turn need not be read again in it.
    std::uint64_t turn() const { return turnNumber; }

    bool isLost() const { return lost; }

private:
    struct Handler {
        EventHandler function;
        bool isActive = true;
    };
    using Handlers = std::vector<std::shared_ptr<Handler>>;
    using HandlerTable = std::array<Handlers, 128>;

    template <class Event>
    static EventHandler typed(std::function<void(const Event&)> handler)
    {
        return [handler = std::move(handler)](const xcb_generic_event_t& event) {
            handler(reinterpret_cast<const Event&>(event));
        };
    }

    Connection(xcb_connection_t* connection, int screenNumber);

    static Subscription add(HandlerTable& table, std::uint8_t type, EventHandler function);
    static void call(const HandlerTable& table, const xcb_generic_event_t& event);

    bool receive(xcb_generic_event_t* event);
    Reply<xcb_generic_event_t> nextEvent();
    void handle(const xcb_generic_event_t& event);
    void report(const xcb_generic_error_t& error) const;
    void checkForLoss();
    void changeEventMask(xcb_window_t window, std::uint32_t mask);

    xcb_connection_t* connection;
    int defaultScreenNumber;
    xcb_screen_t* defaultScreen = nullptr;
    Atoms internedAtoms;
    std::unordered_map<std::string, xcb_atom_t> otherAtoms;
    std::vector<ExtensionName> extensionNames;
    EventMasks eventMasks;
    HandlerTable handlers;
    HandlerTable arrivalHandlers;
    std::deque<Reply<xcb_generic_event_t>> arrived; // and not handled yet
    std::function<void()> onLost;
    std::uint64_t turnNumber = 0;
    bool lost = false;
};

} // namespace quorvel::x11
