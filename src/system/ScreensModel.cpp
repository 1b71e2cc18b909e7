#include "system/ScreensModel.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/FatalError.h"
#include "base/LogText.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/Screens.h"
#include "system/ScreenFlip.h"

namespace quorvel {

namespace {

ScreenRect unionOfFrames(const std::vector<Screen>& screens)
{
    auto globalFrame = ScreenRect::null();
    for (const auto& screen : screens) {
        globalFrame = globalFrame.unitedWith(screen.frame);
    }
    return globalFrame;
}

} // namespace

ScreensModel::ScreensModel(const Platform& platform, std::shared_ptr<CurrentScreen> current)
    : platform(&platform), current(std::move(current))
{}

const std::optional<Screen>& ScreensModel::currentScreen() const
{
    return current->screen;
}

bool ScreensModel::selectScreenForWindowRect(const AxRect& rect)
{
    auto& log = platform->log;
    log.line("windowRect: " + logText(rect));
    const auto screens = platform->screens.screens();
    if (screens.empty()) {
        return false;
    }
    // By the top of all screens, not by the primary's height as elsewhere: the two differ where a screen stands higher
    // than the primary one.
    const auto normalizedRect = flipped<ScreenSpace>(rect, unionOfFrames(screens).maxY());

    const Screen* best = nullptr;
    double bestArea = 0.0;
    for (const auto& screen : screens) {
        log.line("normalizedWindowRect: " + logText(normalizedRect));
        log.line("screenFrame (global): " + logText(screen.frame));
        const auto intersection = normalizedRect.intersectionWith(screen.frame);
        log.line("intersection: " + logText(intersection));
        if (intersection.area() > bestArea) {
            best = &screen;
            bestArea = intersection.area();
        }
    }
    if (best == nullptr) {
        return false;
    }
    log.line("intersection!");
    current->screen = *best;
    return true;
}

std::optional<ScreensModel> ScreensModel::nextScreen()
{
    return attachedNeighbour(ScreenStep::next);
}

std::optional<ScreensModel> ScreensModel::previousScreen()
{
    return attachedNeighbour(ScreenStep::previous);
}

std::optional<ScreensModel> ScreensModel::attachedNeighbour(ScreenStep step) const
{
    auto found = neighbour(step);
    if (!found && current->screen) {
        fatalError("The current screen is no longer attached");
    }
    return found;
}

std::optional<ScreensModel> ScreensModel::neighbour(ScreenStep step) const
{
    if (!current->screen) {
        return std::nullopt;
    }
    const auto screens = platform->screens.screens();
    const auto found =
        std::ranges::find_if(screens, [this](const Screen& screen) { return screen.isSameScreenAs(*current->screen); });
    if (found == screens.end()) {
        return std::nullopt;
    }
    const auto index = static_cast<std::size_t>(found - screens.begin());
    const auto count = screens.size();
    current->screen = screens[(step == ScreenStep::next ? index + 1 : index + count - 1) % count];
    return ScreensModel(*platform, current);
}

ScreenRect ScreensModel::appKitRectFromAccessibility(const Platform& platform, const AxRect& rect)
{
    return flippedByPrimaryHeight<ScreenSpace>(rect, platform.screens.screens());
}

AxRect ScreensModel::accessibilityRectFromAppKit(const Platform& platform, const ScreenRect& rect)
{
    return flippedByPrimaryHeight<AxSpace>(rect, platform.screens.screens());
}

} // namespace quorvel
