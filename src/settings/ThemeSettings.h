#pragma once

#include <string>

#include "base/Date.h"

namespace quorvel {

class Settings;

// What themes do with the settings they are snapshots of. For Theme, SwitcherTheme and MoveResizeTheme.

// A new theme of the current settings, as preferences show them, created at `now`. Without a name it is "Untitled".
template <class Record>
Record captureTheme(const Settings& settings, std::string name, Date now);

// Makes the settings what they were when the theme was made. A text that names no label position or display mode leaves
// that setting alone.
template <class Record>
void applyTheme(const Record& theme, Settings& settings);

// Writes the defaults of the settings that a theme of this kind would hold, and of no others.
template <class Record>
void resetThemedSettings(Settings& settings);

} // namespace quorvel
