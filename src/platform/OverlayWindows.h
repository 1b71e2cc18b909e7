#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "base/DrawList.h"
#include "base/Geometry.h"
#include "base/Keys.h"
#include "platform/NotificationCenter.h"

namespace quorvel {

// Window levels: a window is always in front of those of a lower level.
namespace windowLevels {
inline constexpr int normal = 0;
inline constexpr int floating = 3;
inline constexpr int status = 25;
inline constexpr int popUpMenu = 101;
} // namespace windowLevels

// Collection behaviour bits.
namespace collectionBehaviors {
inline constexpr unsigned canJoinAllSpaces = 1U << 0U;
inline constexpr unsigned ignoresCycle = 1U << 6U;
inline constexpr unsigned fullScreenAuxiliary = 1U << 8U;
inline constexpr unsigned besideEverything = canJoinAllSpaces | ignoresCycle | fullScreenAuxiliary;
} // namespace collectionBehaviors

// A borderless window without background, in the terms of the platform's window toolkit.
struct WindowDescription {
    ScreenRect contentRect;
    unsigned styleMask = 0; // borderless
    int level = windowLevels::normal;
    unsigned collectionBehavior = 0;
    bool hasShadow = false;
    bool ignoresMouseEvents = true;
    bool isOpaque = false;
    bool isReleasedWhenClosed = false;
    bool isDeferred = false;

    bool operator==(const WindowDescription&) const = default;
};

// A window of this program that shows a draw list. It never takes the keyboard focus. Destroying it closes it.
class OverlayWindow {
public:
    OverlayWindow() = default;
    OverlayWindow(const OverlayWindow&) = delete;
    OverlayWindow& operator=(const OverlayWindow&) = delete;
    virtual ~OverlayWindow() = default;

    virtual ScreenRect frame() const = 0;
    virtual void setFrame(const ScreenRect& frame) = 0;
    virtual void setFrameAutosaveName(std::string_view name) = 0;

    // What the window shows, in coordinates of its own area. A shadow of a shape may reach past the window's edge
    // only where `clipsToBounds` is off; by default it is on.
    virtual void setContent(DrawList content) = 0;
    virtual void setClipsToBounds(bool clips) = 0;

    // Shows the window in front of the others of its level, without activating this program.
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
    virtual void close() = 0;
    virtual bool isVisible() const = 0;

    // The object of notifications about this window.
    virtual NotificationObject notificationObject() const = 0;
};

// An overlay window that can hold the keyboard focus. Its key-downs go to the handler it was created with, from the
// main loop, and nowhere else.
class OverlayPanel : public OverlayWindow {
public:
    // Takes the focus, and keeps it from applications that were activated just before.
    virtual void makeKey() = 0;
    virtual bool isKey() const = 0;
};

class OverlayWindows {
public:
    OverlayWindows() = default;
    OverlayWindows(const OverlayWindows&) = delete;
    OverlayWindows& operator=(const OverlayWindows&) = delete;
    virtual ~OverlayWindows() = default;

    // A window that is not shown yet.
    //
    // X11: an override-redirect window. Where no compositor runs it is cut to its drawn shapes.
    virtual std::unique_ptr<OverlayWindow> createWindow(const WindowDescription& description) = 0;

    virtual std::unique_ptr<OverlayPanel> createPanel(const WindowDescription& description,
                                                      std::function<void(const KeyEvent&)> onKeyDown) = 0;
};

} // namespace quorvel
