#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/x11/windows/WindowAncestry.h"
#include "platform/x11/windows/WindowReader.h"

namespace quorvel::x11 {

class Connection;
class RootProperties;

// The windows that the window manager manages. Each is read when somebody asks for it, and again only after the server
// told of a change of it, of its properties or of a frame around it. That no change is on its way is asked once in a
// turn of the loop; of windows that are followed it is taken for granted, for they are asked for when every moment
// counts.
class ClientWindows {
public:
    ClientWindows(Connection& connection, RootProperties& rootProperties);

    // The window as of this turn or, if it is followed, as of the last event that was handled; null if it vanished.
    // Valid until the next call of a method.
    const WindowSnapshot* find(xcb_window_t window);

    // The same for a window that was found with that process; null also if the window is withdrawn or, its number
    // having been given away again, is another one.
    const WindowSnapshot* find(xcb_window_t window, ProcessId process);

    // Has the server tell of all the window's changes (XCB_EVENT_MASK_STRUCTURE_NOTIFY and
    // XCB_EVENT_MASK_PROPERTY_CHANGE) until the token goes.
    Subscription follow(xcb_window_t window);

    // All that have not vanished, front to back.
    std::vector<xcb_window_t> frontToBack();

    // Those of one process: the ones on screen, then those of other desktops, then the minimized ones, each front to
    // back. Of windows in one place that which a person sees comes first.
    std::vector<xcb_window_t> windowsOf(ProcessId process);

    // The window with the keyboard focus, as of the last event that was handled; or XCB_NONE.
    xcb_window_t activeWindow();

    bool isOnCurrentDesktop(const WindowSnapshot& window);
    WindowPresence presenceOf(const WindowSnapshot& window);

private:
    struct Followed {
        int followers = 0;
        Subscription selection;
    };

    // A window as it was read, with the events that tell of changed properties. These are not selected again before the
    // window is read again: one whose properties change all the time wakes the program up once.
    struct Known {
        Subscription properties;
        std::optional<WindowSnapshot> snapshot;
    };

    void beginTurn();
    void catchUp();
    void noteChange(xcb_window_t window);
    void unfollow(xcb_window_t window);
    void read(const std::vector<xcb_window_t>& windows);
    void readOnce(const std::vector<xcb_window_t>& windows);
    void readOrder();

    Connection& connection;
    RootProperties& rootProperties;
    WindowAncestry ancestry;
    WindowReader reader;
    std::unordered_map<xcb_window_t, Known> known;
    std::unordered_map<xcb_window_t, Followed> followed;
    std::optional<std::vector<xcb_window_t>> order;
    std::unordered_map<ProcessId, std::vector<xcb_window_t>> windowsByProcess; // filled with `order`
    std::uint64_t turn = 0;
    bool isUpToDate = false; // as of this turn
    Subscription propertyChanges;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
