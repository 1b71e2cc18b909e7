#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

#include "base/DrawList.h"
#include "base/Geometry.h"
#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/x11/overlays/CompositorWatch.h"
#include "platform/x11/overlays/OverlayGraphics.h"
#include "platform/x11/overlays/OverlayStacking.h"
#include "platform/x11/overlays/SpareWindows.h"
#include "platform/x11/painting/Painter.h"
#include "platform/x11/painting/PictureCache.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Connection;
class OverlaySurface;
class Precedence;
class X11Screens;

// What the overlay windows have in common: when they reach the server, how they are drawn, and in which order they lie.
class OverlayStage {
public:
    OverlayStage(Connection& connection, MainQueue& mainQueue, Precedence& precedence, X11Screens& screens,
                 OverlayGraphics& graphics, const TextLayouts& layouts);
    OverlayStage(const OverlayStage&) = delete;
    OverlayStage& operator=(const OverlayStage&) = delete;
    ~OverlayStage();

    void add(OverlaySurface& surface);
    void remove(OverlaySurface& surface);

    enum class Reuse { possible, impossible }; // possible: lets clicks through and blends as all do at present

    // Takes a closed window away, after what a person waits for and before anything new is shown. `events` are those
    // selected on it.
    void dispose(xcb_window_t window, Subscription events, Reuse reuse);

    // A window to be shown again, if there is one; it lies anywhere.
    std::optional<xcb_window_t> takeSpareWindow() { return spareWindows.take(); }

    // Has the surface commit itself before the main loop waits the next time.
    void schedule(OverlaySurface& surface);

    Blending blending() const;

    // The whole pixels that a frame covers; at least one.
    PixelRect rootRect(const ScreenRect& frame) const;

    // How a window of that size shows what a view of that many points draws.
    PaintPlan plan(const DrawList& content, Size viewSize, PixelSize windowSize, Blending blending);

    Connection& connection;
    OverlayGraphics& graphics;
    OverlayStacking stacking;

private:
    struct Disposed {
        xcb_window_t window;
        Subscription events;
        Reuse reuse;
    };

    void commit();
    void takeAwayDisposed();
    void invalidate();
    void handleExpose(const xcb_generic_event_t& event);
    void warmUp();

    MainQueue& mainQueue;
    Precedence& precedence;
    X11Screens& screens;
    Painter painter;
    PictureCache pictures;
    CompositorWatch compositor;
    std::vector<OverlaySurface*> surfaces;
    std::vector<OverlaySurface*> scheduled;
    std::vector<Disposed> disposed;
    SpareWindows spareWindows;
    Subscription exposures;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
