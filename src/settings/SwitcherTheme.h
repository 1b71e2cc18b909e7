#pragma once

#include <string>

#include "settings/ThemeRecord.h"

namespace quorvel {

// A named snapshot of how the focus switcher looks. Colours, the label's position and the display mode are the stored
// texts.
struct SwitcherTheme : ThemeRecord {
    std::string overlayBorderColorHex;
    std::string overlayBackgroundColorHex;
    double overlayBorderWidth = 0.0;
    double overlayBorderRadius = 0.0;
    std::string textBorderColorHex;
    std::string textBackgroundColorHex;
    double textBorderWidth = 0.0;
    std::string textColorHex;
    double textSize = 0.0;
    double textBorderRadius = 0.0;
    bool isTextBold = false;
    std::string labelPositionRaw;
    bool showWindowInfo = false;
    std::string defaultDisplayModeRaw;

    bool operator==(const SwitcherTheme&) const = default;
};

} // namespace quorvel
