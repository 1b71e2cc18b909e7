#pragma once

#include <optional>

#include "platform/x11/windows/PlacementRequest.h"

namespace quorvel::x11 {

// Which point of a window a window manager puts at the position of a request. The standard says the frame's corner;
// some take the client's.
enum class Anchor { frame, client };

// The steps that bring one window to its target. A window manager may round a size, keep a window inside the screen,
// take the position for something else, or learn late how wide a frame is; what it made of a request is looked at once
// nothing has moved for a while, and put right at most twice.
class Placement {
public:
    Placement(const PlacementTarget& target, Anchor anchor) : target(target), anchor(anchor) {}

    // What to do next: leave the maximized or full-screen state, move to a rectangle, or nothing.
    struct Step {
        bool leavesState = false;
        std::optional<WindowManager::Geometry> geometry;

        bool isEmpty() const { return !leavesState && !geometry; }
    };

    // A maximized or full-screen window cannot be moved: it leaves that state first.
    Step begin(const WindowSnapshot& window);

    // The window's state or the width of its frame has changed.
    Step reconsider(const WindowSnapshot& window);

    // Nothing has moved for a while. An empty step is the end.
    Step settle(const WindowSnapshot& window);

    // The window manager that was asked last is gone: its successor is asked anew.
    Step repeat(const WindowSnapshot& window) { return begin(window); }

    // The window is where it shall be, as exactly as it can.
    bool isFulfilledBy(const WindowSnapshot& window) const;

    bool hasTarget(const PlacementTarget& other) const { return target == other; }

    // The window manager has been asked to bring the window there, not only to let it out of its state.
    bool hasAsked() const { return lastRequest.has_value(); }

    RootRect appliedTo(const RootRect& outer) const { return target.appliedTo(outer); }

    // Whether the window manager has been seen to put clients, not frames, at the position of a request.
    bool hasProvedClientAnchor() const { return hasProof; }

private:
    Step leaveState(const WindowSnapshot& window);
    PlacementOffset openOffset(const WindowSnapshot& window) const;
    WindowManager::Geometry request(const WindowSnapshot& window);
    void correct(const PlacementOffset& offset, const WindowSnapshot& window);

    PlacementTarget target;
    Anchor anchor;
    PlacementOffset correction;
    int corrections = 0;
    bool hasProof = false;
    std::optional<Extents> frameToLose; // that of a window on its way out of full screen
    std::optional<WindowManager::Geometry> lastRequest;
};

} // namespace quorvel::x11
