#include "contract/x11/ContractTray.h"

namespace quorvel::contract {

namespace {

constexpr std::uint16_t side = 24; // px
constexpr std::uint32_t requestDock = 0;

} // namespace

ContractTray::ContractTray(const xtest::XServer& server) : client(server), window(xcb_generate_id(client.connection()))
{
    client.observeEvents([this](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7F) == XCB_CLIENT_MESSAGE) {
            handle(reinterpret_cast<const xcb_client_message_event_t&>(event));
        }
    });
    const std::uint32_t overrideRedirect = 1;
    xcb_create_window(client.connection(), XCB_COPY_FROM_PARENT, window, client.root(), 0, 0, side, side, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, client.screen().root_visual, XCB_CW_OVERRIDE_REDIRECT,
                      &overrideRedirect);
    xcb_map_window(client.connection(), window);
    announce();
}

xcb_window_t ContractTray::icon()
{
    client.sync();
    client.handleEvents();
    client.sync();
    if (docked != XCB_WINDOW_NONE && !client.exists(docked)) {
        docked = XCB_WINDOW_NONE;
    }
    return docked;
}

void ContractTray::handle(const xcb_client_message_event_t& message)
{
    if (message.window != window || message.type != client.atom("_NET_SYSTEM_TRAY_OPCODE") ||
        message.data.data32[1] != requestDock) {
        return;
    }
    docked = message.data.data32[2];
    xcb_reparent_window(client.connection(), docked, window, 0, 0);
    xcb_map_window(client.connection(), docked);
}

void ContractTray::announce()
{
    const auto selection = client.atom("_NET_SYSTEM_TRAY_S0");
    xcb_set_selection_owner(client.connection(), window, selection, XCB_CURRENT_TIME);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = client.root();
    message.type = client.atom("MANAGER");
    message.data.data32[1] = selection;
    message.data.data32[2] = window;
    xcb_send_event(client.connection(), 0, client.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    client.sync();
}

} // namespace quorvel::contract
