#pragma once

#include "base/Geometry.h"
#include "platform/ProcessId.h"

namespace quorvel {

// A window of another application as the window server knows it.
struct WindowInfo {
    ProcessId pid = 0;
    AxRect bounds;

    bool operator==(const WindowInfo&) const = default;
};

} // namespace quorvel
