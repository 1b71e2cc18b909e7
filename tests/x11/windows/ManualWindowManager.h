#pragma once

#include <deque>
#include <functional>
#include <map>
#include <vector>

#include "support/PixelRect.h"
#include "x11/windows/Announcer.h"

namespace quorvel::x11 {

// A window manager that takes its time: what it is asked for waits until the test lets it obey. Windows are in frames
// of which no property tells.
class ManualWindowManager {
public:
    explicit ManualWindowManager(const xtest::XServer& server);

    // Carries out all that it has been asked for by now.
    void obey();

    // What _NET_MOVERESIZE_WINDOW has asked for, as far as it has been obeyed: the frame's corner, the client's size.
    const std::vector<xtest::PixelRect>& placements() const { return obeyed; }

    // Puts the window into a frame with these widths; the client stays where it is.
    void enclose(xcb_window_t window, const xtest::FrameExtents& widths);

    // One after the other, as all do it.
    void sizeClient(xcb_window_t window, int width, int height);
    void moveFrame(xcb_window_t window, const xtest::PixelRect& rect);

    xtest::XClient& client() { return connection; }

private:
    struct Frame {
        xcb_window_t window = XCB_NONE;
        xtest::FrameExtents widths;
    };

    void note(const xcb_generic_event_t& event);
    void handle(const xcb_client_message_event_t& message);
    void handle(const xcb_configure_request_event_t& request);
    void configure(xcb_window_t window, const xtest::PixelRect& rect);

    xtest::XClient connection;
    Announcer announcer;
    std::deque<std::function<void()>> waiting;
    std::vector<xtest::PixelRect> obeyed;
    std::map<xcb_window_t, Frame> frames;
};

} // namespace quorvel::x11
