#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "base/Action.h"
#include "base/Keys.h"
#include "settings/ShortcutSettings.h"

namespace quorvel {

class Settings;

// A step to another layout or screen, its shortcut, and the key that means it while the overlay is up and no shortcut
// is configured.
struct NavigationCommand {
    Action action = Action::cancel;
    ShortcutKeys keys;
    KeyCode builtInKey = 0;
};

inline constexpr std::array navigationCommands{
    NavigationCommand{Action::nextLayout, shortcutKeys::nextLayout, keyCodes::downArrow},
    NavigationCommand{Action::previousLayout, shortcutKeys::previousLayout, keyCodes::upArrow},
    NavigationCommand{Action::nextScreen, shortcutKeys::nextScreen, keyCodes::rightArrow},
    NavigationCommand{Action::previousScreen, shortcutKeys::previousScreen, keyCodes::leftArrow},
};

// The step to another layout or screen that a key means while the layout overlay is up: that of the first command that
// applies. A configured shortcut matches with exactly its modifiers, a
// mask of hotKeyModifiers, and replaces the arrow key of its command, which matches without modifiers only.
//
// A stored key code or mask that is out of range is a fatal error, whichever key was pressed.
std::optional<Action> overlayNavigation(const Settings& settings, KeyCode keyCode, std::uint32_t modifiers);

} // namespace quorvel
