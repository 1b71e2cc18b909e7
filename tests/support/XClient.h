#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <xcb/res.h>
#include <xcb/xcb.h>

#include "support/PixelRect.h"
#include "support/XReply.h"
#include "support/XServer.h"

namespace quorvel::xtest {

// The four sides of a window's frame, in pixels.
struct FrameExtents {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;

    bool operator==(const FrameExtents&) const = default;
};

// The test's eyes: a connection that watches every window of the display, reads what the server knows and waits for the
// server to tell of changes. A window that vanished reads as absent; any other X error throws at the next wait.
class XClient {
public:
    explicit XClient(const XServer& server);
    XClient(const XClient&) = delete;
    ~XClient();

    XClient& operator=(const XClient&) = delete;

    xcb_connection_t* connection() const { return link.get(); }
    const xcb_screen_t& screen() const { return *screenInfo; }
    xcb_window_t root() const { return screenInfo->root; }
    xcb_atom_t atom(const std::string& name);
    std::string atomName(xcb_atom_t atom);

    // Evaluates the predicate now and after every batch of X events until it holds. Throws HarnessError naming `what`
    // after Deadline::patience.
    void waitFor(const std::string& what, const std::function<bool()>& predicate);

    // Handles the events that have arrived; true when there was one.
    bool handleEvents();

    // Gets events for painting, too, so that waitFor can wait for pixels.
    void watchPainting();

    // Gets events when the selection changes hands.
    void watchSelection(const std::string& selection);
    xcb_window_t selectionOwner(const std::string& selection);

    // Called for each event that waitFor or handleEvents meets; replaces the earlier observer.
    void observeEvents(std::function<void(const xcb_generic_event_t&)> observer)
    {
        eventObserver = std::move(observer);
    }

    std::vector<std::uint32_t> property(xcb_window_t window, const std::string& name);
    std::string textProperty(xcb_window_t window, const std::string& name);
    bool hasProperty(xcb_window_t window, const std::string& name);
    void setProperty(xcb_window_t window, const std::string& name, xcb_atom_t type,
                     const std::vector<std::uint32_t>& values);
    void setTextProperty(xcb_window_t window, const std::string& name, const std::string& text);

    // Sends a message to the root as window managers expect them; flushed at once.
    void sendToWindowManager(xcb_window_t window, const std::string& type, const std::array<std::uint32_t, 5>& data);

    std::vector<xcb_window_t> children(xcb_window_t window);
    std::optional<xcb_window_t> parent(xcb_window_t window);
    bool exists(xcb_window_t window);
    bool isViewable(xcb_window_t window);
    bool overridesRedirect(xcb_window_t window);

    // The window without its X border; nothing when it is gone.
    std::optional<PixelRect> clientRect(xcb_window_t window);

    // The child of the root that holds the window, with its border: the frame as the server has it.
    xcb_window_t topLevelOf(xcb_window_t window);
    std::optional<PixelRect> topLevelRect(xcb_window_t window);

    // What a person sees as the window: client and decoration, without invisible shadows.
    std::optional<PixelRect> outerRect(xcb_window_t window);
    FrameExtents frameExtents(xcb_window_t window);
    FrameExtents shadowExtents(xcb_window_t window);

    // The clients that the window manager lists, in order of mapping.
    std::vector<xcb_window_t> managedWindows();
    xcb_window_t activeWindow();

    // Asks the window manager to give the window the focus, as a task bar does, and waits until it has.
    void activate(xcb_window_t window);
    bool hasState(xcb_window_t window, const std::string& state);

    // What panels leave of the root, as the window manager tells of the first desktop.
    PixelRect workArea();
    xcb_window_t focusedWindow();

    // The process that made the window, as the server knows it; 0 when unknown.
    pid_t processOf(xcb_window_t window);

    // The process's visible children of the root, bottom to top: its override-redirect windows and, without a window
    // manager, all others.
    std::vector<xcb_window_t> topLevelsOfProcess(pid_t process);

    // A round trip: everything sent before it has been carried out.
    void sync();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void watch(xcb_window_t window);
    void handle(const xcb_generic_event_t& event);

    // Questions of which several can be on their way: whether a window is viewable, and which process made it.
    bool answerOf(xcb_get_window_attributes_cookie_t cookie);
    xcb_res_query_client_ids_cookie_t askForProcess(xcb_window_t window);
    pid_t answerOf(xcb_res_query_client_ids_cookie_t cookie);

    XReply<xcb_get_property_reply_t> rawProperty(xcb_window_t window, const std::string& name);

    std::unique_ptr<xcb_connection_t, Disconnect> link;
    const xcb_screen_t* screenInfo = nullptr;
    std::map<std::string, xcb_atom_t> atoms;
    std::uint8_t damageEvent = 0;
    std::function<void(const xcb_generic_event_t&)> eventObserver;
};

} // namespace quorvel::xtest
