#pragma once

#include <string>

#include "base/KeyboardLayoutProfile.h"
#include "platform/KeyboardLayout.h"
#include "settings/ShortcutSettings.h"

namespace quorvel {

// How a shortcut reads: "⌘⇧O", or "None" where its key code is 0. The profile names the keys that type something.
std::string shortcutText(const Shortcut& shortcut, KeyboardLayoutProfile profile);

// The same with the names of the modifiers in place of their symbols, "Super+Shift+O"; empty where there is no symbol.
std::string spelledOutShortcut(const Shortcut& shortcut, KeyboardLayoutProfile profile, const ModifierNames& names);

} // namespace quorvel
