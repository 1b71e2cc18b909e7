#pragma once

#include <cstdint>

namespace quorvel {

class Settings;

// How the move/resize mode behaves. Distances in points.
struct MoveResizeSettings {
    double moveStep = 20.0;
    bool snapEnabled = true;
    double snapThreshold = 20.0;
    std::int64_t snapResistance = 3; // key presses

    bool operator==(const MoveResizeSettings&) const = default;
};

// Only positive numbers and Booleans count; the table's fallbacks stand in for anything else. A resistance loses its
// fraction first.
MoveResizeSettings moveResizeSettings(const Settings& settings);

} // namespace quorvel
