#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/Geometry.h"

namespace quorvel {

// One display. Two values with the same id are the same display, whatever became of its size.
struct Screen {
    std::uint64_t id = 0;
    ScreenRect frame;
    ScreenRect visibleFrame; // the frame without what menu bars, docks and panels keep for themselves

    bool isSameScreenAs(const Screen& other) const { return id == other.id; }
    bool operator==(const Screen&) const = default;
};

class Screens {
public:
    Screens() = default;
    Screens(const Screens&) = delete;
    Screens& operator=(const Screens&) = delete;
    virtual ~Screens() = default;

    // All displays, the primary one first; its frame's origin is (0, 0). May be empty.
    //
    // X11: `frame` is the monitor without what panels reserve at its left, right and bottom, `visibleFrame` is that
    // without what they reserve at its top. Accessibility coordinates begin at the top of the topmost monitor, and the
    // flip by the first frame's height leads from them to screen coordinates; so the first frame's origin need not be
    // (0, 0).
    virtual std::vector<Screen> screens() = 0;

    // The display with the keyboard focus, if any.
    virtual std::optional<Screen> mainScreen() = 0;
};

} // namespace quorvel
