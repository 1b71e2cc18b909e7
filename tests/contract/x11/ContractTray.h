#pragma once

#include <xcb/xcb.h>

#include "support/XClient.h"
#include "support/XServer.h"

namespace quorvel::contract {

// A system tray with room for one icon.
class ContractTray {
public:
    explicit ContractTray(const xtest::XServer& server);

    // The icon that has asked for its place by now, shown there; XCB_WINDOW_NONE if there is none.
    xcb_window_t icon();

private:
    void handle(const xcb_client_message_event_t& message);
    void announce();

    xtest::XClient client;
    xcb_window_t window;
    xcb_window_t docked = XCB_WINDOW_NONE;
};

} // namespace quorvel::contract
