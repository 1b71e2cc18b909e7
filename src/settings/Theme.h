#pragma once

#include <string>

#include "settings/ThemeRecord.h"

namespace quorvel {

// A named snapshot of how the layout overlay looks. Colours and the label's position are the stored texts.
struct Theme : ThemeRecord {
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

    bool operator==(const Theme&) const = default;
};

} // namespace quorvel
