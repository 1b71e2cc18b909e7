#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/OverlayWindows.h"

namespace quorvel {

enum class OverlayKind { window, panel };

// What the desktop knows of one of this program's own windows, also after it is gone.
struct OverlayWindowRecord {
    std::uint64_t number = 0; // in order of creation, from 1
    OverlayKind kind = OverlayKind::window;
    WindowDescription description;
    ScreenRect frame;
    std::string frameAutosaveName;
    DrawList content;
    bool clipsToBounds = true;
    bool isVisible = false;
    bool isClosed = false;
    std::function<void(const KeyEvent&)> onKeyDown;
};

} // namespace quorvel
