#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>

#include <sys/types.h>

#include "support/XClient.h"

namespace quorvel::soak {

// Counts a program's windows on the screen as the server tells of them, without asking it each time: that would slow
// down what is measured. While it lives it is the client's observer.
class ShownWindows {
public:
    ShownWindows(xtest::XClient& client, pid_t process);
    ShownWindows(const ShownWindows&) = delete;
    ~ShownWindows();

    ShownWindows& operator=(const ShownWindows&) = delete;

    std::size_t count() const { return shown.size(); }

    // How often one has come so far.
    std::size_t arrivals() const { return arrived; }

    void waitUntil(std::size_t wanted);

private:
    void observe(const xcb_generic_event_t& event);
    bool isOwn(xcb_window_t window);

    xtest::XClient& client;
    pid_t process;
    std::map<std::uint32_t, bool> ownConnections; // by the part of an id that is the same for all of a connection
    std::set<xcb_window_t> shown;
    std::size_t arrived = 0;
};

} // namespace quorvel::soak
