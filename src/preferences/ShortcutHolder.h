#pragma once

#include <optional>
#include <string>

#include "settings/ShortcutSettings.h"

namespace quorvel {

class HotKeys;
class Settings;
struct ShortcutRow;

// Who else has a shortcut: another row, or another program.
struct ShortcutHolder {
    const ShortcutRow* row = nullptr; // null for another program

    bool operator==(const ShortcutHolder&) const = default;
};

// Whether `other` acts on what `row` shows.
bool isHeldBy(const ShortcutRow& other, const ShortcutRow& row, const Settings& settings);

// Who besides `row` holds what it shows; the first row of several, and a row before another program. Another program
// is found out by claiming the shortcut for a moment, so this is for times when the hot keys rest.
std::optional<ShortcutHolder> holderOfShortcut(const ShortcutRow& row, const Settings& settings, HotKeys& hotKeys);

// "Also used by another program."
std::string holderText(const ShortcutHolder& holder);

} // namespace quorvel
