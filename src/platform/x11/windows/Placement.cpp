#include "platform/x11/windows/Placement.h"

namespace quorvel::x11 {

namespace {

constexpr int mostCorrections = 2;

PlacementOffset cornerOfClient(const WindowSnapshot& window)
{
    return {window.frame.left - window.border, window.frame.top - window.border, 0, 0};
}

bool isBound(const WindowSnapshot& window)
{
    return window.isMaximized || window.isFullscreen;
}

// A frame that is measured while the window manager moves it and the client, one after the other, is none.
bool hasCertainFrame(const WindowSnapshot& window)
{
    return window.isFrameDescribed || window.frame == Extents{};
}

} // namespace

Placement::Step Placement::begin(const WindowSnapshot& window)
{
    return isBound(window) ? leaveState(window) : Step{.geometry = request(window)};
}

// Out of full screen a window gets its frame back. A request that is made before covers the whole screen without a
// frame, which some window managers take for the wish to be full-screen again.
Placement::Step Placement::leaveState(const WindowSnapshot& window)
{
    frameToLose = window.isFullscreen ? std::optional(window.frame) : std::nullopt;
    return {.leavesState = true, .geometry = {}};
}

Placement::Step Placement::reconsider(const WindowSnapshot& window)
{
    if (isBound(window) || frameToLose == window.frame || !hasCertainFrame(window)) {
        return {};
    }
    const auto previous = lastRequest;
    const auto next = request(window);
    return next == previous ? Step{} : Step{.geometry = next};
}

// What came of a request tells something of the window manager only if the window still has the frame that the request
// reckoned with.
Placement::Step Placement::settle(const WindowSnapshot& window)
{
    const auto offset = openOffset(window);
    hasProof = anchor == Anchor::client && offset.x == 0 && offset.y == 0;
    if (isFulfilledBy(window) || corrections == mostCorrections) {
        return {};
    }
    if (isBound(window)) {
        ++corrections;
        return leaveState(window);
    }
    if (!lastRequest) {
        return {.geometry = request(window)};
    }
    ++corrections;
    const auto previous = lastRequest;
    if (const auto next = request(window); next != previous) {
        return {.geometry = next};
    }
    correct(offset, window);
    return {.geometry = request(window)};
}

// A full-screen window may well cover its target; it would still not stay there.
bool Placement::isFulfilledBy(const WindowSnapshot& window) const
{
    return !isBound(window) && openOffset(window) == PlacementOffset{};
}

// A window that is sized in steps gets the size that its window manager chooses.
PlacementOffset Placement::openOffset(const WindowSnapshot& window) const
{
    auto offset = offsetTo(target, window);
    if (window.hasSizeIncrements) {
        offset.width = 0;
        offset.height = 0;
    }
    return offset;
}

void Placement::correct(const PlacementOffset& offset, const WindowSnapshot& window)
{
    if (anchor == Anchor::frame && offset == cornerOfClient(window)) {
        anchor = Anchor::client;
    } else {
        correction = correction + offset;
    }
}

WindowManager::Geometry Placement::request(const WindowSnapshot& window)
{
    const auto base = anchor == Anchor::client ? cornerOfClient(window) : PlacementOffset{};
    const auto geometry = placementRequest(target, window, base + correction);
    lastRequest = geometry;
    frameToLose.reset();
    return geometry;
}

} // namespace quorvel::x11
