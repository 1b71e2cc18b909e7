// The floor under every change of the active window: Super+F10 sends one request that activates a window, alternating
// between two.
//
//   minimal_focus WINDOW WINDOW

#include <array>
#include <cstdio>
#include <cstdlib>

#include <X11/keysym.h>

#include "minimal/XcbSession.h"

namespace quorvel::bench {
namespace {

void run(const std::array<xcb_window_t, 2>& windows)
{
    const XcbSession session;
    const auto activate = session.atom("_NET_ACTIVE_WINDOW");
    session.grabKey(session.keycode(XK_F10), XCB_MOD_MASK_4);

    std::size_t next = 0;
    session.answerPresses([&](const xcb_key_press_event_t& key) {
        next = 1 - next;
        constexpr std::uint32_t fromTheUser = 2;
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = windows.at(next);
        message.type = activate;
        message.data.data32[0] = fromTheUser;
        message.data.data32[1] = key.time;
        session.sendToWindowManager(message);
    });
}

xcb_window_t windowFrom(const char* text)
{
    return static_cast<xcb_window_t>(std::strtoul(text, nullptr, 0));
}

} // namespace
} // namespace quorvel::bench

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 3) {
        std::fputs("usage: minimal_focus WINDOW WINDOW\n", stderr);
        return 2;
    }
    quorvel::bench::run({quorvel::bench::windowFrom(arguments[1]), quorvel::bench::windowFrom(arguments[2])});
    return 0;
}
