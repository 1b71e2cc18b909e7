#include "layouts/OverlayWindowManager.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/LogText.h"
#include "layouts/CompactLabelView.h"
#include "layouts/LabelPlacement.h"
#include "layouts/LayoutShortcutsLegendView.h"
#include "layouts/OverlayView.h"
#include "layouts/WindowBorderOverlay.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/Screens.h"
#include "settings/AppearanceSettings.h"

namespace quorvel {

namespace {

// Frames keep one point clear on each side, so that the borders of neighbours stand side by side.
ScreenRect layoutFrameRect(const WindowModel& frame, const ScreenRect& visibleFrame)
{
    constexpr double inset = 1.0;
    const double left = frame.bottom_left_x * visibleFrame.width + inset;
    const double bottom = frame.bottom_left_y * visibleFrame.height + inset;
    const double right = frame.top_right_x * visibleFrame.width - inset;
    const double top = frame.top_right_y * visibleFrame.height - inset;
    return {visibleFrame.x + left, visibleFrame.y + bottom, std::max(right - left, 0.0), std::max(top - bottom, 0.0)};
}

} // namespace

OverlayWindowManager::OverlayWindowManager(const Platform& platform)
    : windows(platform.overlayWindows),
      screens(platform.screens),
      log(platform.log),
      settings(platform.userDefaults),
      environment{platform.textMetrics, platform.systemColors}
{}

void OverlayWindowManager::showLayoutFrame(std::string_view label, const WindowModel& frame,
                                           const ScreenRect& visibleFrame)
{
    const auto rect = layoutFrameRect(frame, visibleFrame);
    log.line("OverlayWindowManager contentRect: " + logText(rect));
    auto& window = addWindow(rect, windowLevels::popUpMenu, WindowShadow::none);
    log.line("OverlayWindowManager frame: " + logText(rect));
    window.setFrameAutosaveName(label);
    const OverlayView view{
        .label = std::string(label),
        .overridePosition = std::nullopt,
        .appName = std::nullopt,
        .windowTitle = std::nullopt,
        .appearance = layoutOverlayAppearance(settings),
    };
    window.setContent(view.body(rect.size(), environment, log));
    window.setClipsToBounds(false);
    visibility = Visibility::visible;
    window.setFrame(rect); // the autosave name may have brought back the frame of an earlier showing
    window.orderFrontRegardless();
}

void OverlayWindowManager::showLegend(const std::vector<LayoutShortcutEntry>& entries, const ScreenRect& visibleFrame)
{
    if (entries.empty()) {
        return;
    }
    constexpr double margin = 20.0;
    auto legend = LayoutShortcutsLegendView{entries}.body(environment);
    const auto& size = legend.fittingSize;
    const ScreenRect rect{visibleFrame.maxX() - size.width - margin, visibleFrame.maxY() - size.height - margin,
                          size.width, size.height};
    auto& window = addWindow(rect, windowLevels::popUpMenu + 2, WindowShadow::none);
    window.setContent(std::move(legend.content));
    window.orderFrontRegardless();
}

void OverlayWindowManager::showWindowLabel(std::string_view label, const std::optional<VisibleWindowInfo>& info,
                                           const ScreenRect& bounds)
{
    const auto appearance = switcherAppearance(settings);
    const auto size = windowLabelSize(appearance.textSize, label, info);
    const auto anchor = resolveAnchor(appearance.labelPosition, bounds, size, occupied, screens.screens());
    const auto rect = labelRect(anchor, bounds, size);
    occupied.push_back(rect);

    auto& border = addWindow(bounds, windowLevels::popUpMenu, WindowShadow::none);
    border.setContent(WindowBorderOverlay{appearance}.body(bounds.size(), environment));
    auto& labelWindow = addWindow(rect, windowLevels::popUpMenu + 1, WindowShadow::drawn);
    const CompactLabelView view{
        .label = std::string(label),
        .appName = info ? std::optional(info->appName) : std::nullopt,
        .windowTitle = info ? std::optional(info->windowTitle) : std::nullopt,
        .appearance = appearance,
    };
    labelWindow.setContent(view.body(size, environment));
    visibility = Visibility::visible;
    border.orderFrontRegardless();
    labelWindow.orderFrontRegardless();
}

void OverlayWindowManager::hideAll()
{
    for (const auto& window : overlayWindows) {
        window->close();
    }
    overlayWindows.clear();
    occupied.clear();
    visibility = Visibility::hidden;
}

OverlayWindow& OverlayWindowManager::addWindow(const ScreenRect& contentRect, int level, WindowShadow shadow)
{
    overlayWindows.push_back(windows.createWindow({
        .contentRect = contentRect,
        .level = level,
        .collectionBehavior = collectionBehaviors::besideEverything,
        .hasShadow = shadow == WindowShadow::drawn,
    }));
    return *overlayWindows.back();
}

} // namespace quorvel
