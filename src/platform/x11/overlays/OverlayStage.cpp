#include "platform/x11/overlays/OverlayStage.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/Precedence.h"
#include "platform/x11/overlays/OverlaySurface.h"
#include "platform/x11/painting/CollapsedList.h"
#include "platform/x11/painting/OpaqueList.h"
#include "platform/x11/painting/PixelAlignment.h"
#include "platform/x11/screens/X11Screens.h"

namespace quorvel::x11 {

namespace {

// What the protocol's 16-bit coordinates hold. Written so that a number that is none is cut, too.
int coordinate(double value)
{
    constexpr double limit = 32767.0;
    return static_cast<int>(value > -limit ? std::round(std::min(value, limit)) : -limit);
}

} // namespace

OverlayStage::OverlayStage(Connection& connection, MainQueue& mainQueue, Precedence& precedence, X11Screens& screens,
                           OverlayGraphics& graphics, const TextLayouts& layouts)
    : connection(connection),
      graphics(graphics),
      stacking(connection, mainQueue),
      mainQueue(mainQueue),
      precedence(precedence),
      screens(screens),
      painter(layouts),
      pictures(painter),
      compositor(connection, [this] { invalidate(); }),
      spareWindows(connection),
      exposures(
          connection.addEventHandler(XCB_EXPOSE, [this](const xcb_generic_event_t& event) { handleExpose(event); }))
{
    mainQueue.async(weakGuard.guard([this] { warmUp(); }));
}

OverlayStage::~OverlayStage()
{
    takeAwayDisposed();
}

void OverlayStage::add(OverlaySurface& surface)
{
    surfaces.push_back(&surface);
}

void OverlayStage::remove(OverlaySurface& surface)
{
    std::erase(surfaces, &surface);
    std::erase(scheduled, &surface);
}

void OverlayStage::dispose(xcb_window_t window, Subscription events, Reuse reuse)
{
    if (disposed.empty()) {
        precedence.afterwards(weakGuard.guard([this] { takeAwayDisposed(); }));
    }
    disposed.push_back({window, std::move(events), reuse});
}

void OverlayStage::takeAwayDisposed()
{
    for (auto& [window, events, reuse] : std::exchange(disposed, {})) {
        events.reset();
        if (reuse == Reuse::possible) {
            spareWindows.keep(window);
        } else {
            xcb_destroy_window(connection.xcb(), window);
        }
    }
}

void OverlayStage::schedule(OverlaySurface& surface)
{
    if (scheduled.empty()) {
        mainQueue.async(weakGuard.guard([this] { commit(); }));
    }
    if (std::ranges::find(scheduled, &surface) == scheduled.end()) {
        scheduled.push_back(&surface);
    }
}

void OverlayStage::commit()
{
    takeAwayDisposed();
    for (auto* const surface : scheduled) {
        surface->prepare();
    }
    for (auto* const surface : scheduled) {
        surface->show();
    }
    scheduled.clear();
}

Blending OverlayStage::blending() const
{
    return compositor.isRunning() ? Blending::available : Blending::unavailable;
}

PixelRect OverlayStage::rootRect(const ScreenRect& frame) const
{
    const auto rect = screens.coordinates().rootRect(frame);
    const int left = coordinate(rect.minX());
    const int top = coordinate(rect.minY());
    return {left, top, std::max(coordinate(rect.maxX()) - left, 1), std::max(coordinate(rect.maxY()) - top, 1)};
}

PaintPlan OverlayStage::plan(const DrawList& content, Size viewSize, PixelSize windowSize, Blending blending)
{
    constexpr double scale = 1.0; // a point is a pixel of the root window
    auto list = alignedToPixels(content, viewSize, windowSize, scale);
    if (blending == Blending::unavailable) {
        list = withoutBlending(list);
    }
    const auto collapsedList = collapsed(list, windowSize);
    return paintPlan(pictures.picture(collapsedList, blending), collapsedList.columns, collapsedList.rows);
}

void OverlayStage::invalidate()
{
    takeAwayDisposed(); // which blend as the others did
    spareWindows.destroyAll();
    for (auto* const surface : surfaces) {
        surface->invalidate();
    }
}

void OverlayStage::handleExpose(const xcb_generic_event_t& event)
{
    const auto& expose = reinterpret_cast<const xcb_expose_event_t&>(event);
    const auto exposed = std::ranges::find(surfaces, expose.window, &OverlaySurface::window);
    if (expose.count == 0 && exposed != surfaces.end()) {
        (*exposed)->expose(event.full_sequence);
    }
}

// The first text costs a hundred times as much as the next one, because fonts are looked up and read. That must not
// fall into the moment when a person waits for the first overlay.
void OverlayStage::warmUp()
{
    DrawList list;
    for (const auto weight : {FontWeight::regular, FontWeight::semibold, FontWeight::bold}) {
        TextCommand command;
        command.text = "ABCDEFGHIJKLMNOPQRSTUVWXYZ abcdefghijklmnopqrstuvwxyz 0123456789…";
        command.font.weight = weight;
        command.box = {0.0, 0.0, 1.0, 1.0};
        list.commands.emplace_back(command);
    }
    PixelImage image({1, 1});
    painter.paint(image, list);
}

} // namespace quorvel::x11
