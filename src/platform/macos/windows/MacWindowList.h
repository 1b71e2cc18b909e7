#pragma once

#include "platform/WindowList.h"

namespace quorvel::macos {

class MacWindowList final : public WindowList {
public:
    std::vector<WindowListEntry> onScreenWindows() override;
};

} // namespace quorvel::macos
