#pragma once

#include "support/XClient.h"

namespace quorvel::x11 {

// A window manager as others see it, whose successor always gets its window number.
class Announcer {
public:
    explicit Announcer(const xtest::XServer& server) : client(server), window(xcb_generate_id(client.connection())) {}

    void begin()
    {
        xcb_create_window(client.connection(), 0, window, client.root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          XCB_COPY_FROM_PARENT, 0, nullptr);
        client.setProperty(client.root(), "_NET_SUPPORTED", XCB_ATOM_ATOM, {client.atom("_NET_MOVERESIZE_WINDOW")});
        announce(client.root());
    }

    // Some do this the other way round.
    void announceOnItsWindow() { announce(window); }

    void end()
    {
        xcb_destroy_window(client.connection(), window);
        client.sync();
    }

private:
    void announce(xcb_window_t where)
    {
        client.setProperty(where, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, {window});
        client.sync();
    }

    xtest::XClient client;
    xcb_window_t window;
};

} // namespace quorvel::x11
