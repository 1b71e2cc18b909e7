#pragma once

#include <vector>

#include "app/FocusWindowInfo.h"

namespace quorvel {

struct Platform;

// What the focus switcher can choose from at one moment.
struct FocusCandidates {
    std::vector<FocusWindowInfo> visible; // front to back
    std::vector<MinimizedWindowInfo> minimized;

    bool isEmpty() const { return visible.empty() && minimized.empty(); }
};

FocusCandidates focusCandidates(const Platform& platform);

} // namespace quorvel
