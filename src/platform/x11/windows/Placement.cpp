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

} // namespace

Placement::Step Placement::begin(const WindowSnapshot& window)
{
    return isBound(window) ? Step{.leavesState = true, .geometry = {}} : Step{.geometry = request(window)};
}

Placement::Step Placement::reconsider(const WindowSnapshot& window)
{
    if (isBound(window)) {
        return {};
    }
    const auto previous = lastRequest;
    const auto next = request(window);
    return next == previous ? Step{} : Step{.geometry = next};
}

Placement::Step Placement::settle(const WindowSnapshot& window)
{
    const auto offset = openOffset(window);
    hasProof = anchor == Anchor::client && offset.x == 0 && offset.y == 0;
    if (offset == PlacementOffset{} || corrections == mostCorrections) {
        return {};
    }
    ++corrections;
    if (isBound(window)) {
        return {.leavesState = true, .geometry = request(window)};
    }
    if (lastRequest) {
        correct(offset, window);
    }
    return {.geometry = request(window)};
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
    return geometry;
}

} // namespace quorvel::x11
