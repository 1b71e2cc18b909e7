#pragma once

#include <span>
#include <string>
#include <string_view>

#include "settings/ShortcutSettings.h"

namespace quorvel {

class Settings;

// How the program reads the two settings of a shortcut.
enum class ShortcutReading {
    main,       // it starts a mode, from anywhere
    navigation, // a key of the layout overlay; with modifiers it counts anywhere
    mode,       // a key inside a mode
};

// One shortcut that can be recorded.
struct ShortcutRow {
    std::string_view section;
    std::string_view title; // unique in its section
    ShortcutKeys keys;
    ShortcutReading reading = ShortcutReading::mode;
};

// All of them, section by section, in the order in which they are shown.
std::span<const ShortcutRow> shortcutRows();

// What the row shows: what is stored, and 0 for what is not.
Shortcut shownShortcut(const ShortcutRow& row, const Settings& settings);

// What the program acts on, which for a row that shows nothing may be a default. The modifiers of a key inside a mode
// are only stored.
Shortcut effectiveShortcut(const ShortcutRow& row, const Settings& settings);

} // namespace quorvel
