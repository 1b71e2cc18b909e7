#pragma once

#include <functional>

#include <xcb/xcb.h>

#include "base/Subscription.h"

namespace quorvel::x11 {

class Connection;

// Follows whether a compositing manager runs. Without one a window cannot blend with what is behind it.
class CompositorWatch {
public:
    // `onChange` runs from the main loop when a compositing manager comes or goes.
    CompositorWatch(Connection& connection, std::function<void()> onChange);

    bool isRunning() const { return running; }

private:
    void watch();
    bool readOwner() const;

    Connection& connection;
    std::function<void()> onChange;
    xcb_atom_t selection;
    bool running = false;
    Subscription ownerChanges;
};

} // namespace quorvel::x11
