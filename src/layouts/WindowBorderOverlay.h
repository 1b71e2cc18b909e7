#pragma once

#include "base/DrawList.h"
#include "layouts/ViewEnvironment.h"
#include "settings/AppearanceSettings.h"

namespace quorvel {

// The border around a window that the focus switcher labels. Blue where a colour cannot be read.
struct WindowBorderOverlay {
    OverlayAppearance appearance; // of it the frame's part

    DrawList body(const Size& size, const ViewEnvironment& environment) const;
};

} // namespace quorvel
