#pragma once

#include <optional>
#include <string>

#include "base/DrawList.h"
#include "layouts/ViewEnvironment.h"
#include "settings/AppearanceSettings.h"

namespace quorvel {

// The focus switcher's label of one window: its letter and, where the settings ask for it, the names of the application
// and the window. White on black where a colour cannot be read.
struct CompactLabelView {
    std::string label;
    std::optional<std::string> appName;
    std::optional<std::string> windowTitle;
    OverlayAppearance appearance; // of it the text's part

    // The label in the middle of a view of `size`.
    DrawList body(const Size& size, const ViewEnvironment& environment) const;
};

} // namespace quorvel
