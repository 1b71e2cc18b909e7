#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <xcb/shape.h>

#include "platform/x11/Connection.h"
#include "platform/x11/ConnectionSource.h"
#include "platform/x11/GlibMainLoop.h"
#include "platform/x11/Precedence.h"
#include "platform/x11/RootProperties.h"
#include "platform/x11/keys/Keyboard.h"
#include "platform/x11/overlays/OverlayGraphics.h"
#include "platform/x11/overlays/X11OverlayWindows.h"
#include "platform/x11/screens/X11Screens.h"
#include "platform/x11/windows/TypingPause.h"
#include "platform/x11/windows/WindowManagerBarrier.h"
#include "support/Compositor.h"
#include "support/Patience.h"
#include "support/Screenshot.h"
#include "support/TestDisplay.h"
#include "support/TestWindow.h"

namespace quorvel::x11 {

// The overlay windows on a display of the test's own, 1920 by 1080.
class OverlayTest : public testing::Test {
protected:
    static constexpr double displayHeight = 1080.0;

    // Turns the main loop until the predicate holds.
    void waitFor(const std::string& what, const std::function<bool()>& predicate)
    {
        const xtest::Deadline deadline;
        while (!predicate()) {
            if (deadline.hasPassed()) {
                throw xtest::HarnessError("waited in vain for " + what);
            }
            turn();
        }
    }

    // One turn of the main loop, with everything that it sends carried out.
    void turn()
    {
        loop.turn();
        connection->flush();
        std::free(xcb_get_input_focus_reply(connection->xcb(), xcb_get_input_focus(connection->xcb()), nullptr));
        display.client.handleEvents();
        display.client.sync();
    }

    // Lets everything arrive that has been caused so far. Four turns: an event, its handling, the answer, its echo.
    void settle()
    {
        for (int count = 0; count < 4; ++count) {
            turn();
        }
    }

    static ScreenRect flipped(const xtest::PixelRect& rect)
    {
        const auto points = rect.inPoints();
        return {points.x, displayHeight - points.maxY(), points.width, points.height};
    }

    std::unique_ptr<OverlayWindow> createWindow(const xtest::PixelRect& rect, int level = windowLevels::popUpMenu)
    {
        return windows.createWindow({.contentRect = flipped(rect), .level = level});
    }

    std::unique_ptr<OverlayWindow> showWindow(const xtest::PixelRect& rect, const DrawList& content,
                                              int level = windowLevels::popUpMenu)
    {
        auto window = createWindow(rect, level);
        window->setContent(content);
        window->orderFrontRegardless();
        settle();
        return window;
    }

    // The windows of the program under test that are shown, bottom to top.
    std::vector<xcb_window_t> shownWindows()
    {
        const auto& setup = *xcb_get_setup(connection->xcb());
        auto children = display.client.children(display.client.root());
        std::erase_if(children, [&](xcb_window_t window) {
            return (window & ~setup.resource_id_mask) != setup.resource_id_base || !display.client.isViewable(window);
        });
        return children;
    }

    // All viewable children of the root, bottom to top.
    std::vector<xcb_window_t> visibleWindows()
    {
        auto children = display.client.children(display.client.root());
        std::erase_if(children, [&](xcb_window_t window) { return !display.client.isViewable(window); });
        return children;
    }

    int depth(xcb_window_t window)
    {
        auto* const client = display.client.connection();
        const Reply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(client, xcb_get_geometry(client, window), nullptr));
        return geometry->depth;
    }

    std::vector<PixelRect> shape(xcb_window_t window, xcb_shape_sk_t kind)
    {
        auto* const client = display.client.connection();
        const Reply<xcb_shape_get_rectangles_reply_t> reply(
            xcb_shape_get_rectangles_reply(client, xcb_shape_get_rectangles(client, window, kind), nullptr));
        std::vector<PixelRect> rects;
        const auto* const first = xcb_shape_get_rectangles_rectangles(reply.get());
        for (int i = 0; i < xcb_shape_get_rectangles_rectangles_length(reply.get()); ++i) {
            rects.push_back({first[i].x, first[i].y, first[i].width, first[i].height});
        }
        return rects;
    }

    std::uint32_t pixel(int x, int y) { return xtest::Screenshot(display.client, {x, y, 1, 1}).pixel(x, y); }

    xtest::TestDisplay display;
    std::unique_ptr<Connection> connection = Connection::open(display.server.display().c_str()).value();
    GlibMainLoop loop;
    ConnectionSource source{*connection};
    Precedence precedence{loop};
    RootProperties rootProperties{*connection};
    X11Screens screens{*connection, loop, rootProperties};
    std::unique_ptr<Keyboard> keyboard = Keyboard::open(*connection, loop).value();
    std::unique_ptr<OverlayGraphics> graphics = OverlayGraphics::create(*connection).value();
    TextLayouts layouts{"DejaVu Sans"};
    WindowManager windowManager{*connection, loop, rootProperties};
    WindowManagerBarrier barrier{*connection, windowManager};
    TypingPause typingPause{*connection, loop, barrier};
    X11OverlayWindows windows{*connection, loop, precedence, screens, *keyboard, typingPause, *graphics, layouts};
};

} // namespace quorvel::x11
