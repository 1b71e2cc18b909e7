#pragma once

#include <optional>
#include <string>

#include "base/DrawList.h"
#include "base/LabelPosition.h"
#include "layouts/ViewEnvironment.h"
#include "settings/AppearanceSettings.h"

namespace quorvel {

class Log;

// One frame of a layout with its letter. Yellow where a colour cannot be read.
struct OverlayView {
    std::string label;
    std::optional<LabelPosition> overridePosition; // goes before the one of the settings
    std::optional<std::string> appName;
    std::optional<std::string> windowTitle;
    OverlayAppearance appearance;

    // Writes one line to the log each time.
    DrawList body(const Size& size, const ViewEnvironment& environment, Log& log) const;

    // The same, silently.
    DrawList drawList(const Size& size, const ViewEnvironment& environment) const;

private:
    bool shouldShowWindowInfo() const;
};

} // namespace quorvel
