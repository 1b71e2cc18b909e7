#pragma once

#include <utility>

#include "platform/OverlayWindows.h"
#include "platform/x11/overlays/OverlaySurface.h"

namespace quorvel::x11 {

// The part that the two kinds of overlay window of the port have in common.
template <class Port>
class SurfaceWindow : public Port {
public:
    SurfaceWindow(OverlayStage& stage, const WindowDescription& description) : surface(stage, description) {}

    ScreenRect frame() const override { return surface.frame(); }
    void setFrame(const ScreenRect& frame) override { surface.setFrame(frame); }

    // Nobody moves overlay windows, so there is no place to remember.
    void setFrameAutosaveName(std::string_view) override {}

    void setContent(DrawList content) override { surface.setContent(std::move(content)); }

    // A window of the X server ends at its edge in any case.
    void setClipsToBounds(bool) override {}

    void orderFrontRegardless() override { surface.orderFront(); }
    void orderOut() override { surface.orderOut(); }
    void close() override { surface.close(); }
    bool isVisible() const override { return surface.isVisible(); }
    NotificationObject notificationObject() const override { return reinterpret_cast<NotificationObject>(this); }

protected:
    OverlaySurface surface;
};

} // namespace quorvel::x11
