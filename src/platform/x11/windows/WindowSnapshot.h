#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <xcb/xcb.h>

#include "platform/ProcessId.h"
#include "platform/x11/RootGeometry.h"

namespace quorvel::x11 {

inline constexpr std::uint32_t allDesktops = 0xFFFFFFFF;

// What a window is to a person, after its _NET_WM_WINDOW_TYPE.
enum class WindowKind { normal, dialog, utility, dock, desktop, other };

// How near to a person a window is.
enum class WindowPresence {
    onScreen,
    elsewhere, // on another desktop, or behind a tab
    minimized,
};

// What never changes while a window lives.
struct WindowIdentity {
    // The process at the other end of the window's connection or, where the server does not know it, the one that the
    // window names. A negative number stands for a client of another machine that names none.
    ProcessId process = 0;
    WindowKind kind = WindowKind::normal;
    std::string instance; // of WM_CLASS
    std::string className;
};

// A client window as it was at one moment.
struct WindowSnapshot {
    WindowIdentity identity;
    RootRect client;               // without its X border
    Extents frame;                 // from the client to the outer edge of the window manager's frame
    bool isFrameDescribed = false; // by the window manager, not measured
    std::int32_t border = 0;       // the client's X border, where it is a part of `frame`
    Extents shadow;                // the part of the client that is an invisible shadow
    std::uint8_t mapState = XCB_MAP_STATE_UNMAPPED;
    bool isHidden = false; // minimized
    bool isFullscreen = false;
    bool isMaximized = false;  // in one or both directions
    bool isManaged = false;    // has a WM_STATE other than withdrawn
    std::uint32_t desktop = 0; // or allDesktops
    bool hasSizeIncrements = false;
    std::string title;

    // What a person sees as the window.
    RootRect outer() const
    {
        return {client.x - frame.left + shadow.left, client.y - frame.top + shadow.top,
                client.width + frame.left + frame.right - shadow.left - shadow.right,
                client.height + frame.top + frame.bottom - shadow.top - shadow.bottom};
    }

    // Unmapped by its program, for good as far as anybody can tell.
    bool isWithdrawn() const { return mapState == XCB_MAP_STATE_UNMAPPED && !isManaged; }
};

} // namespace quorvel::x11
