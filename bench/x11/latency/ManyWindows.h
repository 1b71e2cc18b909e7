#pragma once

#include <cstddef>
#include <memory>

#include <xcb/xcb.h>

#include "latency/EventProbe.h"
#include "support/XServer.h"

namespace quorvel::bench {

// Windows of one more program, side by side and on one another, for as long as the object lives.
class ManyWindows {
public:
    ManyWindows(const xtest::XServer& server, EventProbe& probe, std::size_t count);

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void open(std::size_t index, const xcb_screen_t& screen);

    std::unique_ptr<xcb_connection_t, Disconnect> link;
};

} // namespace quorvel::bench
