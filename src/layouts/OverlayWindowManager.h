#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "layouts/LayoutShortcutEntry.h"
#include "layouts/ViewEnvironment.h"
#include "layouts/VisibleWindowInfo.h"
#include "layouts/WindowModel.h"
#include "platform/OverlayWindows.h"
#include "settings/Settings.h"

namespace quorvel {

class Log;
class Screens;
struct Platform;

// Puts frames, borders, labels and the legend on screen, each as a window of its own that lets clicks through, and
// takes them all down again. Rectangles are in screen coordinates.
class OverlayWindowManager {
public:
    explicit OverlayWindowManager(const Platform& platform);

    // One frame of a layout with its label, on the screen with that visible frame.
    void showLayoutFrame(std::string_view label, const WindowModel& frame, const ScreenRect& visibleFrame);

    // The legend in the top right corner of the visible frame; nothing for an empty list.
    void showLegend(const std::vector<LayoutShortcutEntry>& entries, const ScreenRect& visibleFrame);

    // A border over a window's bounds and a label near them, clear of the labels shown before it where possible: the
    // windows shown first get the better places.
    void showWindowLabel(std::string_view label, const std::optional<VisibleWindowInfo>& info,
                         const ScreenRect& bounds);

    void hideAll();

    // True from the first frame or label until everything is hidden; a legend alone does not count.
    bool isOverlayVisible() const { return visibility == Visibility::visible; }

    // The labels placed since everything was hidden last, in order.
    const std::vector<ScreenRect>& occupiedLabelRects() const { return occupied; }

private:
    enum class Visibility { hidden, visible };
    enum class WindowShadow { none, drawn };

    OverlayWindow& addWindow(const ScreenRect& contentRect, int level, WindowShadow shadow);

    OverlayWindows& windows;
    Screens& screens;
    Log& log;
    Settings settings;
    ViewEnvironment environment;
    std::vector<std::unique_ptr<OverlayWindow>> overlayWindows; // in order of creation
    Visibility visibility = Visibility::hidden;
    std::vector<ScreenRect> occupied;
};

} // namespace quorvel
