#pragma once

#include <expected>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <xcb/xcb.h>

#include "base/Signal.h"
#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/x11/keys/KeyMapping.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Connection;

// The server's keyboard, followed as people switch layouts, plug in keyboards and load other key maps.
class Keyboard {
public:
    // The error is a text for people.
    static std::expected<std::unique_ptr<Keyboard>, std::string> open(Connection& connection, MainQueue& mainQueue);

    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;
    ~Keyboard();

    // The map of this moment; valid until the loop turns.
    const KeyMapping& mapping() const { return *current; }

    // The layout of this moment as a state without modifiers.
    KeyState layoutState() const { return KeyMapping::layoutState(layout); }

    // The number of the layout of this moment, from 0.
    unsigned layoutNumber() const { return layout; }

    // Runs the handler after every change of the map, until the token goes.
    Subscription observeMapping(std::function<void()> handler) { return mappingChanged.observe(std::move(handler)); }

private:
    Keyboard(Connection& connection, MainQueue& mainQueue);

    std::expected<void, std::string> start();
    void selectEvents();
    void catchUp();
    void reload();
    void scheduleReload();
    std::unique_ptr<KeyMapping> readMapping() const;
    void handleXkbEvent(const xcb_generic_event_t& event);

    Connection& connection;
    MainQueue& mainQueue;
    XkbContext context;
    std::int32_t device = 0;
    std::unique_ptr<KeyMapping> current;
    unsigned layout = 0;
    bool isReloadScheduled = false;
    Signal<> mappingChanged;
    std::vector<Subscription> subscriptions;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
