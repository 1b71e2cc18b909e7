// The floor under every overlay: Super+F9 maps six windows that were drawn beforehand, Escape unmaps them.
//
//   minimal_overlay opaque|alpha

#include <array>
#include <cstdio>
#include <string_view>
#include <vector>

#include <X11/keysym.h>
#include <xcb/shape.h>

#include "minimal/XcbSession.h"

namespace quorvel::bench {
namespace {

struct Visual {
    std::uint8_t depth = 0;
    xcb_visualid_t id = 0;
};

Visual visualFor(const XcbSession& session, bool alpha)
{
    if (alpha) {
        for (auto depth = xcb_screen_allowed_depths_iterator(&session.screen()); depth.rem != 0;
             xcb_depth_next(&depth)) {
            if (depth.data->depth == 32) {
                return {32, xcb_depth_visuals_iterator(depth.data).data->visual_id};
            }
        }
    }
    return {session.screen().root_depth, session.screen().root_visual};
}

xcb_window_t preparedWindow(const XcbSession& session, const Visual& visual, const xcb_rectangle_t& frame)
{
    auto* xcb = session.connection();
    const auto colormap = xcb_generate_id(xcb);
    xcb_create_colormap(xcb, XCB_COLORMAP_ALLOC_NONE, colormap, session.root(), visual.id);

    const auto pixmap = xcb_generate_id(xcb);
    xcb_create_pixmap(xcb, visual.depth, pixmap, session.root(), frame.width, frame.height);
    const auto context = xcb_generate_id(xcb);
    const std::uint32_t fill = 0x60003C6B;
    xcb_create_gc(xcb, context, pixmap, XCB_GC_FOREGROUND, &fill);
    const xcb_rectangle_t whole{0, 0, frame.width, frame.height};
    xcb_poly_fill_rectangle(xcb, pixmap, context, 1, &whole);
    const std::uint32_t badge = 0xFFFFFFFF;
    xcb_change_gc(xcb, context, XCB_GC_FOREGROUND, &badge);
    const xcb_rectangle_t middle{static_cast<std::int16_t>(frame.width / 2 - 30),
                                 static_cast<std::int16_t>(frame.height / 2 - 30), 60, 60};
    xcb_poly_fill_rectangle(xcb, pixmap, context, 1, &middle);
    xcb_free_gc(xcb, context);

    const auto window = xcb_generate_id(xcb);
    const std::array<std::uint32_t, 4> values{pixmap, 0, 1, colormap};
    xcb_create_window(xcb, visual.depth, window, session.root(), frame.x, frame.y, frame.width, frame.height, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, visual.id,
                      XCB_CW_BACK_PIXMAP | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP,
                      values.data());
    xcb_shape_rectangles(xcb, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED, window, 0, 0, 0,
                         nullptr);
    return window;
}

void run(bool alpha)
{
    const XcbSession session;
    auto* xcb = session.connection();
    const auto visual = visualFor(session, alpha);
    constexpr int windowCount = 6;
    std::vector<xcb_window_t> windows;
    windows.reserve(windowCount);
    for (int index = 0; index < windowCount; ++index) {
        windows.push_back(preparedWindow(session, visual,
                                         {static_cast<std::int16_t>(20 + index % 3 * 620),
                                          static_cast<std::int16_t>(20 + index / 3 * 520), 600, 500}));
    }
    const auto hotKey = session.keycode(XK_F9);
    const auto escape = session.keycode(XK_Escape);
    session.grabKey(hotKey, XCB_MOD_MASK_4);

    bool shown = false;
    session.answerPresses([&](const xcb_key_press_event_t& key) {
        if (key.detail == hotKey && !shown) {
            for (const auto window : windows) {
                xcb_map_window(xcb, window);
            }
            xcb_grab_keyboard_unchecked(xcb, 0, session.root(), key.time, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
            shown = true;
        } else if (key.detail == escape && shown) {
            for (const auto window : windows) {
                xcb_unmap_window(xcb, window);
            }
            xcb_ungrab_keyboard(xcb, key.time);
            shown = false;
        }
    });
}

} // namespace
} // namespace quorvel::bench

int main(int argumentCount, char** arguments)
{
    const std::string_view mode = argumentCount == 2 ? arguments[1] : "";
    if (mode != "opaque" && mode != "alpha") {
        std::fputs("usage: minimal_overlay opaque|alpha\n", stderr);
        return 2;
    }
    quorvel::bench::run(mode == "alpha");
    return 0;
}
