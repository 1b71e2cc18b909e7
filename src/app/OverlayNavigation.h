#pragma once

#include <cstdint>
#include <optional>

#include "base/Action.h"
#include "base/Keys.h"

namespace quorvel {

class Settings;

// The step to another layout or screen that a key means while the layout overlay is up: nextLayout, previousLayout,
// nextScreen or previousScreen, the first that applies. A configured shortcut matches with exactly its modifiers, a
// mask of hotKeyModifiers, and replaces the arrow key of its command, which matches without modifiers only.
//
// A stored key code or mask that is out of range is a fatal error, whichever key was pressed.
std::optional<Action> overlayNavigation(const Settings& settings, KeyCode keyCode, std::uint32_t modifiers);

} // namespace quorvel
