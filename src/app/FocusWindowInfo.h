#pragma once

#include <string>

#include "base/Geometry.h"
#include "platform/Accessibility.h"
#include "platform/ProcessId.h"

namespace quorvel {

// A window on screen that the focus switcher can choose.
struct FocusWindowInfo {
    ProcessId pid = 0;
    AxRect bounds;
    std::string appName;
    std::string windowTitle; // empty where it cannot be read
    AxElementRef axWindow;   // null where accessibility knows no window there
    bool hasTwin = false;    // another window of the process lies in front of it, at the same place
};

// A minimized window that the focus switcher can restore.
struct MinimizedWindowInfo {
    ProcessId pid = 0;
    AxElementRef axWindow;
    std::string appName;
    std::string windowTitle;
};

} // namespace quorvel
