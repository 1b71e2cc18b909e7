#pragma once

#include <optional>
#include <string>
#include <vector>

#import <AppKit/AppKit.h>

#include "base/DrawList.h"

namespace quorvel::fakes {

// One call that puts something on the screen.
struct Drawn {
    std::string text{};          // empty for a path
    NSRect rect = NSZeroRect;    // the bounds of the path, or the box of the text
    std::optional<Color> fill{}; // also of a text
    std::optional<Stroke> stroke{};
    std::optional<Shadow> shadow{}; // of the layer it belongs to
    bool hasCurves = false;
};

// What was drawn since the last call.
std::vector<Drawn> takeDrawn();

} // namespace quorvel::fakes
