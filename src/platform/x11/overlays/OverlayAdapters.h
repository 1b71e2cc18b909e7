#pragma once

#include <memory>
#include <string>

#include "platform/x11/overlays/OverlayGraphics.h"
#include "platform/x11/overlays/X11OverlayWindows.h"
#include "platform/x11/painting/TextLayouts.h"
#include "platform/x11/painting/X11TextMetrics.h"

namespace quorvel::x11 {

// The adapters for overlay windows and their text, and what they share.
struct OverlayAdapters {
    OverlayAdapters(Connection& connection, MainQueue& mainQueue, X11Screens& screens, const Keyboard& keyboard,
                    std::unique_ptr<OverlayGraphics> overlayGraphics, const std::string& fontFamilies)
        : graphics(std::move(overlayGraphics)),
          layouts(fontFamilies),
          textMetrics(layouts),
          overlayWindows(connection, mainQueue, screens, keyboard, *graphics, layouts)
    {}

    std::unique_ptr<OverlayGraphics> graphics;
    TextLayouts layouts;

    X11TextMetrics textMetrics;
    X11OverlayWindows overlayWindows;
};

} // namespace quorvel::x11
