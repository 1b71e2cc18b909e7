// The floor under every placement: Super+F10 sends one request that moves and resizes a window, alternating between two
// outer rectangles.
//
//   minimal_place WINDOW x,y,width,height x,y,width,height

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <X11/keysym.h>

#include "minimal/XcbSession.h"

namespace quorvel::bench {
namespace {

struct Frame {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

bool parse(const char* text, Frame& frame)
{
    return std::sscanf(text, "%d,%d,%d,%d", &frame.x, &frame.y, &frame.width, &frame.height) == 4;
}

std::array<int, 4> frameExtents(const XcbSession& session, xcb_window_t window, xcb_atom_t property)
{
    std::array<int, 4> extents{};
    auto* xcb = session.connection();
    const auto cookie = xcb_get_property(xcb, 0, window, property, XCB_ATOM_CARDINAL, 0, 4);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
        xcb_get_property_reply(xcb, cookie, nullptr), &std::free);
    if (reply && reply->format == 32 && reply->value_len == 4) {
        std::memcpy(extents.data(), xcb_get_property_value(reply.get()), sizeof(extents));
    }
    return extents;
}

void run(xcb_window_t window, const std::array<Frame, 2>& frames)
{
    const XcbSession session;
    const auto moveResize = session.atom("_NET_MOVERESIZE_WINDOW");
    const auto extentsProperty = session.atom("_NET_FRAME_EXTENTS");
    session.grabKey(session.keycode(XK_F10), XCB_MOD_MASK_4);

    std::size_t next = 0;
    session.answerPresses([&](const xcb_key_press_event_t&) {
        next = 1 - next;
        const auto& frame = frames.at(next);
        const auto [left, right, top, bottom] = frameExtents(session, window, extentsProperty);
        constexpr std::uint32_t allFourFromTheUser = 0xFU << 8U | 2U << 12U;
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = moveResize;
        message.data.data32[0] = allFourFromTheUser | XCB_GRAVITY_NORTH_WEST;
        message.data.data32[1] = static_cast<std::uint32_t>(frame.x);
        message.data.data32[2] = static_cast<std::uint32_t>(frame.y);
        message.data.data32[3] = static_cast<std::uint32_t>(frame.width - left - right);
        message.data.data32[4] = static_cast<std::uint32_t>(frame.height - top - bottom);
        session.sendToWindowManager(message);
    });
}

} // namespace
} // namespace quorvel::bench

int main(int argumentCount, char** arguments)
{
    std::array<quorvel::bench::Frame, 2> frames;
    if (argumentCount != 4 || !quorvel::bench::parse(arguments[2], frames[0]) ||
        !quorvel::bench::parse(arguments[3], frames[1])) {
        std::fputs("usage: minimal_place WINDOW x,y,width,height x,y,width,height\n", stderr);
        return 2;
    }
    quorvel::bench::run(static_cast<xcb_window_t>(std::strtoul(arguments[1], nullptr, 0)), frames);
    return 0;
}
