#pragma once

#include "platform/x11/overlays/SurfaceWindow.h"

namespace quorvel::x11 {

class X11OverlayWindow final : public SurfaceWindow<OverlayWindow> {
public:
    using SurfaceWindow::SurfaceWindow;
};

} // namespace quorvel::x11
