#pragma once

#include <string>
#include <vector>

#include "latency/EventProbe.h"

namespace quorvel::bench {

// A window manager and how a person would have configured it: with bindings for what Quorvel does.
struct WindowManagerSetup {
    std::string program;
    std::vector<std::string> options; // the last of them is followed by the file with the configuration
    std::string configuration;
};

// All windows float in i3, for what is tiled has no place of its own.
const WindowManagerSetup& openboxSetup();
const WindowManagerSetup& i3Setup();

// The bindings that both have. Left and right half; a step to the right and back; the next window to the right, the
// left.
namespace bindings {
extern const Chord leftHalf;
extern const Chord rightHalf;
extern const Chord stepRight;
extern const Chord stepLeft;
extern const Chord focusRight;
extern const Chord focusLeft;
} // namespace bindings

} // namespace quorvel::bench
