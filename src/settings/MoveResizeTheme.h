#pragma once

#include <cstdint>
#include <string>

#include "settings/ThemeRecord.h"

namespace quorvel {

// A named snapshot of how the frames of the move/resize mode look and how windows snap. Colours are the stored texts.
struct MoveResizeTheme : ThemeRecord {
    std::string selectionColorHex;
    double selectionBorderWidth = 0.0;
    bool selectionGlow = false;
    std::string snapTargetColorHex;
    double snapTargetBorderWidth = 0.0;
    bool snapTargetGlow = false;
    std::int64_t cornerRadius = 0;
    bool snapEnabled = false;
    double snapThreshold = 0.0;
    double snapResistance = 0.0;
    double moveStep = 0.0;

    bool operator==(const MoveResizeTheme&) const = default;
};

} // namespace quorvel
