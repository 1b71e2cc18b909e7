#include "x11/windows/ManualWindowManager.h"

#include <array>
#include <utility>

namespace quorvel::x11 {

using xtest::PixelRect;

ManualWindowManager::ManualWindowManager(const xtest::XServer& server) : connection(server), announcer(server)
{
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection.connection(), connection.root(), XCB_CW_EVENT_MASK, &mask);
    connection.observeEvents([this](const auto& event) { note(event); });
    connection.sync();
    announcer.begin();
    announcer.announceOnItsWindow();
}

void ManualWindowManager::obey()
{
    connection.sync();
    connection.handleEvents();
    for (const auto& work : std::exchange(waiting, {})) {
        work();
    }
    connection.sync();
}

void ManualWindowManager::note(const xcb_generic_event_t& event)
{
    const auto type = event.response_type & 0x7F;
    if (type == XCB_CLIENT_MESSAGE) {
        waiting.emplace_back(
            [this, message = reinterpret_cast<const xcb_client_message_event_t&>(event)] { handle(message); });
    } else if (type == XCB_CONFIGURE_REQUEST) {
        waiting.emplace_back(
            [this, request = reinterpret_cast<const xcb_configure_request_event_t&>(event)] { handle(request); });
    }
}

void ManualWindowManager::handle(const xcb_client_message_event_t& message)
{
    if (message.type != connection.atom("_NET_MOVERESIZE_WINDOW")) {
        return;
    }
    const auto value = [&](std::size_t index) { return static_cast<int>(message.data.data32[index]); };
    const PixelRect asked{value(1), value(2), value(3), value(4)};
    obeyed.push_back(asked);
    const auto& widths = frames[message.window].widths;
    moveFrame(message.window,
              {asked.x, asked.y, asked.width + widths.left + widths.right, asked.height + widths.top + widths.bottom});
    sizeClient(message.window, asked.width, asked.height);
}

// That of a window which is not managed.
void ManualWindowManager::handle(const xcb_configure_request_event_t& request)
{
    configure(request.window, {request.x, request.y, request.width, request.height});
}

void ManualWindowManager::enclose(xcb_window_t window, const xtest::FrameExtents& widths)
{
    const auto client = connection.clientRect(window).value();
    const auto frame = xcb_generate_id(connection.connection());
    xcb_create_window(connection.connection(), 0, frame, connection.root(),
                      static_cast<std::int16_t>(client.x - widths.left),
                      static_cast<std::int16_t>(client.y - widths.top),
                      static_cast<std::uint16_t>(client.width + widths.left + widths.right),
                      static_cast<std::uint16_t>(client.height + widths.top + widths.bottom), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_reparent_window(connection.connection(), window, frame, static_cast<std::int16_t>(widths.left),
                        static_cast<std::int16_t>(widths.top));
    xcb_map_window(connection.connection(), window);
    xcb_map_window(connection.connection(), frame);
    connection.sync();
    frames[window] = {frame, widths};
}

void ManualWindowManager::sizeClient(xcb_window_t window, int width, int height)
{
    const auto& widths = frames[window].widths;
    configure(window, {widths.left, widths.top, width, height});
}

void ManualWindowManager::moveFrame(xcb_window_t window, const PixelRect& rect)
{
    configure(frames[window].window, rect);
}

void ManualWindowManager::configure(xcb_window_t window, const PixelRect& rect)
{
    const std::array values = {static_cast<std::uint32_t>(rect.x), static_cast<std::uint32_t>(rect.y),
                               static_cast<std::uint32_t>(rect.width), static_cast<std::uint32_t>(rect.height)};
    xcb_configure_window(connection.connection(), window,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         values.data());
    connection.sync();
}

} // namespace quorvel::x11
